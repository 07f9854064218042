#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <optional>

#include "app/DesktopTools.h"
#include "platform/bus/SessionBus.h"
#include "support/FakeProgramStarter.h"
#include "support/TestsFolder.h"

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SessionLogOffTest : public testing::Test {
  protected:
    // Whether a session manager has taken the request.
    bool logOff() {
        std::optional<bool> taken;
        tools.logOff([&](bool answer) {
            EXPECT_FALSE(taken) << "answered twice";
            taken = answer;
        });
        EXPECT_FALSE(taken) << "answered at once";
        QDeadlineTimer limit(std::chrono::minutes(1));
        while (!taken && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        EXPECT_TRUE(taken);
        return taken.value_or(false);
    }

    test::FakeProgramStarter starter;
    DesktopTools tools{starter, CodePage::western()};
};

TEST_F(SessionLogOffTest, EachSessionManagerIsAskedInItsOwnWords) {
    const test::SessionBus bus;
    struct Row {
        const char* name;
        const char* question;
    };
    for (const Row& row :
         {Row{"org.gnome.SessionManager",
              "/org/gnome/SessionManager org.gnome.SessionManager.Logout u1"},
          Row{"org.kde.Shutdown", "/Shutdown org.kde.Shutdown.logout"},
          Row{"org.kde.LogoutPrompt", "/LogoutPrompt org.kde.LogoutPrompt.promptLogout"},
          Row{"org.xfce.SessionManager",
              "/org/xfce/SessionManager org.xfce.Session.Manager.Logout b0 b1"},
          Row{"org.lxqt.session", "/LXQtSession org.lxqt.session.logout"}}) {
        const test::BusName manager(row.name);
        EXPECT_TRUE(logOff()) << row.name;
        EXPECT_THAT(manager.asked, ElementsAre(row.question));
    }
}

TEST_F(SessionLogOffTest, WithoutASessionManagerNobodyTakesIt) {
    const test::SessionBus bus;
    EXPECT_FALSE(logOff());
    EXPECT_FALSE(logOff());
}

TEST_F(SessionLogOffTest, OneThatRefusesIsNotTheLastThatIsAsked) {
    const test::SessionBus bus;
    const test::BusName first("org.gnome.SessionManager", false);
    {
        const test::BusName second("org.xfce.SessionManager");
        EXPECT_TRUE(logOff());
        EXPECT_EQ(first.asked.size(), 1U);
        EXPECT_EQ(second.asked.size(), 1U);
    }
    EXPECT_FALSE(logOff());
}

TEST_F(SessionLogOffTest, WithoutABusNobodyTakesIt) {
    const QByteArray before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    EXPECT_FALSE(logOff());
    qputenv("DBUS_SESSION_BUS_ADDRESS", before);
}

TEST_F(SessionLogOffTest, AManagerIsStartedOnlyWhereItsDesktopRuns) {
    const test::SessionBus bus;
    const std::string record = bus.folder().file("asked");
    bus.canStart("org.kde.Shutdown", "/usr/bin/python3 " + test::testsFolder() +
                                         "/platform/bus/session_manager.py org.kde.Shutdown "
                                         "/Shutdown org.kde.Shutdown logout " +
                                         record);
    EXPECT_FALSE(logOff());
    EXPECT_FALSE(bus.folder().has("asked"));
    const test::BusName desktop("org.kde.ksmserver");
    EXPECT_TRUE(logOff());
    EXPECT_EQ(bus.folder().read("asked"), "logout");
    EXPECT_THAT(desktop.asked, IsEmpty());
}

TEST_F(SessionLogOffTest, TheSettingsProgramThatIsThereIsStarted) {
    EXPECT_FALSE(tools.openSettings());
    EXPECT_THAT(starter.started, IsEmpty());
    starter.known = {"xfce4-settings-manager", "lxqt-config"};
    EXPECT_TRUE(tools.openSettings());
    EXPECT_THAT(starter.started, ElementsAre("xfce4-settings-manager"));
}

TEST_F(SessionLogOffTest, TheFileManagerOpensTheUsersOwnFolder) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/somewhere/caf\xC3\xA9");
    tools.openFileManager();
    qputenv("HOME", home);
    EXPECT_THAT(starter.started, ElementsAre("xdg-open|/somewhere/caf\xE9"));
}

}  // namespace
}  // namespace velmora
