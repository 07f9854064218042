#pragma once

#include <chrono>
#include <string>

#include "platform/AccessTableReader.h"

namespace velmora::access {

// Reads each time in a child process: a program whose main() is accessReaderMain() when it is
// called so. A child that crashes, hangs or talks nonsense is a Failure here, and nothing more.
class ChildAccessReader final : public AccessTableReader {
  public:
    // `program`: what to run, this very program unless told otherwise. `patience`: how long the
    // child may keep one reading waiting.
    explicit ChildAccessReader(std::string program = "/proc/self/exe",
                               std::chrono::milliseconds patience = std::chrono::seconds(30));

    // `whileWaiting` is called some twenty times a second as long as nothing comes; what it throws
    // ends the reading and passes through.
    explicit ChildAccessReader(std::function<void()> whileWaiting);

    [[nodiscard]] std::vector<AccessTable> tables(const NativePath& path) override;
    void readRows(const NativePath& path, const std::string& table,
                  const std::function<void(const AccessRow&)>& take) override;

  private:
    std::string program_;
    std::chrono::milliseconds patience_;
    std::function<void()> whileWaiting_;
};

}  // namespace velmora::access
