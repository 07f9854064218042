#include "phonebook/EntryEditors.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/PendingWish.h"
#include "platform/Failure.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::formRecord;
using test::personRecord;
using test::tombstoneBytes;
using Outcome = EntryEditor::Outcome;
using Texts = std::vector<std::string>;

class EntryEditorsTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    static Entry person(const std::string& last, const std::string& first) {
        Entry values;
        values[Field::Last] = last;
        values[Field::First] = first;
        return values;
    }
    static Entry company(const std::string& name) {
        Entry values;
        values[Field::Company] = name;
        values.justCompany = true;
        return values;
    }

    Outcome add(const Entry& values) { return NewEntryEditor(parts).apply(values); }
    Outcome change(const std::string& line, const Entry& values) {
        return ChangeEntryEditor(parts, line).apply(values);
    }

    test::FakeMessages messages;
    test::FakePhonebookPane pane;
    EntryWriter writer{store, messages};
    LetterView view{state, store, pane};
    PendingWish wish{state, [this](int kind) { view.SelectBook(static_cast<std::int16_t>(kind)); },
                     [this](int index) { view.LetterClick(index); }};
    int flips = 0;
    EntryEditorParts parts{state, settings, store, writer, view, messages, [this] {
                               ++flips;
                               wish.flipped();
                           }};
};

TEST_F(EntryEditorsTest, CaptionsTellAddingFromChanging) {
    EXPECT_EQ(NewEntryEditor(parts).caption(), "Add Entry");
    EXPECT_EQ(NewEntryEditor(parts).applyCaption(), "&Add Entry");
    EXPECT_EQ(ChangeEntryEditor(parts, "x").caption(), "Edit Entry");
    EXPECT_EQ(ChangeEntryEditor(parts, "x").applyCaption(), "&Keep Changes");
}

TEST_F(EntryEditorsTest, CustomCaptionsComeFromTheSettingsWithAColon) {
    EXPECT_EQ(NewEntryEditor(parts).custom1Caption(), "Custom1:");
    EXPECT_EQ(NewEntryEditor(parts).custom2Caption(), "Custom2");
    settings.Save("Custom1", "  Birthday ");
    settings.Save("Custom2", "Shoe size");
    EXPECT_EQ(NewEntryEditor(parts).custom1Caption(), "Birthday:");
    EXPECT_EQ(NewEntryEditor(parts).custom2Caption(), "Shoe size:");
    settings.Save("Custom1", "   ");
    EXPECT_EQ(NewEntryEditor(parts).custom1Caption(), "Custom1:");
}

TEST_F(EntryEditorsTest, ANewEntryBeginsEmpty) {
    const Entry values = NewEntryEditor(parts).load();
    for (const std::string& value : values.fields)
        EXPECT_EQ(value, "");
    EXPECT_FALSE(values.justCompany);
}

TEST_F(EntryEditorsTest, AChangeBeginsWithTheTrimmedValues) {
    yellow() =
        bytesOf(personRecord("Adams", "Ann")) + bytesOf(personRecord(" Baker", "Bob", " m "));
    const Entry values = ChangeEntryEditor(parts, "Baker, Bob").load();
    EXPECT_EQ(values[Field::Last], "Baker");
    EXPECT_EQ(values[Field::First], "Bob");
    EXPECT_EQ(values[Field::Memo], "m");
    EXPECT_EQ(values[Field::Spouse], "");
    EXPECT_FALSE(values.justCompany);
}

TEST_F(EntryEditorsTest, ACompanyBeginsTicked) {
    yellow() = bytesOf(companyRecord("Acme"));
    const Entry values = ChangeEntryEditor(parts, "acme").load();
    EXPECT_EQ(values[Field::Company], "Acme");
    EXPECT_TRUE(values.justCompany);
}

TEST_F(EntryEditorsTest, CommasInNamesAreRefused) {
    const std::string names =
        "warn|No Commas|No commas (,) can be used in the first name or last name fields.";
    EXPECT_EQ(add(person("Smith, Jr", "Ann")), Outcome::Refused);
    EXPECT_EQ(add(person("Smith", "Ann,")), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(), (Texts{names, names}));
    EXPECT_EQ(add(company("Acme, Inc.")), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(),
              Texts{"warn|No Commas|No commas (,) can be used in the company name field for "
                    "entries that are just company listings."});
    EXPECT_FALSE(files.has("/velmora\\DATAY.QEL"));
    EXPECT_EQ(flips, 0);
}

