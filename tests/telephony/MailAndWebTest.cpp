#include "telephony/MailAndWeb.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/CommandLine.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeProgramStarter.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MailAndWebTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    MailAndWebTest() { list.selected = "Smith, Ann"; }

    void store(Field field, std::string_view value) {
        PhonebookRecord ann = test::personRecord("Smith", "Ann");
        ann.assign(field, value);
        yellow() = test::bytesOf(ann);
    }
    std::vector<std::string> started() { return std::exchange(starter.started, {}); }
    std::vector<std::string> opened() { return std::exchange(opener.opened, {}); }

    test::FakePhonebookPane list;
    test::FakeProgramStarter starter;
    test::FakeSystemOpener opener;
    test::FakeMessages messages;
    SelectedEntry entry{state, PhonebookFixture::store, list};
    MailAndWeb commands{{settings,
                         entry,
                         files,
                         starter,
                         opener,
                         messages,
                         codePage,
                         {"https://home.example/", "desk@home.example"},
                         "/velmora"}};
};

TEST_F(MailAndWebTest, TheNamedMailProgramGetsItsSettingsAndNotTheAddress) {
    store(Field::EMail, "ann@home.example");
    settings.Save("EMail", "/usr/bin/post");
    settings.Save("EMailSettings", " /n \"two words\" ");
    commands.mailToEntry();
    EXPECT_THAT(started(), ElementsAre("/usr/bin/post|/n|two words"));
}

TEST_F(MailAndWebTest, TwoKindsOfMailProgramsAreToldByTheirPath) {
    store(Field::EMail, "ann@home.example");
    settings.Save("EmailSettings", "/x");
    for (const auto& [path, line] :
         {std::pair{"/opt/Eudora/mail", "/opt/Eudora/mail|mailto:ann@home.example"},
          {"/opt/EXCHNG32", "/opt/EXCHNG32|/n"},
          {"/opt/eudora-exch", "/opt/eudora-exch|/n"}}) {
        settings.Save("Email", path);
        commands.mailToEntry();
        EXPECT_THAT(started(), ElementsAre(line));
    }
}

TEST_F(MailAndWebTest, ATrailingNulOfASettingIsDropped) {
    settings.Save("Email", std::string("/usr/bin/post\0", 14));
    settings.Save("EmailSettings", std::string("/n\0", 3));
    commands.mailToEntry();
    EXPECT_THAT(started(), ElementsAre("/usr/bin/post|/n"));
}

TEST_F(MailAndWebTest, WithoutAMailProgramNothingIsStarted) {
    settings.Save("EmailSettings", "/usr/bin/evil");
    commands.mailToEntry();
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(MailAndWebTest, TheDesktopGetsTheAddressWhenTheSwitchIsOn) {
    store(Field::EMail, "ann@home.example");
    settings.Save("IEEnhanced", " yes ");
    commands.mailToEntry();
    list.selected = "Nobody, Here";
    commands.mailToEntry();
    EXPECT_THAT(opened(), ElementsAre("mailto:ann@home.example", "mailto:"));
    EXPECT_THAT(started(), IsEmpty());
}

TEST_F(MailAndWebTest, AnEmptySwitchMeansTheNamedPrograms) {
    settings.Save("Browser", "/usr/bin/browser");
    for (const char* off : {"", "NO", "ON"}) {
        settings.Save("IEEnhanced", off);
        commands.goToEntrysPage();
        EXPECT_THAT(started(), ElementsAre("/usr/bin/browser")) << off;
    }
    EXPECT_THAT(opened(), IsEmpty());
}

TEST_F(MailAndWebTest, ThePageIsOneArgumentOfTheBrowserAndNeverAnOption) {
    settings.Save("Browser", "/usr/bin/browser --new");
    starter.known = {"/usr/bin/browser"};
    for (const auto& [page, line] :
         {std::pair{"www.home.example", "/usr/bin/browser|--new|www.home.example"},
          {"a b\"; $(rm) | 'c' %x", "/usr/bin/browser|--new|a b\"; $(rm) | 'c' %x"},
          {"-private", "/usr/bin/browser|--new"},
          {"", "/usr/bin/browser|--new"}}) {
        store(Field::WebPage, page);
        commands.goToEntrysPage();
        EXPECT_THAT(started(), ElementsAre(line));
    }
}

TEST_F(MailAndWebTest, TheDesktopGetsThePageAsAnAddress) {
    settings.Save("IEEnhanced", "YES");
    for (const char* page :
         {"www.home.example", "https://home.example/", "-x", "", "file:///etc/passwd", "FILE:x",
          "/etc/evil.desktop", "localhost:8080/x"}) {
        store(Field::WebPage, page);
        commands.goToEntrysPage();
    }
    EXPECT_THAT(opened(),
                ElementsAre("http://www.home.example", "https://home.example/", "http://-x",
                            "http:///etc/evil.desktop", "http://localhost:8080/x"));
}

TEST_F(MailAndWebTest, TheAttachedFileIsOpenedByItsWholePath) {
    for (const char* switchValue : {"YES", "NO"}) {
        settings.Save("IEEnhanced", switchValue);
        for (const char* file : {"/home/letter.txt", " notes/a b.txt ", "-rf", "https://x.example/",
                                 "C:\\docs\\a.txt", ""}) {
            store(Field::FileAttachment, file);
            commands.openEntrysFile();
        }
        EXPECT_THAT(opened(),
                    ElementsAre("/home/letter.txt", "/velmora/notes/a b.txt", "/velmora/-rf",
                                "https://x.example/", "/velmora/C:\\docs\\a.txt"));
    }
}

TEST_F(MailAndWebTest, TheBareCommandsTellWhenNothingIsSetAndTryAllTheSame) {
    settings.Save("EMail", "x");
    commands.runMailProgram();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("warn|Please Click Setup|In order to run this application, please "
                            "specify it in Setup."));
    EXPECT_THAT(started(), ElementsAre("x"));
    commands.runBrowser();
    EXPECT_EQ(messages.takeShown().size(), 1U);
    EXPECT_THAT(started(), IsEmpty());
    settings.Save("Browser", " /usr/bin/browser ");
    commands.runBrowser();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_THAT(started(), ElementsAre("/usr/bin/browser"));
}

