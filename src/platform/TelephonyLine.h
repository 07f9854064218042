#pragma once

#include <functional>
#include <string>

namespace velmora {

// Who calls, as the line tells it: a name, which may be empty, and a number in the country's own
// form ("5165551212"), which is empty when it is withheld. Code-page text without control
// characters.
struct Caller {
    std::string name;
    std::string number;
};

// The telephone services of this desktop, as one line.
class TelephonyLine {
  public:
    virtual ~TelephonyLine() = default;

    // From now on each incoming call is told once, from the event loop. Silent where there is no
    // service; one that starts later is heard, too.
    virtual void activate(std::function<void(const Caller& caller)> onCall) = 0;
};

}  // namespace velmora
