#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/NativePath.h"
#include "platform/Patience.h"
#include "platform/sqlite/Statement.h"

struct sqlite3;

namespace velmora::sqlite {

class WorkLimit;

enum class Access {
    ReadOnly,           // the file must be there
    ReadWrite,          // the file must be there; opened read-only where it may not be written
    ReadWriteOrCreate,  // a missing file is made, in a folder that is there
    AsItLies,           // read without locks and without its log, where nothing can be written
};

// One open database file. Not shared between threads. Statements and transactions must be gone
// before it is.
class Database {
  public:
    // Another program's lock is waited for up to
    // `patience` at each call. A file that is no database is told apart only by the first use.
    // Throws Failure when the file can not be opened.
    Database(const NativePath& path, Access access,
             std::chrono::milliseconds patience = std::chrono::seconds(5));
    ~Database();
    Database(Database&& other) noexcept;
    Database& operator=(Database&& other) noexcept;

    // As above, but what is waited for locks comes out of `patience`, which must outlive this.
    Database(const NativePath& path, Access access, Patience& patience);

    // The file may come from anybody: from here on its triggers and views do nothing, functions in
    // its schema are held back, and one run of a statement fails when it takes more steps than a
    // sound file of this size can ask for.
    void distrust();

    // Runs one or more statements without parameters; rows they give are dropped. Throws Failure,
    // and those before the failing one have then been run.
    void execute(const std::string& sql);

    // Throws Failure when the text is no single statement that this database understands.
    [[nodiscard]] Statement prepare(std::string_view sql);

    // The primary result code (SQLITE_BUSY, SQLITE_NOTADB, SQLITE_FULL ...) of the last call that
    // failed on this database or one of its statements; SQLITE_OK when none has since the last
    // that succeeded.
    [[nodiscard]] int errorCode() const;

    // Rows that the last INSERT, UPDATE or DELETE touched.
    [[nodiscard]] std::int64_t changedRows() const;

    // True between the begin and the end of a transaction.
    [[nodiscard]] bool inTransaction() const;

  private:
    struct Closer {
        void operator()(sqlite3* handle) const;
    };
    void open(const NativePath& path, Access access);

    std::unique_ptr<WorkLimit> workLimit_;  // of a file that is not trusted; outlives the handle
    std::unique_ptr<sqlite3, Closer> handle_;
};

// A transaction that takes the write lock at once and undoes everything unless committed.
class Transaction {
  public:
    // Throws Failure when another program holds the lock for longer than the patience.
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    // Throws Failure; nothing is then kept.
    void commit();

  private:
    Database& database_;
    bool open_ = true;
};

}  // namespace velmora::sqlite
