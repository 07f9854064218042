#pragma once

#include <string>

namespace velmora {

// What the desktop tells the user by itself, beside the windows: one notice for each subject, which
// stays until it is clicked or withdrawn. All texts are UTF-8. No operation waits, and where the
// desktop has no notices nothing happens.
class Notices {
  public:
    virtual ~Notices() = default;

    // Shows the notice of a subject, or lets the one in view say this.
    virtual void show(const std::string& subject, const std::string& title,
                      const std::string& text) = 0;

    // Takes the notice of a subject away, if there is one.
    virtual void withdraw(const std::string& subject) = 0;
};

}  // namespace velmora
