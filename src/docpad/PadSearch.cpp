#include "docpad/PadSearch.h"

#include <algorithm>

#include "platform/Text.h"

namespace velmora {

bool PadSearch::Find(const std::string& what, bool matchCase) {
    return search(text_.selectionStart(), what, matchCase);
}

bool PadSearch::FindNext(const std::string& what, bool matchCase) {
    return search(position_ > 0 ? position_ - 1 : 0, what, matchCase);
}

bool PadSearch::search(std::size_t start, const std::string& what, bool matchCase) {
    start = std::max<std::size_t>(start, 1);
    const std::size_t hit = matchCase ? findFrom(start, text_.bytes(), what)
                                      : findFrom(start, codePage_.lower(text_.bytes()),
                                                 codePage_.lower(trimBlanks(what)));
    if (hit == 0) {
        messages_.tell("Search Complete", "Text not found.");
        return false;
    }
    // The length is that of the text as typed, blanks and all.
    text_.select(hit - 1, what.size());
    position_ = hit + what.size();
    return true;
}

}  // namespace velmora
