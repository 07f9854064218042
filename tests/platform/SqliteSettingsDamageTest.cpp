#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/Failure.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/ChildProcess.h"
#include "support/OrdinaryUser.h"
#include "support/SmallDisk.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

namespace fs = std::filesystem;

constexpr int kCanNotMount = 77;
constexpr std::size_t kPage = 4096;

class SqliteSettingsDamage : public testing::Test {
  protected:
    // A settings file with some rows, its log written back into it.
    void lay(const std::string& name = "settings.db") const {
        SqliteSettings settings{NativePath(folder.file(name))};
        settings.batch([&] {
            settings.save("Yellow", "/share");
            for (int i = 0; i < 400; ++i)
                settings.save("Alarms\\" + std::to_string(1000 + i) + "M", std::string(40, 'x'));
            settings.save("White", "/white");
        });
    }
    void layDatabase(const char* sql) const {
        sqlite::Database(NativePath(path), sqlite::Access::ReadWriteOrCreate).execute(sql);
    }
    void expectPutAside() const {
        SqliteSettings settings{NativePath(path)};
        EXPECT_TRUE(settings.putAside());
        EXPECT_FALSE(settings.whyReadOnly());
        EXPECT_TRUE(folder.has("settings.db.damaged"));
        settings.save("A", "1");
        EXPECT_EQ(settings.read("A"), "1");
    }

    test::TemporaryFolder folder;
    std::string path = folder.file("settings.db");
};

TEST_F(SqliteSettingsDamage, AForeignDatabaseIsPutAside) {
    layDatabase("CREATE TABLE appoint(a)");
    expectPutAside();
}

TEST_F(SqliteSettingsDamage, AForeignTableOfTheNameIsPutAside) {
    layDatabase("CREATE TABLE settings(name TEXT, content TEXT)");
    expectPutAside();
}

TEST_F(SqliteSettingsDamage, AViewOrATriggerBesideTheTableIsPutAside) {
    lay();
    layDatabase("CREATE TRIGGER t AFTER INSERT ON settings BEGIN DELETE FROM settings; END");
    expectPutAside();
}

// Whatever byte of the head or of the table's description flips: the settings are there, or put
// aside and begun anew; nobody is locked out.
TEST_F(SqliteSettingsDamage, AnyFlippedByteOfTheHeadIsReadOrPutAside) {
    lay();
    const std::string whole = folder.read("settings.db");
    const std::size_t schema = whole.find("CREATE TABLE");
    ASSERT_NE(schema, std::string::npos);
    const auto flip = [&](std::size_t at) {
        std::string bytes = whole;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x04);
        fs::remove_all(path + ".damaged");
        fs::remove(path + "-wal");
        fs::remove(path + "-shm");
        folder.write("settings.db", bytes);
        SqliteSettings settings{NativePath(path)};
        EXPECT_FALSE(settings.whyReadOnly()) << "byte " << at << ": " << *settings.whyReadOnly();
        if (!settings.putAside())
            EXPECT_EQ(settings.read("White"), "/white") << "byte " << at;
        try {
            settings.save("A", "1");
        } catch (const Failure& failure) {
            ADD_FAILURE() << "byte " << at << ": " << failure.what();
        }
        EXPECT_EQ(settings.read("A"), "1") << "byte " << at;
    };
    for (std::size_t at = 0; at < 108; ++at)
        flip(at);
    for (std::size_t at = schema; at < kPage; at += 7)
        flip(at);
}

TEST_F(SqliteSettingsDamage, APageThatCanNotBeReadIsToldToWhoeverAsks) {
    lay();
    std::string bytes = folder.read("settings.db");
    const std::size_t page = bytes.find("/white");
    ASSERT_NE(page, std::string::npos);
    const std::size_t begin = page / kPage * kPage;
    bytes.replace(begin, 8, std::string(8, '\x7F'));
    folder.write("settings.db", bytes);
    const SqliteSettings settings{NativePath(path)};
    EXPECT_EQ(settings.read("White"), "");
    EXPECT_THROW((void)settings.readOrFail("White"), Failure);
}

