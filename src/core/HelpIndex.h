#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/CodePage.h"

namespace velmora {

// One page of the help.
struct HelpPage {
    std::string topic;  // its name, which is that of its file too, such as "add-entry"
    std::string title;
    std::vector<std::string> keywords;
};

// A page that fits what was looked for.
struct HelpHit {
    std::string topic;
    std::string line;  // the title, with the keyword that fitted in round brackets behind it
};

// The pages of the help in the order of the contents. All texts are code-page text.
class HelpIndex {
  public:
    // Reads one page from each line: topic, title and keywords with "|" between them, and commas
    // between the keywords. Empty lines and lines that begin with "#" are passed over. `codePage`
    // must outlive the index. Throws Failure for a line without a topic or a title, and for a
    // topic that comes twice.
    HelpIndex(std::string_view text, const CodePage& codePage);

    [[nodiscard]] const std::vector<HelpPage>& pages() const { return pages_; }

    // The page of a topic, or nullptr.
    [[nodiscard]] const HelpPage* page(std::string_view topic) const;

    // The pages that fit a typed text, each once, ignoring case and blanks around the text. First
    // those whose title begins with it, then those with a keyword that does, then those with a
    // word in them that does, then those that hold it anywhere, at last those that hold each of
    // its words; equal ones by the alphabet. An empty text gives all pages in their own order.
    [[nodiscard]] std::vector<HelpHit> matching(std::string_view typed) const;

  private:
    const CodePage& codePage_;
    std::vector<HelpPage> pages_;
};

}  // namespace velmora
