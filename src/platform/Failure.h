#pragma once

#include <stdexcept>
#include <string>

namespace velmora {

// The one exception of the program: something outside it did not work. what() is plain text for
// the user, in UTF-8, and says what could not be done and why.
class Failure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A Failure with the system's text for `errorNumber` (an errno value) behind `what`.
[[nodiscard]] Failure systemFailure(const std::string& what, int errorNumber);

// Runs one step whose failure stops nothing: the next step runs whatever happens here.
template <typename Step>
void ignoringErrors(Step&& step) {
    try {
        step();
    } catch (const Failure&) {
        // The step is skipped; that is the whole point.
    }
}

}  // namespace velmora
