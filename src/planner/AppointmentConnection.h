#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "planner/AppointmentRow.h"
#include "platform/NativePath.h"
#include "platform/Patience.h"
#include "platform/files/FileIdentity.h"
#include "platform/sqlite/Database.h"

namespace velmora {

// One open file with the table of appointments, in UTF-8 and without a position. Nothing stays
// locked between two calls. All throw Failure.
class AppointmentConnection {
  public:
    // A file that is missing, foreign or without the table is a Failure, and stays as it is; a view
    // or a virtual table of that name is none. `patience` must outlive the connection.
    AppointmentConnection(const NativePath& path, Patience& patience);

    // False once the path means another file than the one that is open, or none.
    [[nodiscard]] bool stillMeant() const { return identityOf(path_) == identity_; }

    // Which rows are wanted: all, or those with a value in one column.
    enum class Condition { All, Date, Tag };

    // Appends up to `limit` rows behind row number `behind`, in their order. False when there are
    // no more of them.
    bool fetch(Condition condition, std::string_view value, std::int64_t behind, std::size_t limit,
               std::vector<AppointmentRow>& rows);

    // The first row of the condition with this tag.
    [[nodiscard]] std::optional<AppointmentRow> find(Condition condition, std::string_view value,
                                                     std::string_view tag);

    // Shows date and style of each row that has a date, in their order. The views live during the
    // call only.
    void visitDays(const std::function<void(std::string_view date, std::string_view style)>& visit);

    using Values = std::array<std::optional<AppointmentValue>, kColumnCount>;

    // Write the columns that `values` has, each in a transaction of its own. change() and remove()
    // need the row to be there. A Failure too when the path has come to mean another file.
    void add(const Values& values);
    void change(std::int64_t number, const Values& values);
    void remove(std::int64_t number);

  private:
    void expectTable();
    [[nodiscard]] sqlite::Statement& query(Condition condition);
    void write(sqlite::Statement& statement);

    NativePath path_;
    std::optional<FileIdentity> identity_;
    sqlite::Database database_;
    std::array<std::optional<sqlite::Statement>, 3> queries_;
};

}  // namespace velmora
