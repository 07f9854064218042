#pragma once

#include <QDialog>
#include <string>

#include "platform/CodePage.h"

class QLabel;
class QPushButton;
class QScrollArea;

namespace velmora {

// "Velmora - Alarm": says that alarms went off. It is a window of its own above all others, so that
// it shows while the main window is minimised and answers while a dialog is open, and it comes
// without taking the focus. So it is no `Dialog`: it is as large as its messages, anew each time.
class AlarmAlert final : public QDialog {
    Q_OBJECT

  public:
    // `codePage` must outlive the form.
    explicit AlarmAlert(const CodePage& codePage);

    // Brings the form to the middle of the screen with this message, or gives the open one another.
    void present(const std::string& message);

  signals:
    // Ok, Escape or the close box. The form stays until it is hidden.
    void okPressed();
    void snoozePressed(int minutes);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

  private:
    void layOut();
    void fitToMessage();
    void centre();

    const CodePage& codePage_;
    QLabel* Label1;  // "ALARM"
    QLabel* Label2;  // the message
    QScrollArea* scroll_;
    QPushButton* Command1;  // "&Ok"
    QPushButton* Command2;  // "5 Minute &Snooze"
    QPushButton* Command3;  // "10 &Minute Snooze"
};

}  // namespace velmora
