#pragma once

#include <functional>
#include <string>

#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "docpad/PadText.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Messages.h"

namespace velmora {

// What puts texts of the program behind DocPad's own: the head of a letter, an entry in full, a
// task. The caret is then behind them, ready to type on; one step undoes it. A book that can not be
// read brings the standard error box, and nothing is added.
class LetterCommands {
  public:
    // All must outlive the commands.
    struct Parts {
        const SharedState& state;
        const PhonebookStore& store;
        const SettingsStore& settings;
        PadText& pad;
        Messages& messages;
    };

    explicit LetterCommands(const Parts& parts) : parts_(parts) {}

    // The head of a letter to the first entry of the book in use that `line` of the list names;
    // nothing for none.
    void addLetterHead(const std::string& line);

    // The same entry in full.
    void InsertEntryText(const std::string& line);

    // A line of the to-do list.
    void addTask(const std::string& task);

  private:
    void addOfEntry(const std::string& line,
                    const std::function<std::string(const PhonebookRecord&)>& textOf);
    void add(const std::string& text);

    Parts parts_;
};

}  // namespace velmora
