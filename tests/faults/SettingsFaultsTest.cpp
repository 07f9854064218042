// Every change to the settings, with each call of the system that it makes failing once.

#include <gtest/gtest.h>

#include <optional>

#include "faults/Operation.h"
#include "planner/ListShapes.h"
#include "planner/NumberedList.h"
#include "platform/sqlite/SqliteSettings.h"

namespace velmora {
namespace {

using test::Call;
using test::Operation;
using test::operation;
using test::TemporaryFolder;

std::string contentsOf(const std::string& path) {
    const SqliteSettings settings{NativePath(path)};
    std::string all = settings.putAside() ? "put aside\n" : "";
    for (const Setting& each : settings.readAll(""))
        all += each.key + "=" + each.value + "\n";
    return all;
}

// Settings that have long been open.
class SettingsWorld {
  public:
    explicit SettingsWorld(const TemporaryFolder& folder) : path_(folder.file("settings.db")) {
        medium.emplace(NativePath(path_));
        settings.emplace(*medium);
        settings->Save("A", "old");
        settings->Save("B", "old");
        NumberedList alarms(*settings, toDoLines());
        for (const char* text : {"one", "two", "three"})
            alarms.append("", text);
    }

    [[nodiscard]] std::string state() const { return contentsOf(path_); }

    std::optional<SqliteSettings> medium;
    std::optional<SettingsStore> settings;

  protected:
    std::string path_;
};

// Settings that are opened for the deed.
class ClosedSettingsWorld : public SettingsWorld {
  public:
    explicit ClosedSettingsWorld(const TemporaryFolder& folder) : SettingsWorld(folder) {
        settings.reset();
        medium.reset();
    }

    SqliteSettings open() { return SqliteSettings{NativePath(path_)}; }
};

class NoSettingsWorld {
  public:
    explicit NoSettingsWorld(const TemporaryFolder& folder)
        : path(folder.file("settings.db")), folder_(folder) {}

    [[nodiscard]] std::string state() const {
        return folder_.has("settings.db") ? contentsOf(path) : "";
    }

    std::string path;

  private:
    const TemporaryFolder& folder_;
};

const std::set<Call> kInTheLog{Call::Write, Call::HalfWrite, Call::Sync};

std::vector<Operation> operations() {
    return {
        operation<SettingsWorld>("ASettingIsSaved", kInTheLog,
                                 [](SettingsWorld& world) { world.settings->Save("A", "new"); }),
        operation<SettingsWorld>("ASettingIsRemoved", kInTheLog,
                                 [](SettingsWorld& world) { world.settings->remove("A"); }),
        operation<SettingsWorld>("SettingsAreSavedTogether", kInTheLog,
                                 [](SettingsWorld& world) {
                                     world.settings->batch([&] {
                                         world.settings->Save("A", "new");
                                         world.settings->remove("B");
                                         world.settings->Save("C", std::string(100000, 'c'));
                                     });
                                 }),
        operation<SettingsWorld>(
            "ALineIsAddedToAList", kInTheLog,
            [](SettingsWorld& world) {
                const auto isIt = [](const NumberedEntry& entry) {
                    return entry.message == "four";
                };
                NumberedList(*world.settings, toDoLines()).replaceOrAppend(isIt, "", "four");
            }),
        operation<SettingsWorld>("ALineIsTakenOutOfAList", kInTheLog,
                                 [](SettingsWorld& world) {
                                     (void)NumberedList(*world.settings, toDoLines())
                                         .remove([](const NumberedEntry& entry) {
                                             return entry.message == "one";
                                         });
                                 }),
        operation<ClosedSettingsWorld>(
            "SettingsAreOpenedAndSaved",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync},
            [](ClosedSettingsWorld& world) { world.open().save("A", "new"); }),
        operation<NoSettingsWorld>("TheFirstSettingMakesTheFile",
                                   {Call::Open, Call::Write, Call::HalfWrite, Call::Sync},
                                   [](NoSettingsWorld& world) {
                                       SqliteSettings(NativePath(world.path)).save("A", "new");
                                   }),
    };
}

class SettingsFaults : public testing::TestWithParam<Operation> {};

TEST_P(SettingsFaults, LeaveTheOldOrTheNewAndAreTold) {
    test::expectToBearFaults(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Settings, SettingsFaults, testing::ValuesIn(operations()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace velmora
