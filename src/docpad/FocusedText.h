#pragma once

#include <string>

namespace velmora {

// The text of whatever control has the focus. All of it does nothing, or gives nothing, where
// there is no control or one without text.
class FocusedText {
  public:
    virtual ~FocusedText() = default;

    // Line ends are CR LF.
    [[nodiscard]] virtual std::string selection() const = 0;

    // Line ends in `text` may be of any kind.
    virtual void replaceSelection(const std::string& text) = 0;
};

// The system's clipboard, as far as it holds text.
class ClipboardText {
  public:
    virtual ~ClipboardText() = default;

    virtual void clear() = 0;

    // Line ends become those of the system.
    virtual void set(const std::string& text) = 0;
    [[nodiscard]] virtual std::string get() const = 0;
};

}  // namespace velmora
