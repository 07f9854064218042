#pragma once

#include <string>
#include <vector>

#include "phonebook/AssociatesView.h"
#include "phonebook/PhonebookPane.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

// Finds who else is at the company of the selected entry. The books are read by their names; the
// one in use stays as it is. A failure shows the standard error box and ends the command.
class Associates {
  public:
    // All must outlive this object.
    Associates(const PhonebookStore& store, const PhonebookPane& pane, StatusLine& statusLine,
               Messages& messages, AssociatesView& view)
        : store_(store), pane_(pane), statusLine_(statusLine), messages_(messages), view_(view) {}

    // Lists the entries of both books with the company of the selected entry, itself included. That
    // entry is looked for in the Yellow Pages only.
    void findOthers();

    // Shows the entry that a line of the list names; nothing when it is gone.
    void showEntry(const std::string& line);

  private:
    [[nodiscard]] std::string companyOfSelected() const;
    void addEntriesAt(const std::string& company, const std::string& bookFile, char bookLetter,
                      std::vector<std::string>& lines) const;
    void showOthers(std::vector<std::string> lines);

    const PhonebookStore& store_;
    const PhonebookPane& pane_;
    StatusLine& statusLine_;
    Messages& messages_;
    AssociatesView& view_;
};

}  // namespace velmora
