#include "telephony/CallerId.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakeCallerReport.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

PhonebookRecord withNumber(PhonebookRecord record, Field field, std::string_view number) {
    record.assign(field, number);
    return record;
}

class FakeLine final : public TelephonyLine {
  public:
    void activate(std::function<void(const Caller& caller)> onCall) override {
        call = std::move(onCall);
    }
    std::function<void(const Caller& caller)> call;
};

class CallerIdTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    CallerIdTest() {
        settings.Save("CallerID", "ON");
        clock.set(std::chrono::year(2001) / 11 / 15, 17h + 34min);
    }
    void add(std::string& book, const PhonebookRecord& record) { book += test::bytesOf(record); }
    // The lines for a call.
    std::vector<std::string> callersOf(const std::string& number) {
        callerId.onCall({"Somebody", number});
        return report.lines;
    }

    test::FakeCallerReport report;
    test::FakeStatusLine status;
    test::FakeEventLoop loop;
    test::FakeClock clock;
    LocaleFormats locale;
    PhoneLog log{"/velmora", files, clock, locale};
    CallerId callerId{{settings, store, log, report, status, loop}};
};

TEST_F(CallerIdTest, AnyOfFourFieldsInAnyOfFiveFormsIsTheCaller) {
    int person = 0;
    for (const Field field : {Field::Phone, Field::WorkPhone, Field::Fax, Field::OtherPhone})
        for (const char* form :
             {"5165551212", "555-1212", "(516) 555-1212", "516 555-1212", "516-555-1212"})
            add(yellow(),
                withNumber(test::personRecord("P" + std::to_string(++person), "X"), field, form));
    EXPECT_EQ(callersOf(" 5165551212 ").size(), 20U);
    EXPECT_EQ(report.number, "5165551212");
    EXPECT_EQ(callerId.callerNumber(), "5165551212");
}

TEST_F(CallerIdTest, TheFormsAreComparedToTheLetterAndThePagerIsNoTelephone) {
    int person = 0;
    const auto addPerson = [&](Field field, const char* number) {
        add(yellow(),
            withNumber(test::personRecord("P" + std::to_string(++person), "X"), field, number));
    };
    for (const char* other : {"516.555.1212", "1-516-555-1212", "(516)555-1212", "5551212",
                              "516-5551212", "555-1212 x3"})
        addPerson(Field::Phone, other);
    addPerson(Field::Pager, "5165551212");
    EXPECT_THAT(callersOf("5165551212"), IsEmpty());
}

TEST_F(CallerIdTest, TheYellowPagesComeFirstEachBookInItsOrder) {
    const auto numbered = [](const PhonebookRecord& record) {
        return withNumber(record, Field::Phone, "555-1212");
    };
    add(white(), numbered(test::companyRecord("Acme Tools")));
    add(white(), numbered(test::personRecord("Adams", "Al")));
    add(yellow(), numbered(test::personRecord("Smith", "John")));
    add(yellow(), test::personRecord("Brown", "Bob"));
    add(yellow(), numbered(test::personRecord("Adams", "Ann")));
    EXPECT_THAT(callersOf("5165551212"),
                ElementsAre("Y: Smith, John", "Y: Adams, Ann", "W: Acme Tools", "W: Adams, Al"));
    EXPECT_TRUE(report.listEnabled);
    EXPECT_EQ(report.presented, 2);
    EXPECT_EQ(status.text, "Incoming Phone Call from: 5165551212.");
}

TEST_F(CallerIdTest, ADeletedEntryDoesNotCallAndOneOfAFirstNameAloneIsListedByNothing) {
    add(yellow(), withNumber(test::personRecord("deleted", "X"), Field::Phone, "555-1212"));
    add(yellow(), withNumber(test::personRecord("", "Ann"), Field::Phone, "555-1212"));
    PhonebookRecord unwritten;
    unwritten.assign(Field::Company, "Acme");
    unwritten.assign(Field::Phone, "555-1212");
    add(yellow(), unwritten);
    EXPECT_THAT(callersOf("5165551212"), ElementsAre("Y: ", "Y: Acme"));
}

