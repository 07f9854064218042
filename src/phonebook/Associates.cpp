#include "phonebook/Associates.h"

#include <utility>

#include "phonebook/CardText.h"
#include "phonebook/HitLine.h"
#include "phonebook/ListLine.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// The place in a line, from 1, at which the entry's own line begins.
constexpr std::size_t kEntryAt = 4;

}  // namespace

void Associates::findOthers() {
    try {
        statusLine_.show("Please Wait While Searching...");
        view_.setLines({});
        view_.showDetails("");
        const std::string company = companyOfSelected();
        if (company.empty()) {
            statusLine_.show("No other associates found.");
            return;
        }
        std::vector<std::string> lines;
        addEntriesAt(company, kYellowPagesFile, kYellowLetter, lines);
        addEntriesAt(company, kWhitePagesFile, kWhiteLetter, lines);
        showOthers(std::move(lines));
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
}

std::string Associates::companyOfSelected() const {
    const OpenBook book = store_.Open(kYellowPagesFile);
    const auto number = book.FindByListLine(pane_.selectedLine());
    PhonebookRecord record;
    if (number)
        (void)book.ReadAt(*number, record);
    return std::string(record.text(Field::Company));
}

void Associates::addEntriesAt(const std::string& company, const std::string& bookFile,
                              char bookLetter, std::vector<std::string>& lines) const {
    const OpenBook book = store_.Open(bookFile);
    BookScan records = book.scan();
    while (records.next()) {
        const RecordView record = records.record();
        if (record.firstByte(Field::Company) != company.front() ||
            record.text(Field::Company) != company)
            continue;
        if (const auto entry = listLine(record, store_.codePage()))
            lines.push_back(lineWithBook(bookLetter, *entry));
    }
}

void Associates::showOthers(std::vector<std::string> lines) {
    if (lines.empty()) {
        messages_.tell("No Associates", "No other associates were found.");
        statusLine_.show("No Other Associates Found.");
        return;
    }
    view_.setLines(std::move(lines));
    view_.present();
    statusLine_.show("Search Was Successful.");
}

void Associates::showEntry(const std::string& line) {
    view_.showDetails("");
    if (line.empty())
        return;
    try {
        const OpenBook book =
            store_.Open(line.front() == kYellowLetter ? kYellowPagesFile : kWhitePagesFile);
        PhonebookRecord record;
        if (const auto number = book.FindByListLine(middle(line, kEntryAt)))
            if (book.ReadAt(*number, record))
                view_.showDetails(cardText(record, kAssociateCard));
    } catch (const Failure& failure) {
        messages_.standardError(failure.what());
    }
}

}  // namespace velmora
