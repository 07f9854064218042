#include "planner/sqlite/SqliteAppointments.h"

#include <algorithm>
#include <functional>
#include <set>

#include "planner/sqlite/PlannerDatabase.h"
#include "platform/StorageFailure.h"

namespace velmora {

namespace {

constexpr const char* kColumns =
    R"(rowid, "TagVariant", "Date", "BeginTime", "EndTime", "Desc", "StyleSet")";

std::string conditionText(AppointmentConnection::Condition condition) {
    switch (condition) {
        case SqliteAppointments::Condition::Date:
            return R"("Date" = ?1 AND )";
        case SqliteAppointments::Condition::Tag:
            return R"("TagVariant" = ?1 AND )";
        case SqliteAppointments::Condition::All:
            break;
    }
    return {};
}

void read(const sqlite::Statement& statement, AppointmentRow& row) {
    row.number = statement.integer(0);
    for (std::size_t i = 0; i < kColumnCount; ++i)
        if (const auto text = statement.textOrNull(static_cast<int>(i) + 1))
            row.values[i].emplace(*text);
}

const NativePath& checkedPath(const NativePath& path) {
    if (readableKindOf(path) != DatabaseKind::Planner)
        throw StorageFailure("\"" + path.utf8() + "\" is no planner database.", Obstacle::NotThere);
    return path;
}

void bind(sqlite::Statement& statement, int parameter, const AppointmentValue& value) {
    if (value)
        statement.bindText(parameter, *value);
    else
        statement.bindNull(parameter);
}

// Rows of one style of a day that are read one by one; a leap costs about as much.
constexpr int kRowsBeforeLeap = 12;

// The styles of the day that is being read, in the order of their names.
struct StylesOfDay {
    struct Style {
        std::string name;
        std::int64_t lastRow;
    };
    std::string date;
    std::vector<Style> styles;
    int rowsOfStyle = 0;
    bool leapt = false;
    bool mustBeRead = false;  // which of several styles is the last one is not known

    void begin(std::string_view newDate) {
        date = newDate;
        styles.clear();
        leapt = mustBeRead = false;
    }

    // Whether `name` stood here before others did: an index in its order gives each style once.
    [[nodiscard]] bool hasPassed(std::string_view name) const {
        return std::any_of(styles.begin(), styles.end(),
                           [&](const Style& style) { return style.name == name; }) &&
               styles.back().name != name;
    }

    // True when the rest of the style is to be leapt over.
    bool add(std::string_view name, std::int64_t row) {
        if (styles.empty() || styles.back().name != name) {
            styles.push_back({std::string(name), row});
            mustBeRead = leapt;
            rowsOfStyle = 0;
        }
        styles.back().lastRow = row;
        if (++rowsOfStyle != kRowsBeforeLeap)
            return false;
        leapt = true;
        mustBeRead = styles.size() > 1;
        return true;
    }

