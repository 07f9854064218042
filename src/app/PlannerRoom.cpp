#include "app/PlannerRoom.h"

#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "app/PlannerWiring.h"
#include "core/forms/Desk.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "platform/Failure.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PaneButton.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/SSYear.h"

namespace velmora {
namespace {

constexpr const char* kPlannerIsEmpty =
    "The planner is empty: type its first appointment into the day view before you schedule with "
    "an entry.";

}  // namespace

CalendarPlannerDesk::CalendarPlannerDesk(Calendar& calendar, YearPane& yearPane, PaneSwitch& panes,
                                         std::function<void()> openSchedule, WeekWindow& week,
                                         std::function<void(const std::string&)> endProgram)
    : calendar_(calendar),
      yearPane_(yearPane),
      panes_(panes),
      openSchedule_(std::move(openSchedule)),
      week_(week),
      endProgram_(std::move(endProgram)) {}

void CalendarPlannerDesk::ShowYearPane() {
    yearPane_.open(calendar_.desk().paneCorner(), calendar_.isSmall());
}

void CalendarPlannerDesk::HideYearPane() {
    yearPane_.hide();
    calendar_.leftColumn().month()->setFocus();
}

std::string CalendarPlannerDesk::SelectedLine() const {
    return calendar_.leftColumn().list()->selectedLine();
}

PlannerRoom::PlannerRoom(World& world, const SharedState& state, Calendar& calendar,
                         PaneSwitch& panes, EntryWriter& entries,
                         std::function<void(const std::string& utf8Text)> endProgram)
    : world_(world),
      calendar_(calendar),
      SSYear1(new SSYear(world.locale, world.codePage, dateOf(world.clock.now()))),
      Picture6(SSYear1, calendar.desk().floor()),
      day_(calendar.day()),
      month_(*calendar.leftColumn().month()),
      year_(*SSYear1),
      scheduleTimes_(scheduleTexts_, world.messages, world.clock),
      week_(world, month_, calendar),
      desk_(
          calendar, Picture6, panes, [this] { openSchedule(); }, week_, std::move(endProgram)),
      patient_(world.loop, calendar.status(), input_),
      places_(accessReader_, world.messages, world.codePage, world.files,
              [this](const std::function<void()>& work) { runPatiently(work); }),
      source_(world.files),
      store_(world.codePage, world.clock, source_),
      countingStore_(world.codePage, world.clock, source_, std::chrono::milliseconds(0)),
      count_(store_, countingStore_),
      planner_(store_, {day_, month_, year_, desk_}, calendar.status(), world.settings, world.clock,
               world.locale),
      folder_({world.locations, places_, store_, planner_, desk_, world.messages, calendar.status(),
               world.codePage}),
      scheduling_({state, entries, store_, planner_, day_, month_, desk_, scheduleTexts_,
                   world.messages, world.loop, world.clock, world.locale, calendar.status()}) {
    connectControls();
    makeSchedulingMenu();
    QObject::connect(&calendar, &Calendar::smallChanged, &connections_, [this](bool small) {
        if (Picture6.isVisible())
            Picture6.setPlace(calendar_.desk().paneCorner(), small);
    });
    QObject::connect(&calendar.day(), &SSDay::characterReplaced, &connections_,
                     [this] { calendar_.status().show(kCharacterReplaced); });
}

// The month outlives the room.
PlannerRoom::~PlannerRoom() {
    calendar_.leftColumn().month()->setCounter({});
}

void PlannerRoom::runPatiently(const std::function<void()>& work) {
    if (calendar_.isVisible())
        patient_.run(work);
    else
        patient_.runAlone(work);
}

void PlannerRoom::connectControls() {
    LeftColumn& column = calendar_.leftColumn();
    connectPlanner({.day = calendar_.day(),
                    .month = *column.month(),
                    .year = *SSYear1,
                    .yearButton = *column.yearButton(),
                    .selectedLine = [this] { return desk_.SelectedLine(); },
                    .popUpSchedulingMenu = [this] { popUpSchedulingMenu(); }},
                   planner_, connections_);
    calendar_.day().setEmptyText(QStringLiteral("No appointments on this day."));
    const auto appointmentsOn = [this](std::chrono::year_month_day day) { return count_.of(day); };
    column.month()->setCounter(appointmentsOn);
    SSYear1->setCounter(appointmentsOn);
    QObject::connect(&calendar_, &Calendar::clockTicked, &connections_, [this] { tick(); });
    QObject::connect(column.month(), &SSMonth::selectionChanged, &connections_,
                     [this] { showNow(); });
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer})
        QObject::connect(calendar_.rail().paneButton(pane), &PaneButton::entryDropped,
                         &connections_, [this] { popUpSchedulingMenu(); });
    QObject::connect(column.list(), &EntryList::dragBegins, &connections_,
                     [this] { warnOfEmptyPlanner(); });
}

