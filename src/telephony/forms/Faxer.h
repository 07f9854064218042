#pragma once

#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"
#include "telephony/Fax.h"

class QPushButton;

namespace velmora {

class ElidedLabel;
class EntryList;

// "Send Fax": the print queues, one of which gets DocPad's text, while the user goes on working in
// the main window. It is made once.
class Faxer final : public Dialog {
    Q_OBJECT

  public:
    // Both must outlive the form.
    Faxer(Fax& fax, const CodePage& codePage, QWidget* parent = nullptr);

    // Opens the form, or brings the open one forward, with the queues as they are now.
    void present() override;

  protected:
    [[nodiscard]] QWidget* firstField() const override;

  private:
    void arrange();
    void listQueues();
    void send();
    void tellPrinter();

    Fax& fax_;
    const CodePage& codePage_;
    EntryList* List1;       // the queues
    ElidedLabel* Printer;   // which one is the printer now
    QPushButton* Command1;  // "&Use this Device to Send Fax"
    QPushButton* Command2;  // "&Close"
};

}  // namespace velmora
