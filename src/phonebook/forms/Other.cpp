#include "phonebook/forms/Other.h"

#include <QFrame>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "phonebook/HitLine.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"

namespace velmora {
namespace {

constexpr int kRowGap = 12;
constexpr QSize kFormSize(560, 460);

}  // namespace

Other::Other(const PhonebookStore& store, const PhonebookPane& pane, StatusLine& statusLine,
             Messages& messages, QWidget* parent)
    : Dialog("Other", QStringLiteral("Other Associates..."), parent),
      associates_(store, pane, statusLine, messages, *this),
      List1(new EntryList(store.codePage(), nullptr, this)),
      Label1(new EntryCard(store.codePage(), this)),
      Command1(makeDialogButton("Command1", "&Close", this)) {
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Other associates"));
    List1->setDragEnabled(false);
    Label1->setObjectName(QStringLiteral("Label1"));
    arrange();
    connect(List1, &EntryList::lineClicked, this, [this] {
        const std::string line = List1->selectedLine();
        Label1->setWhitePages(line.empty() || line.front() != kYellowLetter);
        associates_.showEntry(line);
    });
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
}

void Other::arrange() {
    QFrame* frame = makeListFrame(List1, this);

    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addWidget(frame, 2);
    body->addWidget(Label1, 3);

    layOut(body, {.right = {Command1}, .primary = Command1}, {.first = kFormSize});
    setTabStops({List1, Label1});
}

void Other::setLines(std::vector<std::string> lines) {
    List1->setLines(std::move(lines));
}

void Other::showDetails(const std::string& text) {
    Label1->setText(text);
}

void Other::present() {
    Dialog::present();
    Command1->setFocus();
}

}  // namespace velmora
