#include "telephony/WinFax.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeProgramStarter.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// All that stands around the hand-off, which write down together what is done to them.
class FakeFaxDesk final : public DdeLink,
                          public WindowActivator,
                          public PrinterDrivers,
                          public CallerWatch,
                          public FaxQuestion,
                          public PadPrinter {
  public:
    void setTopic(const std::string& topic) override { talk("topic " + topic); }
    void setItem(const std::string& item) override { talk("item " + item); }
    void open() override { talk("open"); }
    void execute(const std::string& command) override { talk(command); }
    void reset() override { done.emplace_back("reset"); }
    bool activate(const std::string& title) override {
        done.push_back("activate " + title);
        return running;
    }
    [[nodiscard]] std::string current() const override { return "laser.drv"; }
    [[nodiscard]] std::vector<std::string> names() const override {
        return {"laser.drv", "WinFax.drv", "winfax2.drv"};
    }
    void makeCurrent(const std::string& driver) override { done.push_back("driver " + driver); }
    [[nodiscard]] bool enabled() const override { return true; }
    void enable(bool on) override { done.emplace_back(on ? "watch on" : "watch off"); }
    [[nodiscard]] Answer ask(const std::string& title, const std::string& text) override {
        done.push_back(title + "|" + text);
        return answer;
    }
    [[nodiscard]] bool PrintDocPad() override {
        done.emplace_back("DocPad");
        return true;
    }

    bool running = true, deaf = false;
    Answer answer = Answer::Yes;
    std::vector<std::string> done;

  private:
    void talk(const std::string& what) {
        done.push_back(what);
        if (deaf)
            throw Failure("Nobody listens.");
    }
};

class WinFaxTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    WinFaxTest() {
        PhonebookRecord ann = test::formRecord("Smith", "Ann", "Acme");
        ann.assign(Field::Title, "Ms.");
        ann.assign(Field::Fax, "555-1212");
        yellow() = test::bytesOf(ann);
        pane.selected = "Smith, Ann";
    }

    WinFax withLink(DdeLink& link) {
        return WinFax({desk.status, fax, fax, fax, settings, programs, entry, link, fax, fax,
                       desk.printing, store.codePage()});
    }

    test::PrintDesk desk;
    test::FakePhonebookPane pane;
    SelectedEntry entry{state, store, pane};
    test::FakeProgramStarter programs;
    FakeFaxDesk fax;
    WinFax winFax = withLink(fax);
};

TEST_F(WinFaxTest, HandsTheEntryAndTheTextOverInOrder) {
    winFax.SendFaxWinFax();
    EXPECT_THAT(
        fax.done,
        ElementsAre("watch off", "activate Delrina WinFax PRO", "driver WinFax.drv",
                    "topic FAXMNG|Transmit", "item Sendfax", "open",
                    R"(recipient("555-1212",,,"Ms. Ann Smith","Acme",""))", R"(resolution("high"))",
                    "Fax?|Fax DocPad's contents? If NO, you must specify attachments.", "DocPad",
                    "reset", "driver laser.drv", "watch on"));
    EXPECT_EQ(desk.status.text, "Please Wait While Settings Are Reset.");
}

TEST_F(WinFaxTest, AnsweredNoItPrintsAShortPage) {
    fax.answer = FaxQuestion::Answer::No;
    winFax.SendFaxWinFax();
    EXPECT_THAT(fax.done, ::testing::Contains(R"(showsendscreen("1"))"));
    EXPECT_THAT(desk.printer.takeDump(),
                ::testing::AllOf(HasSubstr("Ms. Ann Smith"), HasSubstr("Acme"),
                                 HasSubstr("Fax Number: 555-1212")));
}

TEST_F(WinFaxTest, CalledOffItSendsNothingMore) {
    fax.answer = FaxQuestion::Answer::Cancel;
    winFax.SendFaxWinFax();
    EXPECT_THAT(fax.done, ::testing::Not(::testing::Contains("DocPad")));
    EXPECT_EQ(desk.printer.jobsSent(), 0U);
    EXPECT_EQ(fax.done.back(), "watch on");
}

TEST_F(WinFaxTest, AFaxProgramThatDoesNotRunIsStartedFromItsFolder) {
    fax.running = false;
    settings.Save("Destination", std::string(" /fax/\0", 7));
    programs.known = {"/fax/Faxmng32.EXE"};
    winFax.SendFaxWinFax();
    EXPECT_THAT(programs.started, ElementsAre("/fax/Faxmng32.EXE"));
    EXPECT_EQ(fax.done[2], "activate Velmora");
    EXPECT_EQ(fax.done[3], "driver WinFax.drv");
}

TEST_F(WinFaxTest, OneThatCanNotBeStartedOnlyPutsTheWatchBack) {
    fax.running = false;
    winFax.SendFaxWinFax();
    EXPECT_THAT(fax.done, ElementsAre("watch off", "activate Delrina WinFax PRO", "watch on"));
    EXPECT_EQ(desk.status.text, "Please Wait.");
}

TEST_F(WinFaxTest, WhereNobodyTalksNothingIsSentAndTheDriverStays) {
    NoDdeLink none;
    WinFax here = withLink(none);
    here.SendFaxWinFax();
    EXPECT_THAT(fax.done, ElementsAre("watch off", "activate Delrina WinFax PRO",
                                      "driver WinFax.drv", "watch on"));
    EXPECT_EQ(desk.status.text, "Please Wait While Settings Are Reset.");
    EXPECT_THAT(desk.messages.takeShown(), IsEmpty());
}

}  // namespace
}  // namespace velmora