TEST_F(MailAndWebTest, TheBareCommandsLeaveItToTheDesktopWhenTheSwitchIsOn) {
    settings.Save("IEEnhanced", "YES");
    commands.runMailProgram();
    commands.runBrowser();
    EXPECT_THAT(opened(), ElementsAre("mailto:", "https://home.example/"));
}

TEST_F(MailAndWebTest, TheLinksOfTheAboutBoxGoTheSameWays) {
    settings.Save("IEEnhanced", "YES");
    commands.goToHomePage();
    commands.mailToProduct();
    EXPECT_THAT(opened(), ElementsAre("https://home.example/", "mailto:desk@home.example"));
    settings.Save("IEEnhanced", "NO");
    settings.Save("Browser", "/usr/bin/browser");
    settings.Save("EMail", "/usr/bin/post");
    commands.goToHomePage();
    commands.mailToProduct();
    EXPECT_THAT(started(), ElementsAre("/usr/bin/browser|https://home.example/", "/usr/bin/post"));
}

TEST(CommandLine, ArgumentsAreSplitAtBlanksAndQuotesKeepThemTogether) {
    EXPECT_THAT(splitArguments(""), IsEmpty());
    EXPECT_THAT(splitArguments("  a  b "), ElementsAre("a", "b"));
    EXPECT_THAT(splitArguments("\"a b\" c\"d e\"f \"\""), ElementsAre("a b", "cd ef", ""));
    EXPECT_THAT(splitArguments("$HOME *.txt ; & | < > \\x 'y z'"),
                ElementsAre("$HOME", "*.txt", ";", "&", "|", "<", ">", "\\x", "'y", "z'"));
    EXPECT_THAT(splitArguments("\"open end"), ElementsAre("open end"));
}

TEST(CommandLine, TheProgramIsQuotedOrAFileOrTheShortestBeginningThatIsFound) {
    test::PhonebookFixture world;
    test::FakeProgramStarter starter;
    world.files["/opt/my mail"] = "";
    starter.known = {"/opt/mail", "/opt/mail program", "browser"};
    const auto read = [&](const char* setting) {
        const CommandLine line = readCommandLine(setting, world.files, starter);
        std::string text = line.program;
        for (const std::string& argument : line.arguments)
            text += "|" + argument;
        return text;
    };
    EXPECT_EQ(read("\"/opt/my mail\" -x \"y z\""), "/opt/my mail|-x|y z");
    EXPECT_EQ(read(" /opt/my mail "), "/opt/my mail");
    EXPECT_EQ(read("/opt/mail program file"), "/opt/mail|program|file");
    EXPECT_EQ(read("browser --new"), "browser|--new");
    EXPECT_EQ(read("/none such"), "/none such");
    EXPECT_EQ(read(""), "");
    EXPECT_EQ(read("\"open"), "open");
    EXPECT_EQ(read("\"\" x"), "|x");
}

}  // namespace
}  // namespace velmora