TEST_F(EntryEditorsTest, CommasElsewhereAreAccepted) {
    Entry values = person("Smith", "Ann");
    values[Field::Company] = "Acme, Inc.";
    EXPECT_EQ(add(values), Outcome::Written);
    values = company("Beta");
    values[Field::Last] = "Smith, Jr";
    EXPECT_EQ(add(values), Outcome::Written);
    EXPECT_EQ(yellow(),
              bytesOf(formRecord("Smith", "Ann", "Acme, Inc.")) + bytesOf(companyRecord("Beta")));
    EXPECT_EQ(messages.takeShown(), Texts{});
}

TEST_F(EntryEditorsTest, NamesMustBeTyped) {
    const std::string incomplete =
        "warn|Incomplete Entry|You must enter a first and last name, or click the Just a Company "
        "checkbox.";
    EXPECT_EQ(add(person("Smith", "")), Outcome::Refused);
    EXPECT_EQ(add(person("", "Ann")), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(), (Texts{incomplete, incomplete}));
    EXPECT_EQ(add(company("")), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(),
              Texts{"warn|Incomplete Entry|You must complete the Company name text box in order "
                    "to save this record."});
}

TEST_F(EntryEditorsTest, ANameOfBlanksIsTypedAndStoredButNotShown) {
    state.BucketName = "#";
    EXPECT_EQ(add(person(" ", " ")), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(formRecord("", "")));
    EXPECT_EQ(pane.lines, Texts{});
}

TEST_F(EntryEditorsTest, ACompanyLosesTitleAndNamesButKeepsPositionAndSpouse) {
    Entry values = company("Acme");
    values[Field::Title] = "Mr.";
    values[Field::First] = "Al";
    values[Field::Last] = "Smith";
    values[Field::Position] = "Boss";
    values[Field::Spouse] = "Sue";
    EXPECT_EQ(add(values), Outcome::Written);
    PhonebookRecord expected = companyRecord("Acme");
    expected.assign(Field::Position, "Boss");
    expected.assign(Field::Spouse, "Sue");
    EXPECT_EQ(yellow(), bytesOf(expected));
}

TEST_F(EntryEditorsTest, AddingUnderBMovesTheViewToB) {
    EXPECT_EQ(add(person("Baker", "Bob")), Outcome::Written);
    EXPECT_EQ(state.BucketName, "BName");
    EXPECT_EQ(pane.letter, 1);
    EXPECT_EQ(pane.lines, Texts{"Baker, Bob"});
    EXPECT_EQ(state.PendingLetter, 0);
    EXPECT_EQ(flips, 1);
}

TEST_F(EntryEditorsTest, AddingUnderALeavesTheViewWhereItWas) {
    view.LetterClick(1);
    pane.details = "old";
    EXPECT_EQ(add(person("Adams", "Ann")), Outcome::Written);
    EXPECT_EQ(state.BucketName, "BName");
    EXPECT_EQ(pane.lines, Texts{});
    EXPECT_EQ(pane.details, "");
    EXPECT_EQ(flips, 1);
}

TEST_F(EntryEditorsTest, AddingASymbolMovesTheViewToTheSymbols) {
    EXPECT_EQ(add(company("3M")), Outcome::Written);
    EXPECT_EQ(pane.letter, 26);
    EXPECT_EQ(pane.lines, Texts{"3M"});
}

TEST_F(EntryEditorsTest, AddingTheSameNameTwiceAsksBeforeItOverwrites) {
    EXPECT_EQ(add(person("Baker", "Bob")), Outcome::Written);
    Entry again = person("baker", "bob");
    again[Field::Memo] = "new";
    messages.willAnswer(false);
    EXPECT_EQ(add(again), Outcome::Refused);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob")));
    messages.willAnswer(true);
    EXPECT_EQ(add(again), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("baker", "bob", "new")));
    const std::string question = "ask|Velmora|This entry exists. Would you like to overwrite it?";
    EXPECT_EQ(messages.takeShown(), (Texts{question, question}));
}

TEST_F(EntryEditorsTest, ANoForACompanyEmptiesTheNamesOfTheForm) {
    EXPECT_EQ(add(company("Acme")), Outcome::Written);
    messages.willAnswer(false);
    EXPECT_EQ(add(company("Acme")), Outcome::RefusedNamesCleared);
}

TEST_F(EntryEditorsTest, ChangingOnlyTheMemoMovesTheEntryToTheTombstoneBeforeIt) {
    yellow() = bytesOf(personRecord("Adams", "Ann")) + tombstoneBytes() +
               bytesOf(personRecord("Baker", "Bob"));
    Entry values = ChangeEntryEditor(parts, "Baker, Bob").load();
    values[Field::Memo] = "new";
    EXPECT_EQ(change("Baker, Bob", values), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Adams", "Ann")) +
                            bytesOf(personRecord("Baker", "Bob", "new")) + tombstoneBytes());
    EXPECT_EQ(messages.takeShown(), Texts{});
    EXPECT_EQ(pane.lines, Texts{"Baker, Bob"});
}

