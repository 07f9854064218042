#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace velmora {

// Owns work that is put off: what is put off runs only while its owner lives. A member that is
// declared last in its class goes first, before anything that the work uses.
class WorkOwner {
  public:
    WorkOwner() = default;
    WorkOwner(const WorkOwner&) = delete;
    WorkOwner& operator=(const WorkOwner&) = delete;

    // The work, which does nothing once this object is gone.
    [[nodiscard]] std::function<void()> owning(std::function<void()> work) const {
        return [alive = std::weak_ptr<const bool>(alive_), body = std::move(work)] {
            if (!alive.expired())
                body();
        };
    }

  private:
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

}  // namespace velmora
