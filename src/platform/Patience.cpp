#include "platform/Patience.h"

#include <algorithm>
#include <array>
#include <thread>

namespace velmora {
namespace {

using std::chrono::milliseconds;

constexpr std::array<int, 6> kDelays{1, 2, 5, 10, 15, 20};  // milliseconds
constexpr int kForgetting = 5;

}  // namespace

bool Patience::wait(int timesBefore) {
    if (suspended_ > 0)
        return false;
    const auto now = std::chrono::steady_clock::now();
    spent_ = std::max(Duration::zero(), spent_ - (now - last_) / kForgetting);
    last_ = now;
    if (spent_ >= most_)
        return false;
    const auto step = std::min<std::size_t>(static_cast<std::size_t>(std::max(timesBefore, 0)),
                                            kDelays.size() - 1);
    std::this_thread::sleep_for(std::min<Duration>(milliseconds(kDelays[step]), most_ - spent_));
    const auto after = std::chrono::steady_clock::now();
    spent_ += after - now;
    last_ = after;
    return true;
}

}  // namespace velmora
