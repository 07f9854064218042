#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/AccessTableReader.h"

namespace velmora::access {

// An Access database read in this very process. A damaged file may crash it or make it hang: only
// the reading child process uses this class.
class AccessFile {
  public:
    // Throws Failure when the file is missing or no Access database.
    explicit AccessFile(const std::string& path);

    [[nodiscard]] std::vector<AccessTable> tables();

    // Throws Failure when there is no such table.
    void readRows(const std::string& table, const std::function<void(const AccessRow&)>& take);

  private:
    struct Closer {
        void operator()(void* handle) const;
    };
    std::unique_ptr<void, Closer> handle_;
};

}  // namespace velmora::access
