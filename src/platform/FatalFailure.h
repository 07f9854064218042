#pragma once

#include "platform/Failure.h"

namespace velmora {

// A Failure behind which the program does not go on: where nobody catches it, its text is shown in
// the standard error box, and the program then ends as the user ends it.
class FatalFailure : public Failure {
  public:
    using Failure::Failure;
};

}  // namespace velmora
