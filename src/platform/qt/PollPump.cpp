#include "platform/qt/PollPump.h"

#include <algorithm>

namespace velmora {

using namespace std::chrono_literals;

PollPump::PollPump(Polled& work, std::chrono::milliseconds untilNextTry)
    : work_(work), untilNextTry_(untilNextTry) {
    due_.setSingleShot(true);
    nextTry_.setSingleShot(true);
    connect(&due_, &QTimer::timeout, this, &PollPump::goOn);
    connect(&nextTry_, &QTimer::timeout, this, &PollPump::begin);
    nextTry_.start(0ms);
}

PollPump::~PollPump() = default;

void PollPump::begin() {
    if (work_.begin())
        waitForMore();
    else
        rest();
}

void PollPump::goOn() {
    if (work_.goOn())
        waitForMore();
    else
        rest();
}

void PollPump::waitForMore() {
    const Polled::Wait wait = work_.wait();
    watch(wait.descriptor);
    if (reading_) {
        reading_->setEnabled(wait.toRead);
        writing_->setEnabled(wait.toWrite);
    }
    due_.stop();
    // Rounded up: a time that has not quite come would be waited for in vain again and again.
    if (wait.atMost)
        due_.start(std::clamp(std::chrono::ceil<std::chrono::milliseconds>(*wait.atMost), 0ms,
                              std::chrono::milliseconds(1h)));
}

void PollPump::watch(int descriptor) {
    if (descriptor == watched_)
        return;
    reading_.reset();
    writing_.reset();
    watched_ = descriptor;
    if (descriptor < 0)
        return;
    reading_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    writing_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Write);
    connect(reading_.get(), &QSocketNotifier::activated, this, &PollPump::goOn);
    connect(writing_.get(), &QSocketNotifier::activated, this, &PollPump::goOn);
}

void PollPump::rest() {
    due_.stop();
    watch(-1);
    nextTry_.start(untilNextTry_);
}

}  // namespace velmora
