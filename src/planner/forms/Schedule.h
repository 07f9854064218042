#pragma once

#include "planner/ScheduleTimes.h"
#include "platform/controls/Dialog.h"

class QPushButton;

namespace velmora {

class Stepper;

// "Schedule Event": asks for the begin and the end of an event. It does not block the main window;
// closing it in any way but "Apply" leaves the waiting command waiting.
class Schedule final : public Dialog {
    Q_OBJECT

  public:
    // `times` must outlive the form.
    explicit Schedule(ScheduleTimes& times, QWidget* parent = nullptr);

  signals:
    // The times have been taken over and the form has closed.
    void applied();

  protected:
    // The form opens with the present time.
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;

  private:
    [[nodiscard]] Stepper* makeStepper(ScheduleTimes::Part part);
    [[nodiscard]] QWidget* makeQuestion(const char* name, const char* text,
                                        ScheduleTimes::Part hour, ScheduleTimes::Part minute);
    void showTimes();
    void apply();

    ScheduleTimes& times_;
    std::array<Stepper*, 4> steppers_{};  // VScroll1, 2, 4, 3 with Label1, 2, 7, 6
    QPushButton* Command2;                // "&Apply"
    QPushButton* Command1;                // "&Cancel"
};

}  // namespace velmora
