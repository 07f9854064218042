#include "telephony/AnnouncedCaller.h"

#include <gmock/gmock.h>

#include "support/FakeCallerReport.h"
#include "support/FakeNotices.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class AnnouncedCallerTest : public ::testing::Test {
  protected:
    const CodePage codePage = CodePage::forLocale("en_US");
    test::FakeCallerReport window;
    test::FakeNotices notices;
    AnnouncedCaller announced{window, notices, codePage};
};

TEST_F(AnnouncedCallerTest, ACallHasOneNoticeThatTellsItsNumber) {
    announced.present();
    announced.clearLines();
    announced.showNumber("5165551212");
    announced.addLine("Y: Adair, Ann");
    announced.present();
    EXPECT_THAT(notices.shown, ElementsAre(Pair("call", "Incoming Call|From: 5165551212")));
    EXPECT_EQ(notices.count, 1);
    EXPECT_EQ(window.presented, 2);
    EXPECT_EQ(window.number, "5165551212");
    EXPECT_TRUE(announced.hasLines());
}

TEST_F(AnnouncedCallerTest, ANumberThatIsWithheldIsToldSo) {
    announced.showNumber("");
    EXPECT_EQ(notices.shown["call"], "Incoming Call|The number is withheld.");
}

TEST_F(AnnouncedCallerTest, TheNextCallChangesTheNotice) {
    announced.showNumber("1");
    announced.showNumber("2");
    EXPECT_THAT(notices.shown, ElementsAre(Pair("call", "Incoming Call|From: 2")));
}

TEST_F(AnnouncedCallerTest, TheNoticeGoesWithTheWindow) {
    announced.showNumber("1");
    announced.closed();
    EXPECT_THAT(notices.shown, IsEmpty());
}

TEST_F(AnnouncedCallerTest, AllElseIsTheWindows) {
    announced.enableList(false);
    EXPECT_FALSE(window.listEnabled);
    announced.showCard("card", true);
    EXPECT_EQ(window.card, "card");
    EXPECT_TRUE(window.cardIsYellow);
    window.lines = {"x"};
    announced.clearLines();
    EXPECT_FALSE(announced.hasLines());
}

}  // namespace
}  // namespace velmora
