#pragma once

namespace velmora::bench {

// How far the memory of this process has gone up meanwhile, in MiB: its highest point since this
// object was made, above where it was then. Throws std::runtime_error where the system does not
// tell.
class MemoryRise {
  public:
    MemoryRise();

    [[nodiscard]] double mebibytes() const;

  private:
    double before_;
};

}  // namespace velmora::bench
