#include "planner/Planner.h"

#include <utility>

#include "planner/PlannerTrouble.h"
#include "planner/StoredText.h"
#include "platform/DateText.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

namespace {

using std::chrono::year_month_day;

constexpr const char* kNoStyle = "None";

// No day on show is further away from the date of the month: six weeks are shown.
constexpr std::chrono::days kAMonthOnShow{42};

struct NamedLook {
    const char* name;
    StyleSet month;
    StyleSet year;
};

constexpr Rgb kBlack{0, 0, 0};
constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kYellow{255, 255, 0};
constexpr Rgb kGreen{0, 255, 0};
constexpr Rgb kCyan{0, 255, 255};

// A day with appointments has a red number in the month, a red cell in the year.
constexpr NamedLook kLooks[] = {
    {"Event", {kRed, {}}, {{}, kRed}},        {"Meeting", {{}, kYellow}, {{}, kYellow}},
    {"Vacation", {{}, kGreen}, {{}, kGreen}}, {"Other", {{}, kCyan}, {{}, kCyan}},
    {kNoStyle, {kBlack, {}}, {kBlack, {}}},
};

}  // namespace

Planner::Planner(AppointmentStore& store, const PlannerControls& controls, StatusLine& status,
                 SettingsStore& settings, const Clock& clock, const LocaleFormats& formats)
    : store_(store),
      day_(controls.day),
      month_(controls.month),
      year_(controls.year),
      desk_(controls.desk),
      status_(status),
      settings_(settings),
      clock_(clock),
      formats_(formats) {}

void Planner::SetCalendarStyleSets() {
    for (const NamedLook& look : kLooks) {
        ignoringErrors([&] { month_.SetStyleSet(look.name, look.month); });
        ignoringErrors([&] { year_.SetStyleSet(look.name, look.year); });
    }
}

void Planner::SetTimeLimits() {
    const auto limit = [&](const NumberKey& key) {
        return formatTimeText(std::to_string(settings_.read(key)) + ":00", "h:NN AM/PM", formats_);
    };
    ignoringErrors([&] { day_.SetLastTime(limit(keys::PlannerEnd)); });
    ignoringErrors([&] { day_.SetFirstTime(limit(keys::PlannerStart)); });
}

void Planner::UpdateDays() {
    colour(store_.NewDayStyles());
    coloursAreUnread_ = store_.obstacle().has_value();
    coloursAreBegun_ = false;
}

void Planner::BeginColours() {
    const std::chrono::local_days date(
        readDate(month_.Date(), pivotYear()).value_or(dateOf(clock_.now())));
    colour(store_.DayStylesBetween(year_month_day(date - kAMonthOnShow),
                                   year_month_day(date + kAMonthOnShow)));
    coloursAreBegun_ = true;
}

void Planner::colour(const std::vector<DayStyle>& days) {
    ignoringErrors([&] { year_.SetDayStyles(days); });
    ignoringErrors([&] { month_.SetDayStyles(days); });
}

std::chrono::year Planner::pivotYear() const {
    const auto present = dateOf(clock_.now()).year();
    return readDate(month_.Date(), present).value_or(dateOf(clock_.now())).year();
}

void Planner::LoadDayTasks() {
    putAside();
    ignoringErrors([&] { store_.Refresh(); });
    const auto pivot = pivotYear();
    dayOnShow_ = readDate(selectedDate_, pivot);
    if (dayOnShow_) {
        const Moment midnight{std::chrono::local_days(*dayOnShow_)};
        selectedDate_ = formatMoment(midnight, "mm/dd/yy", formats_);
        dayOnShow_ = readDate(selectedDate_, pivot);
    }
    ignoringErrors([&] { store_.SelectByDate(selectedDate_, pivot); });
    fillDay();
}

