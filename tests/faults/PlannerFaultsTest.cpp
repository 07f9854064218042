// Every change to the planner's database, with each call of the system that it makes failing once.

#include <gtest/gtest.h>

#include <filesystem>

#include "faults/Operation.h"
#include "planner/sqlite/AccessConversion.h"
#include "planner/sqlite/PlannerDatabaseMove.h"
#include "platform/Failure.h"
#include "support/FakeAccessReader.h"
#include "support/PlannerFixture.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::Call;
using test::Operation;
using test::operation;
using test::TemporaryFolder;

std::string rowsIn(const std::string& path) {
    switch (kindOfDatabase(NativePath(path))) {
        case DatabaseKind::Missing:
            return "none\n";
        case DatabaseKind::Planner:
            break;
        default:
            return "foreign\n";
    }
    // With the right to write, so that what was broken off is put right.
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    auto rows = database.prepare("SELECT * FROM appoint ORDER BY rowid");
    std::string all;
    while (rows.step()) {
        for (int column = 0; column < static_cast<int>(kColumnCount); ++column)
            all += std::string(rows.text(column)) + "|";
        all += "\n";
    }
    return all + "end\n";
}

// A planner that has long been open, on a day of its own.
class PlannerWorld : private test::PlannerFixture {
  public:
    explicit PlannerWorld(const TemporaryFolder& in) : PlannerFixture(in.file("qel.mdb")) {
        add(test::rowOn("2026-03-12", 1, "first"));
        add(test::rowOn("2026-03-12", 2, "second"));
        SSMonth1.SetDate("03/12/2026");
    }

    [[nodiscard]] std::string state() const { return rowsIn(path); }

    // What failed stands on the status line; a second time it is the timer that tries.
    void create() {
        if (tried_)
            return tryAgain();
        SSDay1.tasks.push_back({"11:00 AM", "12:00 PM", "new", ""});
        telling([&] {
            planner.OnTaskEditBegin(2, false);
            planner.OnTaskEditEnd(2, false, true);
        });
    }
    void change() {
        telling([&] {
            planner.OnTaskEditBegin(0, true);
            SSDay1.tasks[0].text = "changed";
            planner.OnTaskEditEnd(0, false, true);
        });
    }
    void remove() {
        SSDay1.selected = 0;
        telling([&] { planner.OnTaskRemove(); });
    }
    AppointmentStore& appointments() {
        store.SelectAll();
        store.Refresh();
        return store;
    }

  private:
    void telling(const std::function<void()>& work) {
        tried_ = true;
        status.text.clear();
        work();
        for (const char* failed : {"is not stored yet", "could not be"})
            if (status.text.find(failed) != std::string::npos)
                throw Failure(status.text);
    }
    void tryAgain() {
        for (int call = 0; call < 20; ++call)
            planner.TryAgain();
    }

    bool tried_ = false;
};

// Nothing yet.
class NoPlannerWorld {
  public:
    explicit NoPlannerWorld(const TemporaryFolder& folder) : path(folder.file("qel.mdb")) {}
    [[nodiscard]] std::string state() const { return rowsIn(path.utf8()); }

    NativePath path;
};

// Two databases, one of which is to take the place of the other.
class TwoPlannersWorld {
  public:
    explicit TwoPlannersWorld(const TemporaryFolder& folder)
        : from(folder.file("qel.mdb")), to(folder.file("to/qel.mdb")) {
        std::filesystem::create_directory(folder.file("to"));
        for (const auto& [path, text] : {std::pair(from, "here"), std::pair(to, "there")}) {
            layDownDatabase(path);
            test::addRawRow(path.utf8(), test::rowOn("2026-03-12", 1, text));
        }
    }
    [[nodiscard]] std::string state() const { return rowsIn(from.utf8()) + rowsIn(to.utf8()); }

    NativePath from;
    NativePath to;
};

// A database of the older format.
class AccessWorld {
  public:
    explicit AccessWorld(const TemporaryFolder& folder) : path(folder.file("qel.mdb")) {
        folder.write("qel.mdb", "\0\1\0\0Standard Jet DB\0 and all the rest"s);
        reader.rows = {{"1", "2001-03-09 14:05:07", "2001-03-09 00:00:00", "11:00 AM", "1:00 PM",
                        "text", "Event"}};
    }
    [[nodiscard]] std::string state() const { return rowsIn(path.utf8()); }

    NativePath path;
    test::FakeAccessReader reader;
    AccessConversion conversion{reader};
};

const std::set<Call> kInARow{Call::Open,      Call::Read, Call::Write,
                             Call::HalfWrite, Call::Sync, Call::Remove};

std::vector<Operation> operations() {
    return {
        operation<NoPlannerWorld>(
            "ADatabaseIsLaidDown",
            {Call::Open, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename, Call::Remove},
            [](NoPlannerWorld& world) { layDownDatabase(world.path); }),
        operation<PlannerWorld>("AnAppointmentIsAdded", kInARow,
                                [](PlannerWorld& world) { world.create(); }),
        operation<PlannerWorld>("AnAppointmentIsChanged", kInARow,
                                [](PlannerWorld& world) { world.change(); }),
        operation<PlannerWorld>("AnAppointmentIsRemoved", kInARow,
                                [](PlannerWorld& world) { world.remove(); }),
        operation<PlannerWorld>("AnAppointmentIsDroppedIn", kInARow,
                                [](PlannerWorld& world) {
                                    world.appointments().Add({.tag = {},
                                                              .day = {},
                                                              .begin = "9",
                                                              .end = "10",
                                                              .text = "new",
                                                              .style = "Event"});
                                }),
        operation<TwoPlannersWorld>(
            "ThePlannerMoves",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename},
            [](TwoPlannersWorld& world) { copyPlannerDatabase(world.from, world.to); }),
        operation<AccessWorld>(
            "AnAccessDatabaseIsConverted",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename},
            [](AccessWorld& world) { (void)world.conversion.convert(world.path); }),
    };
}

class PlannerFaults : public testing::TestWithParam<Operation> {};

TEST_P(PlannerFaults, LeaveTheOldOrTheNewAndAreTold) {
    test::expectToBearFaults(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Planners, PlannerFaults, testing::ValuesIn(operations()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace velmora
