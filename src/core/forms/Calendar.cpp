#include "core/forms/Calendar.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "core/CommandTable.h"
#include "core/forms/ClockLabel.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/Desk.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/MenuFirst.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/PlannerPage.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "core/forms/TabStops.h"
#include "core/forms/ToolStrip.h"
#include "platform/Messages.h"
#include "platform/Twips.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/Keypad.h"
#include "platform/controls/LetterTabs.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kSmallBelow(1144, 640);
constexpr int kToolbarHeight = 42;
constexpr int kKeyWidth = 32;
constexpr int kSeparatorWidth = 11;
constexpr int kNarrowKeyWidth = 30;
constexpr int kNarrowSeparatorWidth = 5;

std::int16_t twips(int pixels) {
    return static_cast<std::int16_t>(
        std::min<int>(pixels * kTwipsPerPixel, std::numeric_limits<std::int16_t>::max()));
}

// The row below the menu bar.
QWidget* makeToolbarRow(ToolStrip* keys, ClockLabel* clock, QWidget* parent) {
    auto* row = new QWidget(parent);
    row->setObjectName(QStringLiteral("ToolbarRow"));
    row->setAttribute(Qt::WA_StyledBackground);
    row->setFixedHeight(kToolbarHeight);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 0, 12, 1);
    layout->setSpacing(0);
    layout->addWidget(keys);
    layout->addStretch();
    layout->addWidget(clock);
    return row;
}

// The controls by the names that logic has for them.
std::map<PaneControl, QWidget*> controlsOf(const Calendar& window) {
    const PhonebookPage& phonebook = window.phonebookPage();
    const LeftColumn& left = window.leftColumn();
    const Calendar::Dialer& dialer = window.dialer();
    return {
        {PaneControl::SSDay1, &window.day()},
        {PaneControl::Label1, window.plannerPage().dateLine()},
        {PaneControl::Picture4, phonebook.letterTabs()},
        {PaneControl::Label17, phonebook.card()},
        {PaneControl::List1, left.list()},
        {PaneControl::Picture3, dialer.keypad},
        {PaneControl::Label16, dialer.number},
        {PaneControl::Command20, dialer.back},
        {PaneControl::Command21, dialer.clear},
        {PaneControl::Command22, dialer.hangUp},
        {PaneControl::Command24, dialer.send},
        {PaneControl::Label18, left.yellowLabel()},
        {PaneControl::Label19, left.whiteLabel()},
        {PaneControl::Picture2, phonebook.details()},
        {PaneControl::Command26, phonebook.associatesButton()},
        {PaneControl::Command5, phonebook.fileButton()},
    };
}

}  // namespace

Calendar::Calendar(const CodePage& codePage, const LocaleFormats& locale,
                   std::chrono::year_month_day today, Parts parts)
    : codePage_(codePage),
      parts_(std::move(parts)),
      menus_(new CommandMenus(menuBar())),
      mainKeys_(new ToolStrip(QStringLiteral("MainToolbar"), mainToolbar(), this)),
      Label8(new ClockLabel(codePage, *menus_->item("twentyfourhr"), this)),
      rail_(new Rail(this)),
      leftColumn_(new LeftColumn(codePage, locale, today, this)),
      plannerPage_(new PlannerPage(parts_.day, this)),
      phonebookPage_(new PhonebookPage(codePage, this)),
      docPad_(new DocPadColumn(parts_.text, this)),
      desk_(new Desk(
          {leftColumn_, {plannerPage_, phonebookPage_, parts_.dialer.page}, docPad_, parts_.text},
          this)),
      statusBar_(new StatusBar(codePage, this)),
      Check1(new QCheckBox(QStringLiteral("Don't Delete -- Required"), this)),
      Timer1(new QTimer(this)),
      Timer3(new QTimer(this)),
      controls_(controlsOf(*this)),
      fonts_(codePage, {*parts_.text, *parts_.day, *leftColumn_->list()}),
      place_(*this, *desk_) {
    setObjectName(QStringLiteral("Calendar"));
    setWindowTitle(QString::fromLatin1(kApplicationTitle));
    setStatusBar(statusBar_);
    Check1->setObjectName(QStringLiteral("Check1"));
    Check1->hide();
    connect(Check1, &QCheckBox::toggled, this, &Calendar::check1Flipped);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    connect(Timer1, &QTimer::timeout, this, &Calendar::clockTicked);
    Timer1->start(500);
    // A coarse timer may be late by a twentieth, and so miss a minute's second look.
    Timer3->setObjectName(QStringLiteral("Timer3"));
    Timer3->setTimerType(Qt::PreciseTimer);
    connect(Timer3, &QTimer::timeout, this, &Calendar::alarmsDue);
    Timer3->start(25000);

    auto* body = new QHBoxLayout;
    body->setSpacing(0);
    body->addWidget(rail_);
    body->addWidget(desk_, 1);
    auto* whole = new QVBoxLayout;
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(makeToolbarRow(mainKeys_, Label8, this));
    whole->addLayout(body, 1);
    auto* centre = new QWidget(this);
    centre->setLayout(whole);
    setCentralWidget(centre);

    setTabStops(*this);
    (new MenuFirst(menuBar()))->watchButtons(*this);
    place_.takeFirstSize();
}

