#include "platform/sqlite/SqliteSettings.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/StorageFailure.h"
#include "platform/sqlite/Database.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::string_literals;

class SqliteSettingsTest : public ::testing::Test {
  protected:
    test::TemporaryFolder folder;
    std::string path = folder.file("settings.db");
};

TEST_F(SqliteSettingsTest, AKeyThatWasNeverWrittenReadsAsNothing) {
    const SqliteSettings settings{NativePath(path)};
    EXPECT_EQ(settings.read("White"), "");
}

TEST_F(SqliteSettingsTest, ValuesOfAnyBytesComeBackAfterReopening) {
    std::string allBytes = "  \r\n\t=\"quoted\"\\ "s;
    for (int byte = 0; byte < 256; ++byte)
        allBytes += static_cast<char>(byte);
    {
        SqliteSettings settings{NativePath(path)};
        settings.save("Tasks\\1", allBytes);
        settings.save("Empty", "");
    }
    const SqliteSettings settings{NativePath(path)};
    EXPECT_EQ(settings.read("Tasks\\1"), allBytes);
    EXPECT_EQ(settings.read("Empty"), "");
}

TEST_F(SqliteSettingsTest, TheCaseOfAKeyDoesNotCount) {
    SqliteSettings settings{NativePath(path)};
    settings.save("EMailSettings", "/n");
    EXPECT_EQ(settings.read("EmailSettings"), "/n");
    settings.save("emailsettings", "/m");
    EXPECT_EQ(settings.read("EMailSettings"), "/m");
    settings.remove("EMAILSETTINGS");
    EXPECT_EQ(settings.read("EMailSettings"), "");
}

TEST_F(SqliteSettingsTest, ABackslashInAKeyMeansNothing) {
    SqliteSettings settings{NativePath(path)};
    settings.save("Tasks", "a");
    settings.save("Tasks\\NumTasks", "2");
    settings.remove("Tasks");
    EXPECT_EQ(settings.read("Tasks\\NumTasks"), "2");
}

TEST_F(SqliteSettingsTest, ReadsAllKeysThatBeginAlikeByKey) {
    SqliteSettings settings{NativePath(path)};
    for (const char* key : {"Monthly\\1\\2M", "Monthly\\1\\1M", "MONTHLY\\1\\NumTasks",
                            "Monthly\\11\\1M", "Monthly\\", "Monthly]", "Monthlz"})
        settings.save(key, std::string("of ") + key + '\0');
    const std::vector<Setting> found = settings.readAll("monthly\\1\\");
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].key, "Monthly\\1\\1M");
    EXPECT_EQ(found[0].value, "of Monthly\\1\\1M\0"s);
    EXPECT_EQ(found[1].key, "Monthly\\1\\2M");
    EXPECT_EQ(found[2].key, "MONTHLY\\1\\NumTasks");
    EXPECT_TRUE(settings.readAll("Weekly").empty());
    EXPECT_EQ(settings.readAll("MonthlZ").size(), 1U);
    EXPECT_EQ(settings.readAll("").size(), 7U);
}

TEST_F(SqliteSettingsTest, ReadingLeavesTheOtherCopyFreeToWrite) {
    SqliteSettings first{NativePath(path)};
    SqliteSettings second{NativePath(path)};
    first.save("Tasks\\1", "a");
    first.save("Weekly", "b");
    EXPECT_EQ(first.read("Tasks\\1"), "a");
    EXPECT_EQ(first.readAll("Tasks").size(), 1U);
    second.batch([&] { second.save("Tasks\\1", "new"); });
    EXPECT_EQ(first.read("Tasks\\1"), "new");
}

TEST_F(SqliteSettingsTest, GivesUpSoonWhereAnotherCopyHoldsTheFile) {
    SqliteSettings settings{NativePath(path)};
    settings.save("A", "old");
    {
        sqlite::Database other(NativePath(path), sqlite::Access::ReadWrite);
        const sqlite::Transaction writing(other);
        const auto began = std::chrono::steady_clock::now();
        for (int i = 0; i < 3; ++i) {
            try {
                settings.save("A", "new");
                ADD_FAILURE() << "saved past a lock";
            } catch (const StorageFailure& failure) {
                EXPECT_EQ(failure.obstacle(), Obstacle::InUse);
            }
        }
        EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(2));
        EXPECT_EQ(settings.read("A"), "old");
    }
    settings.save("A", "new");
    EXPECT_EQ(settings.read("A"), "new");
}

TEST_F(SqliteSettingsTest, ABatchThatThrowsKeepsNothing) {
    SqliteSettings settings{NativePath(path)};
    settings.save("A", "old");
    EXPECT_THROW(settings.batch([&] {
        settings.save("A", "new");
        settings.batch([&] { settings.save("B", "new"); });
        throw Failure("stop");
    }),
                 Failure);
    EXPECT_EQ(settings.read("A"), "old");
    EXPECT_EQ(settings.read("B"), "");
    settings.batch([&] { settings.save("A", "new"); });
    EXPECT_EQ(settings.read("A"), "new");
}

TEST_F(SqliteSettingsTest, TwoCopiesOfTheProgramNeverLoseEachOthersKeys) {
    constexpr int kKeys = 300;
    { const SqliteSettings made{NativePath(path)}; }
    const auto saveAll = [&](const std::string& prefix) {
        // Without a pause, which no user does.
        SqliteSettings settings{NativePath(path), std::chrono::minutes(1)};
        for (int i = 0; i < kKeys; ++i)
            settings.save(prefix + std::to_string(i), "x");
    };
    const pid_t child = fork();
    if (child == 0) {
        try {
            saveAll("child");
        } catch (...) {
            _exit(1);
        }
        _exit(0);
    }
    saveAll("parent");
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    const SqliteSettings settings{NativePath(path)};
    for (int i = 0; i < kKeys; ++i) {
        EXPECT_EQ(settings.read("child" + std::to_string(i)), "x");
        EXPECT_EQ(settings.read("parent" + std::to_string(i)), "x");
    }
}

TEST_F(SqliteSettingsTest, ADamagedFileIsPutAsideAndSettingsBeginAnew) {
    folder.write("settings.db", std::string(5000, '\x5A'));
    SqliteSettings settings{NativePath(path)};
    ASSERT_TRUE(settings.putAside());
    EXPECT_EQ(folder.read("settings.db.damaged"), std::string(5000, '\x5A'));
    settings.save("A", "1");
    EXPECT_EQ(settings.read("A"), "1");
}

TEST_F(SqliteSettingsTest, TheFileIsForItsOwnerOnly) {
    SqliteSettings settings{NativePath(path)};
    settings.save("A", "1");
    for (const char* name : {"settings.db", "settings.db-wal", "settings.db-shm"}) {
        struct stat status {};
        ASSERT_EQ(stat(folder.file(name).c_str(), &status), 0) << name;
        EXPECT_EQ(status.st_mode & 07777, 0600U) << name;
    }
}

}  // namespace
}  // namespace velmora
