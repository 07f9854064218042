#include "planner/forms/Form7.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/CodePageGuard.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/DialogFooter.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Stepper.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kMargin = 16;
constexpr int kRowGap = 12;
constexpr int kMonthWidth = 134;
constexpr int kLargeMonthStep = 3;
constexpr int kLargeDayStep = 7;
constexpr QSize kFormSize(520, 406);

}  // namespace

Form7::Form7(Datewarden& datewarden, StatusLine& status, const CodePage& codePage, QWidget* parent)
    : QDialog(parent),
      datewarden_(datewarden),
      status_(status),
      codePage_(codePage),
      month_(new Stepper(QStringLiteral("VScroll1"), QStringLiteral("Label1"), this)),
      day_(new Stepper(QStringLiteral("VScroll2"), QStringLiteral("Label2"), this)),
      Label3(new QLabel(QStringLiteral("Enter New Event Description:"), this)),
      Text1(new QLineEdit(this)),
      List1(new EntryList(codePage, nullptr, this)),
      Command1(makeDialogButton("Command1", "&Add", this)),
      Command2(makeDialogButton("Command2", "&Remove", this)),
      Command3(makeDialogButton("Command3", "&Close", this)),
      Command4(makeDialogButton("Command4", "&Show Display", this)) {
    setObjectName(QStringLiteral("Form7"));
    setWindowTitle(QStringLiteral("Datewarden "));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    makeControls();
    layOut();
    connectControls();
    showBars();
    showText();
}

void Form7::makeControls() {
    month_->label()->setMinimumWidth(kMonthWidth);
    month_->setRange(1, 12, kLargeMonthStep);
    month_->arrows()->setAccessibleName(QStringLiteral("Month"));
    day_->arrows()->setAccessibleName(QStringLiteral("Day"));
    Label3->setObjectName(QStringLiteral("Label3"));
    Label3->setProperty("role", QStringLiteral("label"));
    Label3->setBuddy(Text1);
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("Enter New Event Description"));
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Occasions"));
    List1->setDragEnabled(false);
    makePrimary(*Command1);
}

void Form7::layOut() {
    auto* bars = new QHBoxLayout;
    bars->setSpacing(10);
    bars->addWidget(month_);
    bars->addWidget(day_);
    bars->addStretch(1);
    auto* question = new QVBoxLayout;
    question->setSpacing(4);
    question->addWidget(Label3);
    question->addWidget(Text1);
    QFrame* frame = makeListFrame(List1, this);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    body->setSpacing(kRowGap);
    body->addLayout(bars);
    body->addLayout(question);
    body->addWidget(frame, 1);
    auto* footer = new DialogFooter(this);
    footer->addLeft(Command4);
    footer->addRight(Command1);
    footer->addRight(Command2);
    footer->addRight(Command3);
    layOutDialog(*this, body, footer);
    resize(kFormSize.expandedTo(minimumSizeHint()));
}

void Form7::connectControls() {
    connect(month_, &Stepper::valueChanged, this, [this](int value) {
        datewarden_.setMonth(value);
        showBars();
    });
    connect(day_, &Stepper::valueChanged, this, [this](int value) {
        datewarden_.setDay(value);
        showBars();
    });
    connect(new CodePageGuard(*Text1, codePage_), &CodePageGuard::replaced, this,
            [this] { status_.show(kCharacterReplaced); });
    connect(List1, &EntryList::lineClicked, this, &Form7::click);
    connect(Command1, &QPushButton::clicked, this, &Form7::add);
    connect(Command2, &QPushButton::clicked, this, &Form7::remove);
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command4, &QPushButton::clicked, this, &Form7::displayWanted);
}

void Form7::present() {
    if (!isVisible()) {
        datewarden_.Open();
        showBars();
        showText();
        fillList();
        Text1->setFocus();
        Text1->selectAll();
    }
    show();
    raise();
    activateWindow();
}

void Form7::showBars() {
    const QSignalBlocker quietMonth(month_);
    const QSignalBlocker quietDay(day_);
    month_->setValue(datewarden_.month());
    day_->setRange(1, datewarden_.highestDay(), kLargeDayStep);
    day_->setValue(datewarden_.day());
    month_->label()->setText(toQt(datewarden_.monthLabel(), codePage_));
    day_->label()->setText(toQt(datewarden_.dayLabel(), codePage_));
}

void Form7::showText() {
    Text1->setText(toQt(datewarden_.text(), codePage_));
}

void Form7::fillList() {
    List1->setLines(datewarden_.Lines());
}

void Form7::add() {
    datewarden_.setText(fromQt(Text1->text(), codePage_));
    datewarden_.Add();
    showText();
    fillList();
}

void Form7::click() {
    datewarden_.Click(List1->selectedLine());
    showBars();
    showText();
}

void Form7::remove() {
    if (datewarden_.Remove(List1->selectedLine()))
        fillList();
}

}  // namespace velmora
