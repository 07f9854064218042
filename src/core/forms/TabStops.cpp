#include "core/forms/TabStops.h"

#include <QPushButton>
#include <QToolButton>

#include "core/CommandTable.h"
#include "core/forms/Calendar.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/Rail.h"
#include "core/forms/ToolStrip.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/LetterTabs.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/PaneButton.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"

namespace velmora {
namespace {

// Each control that is added follows the one before it.
class Chain {
  public:
    explicit Chain(QWidget* first) : last_(first) {}

    void then(QWidget* next) {
        QWidget::setTabOrder(last_, next);
        last_ = next;
    }
    void thenAllIn(const QWidget& parent) {
        for (auto* child : parent.findChildren<QWidget*>())
            then(child);
    }

  private:
    QWidget* last_;
};

void addPhonebook(Chain& chain, const PhonebookPage& page) {
    for (const ToolRow& row : contactToolbar())
        chain.then(page.contactKeys()->button(row.key));
    chain.thenAllIn(*page.letterTabs());
    chain.then(page.card());
    for (auto* button : {page.mailButton(), page.webButton(), page.fileButton(),
                         page.associatesButton(), page.moveButton()})
        chain.then(button);
}

void addDialer(Chain& chain, const Calendar::Dialer& dialer) {
    chain.thenAllIn(*dialer.keypad);
    for (auto* button : {dialer.send, dialer.hangUp, dialer.back, dialer.clear, dialer.externalOne})
        chain.then(button);
}

}  // namespace

void setTabStops(const Calendar& window) {
    const LeftColumn& left = window.leftColumn();
    Chain chain(left.month());
    chain.then(left.yearButton());
    chain.then(left.bookKeys()->button("Yellow"));
    chain.then(left.bookKeys()->button("White"));
    chain.then(left.list());
    chain.then(&window.day());
    addPhonebook(chain, window.phonebookPage());
    addDialer(chain, window.dialer());
    chain.then(window.docPad().text());
    chain.then(window.docPad().growButton());
    chain.then(window.docPad().shrinkButton());
    for (const ToolRow& row : mainToolbar())
        chain.then(window.mainKeys().button(row.key));
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer})
        chain.then(window.rail().paneButton(pane));
}

}  // namespace velmora
