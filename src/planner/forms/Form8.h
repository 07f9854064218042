#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "planner/Reminders.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QLabel;
class QPushButton;
class QTimer;

namespace velmora {

class EntryList;

// "Events for Today": stays in front of all windows and keeps its list current, hidden or not.
// Making the form opens it: the list is built and the sound plays. Its controls are made when it is
// shown for the first time, since it is opened at every start. Closing it is its end, which it
// tells by finished(); the owner then lets it go.
class Form8 final : public Dialog {
    Q_OBJECT

  public:
    // `events` and `codePage` must outlive the form. Throws Failure when the list can not be read.
    Form8(const Reminders& events, const CodePage& codePage);

    // Shows the form, in front and ready for Enter or Escape, beside the left top corner of a
    // window, kept on its screen. A form that is in view stays where it is.
    void showBeside(const QWidget& window);

    // As showBeside(), with the list as of now.
    void presentBeside(const QWidget& window);

    // The list as it is shown, or would be.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

  signals:
    void datewardenWanted();
    void monthlyWanted();
    void weeklyWanted();
    void printWanted(const std::vector<std::string>& lines);

  protected:
    void place() override;

  private:
    void makeControls();
    void makeButtons();
    void arrange();
    void connectControls();
    void rebuild();

    const Reminders& events_;
    const CodePage& codePage_;
    std::vector<std::string> lines_;
    QPointer<const QWidget> beside_;  // the window beside which the form opens
    QTimer* Timer1;                   // builds the list anew
    QLabel* Label1 = nullptr;         // "Events and Occasions Occurring Today:"
    EntryList* List1 = nullptr;       // the events
    QPushButton* Command1 = nullptr;  // "&Close"
    QPushButton* Command2 = nullptr;  // "&Datewarden"
    QPushButton* Command3 = nullptr;  // "&Print"
    QPushButton* Command5 = nullptr;  // "&Monthly"
    QPushButton* Command6 = nullptr;  // "&Weekly"
};

}  // namespace velmora
