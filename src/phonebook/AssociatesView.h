#pragma once

#include <string>
#include <vector>

namespace velmora {

// The form of the associates, as their logic sees it. Texts are code-page text.
class AssociatesView {
  public:
    virtual ~AssociatesView() = default;

    // Replaces all lines of the list, in this order.
    virtual void setLines(std::vector<std::string> lines) = 0;

    // The entry of the chosen line, lines ended by CR LF; empty for none. Plain text.
    virtual void showDetails(const std::string& text) = 0;

    // Brings the form into view.
    virtual void present() = 0;
};

}  // namespace velmora
