#pragma once

#include <string>

namespace velmora {

// What the line says when a typed or pasted character has no place in the code page.
inline constexpr const char* kCharacterReplaced =
    "A character that Velmora can not store was replaced by \"?\".";

// Panel 2 of the status bar. A text stays until the next one.
class StatusLine {
  public:
    virtual ~StatusLine() = default;
    virtual void show(const std::string& text) = 0;

    // The text, and behind it the path of a file that a click opens. `text` may be empty.
    virtual void showFile(const std::string& text, const std::string& path) = 0;
};

}  // namespace velmora
