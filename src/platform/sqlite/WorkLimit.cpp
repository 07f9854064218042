#include "platform/sqlite/WorkLimit.h"

#include <sqlite3.h>

namespace velmora::sqlite {
namespace {

constexpr int kStepsAtATime = 4096;

// The smallest row takes 8 bytes of a page, and a dozen steps to be looked at.
constexpr std::int64_t kStepsPerByte = 2;
constexpr std::int64_t kStepsOfAnyFile = 1'000'000;

}  // namespace

WorkLimit::WorkLimit(sqlite3* database) : database_(database) {
    renew();
    const auto countDown = [](void* limit) {
        return (static_cast<WorkLimit*>(limit)->stepsLeft_ -= kStepsAtATime) < 0 ? 1 : 0;
    };
    sqlite3_progress_handler(database, kStepsAtATime, countDown, this);
}

void WorkLimit::renew() {
    stepsLeft_ = kStepsOfAnyFile + kStepsPerByte * sizeOfFile();
}

std::int64_t WorkLimit::sizeOfFile() const {
    sqlite3_file* file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(database_, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK ||
        file == nullptr || file->pMethods == nullptr ||
        file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return 0;
    return size;
}

}  // namespace velmora::sqlite
