#include "planner/AnnouncedAlarms.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "support/FakeAlarmWindows.h"
#include "support/FakeNotices.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class AnnouncedAlarmsTest : public ::testing::Test {
  protected:
    const CodePage codePage = CodePage::forLocale("en_US");
    test::FakeAlarmWindows windows;
    test::FakeNotices notices;
    AnnouncedAlarms announced{windows, notices, codePage};
};

TEST_F(AnnouncedAlarmsTest, AnAlertHasANoticeThatSaysWhatItSays) {
    announced.showAlert("Caf\xE9");
    EXPECT_EQ(windows.alert, "Caf\xE9");
    EXPECT_THAT(notices.shown, ElementsAre(Pair("alarm", "Velmora - Alarm|Caf\xC3\xA9")));
}

TEST_F(AnnouncedAlarmsTest, TheNextAlarmChangesTheNotice) {
    announced.showAlert("first");
    announced.showAlert("second\r\nfirst");
    EXPECT_THAT(notices.shown, ElementsAre(Pair("alarm", "Velmora - Alarm|second\r\nfirst")));
}

TEST_F(AnnouncedAlarmsTest, TheNoticeGoesWithTheAlert) {
    announced.showAlert("now");
    announced.closeAlert();
    EXPECT_FALSE(windows.alert);
    EXPECT_THAT(notices.shown, IsEmpty());
}

TEST_F(AnnouncedAlarmsTest, ABoxHasANoticeAsLongAsItIsOpen) {
    std::map<std::string, std::string> meanwhile;
    windows.whileOpen = [&] { meanwhile = notices.shown; };
    announced.warnAboveAll("Alarm", "Water the plants");
    EXPECT_THAT(windows.takeBoxes(), ElementsAre("Alarm|Water the plants"));
    EXPECT_THAT(meanwhile, ElementsAre(Pair("task", "Alarm|Water the plants")));
    EXPECT_THAT(notices.shown, IsEmpty());
}

TEST_F(AnnouncedAlarmsTest, TheNoticeOfABoxGoesWhenItFailsToo) {
    windows.whileOpen = [] { throw std::runtime_error("no box"); };
    EXPECT_THROW(announced.warnAboveAll("Alarm", "x"), std::runtime_error);
    EXPECT_THAT(notices.shown, IsEmpty());
}

}  // namespace
}  // namespace velmora
