// The notices of the desktop and its calls of the program, on a session bus of the test's own.
#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/bus/BusApplication.h"
#include "platform/bus/BusNotices.h"
#include "platform/bus/Exchange.h"
#include "platform/bus/NoticeBoard.h"
#include "platform/qt/PollPump.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kName = "example.velmora.Test";

class DesktopBusTest : public ::testing::Test {
  protected:
    DesktopBusTest() { tick.start(20); }  // so that no wait for events lasts

    static bool eventsUntil(const std::function<bool()>& condition) {
        const QDeadlineTimer end(std::chrono::seconds(20));
        while (!condition()) {
            if (end.hasExpired())
                return false;
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
        return true;
    }

    QTimer tick;
    test::Exchange exchange;  // for its buses
};

class BusNoticesTest : public DesktopBusTest {
  protected:
    void startBoard() {
        board.emplace();
        ASSERT_TRUE(eventsUntil([&] { return board->ready; }));
    }
    void join() { pump.emplace(bus); }
    // One notice is in view at the service.
    void showOne() {
        startBoard();
        join();
        notices.show("alarm", "Title", "Text");
        awaitShown(1);
    }
    void awaitShown(std::size_t count) {
        ASSERT_TRUE(eventsUntil([&] { return board->shown.size() >= count; }));
        ASSERT_THAT(board->shown, SizeIs(count));
    }
    // Waits until the service has dealt with all that was sent so far.
    void settle() {
        const std::size_t before = board->shown.size();
        notices.show("settle", "", "");
        ASSERT_TRUE(eventsUntil([&] { return board->shown.size() > before; }));
        const std::uint32_t id = board->shown.back().id;
        notices.withdraw("settle");
        ASSERT_TRUE(
            eventsUntil([&] { return !board->closed.empty() && board->closed.back() == id; }));
        board->shown.pop_back();
        board->closed.pop_back();
    }

