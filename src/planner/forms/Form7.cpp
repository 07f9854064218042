#include "planner/forms/Form7.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Stepper.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr int kRowGap = 12;
constexpr int kMonthWidth = 134;
constexpr int kLargeMonthStep = 3;
constexpr int kLargeDayStep = 7;
constexpr QSize kFormSize(520, 406);

}  // namespace

Form7::Form7(Datewarden& datewarden, StatusLine& status, const CodePage& codePage, QWidget* parent)
    : Dialog("Form7", QStringLiteral("Datewarden "), parent),
      datewarden_(datewarden),
      status_(status),
      codePage_(codePage),
      month_(new Stepper(QStringLiteral("VScroll1"), QStringLiteral("Label1"), this)),
      day_(new Stepper(QStringLiteral("VScroll2"), QStringLiteral("Label2"), this)),
      Text1(new QLineEdit(this)),
      Label3(makeLabel(QStringLiteral("Enter New Event Description:"), Text1)),
      List1(new EntryList(codePage, nullptr, this)),
      Command1(makeDialogButton("Command1", "&Add", this)),
      Command2(makeDialogButton("Command2", "&Remove", this)),
      Command3(makeDialogButton("Command3", "&Close", this)),
      Command4(makeDialogButton("Command4", "&Show Display", this)) {
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    makeControls();
    arrange();
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
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("Enter New Event Description"));
    List1->setObjectName(QStringLiteral("List1"));
    List1->setAccessibleName(QStringLiteral("Occasions"));
    List1->setDragEnabled(false);
}

void Form7::arrange() {
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
    body->setSpacing(kRowGap);
    body->addLayout(bars);
    body->addLayout(question);
    body->addWidget(frame, 1);
    layOut(body, {.left = {Command4}, .right = {Command1, Command2, Command3}, .primary = Command1},
           {.first = kFormSize});
    setTabStops({month_->arrows(), day_->arrows(), Text1, List1});
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
    guard(*Text1, codePage_);
    connect(this, &Dialog::characterReplaced, this, [this] { status_.show(kCharacterReplaced); });
    connect(List1, &EntryList::lineClicked, this, &Form7::click);
    connect(Command1, &QPushButton::clicked, this, &Form7::add);
    connect(Command2, &QPushButton::clicked, this, &Form7::remove);
    connect(Command3, &QPushButton::clicked, this, &QDialog::reject);
    connect(Command4, &QPushButton::clicked, this, &Form7::displayWanted);
}

void Form7::beginAnew() {
    datewarden_.Open();
    showBars();
    showText();
    fillList();
    Text1->selectAll();
}

QWidget* Form7::firstField() const {
    return Text1;
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
