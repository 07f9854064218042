#include "telephony/ExternalDialer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakeProgramStarter.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ExternalDialerTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    test::FakeProgramStarter starter;
    test::FakeKeystrokeSender keys;
    ExternalDialer dialer{settings, files, starter, keys, codePage, "/usr/bin"};
};

TEST_F(ExternalDialerTest, StartsThePathAsItIsWithoutANumber) {
    files["/opt/my dialer -x"] = "";
    settings.Save("Dialer", " /opt/my dialer -x ");
    dialer.start("555");
    EXPECT_THAT(starter.started, ElementsAre("/opt/my dialer -x"));
    EXPECT_THAT(keys.sent, IsEmpty());
}

TEST_F(ExternalDialerTest, AProgramThatIsNotThereIsNotStarted) {
    settings.Save("Dialer", "/opt/gone");
    dialer.start("555");
    EXPECT_THAT(starter.started, IsEmpty());
}

TEST_F(ExternalDialerTest, TheDesktopsOwnDialerGetsTheNumberByKeys) {
    dialer.start(" 555 ");
    EXPECT_THAT(starter.started, IsEmpty());
    files["/usr/bin\\dialer.exe"] = "";
    dialer.start(" 555 ");
    EXPECT_THAT(starter.started, ElementsAre("/usr/bin\\dialer.exe"));
    settings.Save("Dialer", "/opt/DIALER.EXE");
    dialer.start("7");
    EXPECT_THAT(keys.sent, ElementsAre("%N", "555, waited for", "%N", "555, waited for", "%N",
                                       "7, waited for"));
}

}  // namespace
}  // namespace velmora
