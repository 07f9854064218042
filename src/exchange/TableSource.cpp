#include "exchange/TableSource.h"

#include <charconv>
#include <utility>

#include "exchange/TextDecoding.h"
#include "platform/Failure.h"
#include "platform/NumberText.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// Ends a reading that nobody wants any more.
class NotWanted final : public Failure {
  public:
    NotWanted() : Failure("The table is not wanted any more.") {}
};

bool beginsWithMs(std::string_view name) {
    return name.size() >= 2 && (name[0] | 0x20) == 'm' && (name[1] | 0x20) == 's';
}

int partOf(std::string_view moment, std::size_t at, std::size_t length) {
    int part = 0;
    const std::string_view digits = middle(moment, at + 1, length);
    std::from_chars(digits.data(), digits.data() + digits.size(), part);
    return part;
}

// Of "yyyy-mm-dd hh:mm:ss".
std::string dateValue(const std::string& moment) {
    if (moment.size() != 19)
        return moment;
    std::string text = std::to_string(partOf(moment, 5, 2)) + "/" +
                       std::to_string(partOf(moment, 8, 2)) + "/" +
                       std::to_string(partOf(moment, 0, 4));
    if (moment.ends_with("00:00:00"))
        return text;
    const int hour = partOf(moment, 11, 2);
    return text + " " + std::to_string(hour % 12 == 0 ? 12 : hour % 12) + moment.substr(13) +
           (hour < 12 ? " AM" : " PM");
}

}  // namespace

std::vector<AccessTable> importableTables(std::vector<AccessTable> tables) {
    std::erase_if(tables, [](const AccessTable& table) { return beginsWithMs(table.name); });
    return tables;
}

std::string importedValue(const std::string& value, AccessType type) {
    switch (type) {
        case AccessType::DateTime:
            return dateValue(value);
        case AccessType::Number:
            return numberText(readNumber(value));
        default:
            return value;
    }
}

TableSource::TableSource(NativePath file, AccessTable table, MakeAccessReader makeReader,
                         std::function<bool()> goOn, const CodePage& codePage)
    : file_(std::move(file)),
      table_(std::move(table)),
      makeReader_(std::move(makeReader)),
      goOn_(std::move(goOn)),
      codePage_(codePage) {
    for (const AccessField& field : table_.fields)
        columns_.push_back(codePage.fromUtf8(field.name));
}

std::string TableSource::toText(const std::string& utf8) {
    TextDecoder decoder(TextEncoding::Utf8, codePage_);
    std::string text;
    decoder.feed(utf8, text);
    decoder.end(text);
    replaced_ += decoder.replaced();
    return text;
}

void TableSource::readRows(const std::function<bool(const ImportRow&)>& take) {
    replaced_ = 0;
    const auto reader = makeReader_([this] {
        if (!goOn_())
            throw NotWanted();
    });
    std::vector<std::string> texts;
    ImportRow row;
    try {
        reader->readRows(file_, table_.name, [&](const AccessRow& values) {
            texts.assign(values.size(), {});
            row.assign(values.size(), std::nullopt);
            for (std::size_t i = 0; i < values.size(); ++i) {
                if (!values[i])
                    continue;
                const AccessType type =
                    i < table_.fields.size() ? table_.fields[i].type : AccessType::Text;
                texts[i] = toText(importedValue(*values[i], type));
                row[i] = trimBlanks(texts[i]);
            }
            if (!take(row))
                throw NotWanted();
        });
    } catch (const NotWanted&) {
        // As wished.
    }
}

}  // namespace velmora
