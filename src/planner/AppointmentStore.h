#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "planner/Appointment.h"
#include "planner/AppointmentConnection.h"
#include "planner/AppointmentRow.h"
#include "planner/DayStyle.h"
#include "platform/Clock.h"
#include "platform/CodePage.h"
#include "platform/Patience.h"
#include "platform/StorageFailure.h"

namespace velmora {

// The table of appointments behind one shared cursor: a record source, the rows that it gave at
// the last Refresh(), a position among them, and one row being added or changed. Every caller sets
// its own record source first, and leaves the cursor as it happens to stand.
//
// A source runs when its first row is wanted. Where the database is missing, foreign or unreadable
// there are no rows: Eof() is true, and what needs a row throws Failure. The store never makes a
// database. No lock is held between two calls. All text is code-page text.
class AppointmentStore {
  public:
    // `patience`: how long another program's lock is waited for, however many steps meet it.
    AppointmentStore(const CodePage& codePage, const Clock& clock, const AppointmentSource& source,
                     std::chrono::milliseconds patience = std::chrono::milliseconds(200));

    // Makes `path` the database, whether a file is there or not. The rows on hand are gone.
    void OpenDatabase(const std::string& path);
    [[nodiscard]] const std::string& path() const { return path_; }

    // Set the record source; Refresh() runs it. Each drops a row being added or changed.
    // `pivotYear` is the year around which the century of a two-digit year is chosen; the clock's
    // where none is given.
    void SelectByDate(std::string_view dateText, std::optional<std::chrono::year> pivotYear = {});
    void SelectByTag(std::string_view tagText);
    void SelectAll();
    [[nodiscard]] const std::string& recordSource() const { return recordSource_; }

    // The rows of the source, in the order of their creation, from the first one on. Drops a row
    // being added or changed.
    void Refresh();

    [[nodiscard]] bool Eof();

    // Why not all rows of the last source that ran, or of DayStyles(), could be read. Nothing when
    // they could, and when there is no database at all.
    [[nodiscard]] std::optional<Obstacle> obstacle() const;

    // What waits for locks.
    [[nodiscard]] Patience& patience() { return patience_; }

    // Drop a row being added or changed. Throw Failure when there is no row to go from.
    void MoveFirst();
    void MoveNext();

    // `criterion`: "[TagVariant] = #" and a tag and "#". Goes to the first such row of the source;
    // where none is, the position stays and false comes back. Drops a row being added or changed.
    // Throws Failure when the criterion or the database can not be read.
    bool FindFirst(std::string_view criterion);

    // Begin a new row, or a change of the current one. Edit() throws Failure without one.
    void AddNew();
    void Edit();

    // "MM/dd/yyyy" for the date, "yyyy-mm-dd hh:mm:ss" for the tag; empty where the row has
    // nothing. Of a row being added or changed it is what has been put. Throws Failure without a
    // row.
    [[nodiscard]] std::string Get(Column column);

    // The current row as it was read, in code-page text, until the cursor is used again. Throws
    // Failure without a row.
    [[nodiscard]] const AppointmentRow& CurrentRow() { return current(); }

    // Into the row being added or changed. A date that can not be read leaves the row without one.
    // Throws Failure when no row is, or for a tag that can not be read.
    void Put(Column column, std::string_view value);

    // Writes what has been put, in one transaction. A new row is not the current one afterwards.
    // Throws Failure, with nothing written, and the row is then still being added or changed.
    void Update();

    // A new row in one step. Throws Failure, with nothing written.
    void Add(const Appointment& appointment);

    // Removes the current row and stands on the next. Throws Failure without one.
    void Delete();

    // For every day the styles that its rows name, each once, in the order of the last row that
    // names it: setting them one by one gives what a walk over all rows gives. Rows without a date
    // are passed over. The source is then all rows, the position behind the last. Where reading
    // fails, nothing is thrown and there are the days read so far.
    [[nodiscard]] std::vector<DayStyle> DayStyles();

    // The same without the days that can not have changed since the last call of either. What
    // others have written to the database since counts, too.
    [[nodiscard]] std::vector<DayStyle> NewDayStyles();

    // DayStyles() of these days, both included. There may be others, too; what NewDayStyles() takes
    // for known stays as it is.
    [[nodiscard]] std::vector<DayStyle> DayStylesBetween(std::chrono::year_month_day first,
                                                         std::chrono::year_month_day last);

    // NewDayStyles() shall have this day, whether it has changed or not.
    void expectDay(std::string_view dateText);

  private:
    // A record source: its rows have `value` in the column of its condition.
    struct Source {
        AppointmentConnection::Condition condition = AppointmentConnection::Condition::All;
        std::string value;
        std::string trouble;                 // why it can not be run; empty when it can
        std::optional<Obstacle> obstacle{};  // that running it met
    };

    enum class Editing { Nothing, Addition, Change };

    void select(std::string recordSource, Source source);
    void dropEditing();
    [[nodiscard]] AppointmentConnection& connection();
    [[nodiscard]] std::chrono::year presentYear() const;
    void run();
    void fetchBehind(std::int64_t number, std::size_t limit);
    [[nodiscard]] std::vector<DayStyle> readStyles(
        const std::function<void(const AppointmentConnection::VisitStyle&)>& read);
    void touch(const AppointmentValue& storedDay);
    void dropRows();
    void takeNote(const Failure& failure);
    [[nodiscard]] AppointmentRow& current();
    void toCodePage(AppointmentRow& row) const;
    [[nodiscard]] AppointmentValue storedForm(Column column, std::string_view text) const;
    [[nodiscard]] AppointmentConnection::Values putInUtf8() const;

    const CodePage& codePage_;
    const Clock& clock_;
    const AppointmentSource& source_;
    Patience patience_;
    std::string path_;
    std::unique_ptr<AppointmentConnection> connection_;

    std::string recordSource_;
    Source selected_{{}, {}, "No record source is set.", {}};  // what the next Refresh() runs
    Source running_ = selected_;                               // what gave the rows on hand
    bool mustRun_ = false;
    bool fromFirst_ = false;            // the rows on hand begin with the source's first
    bool moreBehind_ = false;           // there may be rows behind those on hand
    std::vector<AppointmentRow> rows_;  // in code-page text
    std::size_t position_ = 0;

    std::set<std::string> touched_;             // days whose styles may be others now, as stored
    std::optional<std::int64_t> knownVersion_;  // of the table whose styles are known otherwise

    Editing editing_ = Editing::Nothing;
    AppointmentConnection::Values put_;  // in code-page text
};

}  // namespace velmora