    void show(const AppointmentConnection::VisitStyle& visit) {
        if (styles.size() > 1)
            std::sort(styles.begin(), styles.end(),
                      [](const Style& a, const Style& b) { return a.lastRow < b.lastRow; });
        for (const Style& style : styles)
            visit(date, style.name);
    }
};

}  // namespace

SqliteAppointments::SqliteAppointments(const NativePath& path, Patience& patience)
    : path_(path),
      identity_(identityOf(path)),
      database_(checkedPath(path), sqlite::Access::ReadWrite, patience) {
    database_.distrust();
    expectTable();
    (void)query(Condition::All);  // fails unless the table is there with its columns
    database_.execute("PRAGMA synchronous = FULL");
    database_.execute("PRAGMA cache_size = -16384");  // 16 MB: years of appointments
    // A file that another tool left in the mode of many files comes back to one: it is copied by
    // itself, and may lie on a share.
    ignoringErrors([&] { database_.execute("PRAGMA journal_mode = DELETE"); });
}

// Columns that are worked out when they are read could be made to take for ever.
void SqliteAppointments::expectTable() {
    auto tables = database_.prepare(
        "SELECT 1 FROM pragma_table_list WHERE schema = 'main' AND name = 'appoint' COLLATE NOCASE"
        " AND type = 'table'");
    auto workedOut = database_.prepare("SELECT 1 FROM pragma_table_xinfo('appoint') WHERE hidden");
    const bool isTable = tables.step();
    tables.reset();
    if (!isTable || workedOut.step())
        throw StorageFailure("\"" + path_.utf8() + "\" has no table of appointments.",
                             Obstacle::NotThere);
}

sqlite::Statement& SqliteAppointments::query(Condition condition) {
    auto& statement = queries_[static_cast<std::size_t>(condition)];
    if (!statement)
        statement.emplace(database_.prepare("SELECT " + std::string(kColumns) +
                                            " FROM appoint WHERE " + conditionText(condition) +
                                            "rowid > ?2 ORDER BY rowid LIMIT ?3"));
    return *statement;
}

bool SqliteAppointments::fetch(Condition condition, std::string_view value, std::int64_t behind,
                               std::size_t limit, std::vector<AppointmentRow>& rows) {
    const auto place =
        static_cast<std::size_t>(condition == Condition::Tag ? Column::TagVariant : Column::Date);
    sqlite::Statement& statement = query(condition);
    statement.reset();
    if (condition != Condition::All)
        statement.bindText(1, value);
    statement.bindInteger(2, behind).bindInteger(3, static_cast<std::int64_t>(limit));
    std::size_t count = 0;
    for (; statement.step(); ++count, behind = rows.back().number) {
        read(statement, rows.emplace_back());
        // A damaged index leads to rows that were not asked for, or in a circle.
        if (rows.back().number <= behind ||
            (condition != Condition::All && rows.back().values[place] != value)) {
            statement.reset();
            throw StorageFailure("The planner database \"" + path_.utf8() + "\" is damaged.",
                                 Obstacle::Other);
        }
    }
    return count == limit;
}

std::optional<AppointmentRow> SqliteAppointments::find(Condition condition, std::string_view value,
                                                       std::string_view tag) {
    auto statement =
        database_.prepare("SELECT " + std::string(kColumns) + " FROM appoint WHERE " +
                          conditionText(condition) + R"("TagVariant" = ?2 ORDER BY rowid LIMIT 1)");
    if (condition != Condition::All)
        statement.bindText(1, value);
    statement.bindText(2, tag);
    if (!statement.step())
        return std::nullopt;
    std::optional<AppointmentRow> row(std::in_place);
    read(statement, *row);
    return row;
}

std::int64_t SqliteAppointments::version() {
    auto statement = database_.prepare("PRAGMA data_version");
    return statement.step() ? statement.integer(0) : 0;
}

// A file that another program made may lack the index that leads from day to day.
bool SqliteAppointments::hasIndexOfDays() {
    auto columns = database_.prepare(
        "SELECT group_concat(part) FROM (SELECT name || ' ' || coll AS part"
        " FROM pragma_index_xinfo('appoint_day') WHERE key ORDER BY seqno)");
    auto whole = database_.prepare(
        "SELECT 1 FROM pragma_index_list('appoint') WHERE name = 'appoint_day' AND partial = 0");
    return columns.step() && columns.text(0) == "Date BINARY,StyleSet BINARY" && whole.step();
}

void SqliteAppointments::visitStyles(const Days& days, const VisitStyle& visit) {
    if (hasIndexOfDays() && visitDistinct(days, visit))
        return;
    auto statement = database_.prepare(R"(SELECT "Date", "StyleSet" FROM appoint ORDER BY rowid)");
    while (statement.step())
        if (const auto date = statement.textOrNull(0))
            visit(*date, statement.text(1));
}

// Reads the index in its order, day by day and style by style, and leaps over the rest of a style
// that many rows of a day have: so neither many days nor many rows a day cost much. False where the
// index of a damaged file is not in its order, which could lead in circles.
bool SqliteAppointments::visitDistinct(const Days& days, const VisitStyle& visit) {
    // Standing on a row it keeps the table as it is, so that a leap need not lock it anew.
    auto standing = database_.prepare("SELECT 1 FROM sqlite_master");
    (void)standing.step();
    auto rows = database_.prepare(
        R"(SELECT "Date", "StyleSet", rowid FROM appoint INDEXED BY appoint_day
           WHERE ("Date", "StyleSet") >= (?1, ?2))" +
        std::string(days.last ? R"( AND "Date" <= ?3)" : "") +
        R"( ORDER BY "Date", "StyleSet", rowid)");
    rows.bindText(1, days.first).bindText(2, "");
    if (days.last)
        rows.bindText(3, *days.last);
    StylesOfDay day;
    std::set<std::string, std::less<>> passed;
    const auto finish = [&] {
        if (day.mustBeRead)
            visitStylesOf(day.date, visit);
        else
            day.show(visit);
    };
    while (rows.step()) {
        const std::string_view date = rows.text(0);
        if (date != day.date) {
            finish();
            day.begin(date);
            if (!passed.insert(day.date).second)
                return false;
        }
        if (day.hasPassed(rows.text(1)))
            return false;
        if (!day.add(rows.text(1), rows.integer(2)) || rows.isNull(1))
            continue;
        rows.reset();
        // The next name that there can be: the engine finds it without a look at the rows between.
        rows.bindText(1, day.date).bindText(2, day.styles.back().name + '\0');
    }
    finish();
    return true;
}

