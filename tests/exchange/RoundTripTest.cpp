// What one book exports another one imports.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "exchange/Export.h"
#include "exchange/ImportWizard.h"
#include "exchange/TextBytes.h"
#include "platform/files/PosixFiles.h"
#include "platform/files/PosixReplacement.h"
#include "support/FakeAccessReader.h"
#include "support/FakeJobPanel.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

constexpr int kEntries = 3000;

struct NoCopies final : CopiesBeforeImport {
    std::string copyBook(const std::string&, const std::function<bool()>&) override { return ""; }
};

// What an import has no question for, or asks for under another name.
bool survives(Field field) {
    return field != Field::FileAttachment && field != Field::Address4 && field != Field::PostalCode;
}

// Fills fields with all bytes of a code page in turn, but for some.
class Bytes {
  public:
    explicit Bytes(std::string without) : without_(std::move(without)) {}

    std::string take(std::size_t count) {
        std::string bytes;
        while (bytes.size() < count) {
            ++next_;
            if (without_.find(static_cast<char>(next_)) == std::string::npos)
                bytes += static_cast<char>(next_);
        }
        return bytes;
    }

  private:
    std::string without_;
    unsigned char next_ = 0;
};

class RoundTripTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    // Every third one is a company. Each entry has a name of its own; a comma in a name is the one
    // thing that an export does not find again.
    void fill(const std::string& separator) {
        Bytes names(separator + "\r\n,");
        Bytes others(separator + "\r\n");
        for (int i = 0; i < kEntries; ++i) {
            PhonebookRecord record;
            for (std::size_t f = 0; f < kFieldCount; ++f) {
                const auto field = static_cast<Field>(f);
                const std::size_t width = placeOf(field).width;
                const bool isName =
                    field == Field::Last || field == Field::First || field == Field::Company;
                record.assign(field, isName ? std::to_string(i) + "." + names.take(width - 6) + "."
                                            : others.take(width));
            }
            if (i % 3 == 0) {
                record.assign(Field::Last, "");
                record.assign(Field::First, "");
            }
            yellow() += test::bytesOf(record);
        }
    }

    void exportBook(const std::string& separator) {
        desk.messages.willAnswer(file);
        desk.messages.willAnswer(false);
        desk.messages.willAnswer(separator == "\t");
        if (separator != "\t")
            desk.messages.willAnswer(std::optional<std::string>(separator));
        exporting.run();
        EXPECT_EQ(desk.status.text, "Velmora");
    }

    // Each question is answered with the column that is proposed.
    void importIntoWhitePages(const std::string& separator) {
        bytes.files[file] = out.read("out.txt");
        desk.messages.willAnswer(std::optional<std::string>(file));
        desk.messages.willAnswer(separator == "\t");
        ASSERT_TRUE(wizard.begin());
        desk.messages.willAnswer(false);
        while (wizard.stage() == ImportWizard::Stage::Question)
            wizard.choose(wizard.proposedLine());
        ASSERT_TRUE(wizard.import(kWhitePagesFile, [](const ImportRun::State&) {}));
        EXPECT_EQ(wizard.report().unknown, 0U);
        (void)desk.messages.takeShown();
    }

    // The entries of a book by their names.
    std::map<std::string, std::vector<std::string>> entriesOf(const std::string& book) {
        std::map<std::string, std::vector<std::string>> entries;
        for (std::size_t at = 0; at < book.size(); at += kRecordSize) {
            const RecordView record(book.data() + at);
            std::vector<std::string> fields;
            for (std::size_t f = 0; f < kFieldCount; ++f)
                fields.emplace_back(record.text(static_cast<Field>(f)));
            const std::string name = fields[static_cast<std::size_t>(Field::Company)];
            EXPECT_TRUE(entries.emplace(name, fields).second) << "twice: " << name;
        }
        return entries;
    }

    void expectSameEntries() {
        const auto exported = entriesOf(yellow());
        const auto imported = entriesOf(white());
        ASSERT_EQ(imported.size(), static_cast<std::size_t>(kEntries));
        for (const auto& [name, fields] : exported) {
            const auto found = imported.find(name);
            ASSERT_NE(found, imported.end()) << name;
            for (std::size_t f = 0; f < kFieldCount; ++f)
                ASSERT_EQ(found->second[f], survives(static_cast<Field>(f)) ? fields[f] : "")
                    << "field " << f << " of " << name;
        }
    }

    test::TemporaryFolder out;
    const std::string file = out.file("out.txt");
    test::PrintDesk desk;
    test::FakeJobPanel panel;
    PosixFiles realFiles{NativePaths(CodePage::western())};
    PosixReplacements replacements;
    Export exporting{{desk.jobs, panel, desk.printing.state(), state, store, settings, realFiles,
                      realFiles, replacements, desk.messages, [](const std::string&) {}}};
    test::TextBytes bytes;
    NoCopies copies;
    test::FakeAccessReader access;
    ImportWizard wizard{
        {desk.jobs, desk.messages, store, settings, copies, realFiles, bytes.opener(),
         [](const std::function<void()>&) { return std::make_unique<test::FakeAccessReader>(); },
         [] {}}};
};

TEST_F(RoundTripTest, EveryByteButTabAndLineEndsComesInAsItWentOut) {
    fill("\t");
    exportBook("\t");
    importIntoWhitePages("\t");
    expectSameEntries();
}

TEST_F(RoundTripTest, EveryByteButCommaAndLineEndsComesInAsItWentOut) {
    medium.save("Custom1", "Birthday");
    fill(",");
    exportBook(",");
    importIntoWhitePages(",");
    expectSameEntries();
}

}  // namespace
}  // namespace velmora
