#include "benches/AppointmentGenerator.h"

#include <cstdio>

#include "planner/StoredText.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "platform/sqlite/Database.h"

namespace velmora::bench {

void writePlanner(const std::string& path, std::size_t rows) {
    using namespace std::chrono;
    layDownDatabase(NativePath(path));
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    sqlite::Transaction transaction(database);
    auto insert = database.prepare("INSERT INTO appoint VALUES (?1, ?2, ?3, ?4, ?5, 'Event')");
    const Moment firstTag{local_days(year(2000) / 1 / 1)};
    for (std::size_t i = 0; i < rows; ++i) {
        const sys_days day = kFirstDay + days(i * 7919 % kDays);
        const std::size_t hour = 8 + i % 10;
        char begin[16], end[16], text[80];
        std::snprintf(begin, sizeof begin, "%02zu:00 %s", hour > 12 ? hour - 12 : hour,
                      hour < 12 ? "AM" : "PM");
        std::snprintf(end, sizeof end, "%02zu:45 %s", hour > 12 ? hour - 12 : hour,
                      hour < 12 ? "AM" : "PM");
        std::snprintf(text, sizeof text, "Meeting with First%zu Same%08zu (312) 555-01%02zu",
                      i % 997, i % 100'003, i % 100);
        insert.bindText(1, storedMoment(firstTag + minutes(i)));
        insert.bindText(2, storedDay(day)).bindText(3, begin).bindText(4, end).bindText(5, text);
        insert.run();
        insert.reset();
    }
    transaction.commit();
}

}  // namespace velmora::bench
