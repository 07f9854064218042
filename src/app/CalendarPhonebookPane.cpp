#include "app/CalendarPhonebookPane.h"

#include <QLabel>
#include <utility>

#include "core/SharedState.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/LetterTabs.h"

namespace velmora {

void CalendarPhonebookPane::clearList() {
    calendar_.leftColumn().list()->clearLines();
}

void CalendarPhonebookPane::addLines(std::vector<std::string> lines) {
    calendar_.leftColumn().list()->addLines(std::move(lines));
}

std::string CalendarPhonebookPane::selectedLine() const {
    return calendar_.leftColumn().list()->selectedLine();
}

bool CalendarPhonebookPane::selectLine(const std::string& line) {
    return calendar_.leftColumn().list()->selectLine(line);
}

void CalendarPhonebookPane::showDetails(const std::string& text) {
    calendar_.phonebookPage().card()->setText(text);
}

void CalendarPhonebookPane::showBookLabels(bool yellow, bool white) {
    calendar_.leftColumn().yellowLabel()->setVisible(yellow);
    calendar_.leftColumn().whiteLabel()->setVisible(white);
}

void CalendarPhonebookPane::showLetter(int index) {
    calendar_.phonebookPage().letterTabs()->setCurrent(index);
    calendar_.leftColumn().list()->setEmptyText(
        QStringLiteral("No entries under %1.").arg(LetterTabs::letterAt(index)));
}

void CalendarPhonebookPane::showBook(std::int16_t kind) {
    const bool white = kind == kWhitePages;
    calendar_.leftColumn().showBook(white);
    calendar_.phonebookPage().letterTabs()->setWhitePages(white);
    calendar_.phonebookPage().card()->setWhitePages(white);
}

}  // namespace velmora
