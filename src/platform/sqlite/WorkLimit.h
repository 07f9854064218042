#pragma once

#include <cstdint>

struct sqlite3;

namespace velmora::sqlite {

// Ends a run of a statement that takes more steps of the engine than a sound file of the same
// size can ask for: pages of a damaged or a made-up file may lead in circles.
class WorkLimit {
  public:
    // Must live as long as the database is open.
    explicit WorkLimit(sqlite3* database);
    WorkLimit(const WorkLimit&) = delete;
    WorkLimit& operator=(const WorkLimit&) = delete;

    // A run begins.
    void renew();

  private:
    [[nodiscard]] std::int64_t sizeOfFile() const;

    sqlite3* database_;
    std::int64_t stepsLeft_ = 0;
};

}  // namespace velmora::sqlite
