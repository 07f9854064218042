#include "platform/sqlite/SettingsFile.h"

#include <fcntl.h>
#include <sqlite3.h>

#include <string>
#include <string_view>

#include "platform/files/FileDescriptor.h"
#include "platform/files/FileSteps.h"

namespace velmora::sqlite {
namespace {

// As the file keeps it, whatever blanks stand in it.
constexpr std::string_view kTable =
    "CREATE TABLE settings("
    "  key TEXT PRIMARY KEY COLLATE NOCASE, value BLOB NOT NULL) WITHOUT ROWID";

std::string withoutBlanks(std::string_view statement) {
    std::string result(statement);
    std::erase(result, ' ');
    return result;
}

enum class Contents { Nothing, Settings, SomethingElse };

// What the tools of the engine add to a file begins with "sqlite_" and does not count.
Contents contentsOf(Database& database) {
    auto objects = database.prepare(
        "SELECT sql FROM sqlite_master WHERE name NOT LIKE 'sqlite\\_%' "
        "ESCAPE '\\' OR type NOT IN ('table', 'index')");
    if (!objects.step())
        return Contents::Nothing;
    const bool isTable = withoutBlanks(objects.text(0)) == withoutBlanks(kTable);
    return isTable && !objects.step() ? Contents::Settings : Contents::SomethingElse;
}

void requireSettings(Contents contents) {
    if (contents == Contents::SomethingElse)
        throw NoSettings("The file holds something else than settings.");
}

// True when the engine's complaint is one of the bytes, not of the disk or of another program.
bool isDamage(int code) {
    switch (code) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
        case SQLITE_ERROR:
        case SQLITE_FORMAT:
        case SQLITE_MISMATCH:
            return true;
        default:
            return false;
    }
}

// True when the head tells of a version that the engine does not write, or of pages of another
// make than ours: what the engine reads then may be right, but nothing can be saved.
bool hasForeignHead(const NativePath& path) {
    constexpr std::size_t kWriteVersion = 18;
    constexpr std::size_t kReadVersion = 19;
    constexpr std::size_t kBytesLeftFree = 20;
    const auto head = headOf(path, kBytesLeftFree + 1);
    if (!head || head->size() <= kBytesLeftFree)
        return false;
    const auto isKnown = [](char version) { return version == 1 || version == 2; };
    return !isKnown((*head)[kWriteVersion]) || !isKnown((*head)[kReadVersion]) ||
           (*head)[kBytesLeftFree] != 0;
}

void prepareToWrite(Database& database) {
    database.execute("PRAGMA trusted_schema = OFF");
    const Contents contents = contentsOf(database);
    requireSettings(contents);
    database.execute("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL");
    Transaction transaction(database);  // fails where nothing can be written
    if (contents == Contents::Nothing && contentsOf(database) == Contents::Nothing)
        database.execute(std::string(kTable));
    transaction.commit();
}

Database openedToWrite(const NativePath& path, Patience& patience) {
    if (hasForeignHead(path))
        throw NoSettings("The settings are of an unknown version.");
    Database database(path, Access::ReadWriteOrCreate, patience);
    try {
        prepareToWrite(database);
    } catch (const NoSettings&) {
        throw;
    } catch (const Failure& failure) {
        if (isDamage(database.errorCode()))
            throw NoSettings(failure.what());
        throw;
    }
    return database;
}

// Throws Failure unless the disk gives all bytes.
void requireReadable(const NativePath& path) {
    (void)readToEnd(openOrFail(path, O_RDONLY), path);
}

Database emptyInMemory() {
    Database memory(NativePath(":memory:"), Access::ReadWriteOrCreate);
    memory.execute(std::string(kTable));
    return memory;
}

Database copiedToMemory(Database from) {
    const Contents contents = contentsOf(from);
    requireSettings(contents);
    Database memory = emptyInMemory();
    if (contents == Contents::Nothing)
        return memory;
    auto rows = from.prepare("SELECT key, value FROM settings");
    auto insert = memory.prepare("INSERT INTO settings VALUES(?1, ?2)");
    while (rows.step())
        insert.bindText(1, rows.text(0)).bindBlob(2, rows.blob(1)).run();
    return memory;
}

// The ways to read a file that can not be written, from the plainest on.
Database opened(const NativePath& path, int way, Patience& patience) {
    if (way == 0)
        return Database(path, Access::ReadOnly, patience);
    if (way == 2)
        return Database(path, Access::AsItLies, patience);
    // The log of a database needs a file beside it that other programs share, for which a full
    // disk has no room; who is alone needs none.
    Database database(path, Access::ReadWrite, patience);
    database.execute("PRAGMA locking_mode = EXCLUSIVE");
    return database;
}

}  // namespace

Database openSettingsToWrite(const NativePath& path, Patience& patience) {
    makePrivateFile(path);
    try {
        return openedToWrite(path, patience);
    } catch (const NoSettings&) {
        // To the engine a disk that did not give some bytes looks like bytes that are wrong.
        requireReadable(path);
        return openedToWrite(path, patience);
    }
}

Database settingsAsTheyAre(const NativePath& path, Patience& patience) {
    if (!isNameTaken(path))
        return emptyInMemory();
    constexpr int kLastWay = 2;
    for (int way = 0;; ++way) {
        try {
            return copiedToMemory(opened(path, way, patience));
        } catch (const Failure&) {
            if (way == kLastWay)
                throw;
        }
    }
}

NativePath putSettingsAside(const NativePath& path) {
    NativePath name = path.withEnding(".damaged");
    for (int number = 2; isNameTaken(name); ++number)
        name = path.withEnding(".damaged-" + std::to_string(number));
    renameOver(path, name);
    ignoringErrors([&] {
        if (isNameTaken(path.withEnding("-wal")))
            renameOver(path.withEnding("-wal"), name.withEnding("-wal"));
        removeIfThere(path.withEnding("-shm"));
    });
    return name;
}

}  // namespace velmora::sqlite
