#include "planner/WeekLoad.h"

#include <chrono>
#include <optional>
#include <utility>

#include "planner/PlannerTrouble.h"
#include "platform/DateText.h"
#include "platform/Failure.h"

namespace velmora {
namespace {

bool loadDay(AppointmentStore& store, WeekView& view, int day) {
    ignoringErrors([&] { store.Refresh(); });
    for (int index = 0; !store.Eof(); ++index) {
        ignoringErrors([&] {
            const AppointmentRow& row = store.CurrentRow();
            view.AddTask(day, row.text(Column::BeginTime), row.text(Column::EndTime),
                         row.text(Column::Desc));
            view.SetTaskTag(day, index, row.text(Column::TagVariant));
        });
        ignoringErrors([&] { store.MoveNext(); });
    }
    const auto obstacle = store.obstacle();
    if (obstacle)
        ignoringErrors([&] { view.RemoveTasksOf(day); });
    ignoringErrors(
        [&] { view.SetDayNotice(day, obstacle ? dayCanNotBeRead(*obstacle) : std::string()); });
    return !obstacle;
}

}  // namespace

WeekLoad::WeekLoad(const DataLocations& locations, const AppointmentSource& source,
                   const CodePage& codePage, const MonthControl& month, const Clock& clock,
                   const LocaleFormats& formats)
    : locations_(locations),
      source_(source),
      codePage_(codePage),
      month_(month),
      clock_(clock),
      formats_(formats) {}

bool WeekLoad::Load(WeekView& view, Locks locks) const {
    using std::chrono::days;
    using std::chrono::local_days;
    AppointmentStore store(codePage_, clock_, source_);
    std::optional<Patience::Suspended> impatient;
    if (locks == Locks::PassBy)
        impatient.emplace(store.patience());
    ignoringErrors([&] { store.OpenDatabase(locations_.PlannerDatabasePath()); });
    const auto today = dateOf(clock_.now());
    const auto selected = readDate(month_.Date(), today.year()).value_or(today);
    const Moment midnight{local_days(selected)};
    ignoringErrors([&] {
        view.SetTitle("Week at Glance From " +
                      formatMoment(midnight, NamedFormat::LongDate, formats_));
    });
    ignoringErrors([&] { view.RemoveAllTasks(); });
    bool whole = true;
    for (int day = 1; day <= kWeekDays; ++day) {
        const Moment date = midnight + days(day);
        ignoringErrors(
            [&] { store.SelectByDate(formatMoment(date, "mm/dd/yy", formats_), selected.year()); });
        whole = loadDay(store, view, day) && whole;
        ignoringErrors(
            [&] { view.SetDayCaption(day, formatMoment(date, "dddd, mmmm d, yyyy", formats_)); });
    }
    return whole;
}

}  // namespace velmora
