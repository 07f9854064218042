#include "planner/forms/Schedule.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/controls/DialogButton.h"
#include "platform/controls/Stepper.h"
#include "platform/controls/Type.h"

namespace velmora {
namespace {

constexpr QSize kFormSize(430, 256);

struct PartLook {
    const char* arrows;
    const char* label;
    const char* spoken;
    int highest;
    int largeStep;
};

// In the order of ScheduleTimes::Part.
constexpr std::array<PartLook, 4> kParts{{
    {"VScroll1", "Label1", "Begin Hour", 23, 12},
    {"VScroll2", "Label2", "Begin Minute", 59, 30},
    {"VScroll4", "Label7", "End Hour", 23, 12},
    {"VScroll3", "Label6", "End Minute", 59, 30},
}};

std::size_t indexOf(ScheduleTimes::Part part) {
    return static_cast<std::size_t>(part);
}

}  // namespace

Schedule::Schedule(ScheduleTimes& times, QWidget* parent)
    : Dialog("Schedule", QStringLiteral("Schedule Event"), parent),
      times_(times),
      Command2(makeDialogButton("Command2", "&Apply", this)),
      Command1(makeDialogButton("Command1", "&Cancel", this)) {
    using Part = ScheduleTimes::Part;
    auto* questions = new QVBoxLayout;
    questions->setSpacing(20);
    questions->addWidget(makeQuestion("Question",
                                      "At what time would you like to schedule this event?",
                                      Part::BeginHour, Part::BeginMinute));
    questions->addWidget(
        makeQuestion("Question2", "When should this event end?", Part::EndHour, Part::EndMinute));
    questions->addStretch();

    layOut(questions, {.right = {Command2, Command1}, .primary = Command2}, {.first = kFormSize});
    setTabStops({steppers_[0]->arrows(), steppers_[1]->arrows(), steppers_[2]->arrows(),
                 steppers_[3]->arrows()});

    connect(Command2, &QPushButton::clicked, this, &Schedule::apply);
    connect(Command1, &QPushButton::clicked, this, &Schedule::reject);
}

QWidget* Schedule::makeQuestion(const char* name, const char* text, ScheduleTimes::Part hour,
                                ScheduleTimes::Part minute) {
    auto* box = new QWidget(this);
    auto* question = new QLabel(QString::fromLatin1(text), box);
    question->setObjectName(QString::fromLatin1(name));
    setType(*question, 9.75, QFont::DemiBold);
    auto* colon = new QLabel(QStringLiteral(":"), box);
    setType(*colon, 15, QFont::DemiBold);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(makeStepper(hour));
    row->addWidget(colon);
    row->addWidget(makeStepper(minute));
    row->addStretch();
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(question);
    layout->addLayout(row);
    return box;
}

Stepper* Schedule::makeStepper(ScheduleTimes::Part part) {
    const PartLook& look = kParts[indexOf(part)];
    auto* stepper = new Stepper(QString::fromLatin1(look.arrows), QString::fromLatin1(look.label));
    stepper->setRange(0, look.highest, look.largeStep);
    stepper->arrows()->setAccessibleName(QString::fromLatin1(look.spoken));
    connect(stepper, &Stepper::valueChanged, this, [this, part](int value) {
        times_.setValue(part, value);
        showTimes();
    });
    steppers_[indexOf(part)] = stepper;
    return stepper;
}

void Schedule::beginAnew() {
    times_.Open();
    showTimes();
}

QWidget* Schedule::firstField() const {
    return steppers_[0]->arrows();
}

void Schedule::showTimes() {
    for (std::size_t i = 0; i < kParts.size(); ++i) {
        const auto part = static_cast<ScheduleTimes::Part>(i);
        const QSignalBlocker quiet(steppers_[i]);
        steppers_[i]->setValue(times_.value(part));
        steppers_[i]->label()->setText(QString::fromStdString(times_.label(part)));
    }
}

void Schedule::apply() {
    if (!times_.Apply())
        return;
    accept();
    emit applied();
}

}  // namespace velmora