TEST_F(CallerIdTest, WithoutAMatchTheStatusSaysSoAndTheWindowStaysOpenAndEmpty) {
    std::vector<std::string> texts;
    loop.onYield = [&] { texts.push_back(status.text); };
    EXPECT_THAT(callersOf("5165551212"), IsEmpty());
    EXPECT_EQ(texts.front(), "Incoming Phone Call from: 5165551212.");
    EXPECT_EQ(status.text, "No matching entries to incoming call found.");
    EXPECT_TRUE(report.open);
    EXPECT_TRUE(report.listEnabled);
    EXPECT_EQ(report.presented, 1);
}

TEST_F(CallerIdTest, AWithheldNumberIsThatOfEveryEntryWithAnEmptyOne) {
    add(yellow(), test::personRecord("Smith", "John"));
    EXPECT_THAT(callersOf(""), ElementsAre("Y: Smith, John"));
}

TEST_F(CallerIdTest, TheListIsClosedWhileTheBooksAreSearched) {
    add(yellow(), test::personRecord("Smith", "John"));
    bool seenEnabled = false;
    loop.onYield = [&] { seenEnabled = seenEnabled || report.listEnabled; };
    callersOf("5165551212");
    EXPECT_FALSE(seenEnabled);
    EXPECT_GE(loop.yields, 2);
}

TEST_F(CallerIdTest, TheBookThatCommandsWorkOnStaysWhileItSearches) {
    add(white(), test::personRecord("Smith", "John"));
    loop.onYield = [&] { EXPECT_EQ(state.BookFile, kYellowPagesFile); };
    callersOf("1");
    EXPECT_EQ(state.BookFile, kYellowPagesFile);
}

TEST_F(CallerIdTest, LogsWhatComesInOnlyWhenTheSettingIsOne) {
    callersOf("5165551212");
    EXPECT_EQ(files["/velmora\\phonelog.txt"], "");
    settings.Save("LogPhone", "1");
    callersOf("5165551212");
    EXPECT_EQ(files["/velmora\\phonelog.txt"], "15-Nov-01\t05:34 PM\tIncoming\t5165551212\r\n");
}

TEST_F(CallerIdTest, TheSwitchCountsAtEachCallInAnyCase) {
    for (const char* off : {"", "OFF", "YES", "1"}) {
        settings.Save("CallerID", off);
        EXPECT_THAT(callersOf("5165551212"), IsEmpty());
        EXPECT_FALSE(report.open) << off;
    }
    settings.Save("CallerID", " on ");
    callersOf("5165551212");
    EXPECT_TRUE(report.open);
}

TEST_F(CallerIdTest, TheLineIsActivatedOnlyByExactlyOn) {
    for (const auto& [setting, active] :
         {std::pair{"on", false}, {" ON", false}, {"", false}, {"ON", true}}) {
        settings.Save("CallerID", setting);
        FakeLine line;
        callerId.listenTo(line);
        EXPECT_EQ(static_cast<bool>(line.call), active) << setting;
    }
    FakeLine line;
    callerId.listenTo(line);
    line.call({"Ann", "5165551212"});
    EXPECT_EQ(report.number, "5165551212");
}

TEST_F(CallerIdTest, ASecondCallInTheMiddleTakesOverTheListAndTheNumber) {
    for (const char* number :
         {"111-1111", "222-2222", "111-1111", "222-2222", "5", "5", "5", "5", "5", "222-2222"})
        add(yellow(), withNumber(test::personRecord("P" + std::to_string(yellow().size()), "X"),
                                 Field::Phone, number));
    loop.onYield = [this] {
        loop.onYield = nullptr;
        callerId.onCall({"", "9992222222"});
        EXPECT_EQ(report.lines.size(), 3U);
    };
    // The first search goes on behind its first record, with the new number.
    EXPECT_THAT(callersOf("9991111111"), ::testing::SizeIs(6));
    EXPECT_EQ(report.number, "9992222222");
}

