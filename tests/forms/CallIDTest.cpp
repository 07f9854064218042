#include "telephony/forms/CallID.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <functional>

#include "forms/Widgets.h"
#include "platform/controls/EntryCard.h"
#include "platform/controls/EntryList.h"
#include "platform/qt/QtEventLoop.h"
#include "support/FakeCallService.h"
#include "support/FakeClock.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"
#include "telephony/CallerId.h"
#include "telephony/ServiceLine.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

// The form on a real event loop, with a service that the test makes ring.
class CallIDTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    CallIDTest() {
        settings.Save("CallerID", "ON");
        QObject::connect(&form, &CallID::lineChosen, &form,
                         [this](const std::string& chosen) { callerId.showEntry(chosen); });
        QObject::connect(&form, &CallID::newEntryWanted, &form,
                         [this](const std::string& number) { wantedEntries.push_back(number); });
        callerId.listenTo(line);
    }
    void SetUp() override { QGuiApplication::clipboard()->clear(); }

    static PhonebookRecord with(PhonebookRecord record, const char* number) {
        record.assign(Field::Phone, number);
        return record;
    }
    void add(std::string& book, const PhonebookRecord& record) { book += test::bytesOf(record); }

    void addTwoOfOneNumber() {
        add(yellow(), with(test::formRecord("Doe", "Jane", "Acme"), "555-1212"));
        add(white(), with(test::companyRecord("Bell"), "(516) 555-1212"));
    }

    // A call, until its search has ended.
    void call(const std::string& number) {
        status.text.clear();
        service.ring({"", number});
        ASSERT_TRUE(QTest::qWaitFor([&] { return !status.text.empty() && list().isEnabled(); }));
    }
    void clickLine(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualRect(list().model()->index(row, 0)).center());
    }
    void activate() {
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    static std::string clipboard() { return QGuiApplication::clipboard()->text().toStdString(); }

    EntryList& list() { return test::named<EntryList>(form, "List1"); }
    EntryCard& card() { return test::named<EntryCard>(form, "Label1"); }
    QLineEdit& number() { return test::named<QLineEdit>(form, "Number"); }
    QMenu& menu() { return test::named<QMenu>(form, "NumberMenu"); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }

    test::FakeStatusLine status;
    test::FakeClock clock;
    LocaleFormats locale;
    PhoneLog log{"/velmora", files, clock, locale};
    QtEventLoop loop;
    CallID form{store.codePage()};
    CallerId callerId{{settings, store, log, form, status, loop}};
    test::FakeCallService service;
    ServiceLine line{{{&service}, "US", store.codePage(), loop, std::chrono::steady_clock::now}};
    std::vector<std::string> wantedEntries;
};

TEST_F(CallIDTest, ShowsWhoMayBeCallingAndTheCardOfTheOneChosen) {
    addTwoOfOneNumber();
    call("+15165551212");
    EXPECT_EQ("Incoming Call Report", form.windowTitle().toStdString());
    EXPECT_EQ("5165551212", number().text().toStdString());
    EXPECT_THAT(list().lines(), ElementsAre("Y: Doe, Jane", "W: Bell"));
    EXPECT_EQ("", card().text());
    clickLine(0);
    EXPECT_THAT(card().text(), StartsWith(" Jane Doe\r\n"));
    EXPECT_FALSE(card().whitePages());
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_THAT(card().text(), StartsWith("Bell\r\n"));
    EXPECT_TRUE(card().whitePages());
}

