// Times a planner of 100,000 appointments: opening a day, colouring the calendars and changing an
// appointment beside bare statements on the same rows, and painting the calendars beside those of
// an empty planner. bench_planner FOLDER: the database is written into that folder.

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <chrono>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/PlannerAdapters.h"
#include "app/PlannerWiring.h"
#include "benches/AppointmentGenerator.h"
#include "benches/BarePlanner.h"
#include "benches/PaintCounter.h"
#include "benches/Report.h"
#include "benches/Samples.h"
#include "core/SettingsStore.h"
#include "planner/Planner.h"
#include "planner/StoredText.h"
#include "platform/DateText.h"
#include "platform/SystemClock.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"
#include "platform/qt/Theme.h"
#include "support/FakePlannerControls.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"
#include "support/PlannerFixture.h"
#include "support/SamePaths.h"

namespace velmora::bench {
namespace {

using namespace std::chrono;

constexpr std::size_t kRows = 100'000;
constexpr int kRepetitions = 15;
constexpr std::size_t kDaysOfTurn = 200;
constexpr year_month_day kToday = year(2026) / 3 / 12;

// How the two calendars mark a day with appointments.
const StyleSet kRedNumber{.foreColor = Rgb{255, 0, 0}, .backColor = {}};
const StyleSet kRedCell{.foreColor = {}, .backColor = Rgb{255, 0, 0}};

void expect(bool condition, const char* what) {
    if (!condition)
        throw std::runtime_error(what);
}

// A calendar that holds a date and counts the styles it is given.
template <typename Interface>
class CountingCalendar : public Interface {
  public:
    [[nodiscard]] std::string Date() const override { return date; }
    void SetDate(const std::string& text) override { date = text; }
    void SetStyleSet(const std::string&, const StyleSet&) override {}
    void SetDayStyle(const std::string&, const std::string&) override {}
    void SetDayStyles(const std::vector<DayStyle>& days) override { styled = days.size(); }

    std::string date = writeDate(kToday);
    std::size_t styled = 0;
};

class CountingMonth final : public CountingCalendar<MonthControl> {
  public:
    void Refresh() override {}
    [[nodiscard]] std::optional<std::string> DateAt(int, int) const override { return {}; }
};

// A planner on a database, with controls that cost nothing.
class BenchPlanner {
  public:
    explicit BenchPlanner(const std::string& path) : path_(path) { openAnew(); }

    // All colours are to be read again.
    void openAnew() { store_.OpenDatabase(path_); }

    std::size_t openDay(const std::string& date) {
        month.date = date;
        planner.OnMonthSelection(date);
        return day_.tasks.size();
    }

    CountingMonth month;
    CountingCalendar<YearControl> year;

  private:
    std::string path_;
    const CodePage& codePage_ = CodePage::western();
    SystemClock clock_;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    LocaleFormats formats_;
    test::FakeStatusLine status_;
    test::FakePlannerDesk desk_;
    test::FakeDayControl day_;
    AppointmentStore store_{codePage_, clock_, test::appointmentSource()};

