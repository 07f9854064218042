#include "planner/sqlite/AccessConversion.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <optional>

#include "planner/AppointmentRow.h"
#include "planner/StoredText.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "platform/DateText.h"
#include "platform/Failure.h"
#include "platform/Format.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileSteps.h"
#include "platform/files/TemporaryName.h"
#include "platform/sqlite/Database.h"

namespace velmora {

namespace {

constexpr const char* kTable = "appoint";
constexpr std::chrono::milliseconds kPatience{200};

// Texts in an old table with years of two digits, if there are any, are of its own time.
constexpr std::chrono::year kPivotYear{2000};

bool sameName(const std::string& a, const std::string& b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

const AccessTable& tableOfAppointments(const std::vector<AccessTable>& tables) {
    for (const AccessTable& table : tables)
        if (sameName(table.name, kTable))
            return table;
    throw Failure("The Access database has no table \"appoint\".");
}

// Where each column of ours lies in the table.
using Places = std::array<std::size_t, kColumnCount>;

Places placesIn(const AccessTable& table) {
    Places places{};
    for (std::size_t i = 0; i < kColumnCount; ++i) {
        const auto found = std::find_if(
            table.fields.begin(), table.fields.end(),
            [&](const AccessField& field) { return sameName(field.name, kColumnNames[i]); });
        if (found == table.fields.end())
            throw Failure(R"(The table "appoint" of the Access database has no column ")" +
                          std::string(kColumnNames[i]) + "\".");
        places[i] = static_cast<std::size_t>(found - table.fields.begin());
    }
    return places;
}

// A time of day that Access kept as a moment comes as "1899-12-30 14:05:00"; any other text stays.
std::string timeText(const std::string& value) {
    const auto moment = readMoment(value, kPivotYear);
    return moment ? formatMoment(*moment, "hh:nn AM/PM", LocaleFormats()) : value;
}

AppointmentValue converted(Column column, AccessType type, const AppointmentValue& value) {
    if (!value)
        return std::nullopt;
    switch (column) {
        case Column::TagVariant: {
            const auto moment = readMoment(*value, kPivotYear);
            return moment ? storedMoment(*moment) : *value;
        }
        case Column::Date: {
            const auto moment = readMoment(*value, kPivotYear);
            if (!moment)
                return std::nullopt;
            return storedMoment(*moment).substr(0, 10);
        }
        case Column::BeginTime:
        case Column::EndTime:
            return type == AccessType::DateTime ? timeText(*value) : *value;
        case Column::Desc:
        case Column::StyleSet:
            break;
    }
    return *value;
}

NativePath nameForOriginal(const NativePath& path) {
    for (int number = 1;; ++number) {
        NativePath name =
            path.sibling(path.stem() + ".access-original" +
                         (number == 1 ? "" : "-" + std::to_string(number)) + path.extension());
        if (!isNameTaken(name))
            return name;
    }
}

// Puts `converted` in the place of `path`, which is kept under the name that is returned.
std::string putInPlaceOf(const NativePath& path, const NativePath& converted) {
    const NativePath original = nameForOriginal(path);
    keepUnderSecondName(path, original);
    try {
        renameOver(converted, path);
    } catch (const Failure&) {
        if (identityOf(original) == identityOf(path))
            ignoringErrors([&] { removeIfThere(original); });
        throw;
    }
    return original.name();
}

}  // namespace

std::string AccessConversion::convert(const NativePath& path) {
    const FileLock lock(path, kPatience);
    if (!lock.isOn(path) || readableKindOf(path) != DatabaseKind::Access)
        return {};
    const NativePath beside = temporaryBeside(path);
    const auto clear = [&] {
        removeIfThere(beside.withEnding("-journal"));
        removeIfThere(beside);
    };
    try {
        clearAbandonedBeside(path);  // what a conversion that was broken off may have left
        clear();
        copyRows(path, beside);
        if (readableKindOf(path) != DatabaseKind::Access) {
            clear();  // another copy was faster, where there are no locks
            return {};
        }
        return putInPlaceOf(path, beside);
    } catch (...) {
        ignoringErrors(clear);
        throw;
    }
}

void AccessConversion::copyRows(const NativePath& from, const NativePath& to) {
    const std::vector<AccessTable> tables = reader_.tables(from);
    const AccessTable& table = tableOfAppointments(tables);
    const Places places = placesIn(table);
    {
        sqlite::Database database(to, sqlite::Access::ReadWriteOrCreate);
        createAppointmentTable(database);
        sqlite::Transaction transaction(database);
        auto insert = database.prepare("INSERT INTO appoint VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
        reader_.readRows(from, table.name, [&](const AccessRow& row) {
            for (std::size_t i = 0; i < kColumnCount; ++i) {
                if (places[i] >= row.size())
                    throw Failure("A row of the Access database is too short.");
                const auto value =
                    converted(static_cast<Column>(i), table.fields[places[i]].type, row[places[i]]);
                const int parameter = static_cast<int>(i) + 1;
                if (value)
                    insert.bindText(parameter, *value);
                else
                    insert.bindNull(parameter);
            }
            insert.run();
        });
        transaction.commit();
    }
    flushFile(to);
}

}  // namespace velmora
