#include "core/forms/Calendar.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "core/CommandTable.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/Desk.h"
#include "core/forms/DocPadColumn.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/MenuFirst.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/PlannerPage.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "core/forms/ToolStrip.h"
#include "platform/Messages.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/Keypad.h"
#include "platform/controls/LetterTabs.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/PaneButton.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/Type.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"
#include "platform/qt/WindowPlace.h"

namespace velmora {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr QSize kFirstOutside(1280, 800);  // with the frame
constexpr QSize kSmallBelow(1144, 640);
constexpr QSize kLeastSize(1024, 560);  // less only where the screen is smaller
constexpr int kToolbarHeight = 42;
constexpr int kKeyWidth = 32;
constexpr int kSeparatorWidth = 11;
constexpr int kNarrowKeyWidth = 30;
constexpr int kNarrowSeparatorWidth = 5;

std::int16_t twips(int pixels) {
    return static_cast<std::int16_t>(
        std::min<int>(pixels * kTwipsPerPixel, std::numeric_limits<std::int16_t>::max()));
}

// Red, green and blue from the low byte up; nothing for the system's own colours.
QColor storedColour(int number) {
    if (number < 0)
        return {};
    return QColor(number & 0xFF, number >> 8 & 0xFF, number >> 16 & 0xFF);
}

}  // namespace

Calendar::Calendar(const CodePage& codePage, const LocaleFormats& locale,
                   std::chrono::year_month_day today, Parts parts)
    : codePage_(codePage),
      parts_(std::move(parts)),
      menus_(new CommandMenus(menuBar())),
      mainKeys_(new ToolStrip(QStringLiteral("MainToolbar"), mainToolbar(), this)),
      Label8(new QLabel(this)),
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
      Timer3(new QTimer(this)) {
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
    whole->addWidget(makeToolbarRow());
    whole->addLayout(body, 1);
    auto* centre = new QWidget(this);
    centre->setLayout(whole);
    setCentralWidget(centre);

    nameControls();
    setTabStops();
    (new MenuFirst(menuBar()))->watchButtons(*this);
    setMinimumSize(kLeastSize);
    resize(kFirstOutside.shrunkBy(frameOf(*this)));
}

QWidget* Calendar::makeToolbarRow() {
    auto* row = new QWidget(this);
    row->setProperty("role", "bar");
    row->setAttribute(Qt::WA_StyledBackground);
    row->setFixedHeight(kToolbarHeight);
    Label8->setObjectName(QStringLiteral("Label8"));
    Label8->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setType(*Label8, 14.25, QFont::DemiBold);
    Label8->ensurePolished();
    Label8->setMinimumWidth(Label8->fontMetrics().horizontalAdvance(QStringLiteral("12:00 PM")));
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 0, 12, 1);
    layout->setSpacing(0);
    layout->addWidget(mainKeys_);
    layout->addStretch();
    layout->addWidget(Label8);
    return row;
}

void Calendar::nameControls() {
    controls_ = {
        {PaneControl::SSDay1, parts_.day},
        {PaneControl::Label1, plannerPage_->dateLine()},
        {PaneControl::Picture4, phonebookPage_->letterTabs()},
        {PaneControl::Label17, phonebookPage_->card()},
        {PaneControl::List1, leftColumn_->list()},
        {PaneControl::Picture3, parts_.dialer.keypad},
        {PaneControl::Label16, parts_.dialer.number},
        {PaneControl::Command20, parts_.dialer.back},
        {PaneControl::Command21, parts_.dialer.clear},
        {PaneControl::Command22, parts_.dialer.hangUp},
        {PaneControl::Command24, parts_.dialer.send},
        {PaneControl::Label18, leftColumn_->yellowLabel()},
        {PaneControl::Label19, leftColumn_->whiteLabel()},
        {PaneControl::Picture2, phonebookPage_->details()},
        {PaneControl::Command26, phonebookPage_->associatesButton()},
        {PaneControl::Command5, phonebookPage_->fileButton()},
    };
}

void Calendar::setTabStops() {
    QWidget* last = leftColumn_->month();
    const auto then = [&last](QWidget* next) {
        setTabOrder(last, next);
        last = next;
    };
    then(leftColumn_->yearButton());
    then(leftColumn_->bookKeys()->button("Yellow"));
    then(leftColumn_->bookKeys()->button("White"));
    then(leftColumn_->list());
    then(parts_.day);
    for (const ToolRow& row : contactToolbar())
        then(phonebookPage_->contactKeys()->button(row.key));
    for (auto* tab : phonebookPage_->letterTabs()->findChildren<QWidget*>())
        then(tab);
    then(phonebookPage_->card());
    for (auto* button :
         {phonebookPage_->mailButton(), phonebookPage_->webButton(), phonebookPage_->fileButton(),
          phonebookPage_->associatesButton(), phonebookPage_->moveButton()})
        then(button);
    for (auto* key : parts_.dialer.keypad->findChildren<QWidget*>())
        then(key);
    for (auto* button : {parts_.dialer.send, parts_.dialer.hangUp, parts_.dialer.back,
                         parts_.dialer.clear, parts_.dialer.externalOne})
        then(button);
    then(docPad_->text());
    then(docPad_->growButton());
    then(docPad_->shrinkButton());
    for (const ToolRow& row : mainToolbar())
        then(mainKeys_->button(row.key));
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer})
        then(rail_->paneButton(pane));
}