void Planner::fillDay() {
    ignoringErrors([&] { store_.Refresh(); });
    ignoringErrors([&] { day_.RemoveAllTasks(); });
    editIsOpen_ = false;
    for (int index = 0; !store_.Eof(); ++index) {
        ignoringErrors([&] {
            const AppointmentRow& row = store_.CurrentRow();
            day_.AddTask(row.text(Column::BeginTime), row.text(Column::EndTime),
                         row.text(Column::Desc));
            day_.SetTaskTag(index, row.text(Column::TagVariant));
        });
        ignoringErrors([&] { store_.MoveNext(); });
    }
    const auto obstacle = store_.obstacle();
    dayIsUnread_ = obstacle.has_value();
    if (obstacle)  // a part of the day would pass for the whole of it
        ignoringErrors([&] { day_.RemoveAllTasks(); });
    ignoringErrors([&] { day_.SetNotice(obstacle ? dayCanNotBeRead(*obstacle) : std::string()); });
    showUnstored();
}

void Planner::AlignMonthWithDayOnShow() {
    if (!dayOnShow_)
        return;
    const std::string onShow = writeDate(*dayOnShow_);
    if (month_.Date() != onShow)
        ignoringErrors([&] { month_.SetDate(onShow); });
}

void Planner::OnTaskEditBegin(int index, bool exists) {
    taskIsNew_ = !exists;
    editIsOpen_ = true;
    beforeEdit_.reset();
    ignoringErrors([&] { beforeEdit_ = day_.Task(index); });
}

void Planner::OnTaskEditEnd(int index, bool keepRefresh, bool save) {
    editIsOpen_ = false;
    if (index != -1) {
        ignoringErrors([&] { store_.SelectAll(); });
        ignoringErrors([&] { store_.Refresh(); });
        if (!store_.Eof())
            ignoringErrors([&] { store_.MoveFirst(); });
        if (save)
            storeTask(index);
        if (!keepRefresh)
            ignoringErrors([&] { day_.Refresh(); });
    }
    UpdateDays();
}

void Planner::storeTask(int index) {
    try {
        writeTask(index);
    } catch (const Failure& failure) {
        const std::string why = becauseOf(obstacleOf(failure));
        if (taskIsNew_) {
            // Without its row the block must not pass for one that has: its next edit would land
            // on the row of another.
            ignoringErrors([&] { day_.SetTaskTag(index, ""); });
            blocksAreUnstored_ = true;
            tell("The appointment is not stored yet" + why);
        } else {
            if (beforeEdit_)
                ignoringErrors([&] { day_.SetTask(index, *beforeEdit_); });
            tell("The change could not be stored" + why);
        }
    }
    ignoringErrors([&] { store_.Refresh(); });
}

void Planner::writeTask(int index) {
    if (taskIsNew_)
        beginAddition(index);
    else
        beginChange(index);
    ignoringErrors([&] { store_.Put(Column::BeginTime, day_.Task(index).BeginTime); });
    ignoringErrors([&] { store_.Put(Column::EndTime, day_.Task(index).EndTime); });
    ignoringErrors([&] { store_.Put(Column::Desc, day_.Task(index).text); });
    ignoringErrors([&] { store_.Put(Column::StyleSet, kStyleOfAppointments); });
    store_.Update();
}

void Planner::beginAddition(int index) {
    ignoringErrors([&] { store_.AddNew(); });
    const std::string tag = storedMoment(clock_.now());
    ignoringErrors([&] { store_.Put(Column::TagVariant, tag); });
    ignoringErrors([&] { day_.SetTaskTag(index, tag); });
    ignoringErrors([&] { store_.Put(Column::Date, month_.Date()); });
}

// Where no row has the tag, the change lands on the first row of the day. Where that can not be
// known, it lands on none.
void Planner::beginChange(int index) {
    store_.SelectByDate(month_.Date());
    store_.Refresh();
    (void)store_.FindFirst("[TagVariant] = #" + day_.Task(index).TagVariant + "#");
    store_.Edit();
}

void Planner::OnTaskRemove() {
    DayTask task;
    ignoringErrors([&] { task = day_.Task(day_.SelectedTask()); });
    try {
        removeRow(task.TagVariant);
        store_.expectDay(month_.Date());  // other rows of it colour it again
        ignoringErrors([&] { year_.SetDayStyle(month_.Date(), kNoStyle); });
        ignoringErrors([&] { month_.SetDayStyle(month_.Date(), kNoStyle); });
    } catch (const Failure& failure) {
        // The view takes the block away; another comes in its place, since the row is still there.
        ignoringErrors([&] { day_.AddTask(task.BeginTime, task.EndTime, task.text); });
        ignoringErrors([&] { day_.SetTaskTag(day_.TaskCount() - 1, task.TagVariant); });
        tell("The appointment could not be removed" + becauseOf(obstacleOf(failure)));
    }
    UpdateDays();
}

