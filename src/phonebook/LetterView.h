#pragma once

#include <cstdint>

#include "core/SharedState.h"
#include "phonebook/PhonebookPane.h"
#include "phonebook/PhonebookStore.h"

namespace velmora {

// Shows one letter of one book. Nothing is kept: each operation reads the book anew, and they
// throw Failure when it can not be read; the list is empty then, and letter and book are as asked.
class LetterView {
  public:
    // All must outlive the view.
    LetterView(SharedState& state, const PhonebookStore& store, PhonebookPane& pane)
        : state_(state), store_(store), pane_(pane) {}

    // Goes to a letter tab, 0 to 26.
    void LetterClick(int index);

    // Adds the entries of the letter in use. Clears nothing.
    void LoadLetter();

    // Shows the selected entry; no details when it is gone.
    void ListClick();

    // Selects the first line of exactly this text, as far as it is on show. The details stay empty.
    void selectLine(const std::string& line) { (void)pane_.selectLine(line); }

    // Goes to kYellowPages or kWhitePages and keeps the letter.
    void SelectBook(std::int16_t kind);

    // Empties list and details and loads the letter again.
    void reload();

    // Loads the letter again and keeps selection and details, as far as the entry is still there.
    void refresh();

  private:
    SharedState& state_;
    const PhonebookStore& store_;
    PhonebookPane& pane_;
};

}  // namespace velmora
