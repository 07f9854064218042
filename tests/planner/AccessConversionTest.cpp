#include "planner/sqlite/AccessConversion.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <set>
#include <thread>

#include "planner/sqlite/PlannerFiles.h"
#include "platform/Failure.h"
#include "support/ChildOfTest.h"
#include "support/FakeAccessReader.h"
#include "support/FakeMessages.h"
#include "support/PlannerFixture.h"
#include "support/SamePaths.h"
#include "support/Soak.h"

namespace velmora {
namespace {

using namespace std::string_literals;
using test::RawRow;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kAccessFile = "\0\1\0\0Standard Jet DB\0 and all the rest"s;

class AccessConversionTest : public testing::Test {
  protected:
    AccessConversionTest() {
        folder.write("qel.mdb", kAccessFile);
        reader.rows = {
            {"1", "2001-03-09 14:05:07", "2001-03-09 00:00:00", "11:00 AM", "1:00 PM",
             "Gr\303\274\303\237e\r\n", "Event"},
            {"2", "2001-03-09 14:05:07", "2001-03-09 18:30:00", std::nullopt, "", "  ", "Vacation"},
            {"3", std::nullopt, std::nullopt, "x", std::nullopt, std::nullopt, std::nullopt},
        };
    }

    std::set<std::string> names() const {
        std::set<std::string> result;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            result.insert(entry.path().filename().string());
        return result;
    }

    test::TemporaryFolder folder;
    std::string path = folder.file("qel.mdb");
    test::FakeAccessReader reader;
    AccessConversion conversion{reader};
};

TEST_F(AccessConversionTest, CopiesAllRowsWithTheirSixColumns) {
    EXPECT_EQ(conversion.convert(NativePath(path)), "qel.access-original.mdb");
    EXPECT_THAT(reader.asked, ElementsAre("Appoint"));
    EXPECT_THAT(
        test::rawRows(path),
        ElementsAre(RawRow{"2001-03-09 14:05:07", "2001-03-09", "11:00 AM", "1:00 PM",
                           "Gr\xC3\xBC\xC3\x9F"
                           "e\r\n",
                           "Event"},
                    RawRow{"2001-03-09 14:05:07", "2001-03-09", "NULL", "", "  ", "Vacation"},
                    RawRow{"NULL", "NULL", "x", "NULL", "NULL", "NULL"}));
}

TEST_F(AccessConversionTest, KeepsTheOriginalBesideIt) {
    (void)conversion.convert(NativePath(path));
    EXPECT_EQ(folder.read("qel.access-original.mdb"), kAccessFile);
    EXPECT_THAT(names(), ElementsAre("qel.access-original.mdb", "qel.mdb"));
}

TEST_F(AccessConversionTest, KeepsEarlierOriginalsToo) {
    folder.write("qel.access-original.mdb", "earlier");
    EXPECT_EQ(conversion.convert(NativePath(path)), "qel.access-original-2.mdb");
    EXPECT_EQ(folder.read("qel.access-original.mdb"), "earlier");
    EXPECT_EQ(folder.read("qel.access-original-2.mdb"), kAccessFile);
}

TEST_F(AccessConversionTest, TurnsTypedTimesAndTextualDatesIntoOurs) {
    reader.described[1].fields[1].type = AccessType::Text;
    reader.described[1].fields[2].type = AccessType::Text;
    reader.described[1].fields[3].type = AccessType::DateTime;
    reader.described[1].fields[4].type = AccessType::DateTime;
    reader.rows = {{"1", "3/9/01 2:05:07 PM", "03/09/98", "1899-12-30 00:05:00",
                    "1899-12-30 14:05:00", "a", "Event"},
                   {"2", "some time", "some day", "1899-12-30 12:00:00", std::nullopt, "b", ""}};
    (void)conversion.convert(NativePath(path));
    EXPECT_THAT(test::rawRows(path),
                ElementsAre(RawRow{"2001-03-09 14:05:07", "1998-03-09", "12:05 AM", "02:05 PM", "a",
                                   "Event"},
                            RawRow{"some time", "NULL", "12:00 PM", "NULL", "b", ""}));
}

TEST_F(AccessConversionTest, ConvertsAnEmptyTable) {
    reader.rows.clear();
    (void)conversion.convert(NativePath(path));
    EXPECT_THAT(test::rawRows(path), IsEmpty());
}

TEST_F(AccessConversionTest, ChangesNothingWhenTheFileCanNotBeRead) {
    const std::function<void()> troubles[] = {
        [&] { reader.damaged = true; },
        [&] { reader.described.pop_back(); },
        [&] { reader.described[1].fields.pop_back(); },
        [&] { reader.rows[1].pop_back(); },
        [&] {
            reader.beforeRow = [](std::size_t i) {
                if (i == 2)
                    throw Failure("damaged");
            };
        },
        [&] { reader.atEnd = [] { throw Failure("damaged at the end"); }; },
    };
    const auto before = reader;
    for (const auto& trouble : troubles) {
        reader = before;
        trouble();
        EXPECT_THROW((void)conversion.convert(NativePath(path)), Failure);
        EXPECT_EQ(folder.read("qel.mdb"), kAccessFile);
        EXPECT_THAT(names(), ElementsAre("qel.mdb"));
    }
}

TEST_F(AccessConversionTest, LeavesAFileAloneThatAnotherCopyConverts) {
    test::ChildOfTest first([&](const auto& report) {
        reader.atEnd = [&] { report('e'); };
        (void)conversion.convert(NativePath(path));
    });
    ASSERT_EQ(first.nextReport(), 'e');
    reader.damaged = true;  // nothing may be read a second time
    EXPECT_EQ(conversion.convert(NativePath(path)), "");
    EXPECT_TRUE(first.wait());
    EXPECT_EQ(test::rawRows(path).size(), 3U);
    EXPECT_THAT(names(), ElementsAre("qel.access-original.mdb", "qel.mdb"));
}

TEST_F(AccessConversionTest, IsAllOrNothingWhenKilledBetweenRows) {
    for (std::size_t last = 0; last < 3; ++last) {
        test::ChildOfTest child([&](const auto&) {
            reader.beforeRow = [&](std::size_t i) {
                if (i == last)
                    ::raise(SIGKILL);
            };
            (void)conversion.convert(NativePath(path));
        });
        EXPECT_FALSE(child.wait());
        EXPECT_EQ(folder.read("qel.mdb"), kAccessFile);
        EXPECT_FALSE(folder.has("qel.access-original.mdb"));
    }
    EXPECT_EQ(conversion.convert(NativePath(path)), "qel.access-original.mdb");
    EXPECT_EQ(test::rawRows(path).size(), 3U);
    EXPECT_THAT(names(), ElementsAre("qel.access-original.mdb", "qel.mdb"));
}

TEST_F(AccessConversionTest, IsAllOrNothingWhenKilledBehindTheRows) {
    const int rounds = test::soaked(30);
    int converted = 0;
    for (int round = 0; round < rounds; ++round) {
        test::ChildOfTest child([&](const auto& report) {
            reader.atEnd = [&] { report('e'); };
            (void)conversion.convert(NativePath(path));
            report('d');
        });
        ASSERT_EQ(child.nextReport(), 'e');
        // Each round leaves the child a little more of its way; the last one all of it.
        if (round == rounds - 1) {
            EXPECT_EQ(child.nextReport(), 'd');
        }
        const auto until =
            std::chrono::steady_clock::now() + std::chrono::microseconds(round % 100 * 100);
        while (std::chrono::steady_clock::now() < until) {
        }
        child.kill();
        if (kindOfDatabase(NativePath(path)) == DatabaseKind::Planner) {
            ++converted;
            ASSERT_EQ(test::rawRows(path).size(), 3U);
            ASSERT_TRUE(folder.has("qel.access-original.mdb"));
        } else {
            ASSERT_EQ(folder.read("qel.mdb"), kAccessFile);
        }
        for (const auto& name : names())
            if (name.find("access-original") != std::string::npos) {
                ASSERT_EQ(folder.read(name), kAccessFile);
                std::filesystem::remove(folder.file(name));
            }
        folder.write("qel.mdb.new", kAccessFile);
        std::filesystem::rename(folder.file("qel.mdb.new"), path);
    }
    EXPECT_GE(converted, 1);
}

class PlannerFilesTest : public AccessConversionTest {
  protected:
    test::FakeClock clock;
    test::FakeMessages messages;
    void open(const std::string& at) {
        places.prepare(at);
        store.OpenDatabase(at);
    }

