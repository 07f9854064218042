#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/NativePath.h"
#include "platform/SettingsMedium.h"
#include "platform/sqlite/Database.h"

namespace velmora {

// Settings in a database of one table in the user's configuration folder, with a write-ahead log.
// Case of A to Z does not count in keys.
class SqliteSettings final : public SettingsMedium {
  public:
    // Opens the file, or makes it in a folder that is there. A file that is no database is put
    // aside under its name plus ".damaged", never deleted, and settings begin anew. Throws Failure.
    explicit SqliteSettings(const NativePath& path);

    // Where a damaged file was put aside, if one was.
    [[nodiscard]] const std::optional<NativePath>& putAside() const { return putAside_; }

    [[nodiscard]] std::string read(std::string_view key) const override;
    [[nodiscard]] std::vector<Setting> readAll(std::string_view prefix) const override;
    void save(std::string_view key, std::string_view value) override;
    void remove(std::string_view key) override;
    void batch(const std::function<void()>& changes) override;

  private:
    // Prepared once and kept: lists of thousands are read and written key by key.
    struct Statements {
        explicit Statements(sqlite::Database& database);

        sqlite::Statement read;
        sqlite::Statement readAll;
        sqlite::Statement save;
        sqlite::Statement remove;
    };

    void open(const NativePath& path);

    mutable std::optional<sqlite::Database> database_;
    mutable std::optional<Statements> statements_;
    std::optional<NativePath> putAside_;
};

}  // namespace velmora