void Calendar::flipCheck1() {
    Check1->toggle();
}

bool Calendar::dayViewShown() const {
    return parts_.day->isVisible();
}

void Calendar::setControlState(PaneControl control, ControlState state) {
    QWidget* widget = controls_.at(control);
    switch (state) {
        case ControlState::Shown:
        case ControlState::Hidden:
            widget->setVisible(state == ControlState::Shown);
            break;
        case ControlState::Enabled:
        case ControlState::Disabled:
            widget->setEnabled(state == ControlState::Enabled);
            break;
    }
}

void Calendar::raisePaneButton(Pane pane) {
    rail_->raiseButton(pane);
    desk_->showPage(pane);
}

void Calendar::setDateLine(const std::string& text) {
    plannerPage_->dateLine()->setText(toQt(text, codePage_));
}

void Calendar::setLastNumber(const std::string& text) {
    // A label without a name is told by its text.
    parts_.dialer.number->setAccessibleName(text.empty() ? tr("No number") : QString());
    parts_.dialer.number->setText(toQt(text, codePage_));
}

std::string Calendar::number() const {
    return fromQt(parts_.dialer.number->text(), codePage_);
}

void Calendar::setCaption(const std::string& text) {
    setWindowTitle(toQt(text, codePage_));
}

void Calendar::setDocPadCaption(const std::string& text) {
    docPad_->title()->setText(toQt(text, codePage_));
}

std::string Calendar::docPadCaption() const {
    return fromQt(docPad_->title()->text(), codePage_);
}

// Below a certain size everything gets closer together; below the least size, which is less only
// on a screen that is smaller still, DocPad and the toolbar give up what they can.
void Calendar::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    const bool small = width() < kSmallBelow.width() || height() < kSmallBelow.height();
    const bool narrow = width() < CalendarPlace::kLeastSize.width();
    desk_->setMeasures(small, narrow);
    mainKeys_->setMeasures(narrow ? kNarrowKeyWidth : kKeyWidth,
                           narrow ? kNarrowSeparatorWidth : kSeparatorWidth);
    if (small == small_)
        return;
    small_ = small;
    rail_->setSmall(small);
    plannerPage_->setSmall(small);
    phonebookPage_->setSmall(small);
    parts_.dialer.setSmall(small);
    emit smallChanged(small);
}

SharedState::Box Calendar::docPadBox() const {
    const QWidget* text = docPad_->text();
    const QPoint corner = text->mapTo(this, QPoint(0, 0));
    return {twips(corner.x()), twips(corner.y()), twips(text->width()), twips(text->height())};
}

void Calendar::fillWithDocPad() {
    desk_->setDocPadFills(true);
    docPad_->text()->setFocus();
}

// The layout knows DocPad's place in its column, also when the window has another size now.
void Calendar::putDocPadBack(const SharedState::Box&) {
    desk_->setDocPadFills(false);
}

void Calendar::setMaximiseButtonShown(bool shown) {
    docPad_->growButton()->setVisible(shown);
}

void Calendar::setRestoreButtonShown(bool shown) {
    docPad_->shrinkButton()->setVisible(shown);
}

void Calendar::setYearButtonEnabled(bool enabled) {
    leftColumn_->yearButton()->setEnabled(enabled);
}

void Calendar::closeEvent(QCloseEvent* event) {
    if (mayClose_ && !mayClose_()) {
        event->ignore();
        return;
    }
    event->accept();
    emit closing();
}

bool Calendar::event(QEvent* event) {
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::Paint) {
        place_.keepOnScreen();
        if (!std::exchange(painted_, true))
            emit firstPainted();
    }
    return handled;
}

}  // namespace velmora