void Calendar::flipCheck1() {
    Check1->toggle();
}

QWidget* Calendar::desk() const {
    return desk_->floor();
}

QPoint Calendar::paneCorner() const {
    return desk_->paneCorner();
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

void Calendar::setTwentyFourHourTick(bool ticked) {
    menus_->item("twentyfourhr")->setChecked(ticked);
}

bool Calendar::twentyFourHourTick() const {
    return menus_->item("twentyfourhr")->isChecked();
}

void Calendar::setClockText(const std::string& text) {
    Label8->setText(toQt(text, codePage_));
}

std::string Calendar::clockText() const {
    return fromQt(Label8->text(), codePage_);
}

void Calendar::setDateLine(const std::string& text) {
    plannerPage_->dateLine()->setText(toQt(text, codePage_));
}

void Calendar::setLastNumber(const std::string& text) {
    // A label without a name is told by its text.
    parts_.dialer.number->setAccessibleName(text.empty() ? tr("No number") : QString());
    parts_.dialer.number->setText(toQt(text, codePage_));
}

QWidget* Calendar::textOf(FontTarget target) const {
    switch (target) {
        case FontTarget::DocPad:
            return parts_.text;
        case FontTarget::DayView:
            return parts_.day;
        case FontTarget::EntryList:
            break;
    }
    return leftColumn_->list();
}

QFont Calendar::fontOf(FontTarget target) const {
    return textOf(target)->font();
}

int Calendar::colourOf(FontTarget target) const {
    const auto set = colours_.find(target);
    return set == colours_.end() ? -1 : set->second;
}

std::string Calendar::number() const {
    return fromQt(parts_.dialer.number->text(), codePage_);
}

void Calendar::setFont(FontTarget target, const FontChoice& choice) {
    QWidget* widget = textOf(target);
    QFont font = widget->font();
    if (choice.face)
        font.setFamilies({toQt(*choice.face, codePage_)});
    if (choice.size && *choice.size > 0)
        font.setPointSizeF(*choice.size);
    widget->setFont(font);
    if (choice.colour) {
        colours_[target] = *choice.colour;
        setTextColour(target, storedColour(*choice.colour));
    }
}

void Calendar::setTextColour(FontTarget target, const QColor& colour) {
    switch (target) {
        case FontTarget::DocPad:
            parts_.text->setInk(colour.isValid() ? std::optional(colour) : std::nullopt);
            break;
        case FontTarget::DayView:
            parts_.day->setTextColor(colour);
            break;
        case FontTarget::EntryList: {
            QPalette palette = leftColumn_->list()->palette();
            palette.setColor(QPalette::Active, QPalette::Text,
                             colour.isValid() ? colour : Theme::of(*this).ink);
            leftColumn_->list()->setPalette(palette);
            break;
        }
    }
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
    const bool narrow = width() < kLeastSize.width();
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

void Calendar::takeShape() {
    const QRect room = screen()->availableGeometry();
    const QSize most = largestInside(room, *this);
    setMinimumSize(kLeastSize.boundedTo(most));
    const QSize wanted = shape_.width > 0 && shape_.height > 0
                             ? QSize(shape_.width, shape_.height)
                             : kFirstOutside.shrunkBy(frameOf(*this));
    resize(wanted.boundedTo(most));
    desk_->chooseDocPadWidth(shape_.docPadWidth);
}

WindowShape Calendar::shape() const {
    const QSize inside = isMaximized() || isFullScreen() ? normalGeometry().size() : size();
    return {inside.width(), inside.height(), isMaximized(), desk_->chosenDocPadWidth()};
}

void Calendar::showCentred(int raise) {
    kept_ = false;
    takeShape();
    centreIn(screen()->availableGeometry(), *this, raise / kTwipsPerPixel);
    if (shape_.maximized)
        showMaximized();
    else
        show();
}

// What the window manager has drawn around the window is known only now.
void Calendar::keepOnScreen() {
    const QRect room = screen()->availableGeometry();
    if (isMaximized() || isFullScreen() || room.contains(frameGeometry()))
        return;
    const QSize most = largestInside(room, *this);
    setMinimumSize(kLeastSize.boundedTo(most));
    resize(size().boundedTo(most));
    moveInto(room, *this);
}

void Calendar::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
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
    if (event->type() == QEvent::Paint && !kept_) {
        kept_ = true;
        keepOnScreen();
    }
    if (event->type() == QEvent::Paint && !painted_) {
        painted_ = true;
        emit firstPainted();
    }
    return handled;
}

}  // namespace velmora
