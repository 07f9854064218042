#include "reports/EntryPrint.h"

#include "core/PrintFace.h"
#include "phonebook/RecordState.h"
#include "platform/Text.h"
#include "reports/RowPrinter.h"

namespace velmora {
namespace {

constexpr float kRuleEnd = 7.9F;  // inches
constexpr double kRuleGap = 0.05;
constexpr float kSizeBehind = 12;  // points, which the printer is left with

// What an entry's sheet says that the entry does not: the settings.
struct SheetSettings {
    std::string custom1;
    std::string custom2;
    bool numbers = true;
};

SheetSettings readSettings(const SettingsStore& settings) {
    return {.custom1 = settings.read(keys::Custom1),
            .custom2 = settings.read(keys::Custom2),
            .numbers = settings.read(keys::LetterTel)};
}

// Puts an entry onto a sheet.
class EntrySheet {
  public:
    EntrySheet(PrintSurface& printer, const PhonebookRecord& record, bool person)
        : printer_(printer), rows_(printer), record_(record), person_(person) {}

    void print(const std::string& name, const SheetSettings& settings) {
        printHead(name);
        rows_.gap(0.05);
        printAddress();
        rows_.gap(0.1);
        if (settings.numbers)
            printNumbers();
        rows_.lastCell(0, "Web Page: " + text(Field::WebPage));
        rows_.lastCell(0, settings.custom1 + ": " + text(Field::Custom1));
        rows_.lastCell(0, settings.custom2 + ": " + text(Field::Custom2));
        rows_.lastCell(0, "Memo: " + text(Field::Memo));
        const auto y = static_cast<float>(static_cast<double>(printer_.CurrentY()) + kRuleGap);
        printer_.Line(0, y, kRuleEnd, y, 0);
    }

  private:
    [[nodiscard]] std::string text(Field field) const { return std::string(record_.text(field)); }

    void printHead(const std::string& name) {
        rows_.cell(0, name);
        if (person_)
            rows_.cell(2.01F, text(Field::Position));
        rows_.cell(4.01F, "Class: " + text(Field::Class));
        rows_.lastCell(6.0F, "Date Reference: " + text(Field::DateReference));
    }

    void printAddress() {
        if (person_)
            rows_.lastCell(0, text(Field::Company));
        for (const Field line :
             {Field::Address1, Field::Address2, Field::Address3, Field::Address4})
            rows_.lastCell(0, text(line));
        rows_.cell(0, text(Field::PostalCode));
        rows_.lastCell(4.01F, "Country: " + text(Field::Country));
    }

    void printNumbers() {
        rows_.cell(0, "Home: " + text(Field::Phone));
        rows_.cell(2.01F, "Work: " + text(Field::WorkPhone));
        rows_.cell(4.01F, "Fax: " + text(Field::Fax));
        rows_.lastCell(6.01F, "Pager: " + text(Field::Pager));
        rows_.cell(0, "Other: " + text(Field::OtherPhone));
        rows_.lastCell(2.01F, "E-Mail: " + text(Field::EMail));
    }

    PrintSurface& printer_;
    RowPrinter rows_;
    const PhonebookRecord& record_;
    bool person_;
};

}  // namespace

void EntryPrint::PrintEntry() {
    const std::string line = parts_.pane.selectedLine();
    const std::string savedFont = parts_.printing.printer().FontName();
    const PrintTask task{.title = "Entry " + line,
                         .fontName = listFace(parts_.settings),
                         .orientation = PageOrientation::Portrait,
                         .lastText = kApplicationTitle,
                         .failureIsTold = FailureIsTold::OnTheStatusLine};
    const PrintEnd end = parts_.printing.run(task, [&](PrintRun& run) {
        run.tell("Printing Entry");
        const PhonebookRecord record = parts_.entry.read();
        const RecordState state = stateOf(record, parts_.codePage);
        if (state != RecordState::Person && state != RecordState::CompanyOnly)
            return;
        EntrySheet(run.printer, record, state == RecordState::Person)
            .print(line, readSettings(parts_.settings));
    });
    if (end == PrintEnd::Refused)
        return;
    PrintSurface& printer = parts_.printing.printer();
    printer.SetFontName(savedFont);
    printer.SetFontSize(kSizeBehind);
}

}  // namespace velmora
