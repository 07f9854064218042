#pragma once

#include <functional>
#include <string>

#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QLineEdit;
class QPushButton;

namespace velmora {

class EntryList;

// What the forms with a list of alarms or tasks have in common: a list of lines, a box for a text,
// and buttons at the foot. They do not block the main window.
class TaskDialog : public Dialog {
    Q_OBJECT

  protected:
    // `codePage` must outlive the form.
    TaskDialog(const char* name, const char* title, const CodePage& codePage, QWidget* parent);

    // The user changed the text in the box.
    virtual void textTyped(const std::string& text) = 0;

    void setBoxText(const std::string& text);

    // What a form of repetitive tasks does when a line is picked, and at its buttons. `remove` is
    // asked with a line only.
    struct TaskActions {
        std::function<void(const std::string& line)> pick;
        std::function<void()> add;
        std::function<void(const std::string& line)> remove;
    };
    void connectTasks(QPushButton* add, QPushButton* remove, QPushButton* close,
                      const TaskActions& actions);

    EntryList* List1;
    QLineEdit* Text1;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
