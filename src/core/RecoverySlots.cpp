#include "core/RecoverySlots.h"

#include <utility>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr int kSlots = 9;

}  // namespace

RecoverySlots::RecoverySlots(std::string stem, std::string subject, Files& files)
    : stem_(std::move(stem)), subject_(std::move(subject)), files_(files) {}

std::vector<std::string> RecoverySlots::all() const {
    std::vector<std::string> paths;
    for (int number = 1; number <= kSlots; ++number)
        paths.push_back(stem_ + std::to_string(number));
    return paths;
}

std::string RecoverySlots::ownOrFree() const {
    if (!own_.empty())
        return own_;
    for (const std::string& path : all())
        if (!files_.exists(path))
            return path;
    throw Failure(subject_ + " can not be kept for recovery: all places for it are taken.");
}

std::string RecoverySlots::claim() {
    own_ = ownOrFree();
    return own_;
}

void RecoverySlots::keep(std::string_view bytes) {
    if (sealed_)
        return;
    const std::string path = ownOrFree();
    files_.writePrivately(path, bytes);
    own_ = path;
}

void RecoverySlots::takeOver(const std::string& path, std::string_view bytes) {
    files_.writePrivately(path, bytes);
    const std::string before = std::exchange(own_, path);
    if (!before.empty() && before != path)
        ignoringErrors([&] { files_.remove(before); });
}

void RecoverySlots::discard() {
    if (sealed_ || own_.empty())
        return;
    if (files_.exists(own_))
        files_.remove(own_);
    own_.clear();
}

void RecoverySlots::forget(const std::string& path) {
    if (!sealed_)
        files_.remove(path);
}

}  // namespace velmora
