#pragma once

#include <string>

namespace velmora {

// Where DocPad's captions are shown.
class DocPadView {
  public:
    virtual ~DocPadView() = default;

    // The title of the pane, `Label4`.
    virtual void setTitle(const std::string& text) = 0;
    // The same, in view before this returns, as the next step may take its time.
    virtual void announce(const std::string& text) = 0;
    [[nodiscard]] virtual std::string title() const = 0;

    // The caption of the main window.
    virtual void setWindowCaption(const std::string& text) = 0;
};

}  // namespace velmora
