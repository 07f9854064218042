#pragma once

#include <array>
#include <optional>

#include "planner/AppointmentConnection.h"
#include "platform/NativePath.h"
#include "platform/Patience.h"
#include "platform/SystemPaths.h"
#include "platform/files/FileIdentity.h"
#include "platform/sqlite/Database.h"

namespace velmora {

// The table of appointments in a file. The file may come from anybody: only a table with six plain
// columns is taken; triggers and views do nothing, and work on the file is bounded.
class SqliteAppointments final : public AppointmentConnection {
  public:
    SqliteAppointments(const NativePath& path, Patience& patience);

    [[nodiscard]] bool stillMeant() const override { return identityOf(path_) == identity_; }
    [[nodiscard]] std::int64_t version() override;
    bool fetch(Condition condition, std::string_view value, std::int64_t behind, std::size_t limit,
               std::vector<AppointmentRow>& rows) override;
    [[nodiscard]] std::optional<AppointmentRow> find(Condition condition, std::string_view value,
                                                     std::string_view tag) override;
    void visitStyles(const Days& days, const VisitStyle& visit) override;
    void visitStylesOf(std::string_view date, const VisitStyle& visit) override;
    void add(const Values& values) override;
    void change(std::int64_t number, const Values& values) override;
    void remove(std::int64_t number) override;

  private:
    void expectTable();
    [[nodiscard]] bool hasIndexOfDays();
    [[nodiscard]] bool visitDistinct(const Days& days, const VisitStyle& visit);
    [[nodiscard]] sqlite::Statement& query(Condition condition);
    void write(sqlite::Statement& statement);

    NativePath path_;
    std::optional<FileIdentity> identity_;
    sqlite::Database database_;
    std::array<std::optional<sqlite::Statement>, 3> queries_;
};

// The adapter that the program works with.
class SqliteAppointmentSource final : public AppointmentSource {
  public:
    // `paths` must outlive the source.
    explicit SqliteAppointmentSource(const SystemPaths& paths) : paths_(paths) {}

    [[nodiscard]] std::unique_ptr<AppointmentConnection> open(const std::string& path,
                                                              Patience& patience) const override {
        return std::make_unique<SqliteAppointments>(paths_.nativePath(path), patience);
    }

  private:
    const SystemPaths& paths_;
};

}  // namespace velmora
