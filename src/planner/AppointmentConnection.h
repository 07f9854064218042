#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "planner/AppointmentRow.h"
#include "platform/Patience.h"

namespace velmora {

// One open table of appointments, in UTF-8 and without a position. Nothing stays locked between two
// calls. All throw Failure, or StorageFailure where the obstacle is known.
class AppointmentConnection {
  public:
    virtual ~AppointmentConnection() = default;

    // False once the path means another table than the one that is open, or none.
    [[nodiscard]] virtual bool stillMeant() const = 0;

    // A number that is another one after somebody else has written to the table.
    [[nodiscard]] virtual std::int64_t version() = 0;

    // Which rows are wanted: all, or those with a value in one column.
    enum class Condition { All, Date, Tag };

    // Appends up to `limit` rows behind row number `behind`, in their order. False when there are
    // no more of them.
    virtual bool fetch(Condition condition, std::string_view value, std::int64_t behind,
                       std::size_t limit, std::vector<AppointmentRow>& rows) = 0;

    // The first row of the condition with this tag.
    [[nodiscard]] virtual std::optional<AppointmentRow> find(Condition condition,
                                                             std::string_view value,
                                                             std::string_view tag) = 0;

    // Days as they are stored, in the order of their texts, both ends included.
    struct Days {
        std::string first;
        std::optional<std::string> last;  // without one there is no end
    };

    // Shows each of the days that rows name with the styles that they give it, a style as often as
    // it likes, but always so that what is shown last of a day is what its last row says, and so on
    // backwards. Where that is no more work it may show other days, too, but never a part of what a
    // day has. The views live during the call only.
    using VisitStyle = std::function<void(std::string_view date, std::string_view style)>;
    virtual void visitStyles(const Days& days, const VisitStyle& visit) = 0;

    // The same of one day, stored as `date`.
    virtual void visitStylesOf(std::string_view date, const VisitStyle& visit) = 0;

    using Values = std::array<std::optional<AppointmentValue>, kColumnCount>;

    // Write the columns that `values` has, each in a transaction of its own. change() and remove()
    // need the row to be there. A Failure too when the path has come to mean another table.
    virtual void add(const Values& values) = 0;
    virtual void change(std::int64_t number, const Values& values) = 0;
    virtual void remove(std::int64_t number) = 0;
};

// Opens tables of appointments.
class AppointmentSource {
  public:
    virtual ~AppointmentSource() = default;

    // The table that lies at `path`, which is code-page text. One that is missing or foreign is a
    // StorageFailure (Obstacle::NotThere), and stays as it is. `patience` must outlive what is
    // given back.
    [[nodiscard]] virtual std::unique_ptr<AppointmentConnection> open(const std::string& path,
                                                                      Patience& patience) const = 0;
};

}  // namespace velmora
