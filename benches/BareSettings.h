#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;

namespace velmora::bench {

// The yardstick of the numbered lists: what rewriting rows of settings can not do without, with
// nothing around it. All throw std::runtime_error on a failure of the database.
class BareSettings {
  public:
    // Opens the settings at `path`, or makes them; with a write-ahead log, as Velmora.
    explicit BareSettings(const std::string& path);
    ~BareSettings();
    BareSettings(const BareSettings&) = delete;
    BareSettings& operator=(const BareSettings&) = delete;

    // Writes all rows, key and value, in one transaction.
    void write(const std::vector<std::pair<std::string, std::string>>& rows);

    // Fetches all rows. How many there are.
    std::size_t fetchAll();

  private:
    sqlite3* database_ = nullptr;
};

}  // namespace velmora::bench