void SqliteAppointments::visitStylesOf(std::string_view date, const VisitStyle& visit) {
    auto statement = database_.prepare(
        R"(SELECT "StyleSet", max(rowid) FROM appoint WHERE "Date" = ?1 GROUP BY 1 ORDER BY 2)");
    statement.bindText(1, date);
    while (statement.step())
        visit(date, statement.text(0));
}

void SqliteAppointments::add(const Values& values) {
    std::string columns;
    std::string parameters;
    for (std::size_t i = 0; i < kColumnCount; ++i) {
        if (!values[i])
            continue;
        const char* separator = columns.empty() ? "" : ", ";
        columns += separator + ('"' + std::string(kColumnNames[i]) + '"');
        parameters += separator + ("?" + std::to_string(i + 1));
    }
    auto statement = database_.prepare(columns.empty() ? "INSERT INTO appoint DEFAULT VALUES"
                                                       : "INSERT INTO appoint (" + columns +
                                                             ") VALUES (" + parameters + ")");
    for (std::size_t i = 0; i < kColumnCount; ++i)
        if (values[i])
            bind(statement, static_cast<int>(i) + 1, *values[i]);
    write(statement);
}

void SqliteAppointments::write(sqlite::Statement& statement) {
    sqlite::Transaction transaction(database_);
    // While this waited for the lock another copy of the program may have put a new file in the
    // place of this one; what is written here would never be seen.
    if (!stillMeant())
        throw StorageFailure(
            "The planner database \"" + path_.utf8() + "\" has just been replaced.",
            Obstacle::InUse);
    statement.run();
    transaction.commit();
}

void SqliteAppointments::change(std::int64_t number, const Values& values) {
    std::string assignments;
    for (std::size_t i = 0; i < kColumnCount; ++i)
        if (values[i])
            assignments += (assignments.empty() ? "\"" : ", \"") + std::string(kColumnNames[i]) +
                           "\" = ?" + std::to_string(i + 1);
    if (assignments.empty())
        return;
    auto statement = database_.prepare("UPDATE appoint SET " + assignments + " WHERE rowid = ?7");
    for (std::size_t i = 0; i < kColumnCount; ++i)
        if (values[i])
            bind(statement, static_cast<int>(i) + 1, *values[i]);
    write(statement.bindInteger(7, number));
    if (database_.changedRows() == 0)
        throw StorageFailure("The appointment is no longer in the planner.", Obstacle::NoSuchRow);
}

void SqliteAppointments::remove(std::int64_t number) {
    auto statement = database_.prepare("DELETE FROM appoint WHERE rowid = ?1");
    write(statement.bindInteger(1, number));
    if (database_.changedRows() == 0)
        throw StorageFailure("The appointment is no longer in the planner.", Obstacle::NoSuchRow);
}

}  // namespace velmora