// A row that is gone already needs no removal.
void Planner::removeRow(const std::string& tag) {
    store_.SelectByTag(tag);
    store_.Refresh();
    if (!store_.Eof()) {
        AppointmentRow row = store_.CurrentRow();
        store_.Delete();
        removed_.push_back(std::move(row));
    } else if (const auto obstacle = store_.obstacle()) {
        throw StorageFailure("The appointment can not be read.", *obstacle);
    }
}

void Planner::OnUndoRemoval() {
    if (removed_.empty())
        return status_.show("There is no removed appointment to bring back.");
    if (!bringBack(removed_.back()))
        return status_.show("The appointment could not be brought back.");
    const AppointmentRow row = std::move(removed_.back());
    removed_.pop_back();
    UpdateDays();
    showTask(row);
    status_.show("The appointment was brought back.");
}

bool Planner::bringBack(const AppointmentRow& row) {
    try {
        store_.SelectAll();
        store_.AddNew();
        for (std::size_t i = 0; i < kColumnCount; ++i)
            store_.Put(static_cast<Column>(i), row.text(static_cast<Column>(i)));
        store_.Update();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// A row without a date shows on no day. Of several blocks with one tag it is the last; the day view
// refuses the index behind its last block.
void Planner::showTask(const AppointmentRow& row) {
    const auto day = readStoredDay(row.text(Column::Date));
    if (!day)
        return;
    ignoringErrors([&] {
        month_.SetDate(writeDate(*day));
        for (int index = 0;; ++index)
            if (day_.Task(index).TagVariant == row.text(Column::TagVariant))
                day_.SelectTask(index);
    });
}

void Planner::OnDayPointerMoved() {
    help("Drag horizontal divider bars to adjust times.");
}

void Planner::OnMonthSelection(const std::string& date) {
    ignoringErrors([&] {
        if (const auto day = readDate(month_.Date(), dateOf(clock_.now()).year()))
            desk_.SetLongDate(formatMoment(Moment{std::chrono::local_days(*day)},
                                           NamedFormat::LongDate, formats_));
    });
    selectedDate_ = date;
    if (selectedDate_.empty())
        return;
    putAside();
    ignoringErrors([&] { day_.RemoveAllTasks(); });
    LoadDayTasks();
}

void Planner::OnMonthGotFocus() {
    help("Press CTRL+T to go to today.");
}

void Planner::OnMonthLostFocus() {
    help("");
}

bool Planner::OnMonthDrop(int x, int y, bool selectedEntryDropped) {
    RefreshControls();
    try {
        const auto date = month_.DateAt(x, y);
        if (!date)
            return false;
        selectedDate_ = *date;
        month_.SetDate(*date);
    } catch (const Failure&) {
        return false;
    }
    LoadDayTasks();
    return selectedEntryDropped;
}

void Planner::GoToToday() {
    ignoringErrors([&] { month_.SetDate(writeDate(dateOf(clock_.now()))); });
}

void Planner::OpenYear() {
    if (coloursAreBegun_)
        UpdateDays();
    ignoringErrors([&] { year_.SetDate(month_.Date()); });
    desk_.ShowYearPane();
    status_.show("Double-click a date or click the caption to close.");
}

void Planner::OnYearSelection(const std::string& date) {
    selectedDate_ = date;
}

void Planner::OnYearDoubleClick() {
    if (!selectedDate_.empty()) {
        putAside();
        ignoringErrors([&] { day_.RemoveAllTasks(); });
        LoadDayTasks();
    }
    desk_.HideYearPane();
    ignoringErrors([&] { month_.SetDate(year_.Date()); });
}

void Planner::OnYearCaptionClick() {
    desk_.HideYearPane();
}

void Planner::RefreshControls() {
    ignoringErrors([&] { month_.Refresh(); });
    ignoringErrors([&] { day_.Refresh(); });
}

}  // namespace velmora
