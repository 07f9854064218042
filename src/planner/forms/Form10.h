#pragma once

#include "planner/WeeklyTasks.h"
#include "planner/forms/TaskDialog.h"

namespace velmora {

class Stepper;
class TimeSteppers;

// "Weekly Repetitive Tasks": tasks that ring at their time every week.
class Form10 final : public TaskDialog {
    Q_OBJECT

  public:
    // `tasks` must outlive the form.
    Form10(WeeklyTasks& tasks, const CodePage& codePage, QWidget* parent = nullptr);

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void textTyped(const std::string& text) override { tasks_.setText(text); }

  private:
    void setUpDays();
    void connectControls();
    void showFields();
    void showList();

    WeeklyTasks& tasks_;
    Stepper* day_;          // VScroll3 with Label4
    TimeSteppers* time_;    // VScroll1, VScroll2 with Label1, Label2, Label3
    QPushButton* Command1;  // "&Add"
    QPushButton* Command2;  // "&Remove"
    QPushButton* Command3;  // "&Close"
};

}  // namespace velmora