    std::optional<test::NoticeBoard> board;
    std::vector<std::string> clicked;
    MessageBus bus{MessageBus::Kind::Session};
    BusNotices notices{bus, kName, [this](const std::string& subject, const std::string& token) {
                           clicked.push_back(subject + "|" + token);
                       }};
    std::optional<PollPump> pump;
};

TEST_F(BusNoticesTest, ANoticeStaysUntilItIsWithdrawn) {
    showOne();
    EXPECT_EQ(board->shown[0].title, "Title");
    EXPECT_EQ(board->shown[0].text, "Text");
    EXPECT_EQ(board->shown[0].expires, 0);
    EXPECT_EQ(board->shown[0].replaces, 0U);
    settle();
    EXPECT_THAT(board->closed, IsEmpty());
    notices.withdraw("alarm");
    ASSERT_TRUE(eventsUntil([&] { return !board->closed.empty(); }));
    EXPECT_THAT(board->closed, ElementsAre(board->shown[0].id));
    notices.withdraw("alarm");
    settle();
    EXPECT_THAT(board->closed, SizeIs(1));
}

TEST_F(BusNoticesTest, WhatIsShownAgainChangesTheNoticeInView) {
    showOne();
    settle();
    notices.show("alarm", "Title", "More");
    awaitShown(2);
    EXPECT_EQ(board->shown[1].replaces, board->shown[0].id);
    EXPECT_EQ(board->shown[1].text, "More");
}

TEST_F(BusNoticesTest, WhatChangesBeforeTheFirstAnswerIsToldOnceThatIsThere) {
    startBoard();
    join();
    board->answers = false;
    notices.show("alarm", "", "one");
    awaitShown(1);
    notices.show("alarm", "", "two");
    notices.show("alarm", "", "three");
    board->letItAnswer();
    awaitShown(2);
    EXPECT_EQ(board->shown[1].text, "three");
    EXPECT_EQ(board->shown[1].replaces, board->shown[0].id);
}

TEST_F(BusNoticesTest, WhatIsWithdrawnBeforeTheAnswerGoesOnceThatIsThere) {
    startBoard();
    join();
    board->answers = false;
    notices.show("alarm", "", "one");
    awaitShown(1);
    notices.withdraw("alarm");
    board->letItAnswer();
    ASSERT_TRUE(eventsUntil([&] { return !board->closed.empty(); }));
    EXPECT_THAT(board->closed, ElementsAre(board->shown[0].id));
}

TEST_F(BusNoticesTest, EachSubjectHasANoticeOfItsOwn) {
    showOne();
    notices.show("call", "Call", "x");
    awaitShown(2);
    EXPECT_NE(board->shown[0].id, board->shown[1].id);
    settle();
    notices.withdraw("alarm");
    settle();
    EXPECT_THAT(board->closed, ElementsAre(board->shown[0].id));
}

TEST_F(BusNoticesTest, AClickTellsTheSubjectAndTheTokenOfTheDesktop) {
    showOne();
    settle();
    board->tell("ActivationToken", board->shown[0].id, "token-7");
    board->tell("ActionInvoked", board->shown[0].id, "default");
    ASSERT_TRUE(eventsUntil([&] { return !clicked.empty(); }));
    board->tell("ActionInvoked", board->shown[0].id, "default");
    ASSERT_TRUE(eventsUntil([&] { return clicked.size() == 2; }));
    EXPECT_THAT(clicked, ElementsAre("alarm|token-7", "alarm|"));
}

TEST_F(BusNoticesTest, NoticesOfOthersAreNotOurs) {
    showOne();
    settle();
    board->tell("ActionInvoked", 4711, "default");
    board->tellClosed(4711);
    board->tell("ActionInvoked", board->shown[0].id, "default");
    ASSERT_TRUE(eventsUntil([&] { return !clicked.empty(); }));
    EXPECT_THAT(clicked, ElementsAre("alarm|"));
}

TEST_F(BusNoticesTest, WhatTheUserHasClosedIsNotClosedAgain) {
    showOne();
    settle();
    board->tellClosed(board->shown[0].id);
    settle();
    notices.withdraw("alarm");
    settle();
    EXPECT_THAT(board->closed, IsEmpty());
    notices.show("alarm", "", "next");
    awaitShown(2);
    EXPECT_EQ(board->shown[1].replaces, 0U);
}

TEST_F(BusNoticesTest, SignsOfMarkupAreShownAsTheyAre) {
    startBoard();
    join();
    notices.show("alarm", "<b>", "<b> & \"x\"\r\nnext");
    awaitShown(1);
    EXPECT_EQ(board->shown[0].title, "<b>");
    EXPECT_EQ(board->shown[0].text, "&lt;b&gt; &amp; \"x\"\nnext");
}

TEST_F(BusNoticesTest, WhatIsShownBeforeTheBusIsThereComesWithIt) {
    startBoard();
    notices.show("gone", "", "no more");
    notices.withdraw("gone");
    notices.show("alarm", "", "early");
    join();
    awaitShown(1);
    EXPECT_EQ(board->shown[0].text, "early");
}

TEST_F(BusNoticesTest, AServiceThatStartsAnewShowsWhatIsStillToBeSeen) {
    showOne();
    settle();
    board.reset();
    startBoard();
    awaitShown(1);
    EXPECT_EQ(board->shown[0].text, "Text");
    EXPECT_EQ(board->shown[0].replaces, 0U);
}

TEST_F(BusNoticesTest, WithoutAServiceNothingHappens) {
    join();
    notices.show("alarm", "", "x");
    int turns = 0;
    EXPECT_TRUE(eventsUntil([&] { return ++turns > 20; }));
    notices.withdraw("alarm");
}

TEST_F(BusNoticesTest, ABusThatBreaksOffIsSurvived) {
    showOne();
    settle();
    exchange.obey("restart_bus", {{"kind", "session"}});
    int turns = 0;
    EXPECT_TRUE(eventsUntil([&] { return ++turns > 20; }));
    notices.show("alarm", "", "y");
    notices.withdraw("alarm");
}

TEST_F(BusNoticesTest, TheEndOfTheProgramTakesItsNoticesAway) {
    startBoard();
    {
        MessageBus other(MessageBus::Kind::Session);
        BusNotices ending(other, kName, [](const std::string&, const std::string&) {});
        const PollPump otherPump(other);
        ending.show("alarm", "", "x");
        awaitShown(1);
        int turns = 0;
        EXPECT_TRUE(eventsUntil([&] { return ++turns > 20; }));  // its answer has come
    }
    ASSERT_TRUE(eventsUntil([&] { return !board->closed.empty(); }));
    EXPECT_THAT(board->closed, ElementsAre(board->shown[0].id));
}

class BusApplicationTest : public DesktopBusTest {
  protected:
    // Somebody on the desktop who calls.
    struct Caller {
        Caller() {
            bus.onConnection([this](sd_bus& joined) { connection = &joined; });
        }
        // Sends a call and waits for its answer; false when that is an error.
        template <typename... Values>
        bool call(const char* member, const char* types, Values... values) {
            int answered = 0;
            sd_bus_message_handler_t note = [](sd_bus_message* answer, void* told, sd_bus_error*) {
                *static_cast<int*>(told) =
                    sd_bus_message_is_method_error(answer, nullptr) > 0 ? -1 : 1;
                return 0;
            };
            EXPECT_GE(sd_bus_call_method_async(connection, nullptr, name, path,
                                               "org.freedesktop.Application", member, note,
                                               &answered, types, values...),
                      0);
            EXPECT_TRUE(eventsUntil([&] { return answered != 0; }));
            return answered > 0;
        }
        const char* name = kName;
        const char* path = "/example/velmora/Test";
        sd_bus* connection = nullptr;
        MessageBus bus{MessageBus::Kind::Session};
        PollPump pump{bus};
    };
    // One more copy of the program, by another name.
    struct Copy {
        int activations = 0;
        MessageBus bus{MessageBus::Kind::Session};
        BusApplication application{
            bus,
            "example.velmora.Copy",
            {.activate = [this](const std::string&) { ++activations; },
             .open = [](const std::vector<std::string>&, const std::string&) {}}};
        PollPump pump{bus};
    };

