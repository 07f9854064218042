#include "docpad/forms/RecoveryTimer.h"

#include <utility>

namespace velmora {
namespace {

constexpr int kPause = 700;
constexpr int kLongest = 1500;

}  // namespace

RecoveryTimer::RecoveryTimer(std::function<bool()> work, QObject* parent)
    : QObject(parent), work_(std::move(work)) {
    pause_.setSingleShot(true);
    latest_.setSingleShot(true);
    setTimes(kPause, kLongest);
    connect(&pause_, &QTimer::timeout, this, &RecoveryTimer::run);
    connect(&latest_, &QTimer::timeout, this, &RecoveryTimer::run);
}

void RecoveryTimer::setTimes(int pause, int longest) {
    pause_.setInterval(pause);
    latest_.setInterval(longest);
}

void RecoveryTimer::changed() {
    pause_.start();
    if (!latest_.isActive())
        latest_.start();
}

void RecoveryTimer::stop() {
    pause_.stop();
    latest_.stop();
}

void RecoveryTimer::run() {
    stop();
    if (work_())
        changed();
}

}  // namespace velmora
