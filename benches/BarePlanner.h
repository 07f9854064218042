#pragma once

#include <cstddef>
#include <string>

struct sqlite3;

namespace velmora::bench {

// The yardstick of the planner: the queries it can not do without, on an open database and with
// nothing around them. All throw std::runtime_error on a failure of the database.
class BarePlanner {
  public:
    // With as much memory for pages as the planner itself uses.
    explicit BarePlanner(const std::string& path);
    ~BarePlanner();
    BarePlanner(const BarePlanner&) = delete;
    BarePlanner& operator=(const BarePlanner&) = delete;

    // Fetches the rows of a day, "yyyy-mm-dd", with all their columns. How many there are.
    std::size_t fetchDay(const std::string& storedDay);

    // Steps over date and style of all rows. How many there are.
    std::size_t passDays();

    // Commits another text for the first row of a day.
    void changeFirstRowOf(const std::string& storedDay, const std::string& text);

  private:
    sqlite3* database_ = nullptr;
};

}  // namespace velmora::bench