TEST_F(CallerIdTest, ClosingTheWindowInTheMiddleLosesTheLinesSoFarAndALaterMatchOpensItAgain) {
    for (int i = 0; i < 12; ++i)
        add(yellow(), withNumber(test::personRecord("P" + std::to_string(i), "X"), Field::Phone,
                                 i == 0 || i == 11 ? "555-1212" : "1"));
    loop.onYield = [this] {
        loop.onYield = nullptr;
        report.close();
    };
    EXPECT_THAT(callersOf("5165551212"), ElementsAre("Y: P11, X"));
    EXPECT_TRUE(report.open);
}

TEST_F(CallerIdTest, AProgramThatClosesSearchesNoFurther) {
    add(yellow(), test::personRecord("Smith", "John"));
    loop.onYield = [this] { loop.isClosing = true; };
    callersOf("5165551212");
    EXPECT_EQ(loop.yields, 1);
    EXPECT_EQ(report.presented, 1);
    EXPECT_EQ(status.text, "Incoming Phone Call from: 5165551212.");
}

TEST_F(CallerIdTest, ACallThatComesWhileTheProgramClosesIsNoLongerTold) {
    loop.isClosing = true;
    callersOf("5165551212");
    EXPECT_FALSE(report.open);
    EXPECT_EQ(status.text, "");
}

TEST_F(CallerIdTest, ABookThatCanNotBeReadYieldsNothingAndTheOtherIsSearched) {
    settings.Save("Yellow", "/gone");
    files.unreachableFolder = "/gone";
    add(white(), withNumber(test::personRecord("Smith", "John"), Field::Fax, "555-1212"));
    EXPECT_THAT(callersOf("5165551212"), ElementsAre("W: Smith, John"));
}

TEST_F(CallerIdTest, ShowsTheCardOfALine) {
    PhonebookRecord ann = test::formRecord("Smith", "Ann", "Acme & Co", "A memo\r\nof two lines");
    const auto set = [&](Field field, const char* value) { ann.assign(field, value); };
    set(Field::Title, "Ms.");
    set(Field::Position, "Buyer");
    set(Field::Address1, "1 Road");
    set(Field::Address3, "Town");
    set(Field::Address4, "IL");
    set(Field::PostalCode, "60555");
    set(Field::Country, "Land");
    set(Field::Phone, "1");
    set(Field::WorkPhone, "2");
    set(Field::Fax, "3");
    set(Field::EMail, "a@b");
    set(Field::Custom1, "c1");
    set(Field::Custom2, "c2");
    set(Field::Class, "Friend");
    set(Field::Spouse, "Sam");
    add(yellow(), ann);
    callerId.showEntry("y: smith, ann");
    EXPECT_EQ(report.card,
              "Ms. Ann Smith\r\nBuyer  Acme & Co\r\n1 Road , \r\nTown , IL60555\r\nLand\r\n"
              "H: 1    W: 2    F: 3\r\nP:     O:     Em: a@b\r\nc1   c2\r\nFriend\r\n"
              "A memo\r\nof two lines");
    EXPECT_TRUE(report.cardIsYellow);
}

TEST_F(CallerIdTest, ACompanysCardBeginsWithItsNameAndAPostalCodeAloneIsNotShown) {
    PhonebookRecord acme = test::companyRecord("Acme");
    acme.assign(Field::PostalCode, "60555");
    add(white(), test::formRecord("Smith", "Ann", "Acme"));
    add(white(), acme);
    callerId.showEntry("W: Acme");
    EXPECT_EQ(report.card, "Acme\r\n\r\n   \r\n\r\n");
    EXPECT_FALSE(report.cardIsYellow);
}

TEST_F(CallerIdTest, EveryListedEntryIsFoundAgainAndOthersShowAnEmptyCard) {
    PhonebookRecord ann = test::personRecord("", "Ann", "memo of Ann");
    add(yellow(), ann);
    callerId.showEntry("Y: ");
    EXPECT_NE(report.card.find("memo of Ann"), std::string::npos);
    for (const char* line : {"", "Y: Nobody, Here", "W: ", "W: Acme"}) {
        report.card = "before";
        callerId.showEntry(line);
        EXPECT_EQ(report.card, "") << line;
    }
}

}  // namespace
}  // namespace velmora