    PlannerFiles places{reader, messages, CodePage::western(), test::samePaths(),
                        [](const std::function<void()>& work) { work(); }};
    AppointmentStore store{CodePage::western(), clock, test::appointmentSource()};
};

TEST_F(PlannerFilesTest, ConvertsAndTellsTheUserOnce) {
    open(path);
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("tell|Velmora|The planner database \"" + path +
                            "\" was an Access database. Its appointments have been converted; the "
                            "original is kept beside it as \"qel.access-original.mdb\"."));
    store.SelectAll();
    store.Refresh();
    EXPECT_EQ(store.Get(Column::Desc),
              "Gr\xFC\xDF"
              "e\r\n");
    open(path);
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(PlannerFilesTest, TellsWhyAFileCanNotBeConverted) {
    reader.damaged = true;
    open(path);
    EXPECT_THAT(messages.takeShown(),
                ElementsAre(HasSubstr("warn|Velmora|The planner database \"" + path +
                                      "\" is an Access database that can not be converted.")));
    store.SelectAll();
    store.Refresh();
    EXPECT_TRUE(store.Eof());
    EXPECT_EQ(folder.read("qel.mdb"), kAccessFile);
}

TEST_F(PlannerFilesTest, SaysNothingAboutOtherFiles) {
    folder.write("qel.mdb", "noise");
    open(path);
    open(folder.file("none.mdb"));
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(store.path(), folder.file("none.mdb"));
}

}  // namespace
}  // namespace velmora
