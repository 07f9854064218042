#pragma once

#include "platform/Clock.h"

namespace velmora {

// The machine's clock in the user's time zone.
class SystemClock final : public Clock {
  public:
    [[nodiscard]] Moment now() const override;
};

}  // namespace velmora
