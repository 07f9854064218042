#include "planner/forms/TimeSteppers.h"

#include <QHBoxLayout>
#include <QLabel>

#include "platform/controls/Stepper.h"

namespace velmora {
namespace {

constexpr int kLastHour = 23;
constexpr int kLastMinute = 59;

void set(Stepper& stepper, int value) {
    stepper.setValue(value);
    stepper.label()->setText(QString::fromStdString(twoDigits(value)));
}

}  // namespace

TimeSteppers::TimeSteppers(const Names& names, QWidget* parent)
    : QWidget(parent),
      hours_(new Stepper(QStringLiteral("VScroll1"), QString::fromLatin1(names.hour), this)),
      minutes_(new Stepper(QStringLiteral("VScroll2"), QString::fromLatin1(names.minute), this)) {
    hours_->setRange(0, kLastHour, 12);
    minutes_->setRange(0, kLastMinute, 30);
    hours_->arrows()->setAccessibleName(QStringLiteral("Hour"));
    minutes_->arrows()->setAccessibleName(QStringLiteral("Minute"));
    auto* colon = new QLabel(QStringLiteral(":"), this);
    colon->setObjectName(QString::fromLatin1(names.colon));
    colon->setFont(hours_->label()->font());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(8);
    row->addWidget(hours_);
    row->addWidget(colon);
    row->addWidget(minutes_);
    row->addStretch(1);
    connect(hours_, &Stepper::valueChanged, this, [this](int value) {
        set(*hours_, value);
        emit hourChanged(value);
    });
    connect(minutes_, &Stepper::valueChanged, this, [this](int value) {
        set(*minutes_, value);
        emit minuteChanged(value);
    });
}

void TimeSteppers::setTime(ClockTime time) {
    const QSignalBlocker quiet(this);
    set(*hours_, time.hour);
    set(*minutes_, time.minute);
}

}  // namespace velmora
