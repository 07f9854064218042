// Any bytes as the file of the planner: it is read and written, or refused with a Failure. Rows
// come in the order of their numbers, and what was added is there.

#include <string>

#include "fuzz/DatabaseFile.h"
#include "planner/AppointmentStore.h"
#include "planner/StoredText.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "planner/sqlite/SqliteAppointments.h"
#include "platform/sqlite/Database.h"
#include "support/FakeClock.h"
#include "support/SamePaths.h"

namespace velmora {
namespace {

using fuzz::require;

constexpr const char* kDate = "03/12/2026";

AppointmentStore storeOn(const Clock& clock) {
    static const SqliteAppointmentSource source(test::samePaths());
    return AppointmentStore(CodePage::western(), clock, source, std::chrono::milliseconds(0));
}

void add(AppointmentStore& store, const std::string& text) {
    store.Add({.tag = readMoment("2026-03-12 10:42:00", std::chrono::year(2026)).value(),
               .day = readStoredDay("2026-03-12"),
               .begin = "09:00 AM",
               .end = "10:00 AM",
               .text = text,
               .style = "Event"});
}

// A small planner as Velmora itself lays it down.
std::string soundPlanner() {
    const fuzz::DatabaseFile file("qel.mdb");
    const test::FakeClock clock;
    layDownDatabase(file.path());
    AppointmentStore store = storeOn(clock);
    store.OpenDatabase(file.path().utf8());
    for (int i = 0; i < 3; ++i)
        add(store, "appointment " + std::to_string(i));
    return file.bytes();
}

void readRows(AppointmentStore& store) {
    constexpr int kMost = 2000;
    store.SelectAll();
    store.Refresh();
    std::int64_t before = INT64_MIN;
    for (int row = 0; row < kMost && !store.Eof(); ++row) {
        require(store.CurrentRow().number > before, "rows come in the order of their numbers");
        before = store.CurrentRow().number;
        for (std::size_t i = 0; i < kColumnCount; ++i)
            (void)store.Get(static_cast<Column>(i));
        store.MoveNext();
    }
}

void readDay(AppointmentStore& store) {
    store.SelectByDate(kDate);
    for (store.Refresh(); !store.Eof(); store.MoveNext())
        require(store.Get(Column::Date) == kDate, "rows of a day are of that day");
}

bool holds(AppointmentStore& store, const std::string& text) {
    store.SelectByDate(kDate);
    for (store.Refresh(); !store.Eof(); store.MoveNext())
        if (store.Get(Column::Desc) == text)
            return true;
    return false;
}

// An index that leads astray hides rows, and nothing tells but a look at all of the file.
bool isSound(const NativePath& path) {
    bool sound = false;
    (void)fuzz::succeeds([&] {
        sqlite::Database database(path, sqlite::Access::ReadOnly);
        auto check = database.prepare("PRAGMA integrity_check");
        sound = check.step() && check.text(0) == "ok";
    });
    return sound;
}

void write(AppointmentStore& store, const NativePath& path) {
    if (!fuzz::succeeds([&] { add(store, "added"); }))
        return;
    bool found = false;
    if (fuzz::succeeds([&] { found = holds(store, "added"); }))
        require(found || store.obstacle().has_value() || !isSound(path), "what was added is there");
    (void)fuzz::succeeds([&] {
        store.SelectAll();
        store.Refresh();
        store.Delete();
    });
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    static const std::string sound = soundPlanner();
    const fuzz::DatabaseFile file("qel.mdb");
    file.lay(sound, fuzz::Input(data, size));
    const test::FakeClock clock;
    AppointmentStore store = storeOn(clock);
    store.OpenDatabase(file.path().utf8());
    (void)fuzz::succeeds([&] { readRows(store); });
    (void)fuzz::succeeds([&] { readDay(store); });
    for (const DayStyle& style : store.DayStyles())
        require(style.day.ok(), "a style is of a day");
    (void)fuzz::succeeds([&] { (void)store.FindFirst("[TagVariant] = #2026-03-12 10:42:00#"); });
    write(store, file.path());
    return 0;
}