TEST_F(SqliteSettingsDamage, AFileThatMayOnlyBeReadIsReadUntilItMayBeWritten) {
    lay();
    fs::permissions(path, fs::perms(0444));
    fs::create_directory(folder.file("locked"));
    fs::rename(path, folder.file("locked/settings.db"));
    fs::permissions(folder.file("locked"), fs::perms(0555));
    {
        const test::OrdinaryUser user(folder.path());
        SqliteSettings settings{NativePath(folder.file("locked/settings.db"))};
        EXPECT_TRUE(settings.whyReadOnly());
        EXPECT_FALSE(settings.putAside());
        EXPECT_EQ(settings.readOrFail("yellow"), "/share");
        EXPECT_EQ(settings.readAll("Alarms\\").size(), 400U);
        EXPECT_THROW(settings.save("A", "1"), Failure);
        EXPECT_THROW(settings.batch([&] { settings.save("A", "1"); }), Failure);
        EXPECT_EQ(settings.read("A"), "");
    }
    SqliteSettings settings{NativePath(folder.file("locked/settings.db"))};
    fs::permissions(folder.file("locked"), fs::perms(0777));
}

TEST_F(SqliteSettingsDamage, AFileThatMayNotBeReadIsNoEmptyOne) {
    lay();
    fs::permissions(path, fs::perms(0));
    const test::OrdinaryUser user(folder.path());
    const SqliteSettings settings{NativePath(path)};
    EXPECT_TRUE(settings.whyReadOnly());
    EXPECT_FALSE(settings.putAside());
    EXPECT_EQ(settings.read("Yellow"), "");
    EXPECT_THROW((void)settings.readOrFail("Yellow"), Failure);
    EXPECT_THROW((void)settings.readAll("Alarms\\"), Failure);
}

TEST_F(SqliteSettingsDamage, WithoutAFolderThereAreNoSettings) {
    SqliteSettings settings{NativePath(folder.file("missing/settings.db"))};
    EXPECT_TRUE(settings.whyReadOnly());
    EXPECT_EQ(settings.readOrFail("Yellow"), "");
    EXPECT_THROW(settings.save("A", "1"), Failure);
    fs::create_directory(folder.file("missing"));
    settings.save("A", "1");
    EXPECT_FALSE(settings.whyReadOnly());
    EXPECT_EQ(settings.read("A"), "1");
}

// In a process of its own, on a disk without room. Returns 0 or the step that went wrong.
int useFullDisk(const test::TemporaryFolder& folder) {
    const NativePath path(folder.file("settings.db"));
    {
        std::ofstream filler(folder.file("filler"), std::ios::binary);
        const std::string block(4096, 'x');
        while (filler.write(block.data(), static_cast<std::streamsize>(block.size())).flush()) {
        }
    }
    SqliteSettings settings{path};
    if (settings.putAside() || !settings.whyReadOnly())
        return 2;
    if (settings.readOrFail("Yellow") != "/share" || settings.readAll("Alarms\\").size() != 400)
        return 3;
    try {
        settings.save("A", "1");
        return 4;
    } catch (const Failure&) {
    }
    fs::remove(folder.file("filler"));
    settings.save("A", "1");
    return settings.whyReadOnly() || settings.read("A") != "1" ? 5 : 0;
}

TEST_F(SqliteSettingsDamage, AFullDiskIsReadUntilItHasRoom) {
    test::ChildProcess child([&] {
        if (!test::mountSmallDisk(folder.path(), "8m"))
            return kCanNotMount;
        lay();
        return useFullDisk(folder);
    });
    const int code = child.wait();
    if (code == kCanNotMount)
        GTEST_SKIP() << "this system lets no test mount a small disk";
    EXPECT_EQ(code, 0);
}

}  // namespace
}  // namespace velmora
