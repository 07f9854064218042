#include "platform/sqlite/SqliteSettings.h"

#include <algorithm>
#include <utility>

#include "platform/Failure.h"
#include "platform/files/FileIdentity.h"
#include "platform/sqlite/SettingsFile.h"

namespace velmora {
namespace {

constexpr std::chrono::seconds kPatienceToOpen{5};

// Lets go of the lock that a statement holds while it stands on a row.
class Reading {
  public:
    explicit Reading(sqlite::Statement& statement) : statement_(statement) {}
    ~Reading() { statement_.reset(); }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

  private:
    sqlite::Statement& statement_;
};

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// As the keys' collation compares.
bool beginsWith(std::string_view key, std::string_view prefix) {
    return key.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), key.begin(),
                      [](char a, char b) { return lowerAscii(a) == lowerAscii(b); });
}

}  // namespace

SqliteSettings::Opened::Opened(sqlite::Database opened)
    : database(std::move(opened)),
      read(database.prepare("SELECT value FROM settings WHERE key = ?1")),
      readAll(database.prepare("SELECT key, value FROM settings WHERE key >= ?1 ORDER BY key")),
      save(database.prepare("INSERT INTO settings VALUES(?1, ?2) "
                            "ON CONFLICT(key) DO UPDATE SET value = ?2")),
      remove(database.prepare("DELETE FROM settings WHERE key = ?1")) {}

SqliteSettings::SqliteSettings(NativePath path, std::chrono::milliseconds patience)
    : path_(std::move(path)), patience_(patience) {
    const Patience::Replaced alone(patience_, kPatienceToOpen);
    const auto found = identityOf(path_);
    try {
        opened_.emplace(sqlite::openSettingsToWrite(path_, patience_));
    } catch (const sqlite::NoSettings& failure) {
        // Another copy of the program that starts may have put it aside by now.
        if (!found || identityOf(path_) == found)
            putAsideAndBeginAnew(failure.what());
        else
            openAnew();
    } catch (const Failure& failure) {
        openToRead(failure.what());
    }
}

void SqliteSettings::putAsideAndBeginAnew(const std::string& why) {
    try {
        putAside_ = sqlite::putSettingsAside(path_);
    } catch (const Failure&) {
        return openToRead(why);
    }
    openAnew();
}

void SqliteSettings::openAnew() {
    try {
        opened_.emplace(sqlite::openSettingsToWrite(path_, patience_));
    } catch (const Failure& failure) {
        openToRead(failure.what());
    }
}

void SqliteSettings::openToRead(const std::string& why) {
    whyReadOnly_ = why;
    ignoringErrors([&] { opened_.emplace(sqlite::settingsAsTheyAre(path_, patience_)); });
}

SqliteSettings::Opened& SqliteSettings::toRead() const {
    if (!opened_)
        throw Failure(whyReadOnly_.value_or("The settings can not be read."));
    return *opened_;
}

SqliteSettings::Opened& SqliteSettings::toWrite() {
    if (whyReadOnly_) {
        sqlite::Database database = sqlite::openSettingsToWrite(path_, patience_);
        opened_.emplace(std::move(database));
        whyReadOnly_.reset();
    }
    return *opened_;
}

std::string SqliteSettings::read(std::string_view key) const {
    std::string value;
    ignoringErrors([&] { value = readOrFail(key); });
    return value;
}

std::string SqliteSettings::readOrFail(std::string_view key) const {
    sqlite::Statement& query = toRead().read;
    const Reading reading(query);
    return query.bindText(1, key).step() ? std::string(query.blob(0)) : std::string();
}

std::vector<Setting> SqliteSettings::readAll(std::string_view prefix) const {
    std::vector<Setting> found;
    sqlite::Statement& query = toRead().readAll;
    const Reading reading(query);
    query.bindText(1, prefix);
    while (query.step() && beginsWith(query.text(0), prefix))
        found.push_back({std::string(query.text(0)), std::string(query.blob(1))});
    return found;
}

void SqliteSettings::save(std::string_view key, std::string_view value) {
    toWrite().save.bindText(1, key).bindBlob(2, value).run();
}

void SqliteSettings::remove(std::string_view key) {
    toWrite().remove.bindText(1, key).run();
}

void SqliteSettings::batch(const std::function<void()>& changes) {
    sqlite::Database& database = toWrite().database;
    if (database.inTransaction()) {
        changes();
        return;
    }
    sqlite::Transaction transaction(database);
    changes();
    transaction.commit();
}

}  // namespace velmora
