#pragma once

#include <string>

namespace velmora {

// Lets a window that is activated while this lives come to the front, with the token that the
// desktop gave for it. An empty token changes nothing.
class ActivationToken {
  public:
    explicit ActivationToken(const std::string& token);
    ~ActivationToken();
    ActivationToken(const ActivationToken&) = delete;
    ActivationToken& operator=(const ActivationToken&) = delete;
};

// The token with which this process was started; empty where there was none.
[[nodiscard]] std::string tokenOfThisStart();

}  // namespace velmora
