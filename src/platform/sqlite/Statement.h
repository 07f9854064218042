#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace velmora::sqlite {

class Database;
class WorkLimit;

// One prepared statement. While it stands on a row it holds a read lock: reset() it, or let it go,
// before control returns to the event loop.
class Statement {
  public:
    // Parameters count from 1. The bytes are copied, by length: NULs inside count. Bindings stay
    // over a reset(). Throws Failure for a number that the statement lacks.
    Statement& bindText(int parameter, std::string_view text);
    Statement& bindBlob(int parameter, std::string_view bytes);
    Statement& bindInteger(int parameter, std::int64_t number);
    Statement& bindNull(int parameter);

    // To the next row; false behind the last one, and the statement is then reset. Throws Failure,
    // and is then reset too.
    [[nodiscard]] bool step();

    // step() for a statement that gives no rows. Throws Failure.
    void run();

    // Back before the first row; locks are let go.
    void reset();

    // Columns of the row stood on, from 0. A view lives until the next step() or reset(); Null
    // gives nothing at all.
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] std::string_view blob(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] bool isNull(int column) const;

    // text() in one step with the question whether there is any.
    [[nodiscard]] std::optional<std::string_view> textOrNull(int column) const;

  private:
    friend class Database;
    struct Finalizer {
        void operator()(sqlite3_stmt* handle) const;
    };

    Statement(sqlite3* database, sqlite3_stmt* handle, WorkLimit* workLimit)
        : database_(database), workLimit_(workLimit), handle_(handle) {}
    void check(int result) const;

    sqlite3* database_;
    WorkLimit* workLimit_;  // nullptr: there is none
    std::unique_ptr<sqlite3_stmt, Finalizer> handle_;
};

}  // namespace velmora::sqlite
