#pragma once

#include "docpad/PadSearch.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace velmora {

// "Search...": looks for a text in DocPad while the user goes on editing. It stays above the other
// windows. A hit hides it with everything in it; Cancel empties it.
class TextSearch final : public Dialog {
    Q_OBJECT

  public:
    // What is handed over must outlive the form.
    TextSearch(PadSearch& search, const CodePage& codePage, QWidget* parent = nullptr);

    // Shows the form, in front and ready for typing.
    void present() override;
    void reject() override;

  private:
    void find(bool next);

    PadSearch& search_;
    const CodePage& codePage_;
    QLineEdit* Text1;       // the text to find
    QCheckBox* Check1;      // "&Match Case"
    QPushButton* Command1;  // "&Find"
    QPushButton* Command2;  // "Find &Next"
    QPushButton* Command3;  // "&Cancel"
};

}  // namespace velmora
