#pragma once

#include <string>

#include "planner/ToDoList.h"
#include "planner/forms/TaskDialog.h"

namespace velmora {

// "Task Manager - To Do": the list of things to do.
class Form3 final : public TaskDialog {
    Q_OBJECT

  public:
    // `list` must outlive the form.
    Form3(ToDoList& list, const CodePage& codePage, QWidget* parent = nullptr);

  signals:
    // "&Print Tasks"; `fontName` is the list's, as code-page text.
    void printWanted(const std::string& fontName);

    // "&Monthly" and "&Weekly"; the form closes behind them.
    void monthlyWanted();
    void weeklyWanted();

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void textTyped(const std::string& text) override { list_.setText(text); }

  private:
    void connectControls();
    void showAll();

    ToDoList& list_;
    const CodePage& codePage_;
    QPushButton* Command1;  // "&Add Task"
    QPushButton* Command2;  // "&Remove Task"
    QPushButton* Command3;  // "&Print Tasks"
    QPushButton* Command4;  // "&Close"
    QPushButton* Command5;  // "&Monthly"
    QPushButton* Command6;  // "&Weekly"
};

}  // namespace velmora
