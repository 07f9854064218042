#include "core/forms/Calendar.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

#include "core/CommandTable.h"
#include "core/forms/CommandMenus.h"
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

namespace velmora {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr QSize kDefaultSize(1278, 770);
constexpr QSize kSmallestSize(1144, 640);
constexpr int kDeskMargin = 12;
constexpr int kPaneStretch = 54;
constexpr int kDocPadStretch = 46;
constexpr int kNarrowestPane = 440;
constexpr int kToolbarHeight = 42;

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
      parts_(parts),
      menus_(new CommandMenus(menuBar())),
      mainKeys_(new ToolStrip(QStringLiteral("MainToolbar"), mainToolbar(), this)),
      Label8(new QLabel(this)),
      rail_(new Rail(this)),
      leftColumn_(new LeftColumn(codePage, locale, today, this)),
      plannerPage_(new PlannerPage(parts.day, this)),
      phonebookPage_(new PhonebookPage(codePage, this)),
      pages_(new QStackedWidget(this)),
      docPad_(new DocPadColumn(parts.text, this)),
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
    body->addWidget(makeDesk(), 1);
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
    setMinimumSize(kSmallestSize);
    resize(kDefaultSize);
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
    layout->addWidget(mainKeys_);
    layout->addStretch();
    layout->addWidget(Label8);
    return row;
}

QWidget* Calendar::makeDesk() {
    pages_->addWidget(plannerPage_);
    pages_->addWidget(phonebookPage_);
    pages_->addWidget(parts_.dialer.page);
    pages_->setMinimumWidth(kNarrowestPane);

    splitter_ = new QSplitter(Qt::Horizontal, this);
    splitter_->setObjectName(QStringLiteral("Desk"));
    splitter_->setHandleWidth(kDeskMargin);
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(pages_);
    splitter_->addWidget(docPad_);
    splitter_->setStretchFactor(0, kPaneStretch);
    splitter_->setStretchFactor(1, kDocPadStretch);
    splitter_->setSizes({kPaneStretch * 100, kDocPadStretch * 100});

    desk_ = new QWidget(this);
    auto* layout = new QHBoxLayout(desk_);
    layout->setContentsMargins(kDeskMargin, kDeskMargin, kDeskMargin, kDeskMargin);
    layout->setSpacing(kDeskMargin);
    layout->addWidget(leftColumn_);
    layout->addWidget(splitter_, 1);
    return desk_;
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

QPoint Calendar::paneCorner() const {
    return pages_->mapTo(desk_, QPoint(0, 0));
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
    pages_->setCurrentIndex(static_cast<int>(pane));
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

void Calendar::showCentred(int raise) {
    const QRect room = screen()->availableGeometry();
    resize(size().boundedTo(room.size()));
    const int left = room.left() + (room.width() - width()) / 2;
    const int top = room.top() + (room.height() - height()) / 2 - raise / kTwipsPerPixel;
    move(left, std::max(top, room.top()));
    show();
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
    leftColumn_->hide();
    pages_->hide();
    docPad_->setWide(true);
    parts_.text->setWideMargins(true);
    desk_->layout()->activate();
    docPad_->text()->setFocus();
}

void Calendar::putDocPadBack(const SharedState::Box&) {
    // The layout knows DocPad's place in its column, also when the window has another size now.
    docPad_->setWide(false);
    parts_.text->setWideMargins(false);
    pages_->show();
    leftColumn_->show();
    desk_->layout()->activate();
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
    if (event->type() == QEvent::Paint && !painted_) {
        painted_ = true;
        emit firstPainted();
    }
    return handled;
}

}  // namespace velmora
