#pragma once

#include <chrono>
#include <memory>

#include "platform/start/MeetingPlace.h"
#include "platform/start/StartListener.h"

namespace velmora {

// What came of a start.
struct Meeting {
    // An earlier start has shown its window: there is nothing left to do.
    bool handedOver = false;

    // This is the first: later ones are heard here. Nothing where it was handed over, and where
    // nothing can be heard: then each start has a window of its own.
    std::unique_ptr<StartListener> listener;
};

// Looks for an earlier start at this place, and takes the place where there is none. An earlier one
// that has not shown its window when the patience is over is left alone, and nothing is handed
// over.
[[nodiscard]] Meeting meetOtherStarts(
    const MeetingPlace& place, const Summons& summons,
    std::chrono::milliseconds patience = std::chrono::seconds(10));

}  // namespace velmora
