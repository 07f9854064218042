#include "core/PendingWish.h"

#include <utility>

namespace velmora {

PendingWish::PendingWish(SharedState& state, std::function<void(int kind)> selectBook,
                         std::function<void(int index)> letterClick)
    : state_(state), selectBook_(std::move(selectBook)), letterClick_(std::move(letterClick)) {}

void PendingWish::flipped() {
    if (const int book = std::exchange(state_.PendingBook, 0);
        book == kWhitePages || book == kYellowPages)
        selectBook_(book);
    if (const int letter = std::exchange(state_.PendingLetter, 0); letter != 0)
        letterClick_(letter);
}

}  // namespace velmora
