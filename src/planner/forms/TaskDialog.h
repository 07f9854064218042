#pragma once

#include <QDialog>
#include <QString>
#include <string>

#include "platform/CodePage.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace velmora {

class DialogFooter;
class EntryList;

// What the forms with a list of alarms or tasks have in common: a list of lines, a box for a text,
// and buttons at the foot. They do not block the main window.
class TaskDialog : public QDialog {
    Q_OBJECT

  public:
    // Opens the form anew, or brings the open one to the front as it is.
    void present();

  signals:
    // A character that the code page lacks was replaced in the box.
    void characterReplaced();

  protected:
    // `codePage` must outlive the form.
    TaskDialog(const char* name, const char* title, const CodePage& codePage, QWidget* parent);

    // Fills the form for the user, who starts at firstField().
    virtual void beginAnew() = 0;
    [[nodiscard]] virtual QWidget* firstField() const = 0;

    // The user changed the text in the box.
    virtual void textTyped(const std::string& text) = 0;

    // A small label above its field.
    [[nodiscard]] QLabel* makeLabel(const char* caption, QWidget* buddy);
    void layOut(QBoxLayout* body, DialogFooter* footer);

    void setBoxText(const std::string& text);

    EntryList* List1;
    QLineEdit* Text1;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
