#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/NativePath.h"
#include "platform/Patience.h"
#include "platform/SettingsMedium.h"
#include "platform/sqlite/Database.h"

namespace velmora {

// Settings in a database of one table in the user's configuration folder, with a write-ahead log,
// made for its owner only. Case of A to Z does not count in keys.
//
// Where the file can not be written (a full disk, a medium that is only read), the settings are
// read as they are, and what is saved is a Failure, until a later save finds that it can be
// written again.
class SqliteSettings final : public SettingsMedium {
  public:
    // Opens the file, or makes it in a folder that is there. A file that is damaged, or holds
    // something else than settings, is put aside under its name plus ".damaged", never deleted,
    // and settings begin anew. Throws no Failure. Another program's lock is waited for some
    // seconds here, as no window is held up yet, and for `patience` later on.
    explicit SqliteSettings(NativePath path,
                            std::chrono::milliseconds patience = std::chrono::milliseconds(200));

    // What waits for locks.
    [[nodiscard]] Patience& patience() { return patience_; }

    // Where a damaged file was put aside, if one was.
    [[nodiscard]] const std::optional<NativePath>& putAside() const { return putAside_; }

    // Why nothing can be saved, in UTF-8; nothing while all is well.
    [[nodiscard]] const std::optional<std::string>& whyReadOnly() const { return whyReadOnly_; }

    [[nodiscard]] std::string read(std::string_view key) const override;
    [[nodiscard]] std::string readOrFail(std::string_view key) const override;
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const override;
    void save(std::string_view key, std::string_view value) override;
    void remove(std::string_view key) override;
    void batch(const std::function<void()>& changes) override;

  private:
    // Statements prepared once and kept: lists of thousands are read and written key by key.
    struct Opened {
        explicit Opened(sqlite::Database opened);

        sqlite::Database database;
        sqlite::Statement read;
        sqlite::Statement readAll;
        sqlite::Statement save;
        sqlite::Statement remove;
    };

    void putAsideAndBeginAnew(const std::string& why);
    void openAnew();
    void openToRead(const std::string& why);
    [[nodiscard]] Opened& toWrite();
    [[nodiscard]] Opened& toRead() const;

    NativePath path_;
    Patience patience_;
    mutable std::optional<Opened> opened_;  // nothing where not even reading is possible
    std::optional<NativePath> putAside_;
    std::optional<std::string> whyReadOnly_;
};

}  // namespace velmora