// That a window manager gives it no keys either is told by a test with a real one.
TEST_F(CallIDTest, ComesAboveAllOthersWithoutTakingTheKeysUntilItIsUsed) {
    EXPECT_TRUE(form.testAttribute(Qt::WA_ShowWithoutActivating));
    call("5165551212");
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ(nullptr, form.parentWidget());
    const auto onTop = [this] {
        return form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    activate();
    EXPECT_TRUE(list().hasFocus());
    EXPECT_FALSE(onTop());
    QLineEdit other;
    test::showActive(other);
    call("5165551213");
    EXPECT_TRUE(other.isActiveWindow());
    EXPECT_TRUE(onTop());
    QTest::keyClicks(QApplication::focusWidget(), "typed");
    EXPECT_EQ("typed", other.text().toStdString());
}

TEST_F(CallIDTest, CopiesTheNumberByKeyAndByMenu) {
    addTwoOfOneNumber();
    call("5165551212");
    activate();
    clickLine(0);
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("5165551212", clipboard());
    QGuiApplication::clipboard()->clear();
    number().setFocus();
    QTest::keyClick(&number(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("5165551212", clipboard());
    number().setSelection(0, 3);
    QTest::keyClick(&number(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("516", clipboard());
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, number().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&number(), &asked);
    ASSERT_TRUE(menu().isVisible());
    menu().close();
    menu().actions()[0]->trigger();
    EXPECT_EQ("Copy", menu().actions()[0]->text().toStdString());
    EXPECT_EQ("5165551212", clipboard());
}

TEST_F(CallIDTest, ANewEntryIsMadeOfTheNumberByButtonAndByMenu) {
    call("5165551212");
    EXPECT_EQ("&New entry with this number", button("NewEntry").text().toStdString());
    QTest::mouseClick(&button("NewEntry"), Qt::LeftButton);
    menu().actions()[1]->trigger();
    EXPECT_THAT(wantedEntries, ElementsAre("5165551212", "5165551212"));
}

TEST_F(CallIDTest, SaysThatANumberIsWithheld) {
    call("");
    EXPECT_EQ("", number().text().toStdString());
    EXPECT_EQ("Number withheld", number().placeholderText().toStdString());
    EXPECT_FALSE(button("NewEntry").isEnabled());
    EXPECT_FALSE(menu().actions()[0]->isEnabled());
    call("5165551212");
    EXPECT_TRUE(button("NewEntry").isEnabled());
    EXPECT_TRUE(menu().actions()[0]->isEnabled());
}

TEST_F(CallIDTest, NumbersOfAnyLengthAndNamesWithMarkupAreShownAsTheyAre) {
    add(yellow(), with(test::formRecord("<b>Doe</b>", "&Jane", "Acme"), "5551212"));
    for (const std::size_t length : {7U, 40U, 500U}) {
        const std::string digits(length, '7');
        call(digits);
        EXPECT_EQ(digits, number().text().toStdString());
    }
    call("5551212");
    EXPECT_THAT(list().lines(), ElementsAre("Y: <b>Doe</b>, &Jane"));
    clickLine(0);
    EXPECT_THAT(card().text(), StartsWith(" &Jane <b>Doe</b>\r\n"));
}

TEST_F(CallIDTest, ClosesByButtonEscapeAndFrameAndForgetsItsLines) {
    addTwoOfOneNumber();
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(&button("Command1"), Qt::LeftButton); },
        [&] { QTest::keyClick(&list(), Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& way : ways) {
        call("5165551212");
        EXPECT_THAT(list().lines(), SizeIs(2));
        clickLine(0);
        way();
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.hasLines());
        EXPECT_EQ("", card().text());
    }
    EXPECT_TRUE(button("Command1").isDefault());
}

TEST_F(CallIDTest, ClosedInTheMiddleOfTheSearchItOpensAnewForTheNextMatch) {
    for (int i = 0; i < 2000; ++i)
        add(yellow(), with(test::personRecord("P" + std::to_string(i), "X"),
                           i == 0 || i == 1999 ? "555-1212" : "1"));
    bool closed = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &form, [&] {
        if (form.isVisible() && !closed && form.hasLines()) {
            closed = true;
            form.close();
            EXPECT_FALSE(form.isVisible());
        }
    });
    watch.start(0);
    service.ring({"", "5165551212"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return closed && form.isVisible() && list().isEnabled(); }));
    EXPECT_THAT(list().lines(), ElementsAre("Y: P1999, X"));
    EXPECT_EQ("5165551212", number().text().toStdString());
}

TEST_F(CallIDTest, ANumberOfThousandsOfEntriesIsListedWithoutFreezing) {
    for (int i = 0; i < 20000; ++i)
        add(yellow(), test::personRecord("P" + std::to_string(i), "X"));
    call("");
    EXPECT_THAT(list().lines(), SizeIs(20000));
    EXPECT_EQ("Y: P19999, X", list().lines().back());
}

TEST_F(CallIDTest, AHundredCallsInASecondEndWithTheLastNumber) {
    addTwoOfOneNumber();
    for (int i = 0; i < 100; ++i)
        service.ring({"", std::to_string(5165550000 + i)});
    service.ring({"", "5165551212"});
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return form.isVisible() && list().isEnabled() && number().text() == "5165551212"; }));
    EXPECT_THAT(list().lines(), ::testing::Contains("W: Bell"));
}

TEST_F(CallIDTest, SearchingTheListIsOffAndSaysAtItsEndThatItIsEmpty) {
    bool seenOff = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &form,
                     [&] { seenOff = seenOff || (form.isVisible() && !list().isEnabled()); });
    watch.start(0);
    for (int i = 0; i < 2000; ++i)
        add(yellow(), test::personRecord("P" + std::to_string(i), "X"));
    call("5165551212");
    EXPECT_TRUE(seenOff);
    EXPECT_EQ("No matching entries.", list().emptyText().toStdString());
    EXPECT_EQ("No matching entries to incoming call found.", status.text);
}

}  // namespace
}  // namespace velmora
