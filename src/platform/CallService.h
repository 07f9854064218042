#pragma once

#include <functional>
#include <string>

namespace velmora {

// A call as a telephone service reports it: texts in UTF-8, of any length and with any characters.
struct CallReport {
    std::string name;    // empty where the service knows none
    std::string number;  // as the network sent it ("+15165551212"); empty when it is withheld
};

// One of the telephone services that a desktop may have.
class CallService {
  public:
    virtual ~CallService() = default;

    // Tells one service from another.
    [[nodiscard]] virtual std::string name() const = 0;

    // From now on, as long as the service lives, each incoming call is reported once, from the
    // event loop. To be called once. Returns at once, and stays silent where there is no such
    // service; one that starts later is heard, too.
    virtual void listen(std::function<void(const CallReport& report)> onReport) = 0;
};

}  // namespace velmora
