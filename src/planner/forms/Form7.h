#pragma once

#include "planner/Datewarden.h"
#include "platform/CodePage.h"
#include "platform/StatusLine.h"
#include "platform/controls/Dialog.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace velmora {

class EntryList;
class Stepper;

// "Datewarden": edits the yearly occasions while the user goes on working in the main window.
// Changes are kept at once.
class Form7 final : public Dialog {
    Q_OBJECT

  public:
    // All must outlive the form.
    Form7(Datewarden& datewarden, StatusLine& status, const CodePage& codePage,
          QWidget* parent = nullptr);

  signals:
    // The user asks for the events of today.
    void displayWanted();

  protected:
    // The form opens on the present day.
    void beginAnew() override;
    [[nodiscard]] QWidget* firstField() const override;

  private:
    void makeControls();
    void arrange();
    void connectControls();
    void showBars();
    void showText();
    void fillList();
    void add();
    void click();
    void remove();

    Datewarden& datewarden_;
    StatusLine& status_;
    const CodePage& codePage_;
    Stepper* month_;        // VScroll1 with Label1, the month
    Stepper* day_;          // VScroll2 with Label2, the day
    QLineEdit* Text1;       // the text of a new occasion
    QLabel* Label3;         // "Enter New Event Description:"
    EntryList* List1;       // all occasions
    QPushButton* Command1;  // "&Add"
    QPushButton* Command2;  // "&Remove"
    QPushButton* Command3;  // "&Close"
    QPushButton* Command4;  // "&Show Display"
};

}  // namespace velmora
