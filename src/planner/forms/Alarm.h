#pragma once

#include "planner/AlarmEditor.h"
#include "planner/forms/TaskDialog.h"

namespace velmora {

class TimeSteppers;

// "Alarms...": sets and removes the alarms of the day that the planner shows.
class Alarm final : public TaskDialog {
    Q_OBJECT

  public:
    // `editor` must outlive the form.
    Alarm(AlarmEditor& editor, const CodePage& codePage, QWidget* parent = nullptr);

  protected:
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;
    void textTyped(const std::string& text) override { editor_.setMessage(text); }

  private:
    [[nodiscard]] QWidget* makeNote();
    void connectControls();
    void showFields();
    void showList();

    AlarmEditor& editor_;
    TimeSteppers* time_;    // VScroll1, VScroll2 with Label1, Label3, Label2
    QPushButton* Command2;  // "&Add/Change"
    QPushButton* Command1;  // "&Remove"
    QPushButton* Command3;  // "&Close"
};

}  // namespace velmora
