#pragma once

#include <string>

#include "platform/Failure.h"

namespace velmora {

// What stands between Velmora and what it wants to read or write.
enum class Obstacle {
    InUse,      // locked by another program: trying again later may do
    DiskFull,   //
    ReadOnly,   // may be read but not written
    NotThere,   // no file, or one of a kind that is never opened
    NoSuchRow,  // the file is there, and what was meant is no longer in it
    Other,
};

// A Failure that says which obstacle it met.
class StorageFailure : public Failure {
  public:
    StorageFailure(const std::string& text, Obstacle obstacle)
        : Failure(text), obstacle_(obstacle) {}

    [[nodiscard]] Obstacle obstacle() const { return obstacle_; }

  private:
    Obstacle obstacle_;
};

// The obstacle of any Failure.
[[nodiscard]] inline Obstacle obstacleOf(const Failure& failure) {
    const auto* storage = dynamic_cast<const StorageFailure*>(&failure);
    return storage ? storage->obstacle() : Obstacle::Other;
}

}  // namespace velmora