  public:
    Planner planner{store_, {day_, month, year, desk_}, status_, settings_, clock_, formats_};
};

void measureDays(const std::string& path, Report& report) {
    BenchPlanner ours(path);
    BarePlanner bare(path);
    std::vector<std::string> dates, storedDates;
    for (std::size_t i = 0; i < kDaysOfTurn; ++i) {
        const year_month_day day = kFirstDay + days(i * 71 % kDays);
        dates.push_back(writeDate(day));
        storedDates.push_back(storedDay(day));
    }
    std::size_t rows = 0, bareRows = 0;
    const auto [open, bareOpen] = medianTimes(
        kRepetitions,
        [&] {
            rows = 0;
            for (const std::string& date : dates)
                rows += ours.openDay(date);
        },
        [&] {
            bareRows = 0;
            for (const std::string& date : storedDates)
                bareRows += bare.fetchDay(date);
        });
    expect(rows == bareRows && rows > kDaysOfTurn, "the days are wrong");
    report.figure("open-day-of-100000", open.count() * 1000 / kDaysOfTurn, "us");
    report.figure("open-day-of-100000-bare", bareOpen.count() * 1000 / kDaysOfTurn, "us");
    report.figure("open-day-to-bare", open / bareOpen, "times", 1.3);
}

void measureColouring(const std::string& path, Report& report) {
    BenchPlanner ours(path);
    BarePlanner bare(path);
    const auto [update, bareUpdate] = medianTimes(
        kRepetitions,
        [&] {
            ours.openAnew();
            ours.planner.UpdateDays();
        },
        [&] { expect(bare.passDays() == kRows, "the bare rows are wrong"); });
    expect(ours.month.styled == kDays && ours.year.styled == kDays, "the styles are wrong");
    report.figure("update-days-100000", update.count(), "ms");
    report.figure("update-days-100000-bare", bareUpdate.count(), "ms");
    report.figure("update-days-to-bare", update / bareUpdate, "times", 2);
}

// The real day, month and year on a database; the year is hidden.
class EditedPlanner {
  public:
    explicit EditedPlanner(const std::string& path) {
        store_.OpenDatabase(path);
        month.resize(248, 260);
        day.resize(480, 600);
        for (QWidget* shown : {static_cast<QWidget*>(&month), static_cast<QWidget*>(&day)})
            shown->show();
        connectPlanner({.day = day,
                        .month = month,
                        .year = year_,
                        .yearButton = yearButton_,
                        .selectedLine = [] { return std::string(); },
                        .popUpSchedulingMenu = [] {}},
                       planner_, yearButton_);
        planner_.SetCalendarStyleSets();
        planner_.UpdateDays();
        month.setDate(kToday);
        expect(day.Tasks().Count() > 0, "the day is empty");
    }

    // Types into the editor of the first block, which Return then ends.
    void type() {
        day.setSelectedIndex(0);
        send(day, Qt::Key_F2, {});
        send(*day.findChild<QPlainTextEdit*>(), Qt::Key_X, QStringLiteral("x"));
    }
    void pressReturn() { send(*day.findChild<QPlainTextEdit*>(), Qt::Key_Return, {}); }

    [[nodiscard]] std::string text() const { return day.Tasks().Item(0).text; }

  private:
    static void send(QWidget& widget, Qt::Key key, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &press);
    }

    const LocaleFormats formats_;
    SystemClock clock_;
    test::MemorySettings medium_;
    SettingsStore settings_{medium_};
    test::FakeStatusLine status_;
    test::FakePlannerDesk desk_;
    SSYear year_{formats_, CodePage::western(), kToday};
    AppointmentStore store_{CodePage::western(), clock_, test::appointmentSource()};

  public:
    SSMonth month{formats_, CodePage::western(), kToday};
    SSDay day{CodePage::western()};

