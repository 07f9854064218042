#include "platform/Failure.h"

#include <system_error>

namespace velmora {

Failure systemFailure(const std::string& what, int errorNumber) {
    return Failure(what + ": " + std::generic_category().message(errorNumber) + ".");
}

}  // namespace velmora
