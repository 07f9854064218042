#pragma once

#include "planner/MonthlyTasks.h"
#include "planner/forms/TaskDialog.h"

namespace velmora {

class Stepper;

// "Monthly Repetitive Tasks": tasks of a day of the month.
class Monthly final : public TaskDialog {
    Q_OBJECT

  public:
    // `tasks` must outlive the form.
    Monthly(MonthlyTasks& tasks, const CodePage& codePage, QWidget* parent = nullptr);

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void textTyped(const std::string& text) override { tasks_.setText(text); }

  private:
    void connectControls();
    void showDay();
    void showList();

    MonthlyTasks& tasks_;
    Stepper* day_;          // VScroll1 with Label1
    QPushButton* Command1;  // "&Add"
    QPushButton* Command2;  // "&Remove"
    QPushButton* Command3;  // "&Close"
};

}  // namespace velmora
