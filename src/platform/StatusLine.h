#pragma once

#include <string>

namespace velmora {

// Panel 2 of the status bar. A text stays until the next one.
class StatusLine {
  public:
    virtual ~StatusLine() = default;
    virtual void show(const std::string& text) = 0;
};

}  // namespace velmora
