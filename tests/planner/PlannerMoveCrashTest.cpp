#include <gtest/gtest.h>
#include <poll.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <random>

#include "core/Preferences.h"
#include "planner/PlannerFolder.h"
#include "planner/sqlite/PlannerFiles.h"
#include "platform/files/PosixFiles.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/ChildOfTest.h"
#include "support/FakeAccessReader.h"
#include "support/FakeMessages.h"
#include "support/FakeSound.h"
#include "support/PlannerFixture.h"
#include "support/Soak.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;
using std::chrono::steady_clock;

constexpr int kRows = 150;

// A database of some 300 kB whose rows all say `text`.
void layDown(const std::string& path, const std::string& text) {
    layDownDatabase(NativePath(path));
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    database.execute("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                     std::to_string(kRows) +
                     ") INSERT INTO appoint SELECT '2026-01-01 08:00:00', '2026-03-12', "
                     "'', '', '" +
                     text + std::string(2000, 'x') + "', '' FROM n");
}

// What all rows of a sound database say up to its x, "none" without a file, and otherwise what is
// wrong with it.
std::string contentOf(const std::string& path) {
    if (!fs::exists(path))
        return "none";
    sqlite::Database database(NativePath(path), sqlite::Access::ReadWrite);
    auto check = database.prepare("PRAGMA integrity_check");
    if (!check.step() || check.text(0) != "ok")
        return "damaged";
    const auto rows = test::rawRows(path);
    if (rows.size() != kRows)
        return "rows: " + std::to_string(rows.size());
    for (const auto& row : rows)
        if (row[4] != rows[0][4])
            return "mixed";
    return rows[0][4].substr(0, rows[0][4].find('x'));
}

// A copy of the program with its settings and its planner, as far as Preferences need them.
class Copy {
  public:
    explicit Copy(const test::TemporaryFolder& folder)
        : folder_(folder), planner_(folder.file("own/qel.mdb")) {}

    bool applyFolder(const std::string& shared) {
        PreferenceValues values = preferences_.shown();
        values.at(preferenceRowOf("Calendar")) = shared;
        return preferences_.apply(values);
    }

    // The planner that the next start opens.
    [[nodiscard]] std::string opened() const {
        return files_.nativePath(locations_.PlannerDatabasePath()).utf8();
    }

  private:
    const test::TemporaryFolder& folder_;
    test::PlannerFixture planner_;
    SqliteSettings medium_{NativePath(folder_.file("settings.db"))};
    SettingsStore settings_{medium_};
    PosixFiles files_{NativePaths(CodePage::western())};
    DataLocations locations_{folder_.file("own"), settings_, files_, CodePage::western()};
    test::FakeMessages messages_;
    test::FakeSound sound_;
    test::FakeAccessReader reader_;
    PlannerFiles places_{reader_, messages_, CodePage::western(), files_,
                         [](const auto& work) { work(); }};
    PlannerFolder plannerFolder_{{locations_, places_, planner_.store, planner_.planner,
                                  planner_.desk, messages_, planner_.status, CodePage::western()}};
    Preferences preferences_{
        {settings_,
         files_,
         sound_,
         messages_,
         planner_.status,
         CodePage::western(),
         [](const auto& work) { work(); },
         "/usr/bin",
         {.movePlanner = [this](const std::string& to) { plannerFolder_.Move(to); },
          .setDayLimits = [] {}}}};
};

class PlannerMoveCrash : public testing::Test {
  protected:
    PlannerMoveCrash() {
        layDown(templates.file("own.mdb"), "own");
        layDown(templates.file("shared.mdb"), "shared");
    }

    // Folders as before the first apply.
    void begin() {
        folder.emplace();
        for (const char* name : {"own", "shared"}) {
            fs::create_directory(folder->file(name));
            fs::copy_file(templates.file(std::string(name) + ".mdb"),
                          folder->file(std::string(name) + "/qel.mdb"));
        }
    }

    // Applies the shared folder in a process of its own, and kills it after so long.
    void applyAndKill(microseconds after) {
        test::ChildOfTest child([this](const auto& report) {
            Copy copy(*folder);
            report('+');
            copy.applyFolder(folder->file("shared"));
        });
        ASSERT_EQ(child.nextReport(), '+');
        const timespec wait{.tv_sec = 0, .tv_nsec = std::chrono::nanoseconds(after).count()};
        ::ppoll(nullptr, 0, &wait, nullptr);
        child.kill();
    }

    // How long it takes undisturbed.
    microseconds wholeTime() {
        begin();
        Copy copy(*folder);
        const auto start = steady_clock::now();
        EXPECT_TRUE(copy.applyFolder(folder->file("shared")));
        return std::chrono::duration_cast<microseconds>(steady_clock::now() - start);
    }

    test::TemporaryFolder templates;
    std::optional<test::TemporaryFolder> folder;
};

TEST_F(PlannerMoveCrash, LosesNoRowAndTheNextStartOpensAWholePlanner) {
    const auto whole = wholeTime();
    std::minstd_rand random(20260312);
    std::uniform_int_distribution<microseconds::rep> moment(0, whole.count() * 3 / 2);
    int moved = 0;
    for (int round = 0; round < test::soaked(10); ++round) {
        begin();
        applyAndKill(microseconds(moment(random)));
        EXPECT_EQ(contentOf(folder->file("own/qel.mdb")), "own");
        const std::string there = contentOf(folder->file("shared/qel.mdb"));
        EXPECT_TRUE(there == "own" || there == "shared") << there;
        if (there == "own") {
            EXPECT_EQ(contentOf(folder->file("shared/qel.previous.mdb")), "shared");
            ++moved;
        }
        Copy next(*folder);
        const std::string opened = contentOf(next.opened());
        EXPECT_TRUE(opened == "own" || opened == "shared") << opened;

        // And nothing is in the way of the same once more, nor left behind.
        ASSERT_TRUE(next.applyFolder(folder->file("shared")));
        EXPECT_EQ(contentOf(folder->file("shared/qel.mdb")), "own");
        EXPECT_EQ(contentOf(folder->file("shared/qel.previous.mdb")), "shared");
        EXPECT_EQ(std::distance(fs::directory_iterator(folder->file("shared")), {}), 2);
    }
    RecordProperty("moved", moved);
}

}  // namespace
}  // namespace velmora