class StaleFormTest : public EntryEditorsTest {
  protected:
    StaleFormTest() {
        yellow() = bytesOf(personRecord("Baker", "Bob", "loaded"));
        mine = editor.load();
        mine[Field::Memo] = "mine";
        yellow() = theirs;
    }

    const std::string theirs = bytesOf(personRecord("Baker", "Bob", "theirs"));
    const std::string question =
        "ask|Changed Meanwhile|This entry has been changed by another copy of Velmora since you "
        "opened it. Do you want to overwrite those changes with yours?";
    ChangeEntryEditor editor{parts, "Baker, Bob"};
    Entry mine;
};

TEST_F(StaleFormTest, AsksAndANoKeepsTheFormOpenAndTheBookAsItIs) {
    messages.willAnswer(false);
    EXPECT_EQ(editor.apply(mine), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(), Texts{question});
    EXPECT_EQ(messages.takePreselected(), std::vector<Answer>{Answer::No});
    EXPECT_EQ(yellow(), theirs);
    EXPECT_EQ(pane.lines, Texts{});
}

TEST_F(StaleFormTest, AsksAgainAtTheNextTry) {
    messages.willAnswer(false);
    messages.willAnswer(false);
    EXPECT_EQ(editor.apply(mine), Outcome::Refused);
    EXPECT_EQ(editor.apply(mine), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(), (Texts{question, question}));
    EXPECT_EQ(yellow(), theirs);
}

TEST_F(StaleFormTest, OverwritesAfterAYes) {
    messages.willAnswer(true);
    EXPECT_EQ(editor.apply(mine), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob", "mine")));
}

TEST_F(StaleFormTest, AsksAgainWhenTheEntryChangesDuringTheQuestion) {
    messages.willAnswer(true);
    messages.willAnswer(false);
    const std::string third = bytesOf(personRecord("Baker", "Bob", "third"));
    messages.whileOpen([&] { yellow() = third; });
    EXPECT_EQ(editor.apply(mine), Outcome::Refused);
    EXPECT_EQ(messages.takeShown(), (Texts{question, question}));
    EXPECT_EQ(yellow(), third);
}

TEST_F(StaleFormTest, WritesAnEntryThatIsGoneWithoutAQuestion) {
    yellow() = tombstoneBytes();
    EXPECT_EQ(editor.apply(mine), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob", "mine")));
}

TEST_F(EntryEditorsTest, TheNameOfAnotherEntryIsRefused) {
    yellow() = bytesOf(personRecord("Adams", "Ann")) + bytesOf(personRecord("Baker", "Bob")) +
               bytesOf(companyRecord("Acme"));
    const std::string before = yellow();
    const std::string exists = "warn|Already Exists|This entry already exists.";
    EXPECT_EQ(change("Baker, Bob", person("adams", "ANN")), Outcome::Refused);
    EXPECT_EQ(change("Baker, Bob", company("Acme")), Outcome::RefusedNamesCleared);
    EXPECT_EQ(messages.takeShown(), (Texts{exists, exists}));
    EXPECT_EQ(yellow(), before);
}

TEST_F(EntryEditorsTest, AFailureToWriteReachesTheFormAndLeavesTheBook) {
    yellow() = bytesOf(personRecord("Adams", "Ann"));
    files.writesUntilFailure = 0;
    NewEntryEditor editor(parts);
    EXPECT_THROW((void)editor.apply(person("Baker", "Bob")), Failure);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Adams", "Ann")));
    EXPECT_EQ(flips, 0);
    EXPECT_EQ(state.PendingLetter, 0);
}

TEST_F(EntryEditorsTest, AFailureBehindTheWriteIsToldAndTheFormCloses) {
    parts.flipCheck1 = [] { throw Failure("gone"); };
    EXPECT_EQ(add(person("Baker", "Bob")), Outcome::Written);
    EXPECT_EQ(messages.takeShown(), Texts{"error|Velmora|gone"});
    EXPECT_EQ(state.PendingLetter, 0);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob")));
}

TEST_F(EntryEditorsTest, ClosingEndsTheChangeMode) {
    state.EntryChangeMode = 1;
    ChangeEntryEditor(parts, "Baker, Bob").closed();
    EXPECT_EQ(state.EntryChangeMode, 0);
}

TEST_F(EntryEditorsTest, AnEditorKeepsToTheBookItWasOpenedFor) {
    NewEntryEditor editor(parts);
    view.SelectBook(kWhitePages);
    EXPECT_EQ(editor.apply(person("Baker", "Bob")), Outcome::Written);
    EXPECT_EQ(yellow(), bytesOf(personRecord("Baker", "Bob")));
    EXPECT_EQ(white(), "");
}

}  // namespace
}  // namespace velmora