void PlannerRoom::openSchedule() {
    if (!scheduleForm_) {
        scheduleForm_ = std::make_unique<Schedule>(scheduleTimes_, &calendar_);
        QObject::connect(scheduleForm_.get(), &Schedule::applied, &connections_, [this] {
            commitEditors();  // the new appointment loads the day anew
            scheduling_.OnApplied();
        });
    }
    scheduleForm_->present();
}

void PlannerRoom::makeSchedulingMenu() {
    // In the menu bar, though never seen there, so that assistive tools find its items.
    Chmenu = new QMenu(calendar_.menuBar());
    Chmenu->setObjectName(QStringLiteral("Chmenu"));
    calendar_.menuBar()->addMenu(Chmenu);
    Chmenu->menuAction()->setVisible(false);
    for (const ScheduleCommandInfo& info : kScheduleCommands) {
        QAction* item = Chmenu->addAction(QString::fromLatin1(info.caption));
        item->setObjectName(QString::fromLatin1(info.menu));
        QObject::connect(item, &QAction::triggered, &connections_,
                         [this, &info] { scheduling_.Start(info.command); });
    }
}

QList<QAction*> PlannerRoom::schedulingCommands() const {
    return Chmenu->actions();
}

void PlannerRoom::warnOfEmptyPlanner() {
    if (count_.isEmpty())
        calendar_.status().show(kPlannerIsEmpty);
}

void PlannerRoom::popUpSchedulingMenu() {
    // Queued: the drag has to be over before the menu takes the pointer.
    QTimer::singleShot(0, &connections_, [this] { Chmenu->popup(QCursor::pos()); });
}

void PlannerRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::totoday, [this] { planner_.GoToToday(); });
    commands.bind(Commands::weekat, [this] { week_.present(); });
}

void PlannerRoom::openDatabase() {
    // A folder that Velmora begins to keep data in gets its two databases, once.
    const std::string& folder = world_.locations.programFolder();
    const NativePath planner = world_.files.nativePath(folder + kPlannerDatabaseFile);
    const NativePath blank = world_.files.nativePath(folder + kBlankDatabaseFile);
    if (kindOfDatabase(planner) == DatabaseKind::Missing &&
        kindOfDatabase(blank) == DatabaseKind::Missing) {
        ignoringErrors([&] { layDownDatabase(planner); });
        ignoringErrors([&] { layDownDatabase(blank); });
    }
    folder_.OpenAtStart();
    planner_.TakeOver();
}

void PlannerRoom::moveTo(const std::string& folder) {
    commitEditors();
    folder_.Move(folder);
}

void PlannerRoom::colourCalendars() {
    planner_.SetCalendarStyleSets();
    planner_.BeginColours();
    // What is posted at the first paint runs before anything is painted again.
    QObject::connect(&calendar_, &Calendar::firstPainted, &connections_,
                     [this] { world_.loop.post(colouring_, [this] { planner_.UpdateDays(); }); });
}

void PlannerRoom::showAnew() {
    commitEditors();
    planner_.UpdateDays();
    planner_.LoadDayTasks();
    planner_.RefreshControls();
}

void PlannerRoom::commitEditors() {
    calendar_.day().commitEditor();
    planner_.KeepUnstored();
}

void PlannerRoom::tick() {
    const auto today = dateOf(world_.clock.now());
    SSMonth* month = calendar_.leftColumn().month();
    if (month->today() != today) {
        month->setToday(today);
        SSYear1->setToday(today);
    }
    showNow();
    planner_.TryAgain();
    scheduling_.TryAgain();
}

void PlannerRoom::showNow() {
    const Moment now = world_.clock.now();
    const bool todayShown = calendar_.leftColumn().month()->date() == dateOf(now);
    calendar_.day().setNow(
        todayShown ? std::optional(std::chrono::floor<std::chrono::minutes>(timeOfDay(now)))
                   : std::nullopt);
}

}  // namespace velmora
