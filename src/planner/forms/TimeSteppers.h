#pragma once

#include <QWidget>

#include "planner/ClockTime.h"

namespace velmora {

class Stepper;

// Hour and minute of a time of day with ":" between them, in two digits each.
class TimeSteppers final : public QWidget {
    Q_OBJECT

  public:
    // The object names of the three labels; the arrows are `VScroll1` and `VScroll2`.
    struct Names {
        const char* hour;
        const char* colon;
        const char* minute;
    };

    explicit TimeSteppers(const Names& names, QWidget* parent = nullptr);

    // Tells nobody.
    void setTime(ClockTime time);

    [[nodiscard]] Stepper* hours() const { return hours_; }
    [[nodiscard]] Stepper* minutes() const { return minutes_; }

  signals:
    // The user changed one of them; the label shows it already.
    void hourChanged(int hour);
    void minuteChanged(int minute);

  private:
    Stepper* hours_;
    Stepper* minutes_;
};

}  // namespace velmora
