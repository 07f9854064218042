#include "planner/forms/Monthly.h"

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

namespace velmora {
namespace {

constexpr int kLastDay = 31;
constexpr int kLargeStep = 7;
constexpr QSize kFormSize(520, 406);

}  // namespace

Monthly::Monthly(MonthlyTasks& tasks, const CodePage& codePage, QWidget* parent)
    : TaskDialog("Monthly", "Monthly Repetitive Tasks", codePage, parent),
      tasks_(tasks),
      day_(new Stepper(QStringLiteral("VScroll1"), QStringLiteral("Label1"), this)),
      Command1(makeDialogButton("Command1", "&Add", this)),
      Command2(makeDialogButton("Command2", "&Remove", this)),
      Command3(makeDialogButton("Command3", "&Close", this)) {
    day_->setRange(1, kLastDay, kLargeStep);
    day_->arrows()->setAccessibleName(QStringLiteral("Day of the month"));
    List1->setAccessibleName(QStringLiteral("Tasks"));

    auto* when = new QHBoxLayout;
    when->setSpacing(12);
    when->addWidget(new QLabel(QStringLiteral("On the"), this));
    when->addWidget(day_);
    when->addWidget(new QLabel(QStringLiteral("Day Of The Month"), this));
    when->addStretch(1);
    auto* body = new QVBoxLayout;
    body->setSpacing(5);
    body->addLayout(when);
    body->addSpacing(7);
    body->addWidget(makeLabel(QStringLiteral("Task:"), Text1));
    body->addWidget(Text1);
    body->addSpacing(9);
    body->addWidget(makeListFrame(List1, this), 1);
    layOut(body, {.right = {Command1, Command2, Command3}, .primary = Command1},
           {.first = kFormSize});
    setTabStops({day_->arrows(), Text1, List1});
    connectControls();
}

void Monthly::connectControls() {
    connect(day_, &Stepper::valueChanged, this, [this](int day) {
        tasks_.setDay(day);
        showDay();
    });
    connectTasks(Command1, Command2, Command3,
                 {.pick =
                      [this](const std::string& line) {
                          tasks_.Pick(line);
                          showDay();
                      },
                  .add =
                      [this] {
                          tasks_.Add();
                          setBoxText(tasks_.text());
                          showList();
                      },
                  .remove =
                      [this](const std::string& line) {
                          tasks_.Remove(line);
                          showList();
                      }});
}

void Monthly::beginAnew() {
    tasks_.Open();
    showDay();
    setBoxText(tasks_.text());
    showList();
}

QWidget* Monthly::firstField() const {
    return day_->arrows();
}

void Monthly::showDay() {
    day_->setValue(tasks_.day());
    day_->label()->setText(QString::number(tasks_.day()));
}

void Monthly::showList() {
    List1->setLines(tasks_.lines());
}

}  // namespace velmora
