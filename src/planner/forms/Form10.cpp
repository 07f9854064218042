#include "planner/forms/Form10.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "planner/ListShapes.h"
#include "planner/forms/TimeSteppers.h"
#include "platform/controls/DialogButton.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/ListFrame.h"
#include "platform/controls/Stepper.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(520, 406);

}  // namespace

Form10::Form10(WeeklyTasks& tasks, const CodePage& codePage, QWidget* parent)
    : TaskDialog("Form10", "Weekly Repetitive Tasks", codePage, parent),
      tasks_(tasks),
      day_(new Stepper(QStringLiteral("VScroll3"), QStringLiteral("Label4"), this)),
      time_(new TimeSteppers({"Label1", "Label2", "Label3"}, this)),
      Command1(makeDialogButton("Command1", "&Add", this)),
      Command2(makeDialogButton("Command2", "&Remove", this)),
      Command3(makeDialogButton("Command3", "&Close", this)) {
    setUpDays();
    auto* when = new QHBoxLayout;
    when->setSpacing(20);
    when->addWidget(day_);
    when->addWidget(time_, 1);
    auto* body = new QVBoxLayout;
    body->setSpacing(5);
    body->addLayout(when);
    body->addSpacing(7);
    body->addWidget(makeLabel(QStringLiteral("Task:"), Text1));
    body->addWidget(Text1);
    body->addSpacing(7);
    body->addWidget(makeLabel(QStringLiteral("Task(s):"), List1));
    body->addWidget(makeListFrame(List1, this), 1);
    layOut(body, {.right = {Command1, Command2, Command3}, .primary = Command1},
           {.first = kFormSize});
    setTabStops(
        {day_->arrows(), time_->hours()->arrows(), time_->minutes()->arrows(), Text1, List1});
    connectControls();
}

void Form10::setUpDays() {
    List1->setAccessibleName(QStringLiteral("Tasks"));
    day_->setRange(1, static_cast<int>(kWeekdayNames.size()), 1);
    day_->arrows()->setAccessibleName(QStringLiteral("Day"));
    int widest = 0;
    for (const std::string_view name : kWeekdayNames)
        widest = std::max(widest, day_->label()->fontMetrics().horizontalAdvance(latin(name)));
    day_->label()->setMinimumWidth(widest + 12);
}

void Form10::connectControls() {
    connect(day_, &Stepper::valueChanged, this, [this](int day) {
        tasks_.setDay(day);
        day_->label()->setText(latin(tasks_.dayName()));
    });
    connect(time_, &TimeSteppers::hourChanged, this, [this](int hour) { tasks_.setHour(hour); });
    connect(time_, &TimeSteppers::minuteChanged, this,
            [this](int minute) { tasks_.setMinute(minute); });
    connectTasks(Command1, Command2, Command3,
                 {.pick =
                      [this](const std::string& line) {
                          tasks_.Pick(line);
                          showFields();
                      },
                  .add =
                      [this] {
                          tasks_.Add();
                          showFields();
                          showList();
                      },
                  .remove =
                      [this](const std::string& line) {
                          tasks_.Remove(line);
                          showList();
                      }});
}

void Form10::beginAnew() {
    tasks_.Open();
    showFields();
    showList();
}

QWidget* Form10::firstField() const {
    return day_->arrows();
}

void Form10::showFields() {
    day_->setValue(tasks_.day());
    day_->label()->setText(latin(tasks_.dayName()));
    time_->setTime(tasks_.time());
    setBoxText(tasks_.text());
}

void Form10::showList() {
    List1->setLines(tasks_.lines());
}

}  // namespace velmora
