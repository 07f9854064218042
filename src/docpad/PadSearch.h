#pragma once

#include <cstddef>
#include <string>

#include "docpad/PadText.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"

namespace velmora {

// Searches DocPad's text and selects what it finds. It outlives the search form, so that "Find
// Next" goes on where it was.
class PadSearch {
  public:
    PadSearch(PadText& text, const CodePage& codePage, Messages& messages)
        : text_(text), codePage_(codePage), messages_(messages) {}

    // Begins one character before the caret, or at the first character of the text.
    // Returns whether there was a hit; if not, the user has been told.
    bool Find(const std::string& what, bool matchCase);

    // Begins on the last character of the last hit, so that hits may overlap by one.
    bool FindNext(const std::string& what, bool matchCase);

  private:
    bool search(std::size_t start, const std::string& what, bool matchCase);

    PadText& text_;
    const CodePage& codePage_;
    Messages& messages_;
    std::size_t position_ = 0;  // behind the last hit, counted from 1; 0 before the first
};

}  // namespace velmora
