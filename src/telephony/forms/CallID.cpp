#include "telephony/forms/CallID.h"

#include <QAction>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>
#include <chrono>
#include <utility>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"
#include "telephony/forms/CallNumber.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

constexpr QSize kFormSize(580, 546);
constexpr QSize kLeastSize(460, 400);
constexpr int kRowGap = 12;
constexpr int kListHeight = 96;

// Lines that come one by one are shown together: a list of thousands would else be laid out as
// often.
constexpr auto kLinesTogether = 30ms;

}  // namespace

CallID::CallID(const CodePage& codePage)
    : Dialog("CallID", QStringLiteral("Incoming Call Report"), nullptr), codePage_(codePage) {
    // A plain window: a dialog would go down with the main window when that is minimised.
    setWindowFlags(Qt::Window | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    makeControls();
    arrange();
    connectControls();
}

void CallID::makeControls() {
    Number = new CallNumber(this);
    Number->setObjectName(QStringLiteral("Number"));
    NewEntry = makeDialogButton("NewEntry", "&New entry with this number", this);
    Label2 = new QLabel(QStringLiteral("Possible Caller(s):"), this);
    Label2->setObjectName(QStringLiteral("Label2"));
    setType(*Label2, 9.75, QFont::DemiBold);
    List1 = new EntryList(codePage_, nullptr, this);
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(Label2->text());
    List1->setDragEnabled(false);
    Label1 = new EntryCard(codePage_, this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setEven();
    Command1 = makeDialogButton("Command1", "&Close", this);

    copyNumber_ = new QAction(QStringLiteral("Copy"), this);
    copyNumber_->setShortcut(QKeySequence::Copy);
    addAction(copyNumber_);
    numberMenu_ = new QMenu(this);
    numberMenu_->setObjectName(QStringLiteral("NumberMenu"));
    numberMenu_->addAction(copyNumber_);
    connect(numberMenu_->addAction(NewEntry->text()), &QAction::triggered, NewEntry,
            &QPushButton::click);
}

void CallID::arrange() {
    auto* numberRow = new QHBoxLayout;
    numberRow->setSpacing(kRowGap);
    numberRow->addWidget(Number, 1);
    numberRow->addWidget(NewEntry);
    QFrame* frame = makeListFrame(List1, this);
    frame->setFixedHeight(kListHeight);
    auto* callers = new QVBoxLayout;
    callers->setSpacing(4);
    callers->addWidget(Label2);
    callers->addWidget(frame);
    auto* body = new QVBoxLayout;
    body->setSpacing(kRowGap);
    body->addLayout(numberRow);
    body->addLayout(callers);
    body->addWidget(Label1, 1);
    layOut(body, {.right = {Command1}, .primary = Command1},
           {.first = kFormSize, .least = kLeastSize});
    setTabStops({Number, NewEntry, List1, Label1});
}

void CallID::connectControls() {
    connect(List1, &EntryList::lineClicked, this, [this] {
        if (List1->hasSelection())
            emit lineChosen(List1->selectedLine());
    });
    connect(copyNumber_, &QAction::triggered, Number, &CallNumber::copyAll);
    connect(Number, &CallNumber::menuWanted, this,
            [this](const QPoint& place) { numberMenu_->popup(place); });
    connect(NewEntry, &QPushButton::clicked, this, [this] { emit newEntryWanted(number_); });
    connect(Command1, &QPushButton::clicked, this, &QDialog::reject);
    linesDue_.setSingleShot(true);
    linesDue_.setInterval(kLinesTogether);
    connect(&linesDue_, &QTimer::timeout, this, &CallID::showLines);
}

// Whoever types goes on typing: the window is raised, but not activated.
void CallID::present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    stayOnTop(true);
    if (!isVisible())
        List1->setFocus();
    show();
    raise();
}

// The window itself, as the toolkit would take one that is in view away and bring it anew.
void CallID::stayOnTop(bool onTop) {
    if (QWindow* window = windowHandle())
        window->setFlag(Qt::WindowStaysOnTopHint, onTop);
}

void CallID::changeEvent(QEvent* event) {
    Dialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        stayOnTop(false);
}

void CallID::showNumber(const std::string& number) {
    number_ = number;
    Number->setNumber(toQt(number, codePage_));
    const bool known = !number.empty();
    NewEntry->setEnabled(known);
    for (QAction* item : numberMenu_->actions())
        item->setEnabled(known);
}

void CallID::clearLines() {
    linesDue_.stop();
    newLines_.clear();
    List1->setEmptyText(QString());
    List1->clearLines();
    Label1->setText("");
    Label1->setWhitePages(false);
}

void CallID::addLine(const std::string& line) {
    newLines_.push_back(line);
    if (!linesDue_.isActive())
        linesDue_.start();
    if (!isVisible())
        present();
}

void CallID::showLines() {
    linesDue_.stop();
    if (!newLines_.empty())
        List1->addLines(std::exchange(newLines_, {}));
}

bool CallID::hasLines() const {
    return !newLines_.empty() || !List1->lines().empty();
}

void CallID::enableList(bool enabled) {
    showLines();
    if (!enabled && List1->isEnabled())
        keysInList_ = List1->hasFocus() || !isActiveWindow();
    List1->setEnabled(enabled);
    if (!enabled)
        return;
    List1->setEmptyText(QStringLiteral("No matching entries."));
    if (keysInList_)
        List1->setFocus();
}

void CallID::showCard(const std::string& text, bool yellow) {
    Label1->setWhitePages(!yellow);
    Label1->setText(text);
}

// Every way to close comes by here.
void CallID::done(int result) {
    Dialog::done(result);
    clearLines();
}

}  // namespace velmora