    // Waits until the application has its name.
    void awaitName() {
        ASSERT_TRUE(eventsUntil([&] { return caller.connection != nullptr; }));
        ASSERT_TRUE(eventsUntil([&] { return caller.call("Activate", "a{sv}", 0); }));
        heard.clear();
    }

    std::vector<std::string> heard;
    MessageBus bus{MessageBus::Kind::Session};
    BusApplication application{
        bus,
        kName,
        {.activate = [this](const std::string& token) { heard.push_back("activate|" + token); },
         .open =
             [this](const std::vector<std::string>& links, const std::string& token) {
                 std::string all;
                 for (const std::string& link : links)
                     all += link + "|";
                 heard.push_back("open|" + all + token);
             }}};
    PollPump pump{bus};
    Caller caller;
};

TEST_F(BusApplicationTest, TheObjectLiesWhereTheNameSays) {
    EXPECT_EQ(application.path(), "/example/velmora/Test");
}

TEST_F(BusApplicationTest, TheDesktopBringsTheProgramToTheFront) {
    awaitName();
    EXPECT_TRUE(caller.call("Activate", "a{sv}", 1, "activation-token", "s", "abc"));
    EXPECT_TRUE(caller.call("Activate", "a{sv}", 1, "desktop-startup-id", "s", "id_TIME1"));
    EXPECT_TRUE(caller.call("Activate", "a{sv}", 2, "desktop-startup-id", "s", "id_TIME1",
                            "activation-token", "s", "abc"));
    EXPECT_THAT(heard, ElementsAre("activate|abc", "activate|id_TIME1", "activate|abc"));
}

TEST_F(BusApplicationTest, TheDesktopHandsLinksOver) {
    awaitName();
    EXPECT_TRUE(
        caller.call("Open", "asa{sv}", 2, "tel:1", "tel:2", 1, "activation-token", "s", "abc"));
    EXPECT_TRUE(caller.call("Open", "asa{sv}", 0, 0));
    EXPECT_THAT(heard, ElementsAre("open|tel:1|tel:2|abc", "open|"));
}

TEST_F(BusApplicationTest, ThereAreNoActions) {
    awaitName();
    EXPECT_FALSE(caller.call("ActivateAction", "sava{sv}", "quit", 0, 0));
    EXPECT_FALSE(caller.call("Nonsense", ""));
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(BusApplicationTest, AnotherCopyTakesTheNameWhenTheFirstEnds) {
    awaitName();
    caller.name = "example.velmora.Copy";
    caller.path = "/example/velmora/Copy";
    std::optional<Copy> first(std::in_place);
    ASSERT_TRUE(eventsUntil([&] { return caller.call("Activate", "a{sv}", 0); }));
    Copy second;
    int turns = 0;
    ASSERT_TRUE(eventsUntil([&] { return ++turns > 20; }));  // it waits for the name now
    EXPECT_TRUE(caller.call("Activate", "a{sv}", 0));
    EXPECT_EQ(first->activations, 2);
    EXPECT_EQ(second.activations, 0);
    first.reset();
    ASSERT_TRUE(eventsUntil([&] { return caller.call("Activate", "a{sv}", 0); }));
    EXPECT_EQ(second.activations, 1);
}

}  // namespace
}  // namespace velmora
