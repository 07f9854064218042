#pragma once

#include <string>
#include <vector>

namespace velmora {

enum class SearchLight {
    Done,       // bright green
    Searching,  // bright red
};

// The search form, as the search sees it. It is told nothing more once the form has closed.
class SearchView {
  public:
    virtual ~SearchView() = default;

    virtual void showLight(SearchLight light) = 0;

    // The list of hits is out of view while it is filled.
    virtual void showHitList(bool shown) = 0;

    // Replaces all lines of the list; code-page text, in this order.
    virtual void setHits(std::vector<std::string> lines) = 0;
};

}  // namespace velmora
