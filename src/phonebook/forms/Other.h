#pragma once

#include "phonebook/Associates.h"
#include "phonebook/AssociatesView.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QPushButton;

namespace velmora {

class EntryCard;
class EntryList;

// "Other Associates...": the entries of one company, while the user goes on working in the main
// window. It is made once.
class Other final : public Dialog, public AssociatesView {
    Q_OBJECT

  public:
    // All must outlive the form.
    Other(const PhonebookStore& store, const PhonebookPane& pane, StatusLine& statusLine,
          Messages& messages, QWidget* parent = nullptr);

    // Looks for the associates of the selected entry; the form comes into view if there are any.
    void findOthers() { associates_.findOthers(); }

    void setLines(std::vector<std::string> lines) override;
    void showDetails(const std::string& text) override;
    // The keyboard goes to "&Close".
    void present() override;

  private:
    void arrange();

    Associates associates_;
    EntryList* List1;       // the associates
    EntryCard* Label1;      // the entry of the line clicked
    QPushButton* Command1;  // "&Close"
};

}  // namespace velmora