  private:
    QPushButton yearButton_;
    DayAdapter dayAdapter_{day};
    MonthAdapter monthAdapter_{month};
    YearAdapter yearAdapter_{year_};
    Planner planner_{store_,  {dayAdapter_, monthAdapter_, yearAdapter_, desk_},
                     status_, settings_,
                     clock_,  formats_};
};

// One appointment changed, from the key to the painted month, beside a bare change of its row and
// a painting of the month.
void measureEdit(const std::string& path, const std::string& barePath, Report& report) {
    EditedPlanner ours(path);
    BarePlanner bare(barePath);
    PaintCounter month(ours.month);
    month.awaitFirst();
    const std::string before = ours.text();
    std::vector<Milliseconds> edits, bareEdits;
    for (int i = 0; i <= kRepetitions; ++i) {
        ours.type();
        const Milliseconds edit = timeOf([&] {
            ours.pressReturn();
            month.repaint();
        });
        const Milliseconds bareEdit = timeOf([&] {
            bare.changeFirstRowOf(storedDay(kToday), "changed " + std::to_string(i));
            month.repaint();
        });
        if (i == 0)
            continue;  // the first turn does not count
        edits.push_back(edit);
        bareEdits.push_back(bareEdit);
    }
    expect(ours.text() != before, "nothing was edited");
    const Milliseconds edit = median(edits), bareEdit = median(bareEdits);
    report.figure("edit-of-100000", edit.count(), "ms");
    report.figure("edit-of-100000-bare", bareEdit.count(), "ms");
    report.figure("edit-to-bare", edit / bareEdit, "times", 3);
}

template <typename Control>
void measurePainting(const char* name, const std::vector<DayStyle>& styles, const StyleSet& look,
                     QSize size, double limit, Report& report) {
    const LocaleFormats formats;
    Control full(formats, CodePage::western(), kToday);
    Control empty(formats, CodePage::western(), kToday);
    for (Control* control : {&full, &empty}) {
        control->resize(size);
        control->setStyleSet("Event", look);
        control->show();
    }
    for (const DayStyle& each : styles)
        full.setDayStyle(writeDate(each.day), each.style);
    PaintCounter fullCounter(full), emptyCounter(empty);
    fullCounter.awaitFirst();
    emptyCounter.awaitFirst();
    const auto [paint, paintEmpty] = medianTimes(
        kRepetitions, [&] { fullCounter.repaint(); }, [&] { emptyCounter.repaint(); });
    const std::string figure = std::string(name) + "-painted";
    report.figure(figure + "-100000", paint.count(), "ms");
    report.figure(figure + "-empty", paintEmpty.count(), "ms");
    report.figure(figure + "-100000-to-empty", paint / paintEmpty, "times", limit);
}

// What one edit costs beyond the database: the styles of all days go to the real calendars.
void measureStyling(const std::vector<DayStyle>& styles, Report& report) {
    const LocaleFormats formats;
    SSMonth month(formats, CodePage::western(), kToday);
    SSYear year(formats, CodePage::western(), kToday);
    MonthAdapter monthAdapter(month);
    YearAdapter yearAdapter(year);
    for (DateControl* control :
         {static_cast<DateControl*>(&monthAdapter), static_cast<DateControl*>(&yearAdapter)})
        control->SetStyleSet("Event", kRedNumber);
    std::vector<Milliseconds> times;
    times.reserve(kRepetitions);
    for (int i = 0; i < kRepetitions; ++i)
        times.push_back(timeOf([&] {
            monthAdapter.SetDayStyles(styles);
            yearAdapter.SetDayStyles(styles);
        }));
    report.figure("style-calendars-100000", median(times).count(), "ms");
}

int measure(const std::string& folder) {
    const std::string path = folder + "/qel.mdb";
    writePlanner(path, kRows);
    Report report;
    measureDays(path, report);
    measureColouring(path, report);
    writePlanner(folder + "/bare.mdb", kRows);
    measureEdit(path, folder + "/bare.mdb", report);
    const SystemClock clock;
    AppointmentStore store(CodePage::western(), clock, test::appointmentSource());
    store.OpenDatabase(path);
    const std::vector<DayStyle> styles = store.DayStyles();
    measureStyling(styles, report);
    measurePainting<SSMonth>("month", styles, kRedNumber, {248, 260}, 1.2, report);
    measurePainting<SSYear>("year", styles, kRedCell, {722, 546}, 1.2, report);
    return report.exitCode();
}

}  // namespace
}  // namespace velmora::bench

int main(int argc, char** argv) try {
    if (argc != 2) {
        std::cerr << "Usage: bench_planner FOLDER\n";
        return 2;
    }
    QApplication application(argc, argv);
    velmora::applyTheme(application);
    return velmora::bench::measure(argv[1]);
} catch (const std::exception& error) {
    std::cerr << "bench_planner: " << error.what() << '\n';
    return 1;
}
