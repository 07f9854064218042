// Any bytes as a delimited text to be imported, and as an initialisation file.

#include <algorithm>
#include <span>
#include <string>

#include "exchange/ExportColumns.h"
#include "exchange/ImportRecord.h"
#include "exchange/TextColumns.h"
#include "exchange/TextSource.h"
#include "fuzz/Fuzzing.h"
#include "planner/OldPlannerImport.h"
#include "platform/ProfileFile.h"

namespace velmora {
namespace {

using fuzz::require;

class Bytes final : public ByteSource {
  public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t size() const override { return bytes_.size(); }
    [[nodiscard]] std::size_t read(std::uint64_t offset, std::span<char> target) const override {
        return offset < bytes_.size() ? bytes_.copy(target.data(), target.size(), offset) : 0;
    }

  private:
    std::string_view bytes_;
};

void checkText(std::string_view bytes, char separator) {
    TextSource source(
        {[&](const std::string&) { return std::make_unique<Bytes>(bytes); }, "list", separator},
        CodePage::western());
    (void)fuzz::succeeds([&] {
        if (source.inspect([] { return true; }) != TextSource::Inspection::Importable)
            return;
        require(source.columns().size() >= 2 && source.columns().size() <= kMostColumns,
                "a text that is importable has columns");
        ImportMapping mapping;
        for (std::size_t field = 0; field < kImportFieldCount; ++field)
            mapping.choices[field] = source.choiceOf(field % source.columns().size());
        ImportRecord records(mapping, source);
        source.readRows([&](const ImportRow& row) {
            require(row.size() >= source.columns().size() && row.size() <= kMostColumns,
                    "a row has all columns");
            const PhonebookRecord record = records.of(row);
            require(record.raw(Field::Address4) == std::string(75, ' '), "what is not asked for");
            return true;
        });
    });
}

void checkColumns(std::string_view line, char separator) {
    std::vector<std::string_view> columns;
    const bool all = splitColumns(line, separator, columns);
    const auto separators =
        static_cast<std::size_t>(std::count(line.begin(), line.end(), separator));
    require(all == (separators < kMostColumns), "too many columns are told");
    require(columns.size() == std::min(separators + 1, kMostColumns), "one column more than cuts");
    (void)isExportHeader(line);
}

void checkProfile(std::string_view bytes) {
    const ProfileFile profile(std::string(bytes), CodePage::western());
    for (const std::string& section : ProfileFile::headerLines(bytes)) {
        std::size_t room = 100;
        for (const std::string& key : profile.keysOf(section, room)) {
            require(key.size() < room, "the keys have room");
            room -= key.size() + 1;
            require(profile.value(section, key, "", 20).size() <= 20, "a value is cut");
        }
    }
    for (const OldPlannerDay& day : daysOfOldPlanner(std::string(bytes), CodePage::western()))
        (void)dayOfOldSection(day.section, std::chrono::year(2026));
    const std::string note = textOfOldNote(std::string(bytes));
    require(note.find("Chr$(13)") == std::string::npos, "no marker stays");
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, size);
    switch (input.byte() % 4) {
        case 0:
            checkText(input.rest(), '\t');
            break;
        case 1:
            checkText(input.rest(), ',');
            break;
        case 2:
            checkColumns(input.rest(), ',');
            break;
        default:
            checkProfile(input.rest());
            break;
    }
    return 0;
}
