#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/SettingsStore.h"
#include "planner/AppointmentStore.h"
#include "planner/Planner.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "planner/sqlite/SqliteAppointments.h"
#include "platform/sqlite/Database.h"
#include "support/FakeClock.h"
#include "support/FakePlannerControls.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"
#include "support/SamePaths.h"
#include "support/TemporaryFolder.h"

namespace velmora::test {

// A row as it lies in the file, "NULL" for Null.
using RawRow = std::array<std::string, kColumnCount>;

inline std::vector<RawRow> rawRows(const std::string& path) {
    sqlite::Database database(NativePath(path), sqlite::Access::ReadOnly);
    auto select = database.prepare("SELECT * FROM appoint ORDER BY rowid");
    std::vector<RawRow> rows;
    while (select.step()) {
        RawRow& row = rows.emplace_back();
        for (std::size_t i = 0; i < kColumnCount; ++i) {
            const int column = static_cast<int>(i);
            row[i] = select.isNull(column) ? "NULL" : std::string(select.text(column));
        }
    }
    return rows;
}

// Puts a row into the file past the store; "NULL" stands for Null.
inline void addRawRow(const std::string& path, const RawRow& row) {
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    auto insert = database.prepare("INSERT INTO appoint VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
    for (std::size_t i = 0; i < kColumnCount; ++i) {
        const int parameter = static_cast<int>(i) + 1;
        if (row[i] == "NULL")
            insert.bindNull(parameter);
        else
            insert.bindText(parameter, row[i]);
    }
    insert.run();
}

// An appointment of 12 March 2026, tagged with a second of its own.
inline RawRow rowOn(const std::string& storedDate, int second, const std::string& text,
                    const std::string& style = "Event") {
    const std::string tag =
        "2026-01-01 08:00:" + std::string(second < 10 ? "0" : "") + std::to_string(second);
    return {tag, storedDate, "09:00 AM", "10:00 AM", text, style};
}

// The tables of appointments in files under the paths that they are asked for with.
inline const AppointmentSource& appointmentSource() {
    static const SqliteAppointmentSource source(samePaths());
    return source;
}

// A planner on a database in a folder of its own.
struct PlannerFixture {
    // In a folder of its own, or in the file of this path.
    explicit PlannerFixture(const std::string& wanted = {})
        : path(wanted.empty() ? folder.file("qel.mdb") : wanted) {
        layDownDatabase(NativePath(path));
        store.OpenDatabase(path);
        SSMonth1.onSelection = [this](const std::string& date) { planner.OnMonthSelection(date); };
        SSYear1.onSelection = [this](const std::string& date) { planner.OnYearSelection(date); };
        planner.SetCalendarStyleSets();
    }

    void add(const RawRow& row) const { addRawRow(path, row); }
    [[nodiscard]] std::vector<RawRow> rows() const { return rawRows(path); }

    TemporaryFolder folder;
    std::string path;
    FakeClock clock;
    MemorySettings medium;
    SettingsStore settings{medium};
    LocaleFormats formats;
    FakeStatusLine status;
    AppointmentStore store{CodePage::western(), clock, appointmentSource(),
                           std::chrono::milliseconds(50)};
    FakeDayControl SSDay1;
    FakeMonthControl SSMonth1;
    FakeYearControl SSYear1;
    FakePlannerDesk desk;
    Planner planner{store, {SSDay1, SSMonth1, SSYear1, desk}, status, settings, clock, formats};
};

}  // namespace velmora::test
