#include "docpad/LetterCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "docpad/EntryText.h"
#include "docpad/PadFakes.h"
#include "support/FakeMessages.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

class LetterCommandsTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    LetterCommandsTest() {
        PhonebookRecord person = test::personRecord("Smith", "John", "likes tea");
        person.assign(Field::Title, "Mr.");
        person.assign(Field::Company, "Bindery");
        person.assign(Field::Spouse, "Eva");
        person.assign(Field::Address1, "1 Lake Road");
        person.assign(Field::PostalCode, "12345");
        person.assign(Field::Phone, "555-0100");
        person.assign(Field::Custom2, "blue");
        PhonebookRecord company = test::companyRecord("Bindery");
        company.assign(Field::Address2, "Mill Street");
        yellow() = test::bytesOf(person) + test::bytesOf(company);
    }

    test::FakePadText pad;
    test::FakeMessages messages;
    LetterCommands commands{{state, store, settings, pad, messages}};
};

TEST_F(LetterCommandsTest, TheLetterHeadGoesBehindTheTextWithTheCaretBehindIt) {
    pad.setBytes("note");
    pad.select(0, 2);
    commands.addLetterHead("Smith, John");
    EXPECT_EQ(pad.text, "noteMr. John Smith\r\nBindery\r\n1 Lake Road 12345\r\n\r\n");
    EXPECT_EQ(pad.start, pad.text.size());
    EXPECT_EQ(pad.length, 0u);
}

TEST_F(LetterCommandsTest, ACompanyIsNeverTakenForAPersonWhoWorksThere) {
    commands.addLetterHead("Bindery");
    EXPECT_EQ(pad.text, "Bindery\r\n\r\nMill Street\r\n\r\n");
}

TEST_F(LetterCommandsTest, WithoutASelectedEntryNothingIsAdded) {
    for (const char* line : {"", " ", ", ", "Nobody, Here", "DELETED, "}) {
        commands.addLetterHead(line);
        commands.InsertEntryText(line);
    }
    EXPECT_EQ(pad.text, "");
}

TEST_F(LetterCommandsTest, AnEntryInFullHasALineForEachFilledField) {
    settings.Save("Custom2", "Colour");
    commands.InsertEntryText("smith, john");
    EXPECT_EQ(pad.text,
              "Mr. John Smith\r\nBindery\r\nSpouse: Eva\r\n1 Lake Road\r\n12345\r\n"
              "Home Phone: 555-0100\r\nColour: blue\r\nMemo: likes tea\r\n");
}

TEST_F(LetterCommandsTest, NumbersAndWhatFollowsCanBeLeftOut) {
    settings.Save("LetterTel", "0");
    commands.InsertEntryText("Smith, John");
    EXPECT_EQ(pad.text, "Mr. John Smith\r\nBindery\r\nSpouse: Eva\r\n1 Lake Road\r\n12345\r\n");
}

TEST_F(LetterCommandsTest, AnEntryWithOnlyACompanyHasNoEmptyLines) {
    commands.InsertEntryText("Bindery");
    EXPECT_EQ(pad.text, "Bindery\r\nMill Street\r\n");
}

TEST_F(LetterCommandsTest, AllFieldsStandInTheirOrder) {
    PhonebookRecord entry;
    for (std::size_t i = 0; i < kFieldCount; ++i)
        entry.assign(static_cast<Field>(i), "f" + std::to_string(i));
    EXPECT_EQ(entryText(entry, readEntryTextStyle(settings)),
              "f2 f0 f1\r\nf4\r\nf3\r\nSpouse: f25\r\nf5\r\nf6\r\nf7\r\nf8\r\nf10\r\nf9\r\n"
              "Home Phone: f11\r\nWork Phone: f12\r\nPager: f14\r\nOther Phone: f15\r\n"
              "Fax: f13\r\nE-Mail: f16\r\nWeb Page: f17\r\nCustom1: f22\r\nCustom2: f23\r\n"
              "Memo: f20\r\nClass: f19\r\nDate Reference: f21\r\n");
}

TEST_F(LetterCommandsTest, ATaskIsALineOfItsOwn) {
    commands.addTask("Buy milk");
    EXPECT_EQ(pad.text, "Buy milk\r\n");
}

}  // namespace
}  // namespace velmora
