#pragma once

#include "phonebook/EntryFormOpener.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

class QWidget;

namespace velmora {

// Opens the entry form over the main window.
class EntryForms final : public EntryFormOpener {
  public:
    // All must outlive this object.
    EntryForms(Messages& messages, StatusLine& statusLine, const CodePage& codePage,
               QWidget& window)
        : messages_(messages), statusLine_(statusLine), codePage_(codePage), window_(window) {}

    void openEntryForm(EntryEditor& editor) override;

  private:
    Messages& messages_;
    StatusLine& statusLine_;
    const CodePage& codePage_;
    QWidget& window_;
};

}  // namespace velmora
