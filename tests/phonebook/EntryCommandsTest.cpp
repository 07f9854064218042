#include "phonebook/EntryCommands.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/PendingWish.h"
#include "platform/Failure.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::companyRecord;
using test::personRecord;
using test::tombstoneBytes;
using Texts = std::vector<std::string>;

class FakeEntryForm final : public EntryFormOpener {
  public:
    void openEntryForm(EntryEditor& editor) override {
        captions.push_back(editor.caption());
        if (whileOpen)
            whileOpen(editor);
        editor.closed();
    }

    Texts captions;
    std::function<void(EntryEditor&)> whileOpen;
};

class EntryCommandsTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    EntryCommandsTest() {
        yellow() = kAdams + kBaker;
        view.LoadLetter();
        (void)pane.takeCalls();
    }

    const std::string kAdams = bytesOf(personRecord("Adams", "Ann"));
    const std::string kBaker = bytesOf(personRecord("Baker", "Bob"));
    const std::string kDelete =
        "ask|Confirmation:|Are you sure that you want to delete this record?";
    const std::string kMove = "ask|Confirmation:|Are you sure that you want to move this record?";

    test::FakeMessages messages;
    test::FakePhonebookPane pane;
    test::FakeStatusLine statusLine;
    FakeEntryForm form;
    EntryWriter writer{store, messages};
    LetterView view{state, store, pane};
    PendingWish wish{state, [this](int kind) { view.SelectBook(static_cast<std::int16_t>(kind)); },
                     [this](int index) { view.LetterClick(index); }};
    EntryEditorParts parts{
        state, settings, store, writer, view, messages, [this] { wish.flipped(); }};
    EntryCommands commands{parts, pane, statusLine, form};
};

// Tries again as long as the book is in use.
class PatientEntryCommandsTest : public EntryCommandsTest {
  protected:
    PatientEntryCommandsTest() {
        parts.patiently = [this](const std::function<void()>& work) {
            for (;; ++waits)
                try {
                    return work();
                } catch (const StorageFailure&) {
                }
        };
        files.locksInUse = 2;
    }

    int waits = 0;
};

TEST_F(PatientEntryCommandsTest, DeleteWaitsForABookThatIsInUse) {
    pane.selected = "Baker, Bob";
    messages.willAnswer(true);
    EntryCommands(parts, pane, statusLine, form).deleteEntry();
    EXPECT_EQ(waits, 2);
    EXPECT_EQ(yellow(), kAdams + tombstoneBytes());
    EXPECT_EQ(messages.takeShown(), Texts{kDelete});
}

TEST_F(PatientEntryCommandsTest, MoveWaitsForABookThatIsInUse) {
    pane.selected = "Baker, Bob";
    messages.willAnswer(true);
    EntryCommands(parts, pane, statusLine, form).moveEntry();
    EXPECT_EQ(waits, 2);
    EXPECT_EQ(yellow(), kAdams + tombstoneBytes());
    EXPECT_EQ(white(), kBaker);
}

TEST_F(PatientEntryCommandsTest, AFormThatIsKeptWaitsForABookThatIsInUse) {
    ChangeEntryEditor editor(parts, "Baker, Bob");
    Entry entry = editor.load();
    entry[Field::Memo] = "changed";
    EXPECT_EQ(editor.apply(entry), EntryEditor::Outcome::Written);
    EXPECT_EQ(waits, 2);
    files.locksInUse = 1;
    entry[Field::First] = "Bill";
    EXPECT_EQ(NewEntryEditor(parts).apply(entry), EntryEditor::Outcome::Written);
    EXPECT_EQ(waits, 3);
    EXPECT_EQ(yellow().size(), 3 * kRecordSize);
}

TEST_F(EntryCommandsTest, ABookThatStaysInUseIsToldAndNothingIsWritten) {
    pane.selected = "Baker, Bob";
    files.locksInUse = 1;
    messages.willAnswer(true);
    commands.deleteEntry();
    EXPECT_EQ(messages.takeShown(),
              (Texts{kDelete, "error|Velmora|The file is in use by another copy of the program."}));
    EXPECT_EQ(yellow(), kAdams + kBaker);
}

TEST_F(EntryCommandsTest, NewOpensTheFormInModeZero) {
    form.whileOpen = [&](EntryEditor&) { EXPECT_EQ(state.EntryChangeMode, 0); };
    commands.newEntry();
    EXPECT_EQ(form.captions, Texts{"Add Entry"});
}

TEST_F(EntryCommandsTest, NewMayBeginWithWhatIsKnown) {
    Entry known;
    known[Field::Phone] = "5165551212";
    form.whileOpen = [&](EntryEditor& editor) {
        EXPECT_EQ(state.EntryChangeMode, 0);
        EXPECT_EQ(editor.load(), known);
        Entry values = known;
        values[Field::First] = "Cy";
        values[Field::Last] = "Cole";
        EXPECT_EQ(editor.apply(values), EntryEditor::Outcome::Written);
    };
    commands.newEntryWith(known);
    EXPECT_EQ(form.captions, Texts{"Add Entry"});
    EXPECT_EQ(yellow().size(), 3 * kRecordSize);
    EXPECT_NE(yellow().find("5165551212"), std::string::npos);
}

TEST_F(EntryCommandsTest, ChangeOpensTheFormInModeOneWithTheSelectedEntry) {
    pane.selected = "Adams, Ann";
    form.whileOpen = [&](EntryEditor& editor) {
        EXPECT_EQ(state.EntryChangeMode, 1);
        EXPECT_EQ(editor.load()[Field::Last], "Adams");
    };
    commands.changeEntry();
    EXPECT_EQ(form.captions, Texts{"Edit Entry"});
    EXPECT_EQ(state.EntryChangeMode, 0);
    EXPECT_EQ(statusLine.text, "");
}

TEST_F(EntryCommandsTest, ChangeWithNothingSelectedOnlySaysSo) {
    commands.changeEntry();
    EXPECT_EQ(statusLine.text, "Please select an entry before editing.");
    EXPECT_EQ(form.captions, Texts{});
    EXPECT_EQ(messages.takeShown(), Texts{});
}

TEST_F(EntryCommandsTest, AFormThatFailsToOpenIsToldAndEndsTheChangeMode) {
    pane.selected = "Adams, Ann";
    form.whileOpen = [](EntryEditor&) { throw Failure("gone"); };
    commands.changeEntry();
    EXPECT_EQ(messages.takeShown(), Texts{"error|Velmora|gone"});
    EXPECT_EQ(state.EntryChangeMode, 0);
}

TEST_F(EntryCommandsTest, DeleteAndMoveWithNothingSelectedDoNotAsk) {
    commands.deleteEntry();
    commands.moveEntry();
    commands.dropOnTrash();
    EXPECT_EQ(messages.takeShown(), Texts{});
    EXPECT_EQ(pane.takeCalls(), Texts{});
}

TEST_F(EntryCommandsTest, DeleteAsksThenWritesATombstoneAndReloads) {
    pane.selected = "Adams, Ann";
    pane.details = "old";
    messages.willAnswer(true);
    commands.deleteEntry();
    EXPECT_EQ(messages.takeShown(), Texts{kDelete});
    EXPECT_EQ(yellow(), tombstoneBytes() + kBaker);
    EXPECT_EQ(pane.lines, Texts{});
    EXPECT_EQ(pane.details, "");
}

TEST_F(EntryCommandsTest, ANoReloadsAllTheSame) {
    for (const bool moving : {false, true}) {
        pane.selected = "Adams, Ann";
        messages.willAnswer(false);
        if (moving)
            commands.moveEntry();
        else
            commands.deleteEntry();
        EXPECT_EQ(messages.takeShown(), Texts{moving ? kMove : kDelete});
        EXPECT_EQ(yellow(), kAdams + kBaker);
        EXPECT_EQ(pane.takeCalls(), (Texts{"clearList", "showDetails ", "addLines"}));
        EXPECT_EQ(pane.lines, Texts{"Adams, Ann"});
    }
}

TEST_F(EntryCommandsTest, TheTrashDeletesWithItsQuestion) {
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    commands.dropOnTrash();
    EXPECT_EQ(messages.takeShown(), Texts{kDelete});
    EXPECT_EQ(yellow(), tombstoneBytes() + kBaker);
}

TEST_F(EntryCommandsTest, MoveCarriesTheEntryToTheOtherBookAndBack) {
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    commands.moveEntry();
    EXPECT_EQ(messages.takeShown(), Texts{kMove});
    EXPECT_EQ(yellow(), tombstoneBytes() + kBaker);
    EXPECT_EQ(white(), kAdams);
    EXPECT_EQ(pane.lines, Texts{});
    view.SelectBook(kWhitePages);
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    commands.moveEntry();
    EXPECT_EQ(white(), tombstoneBytes());
    EXPECT_EQ(yellow(), kAdams + kBaker);
}

TEST_F(EntryCommandsTest, ALineWithoutARecordEndsWithoutAWrite) {
    pane.selected = "Nobody, Ned";
    messages.willAnswer(true);
    commands.deleteEntry();
    pane.selected = "Nobody, Ned";
    messages.willAnswer(true);
    commands.moveEntry();
    EXPECT_EQ(yellow(), kAdams + kBaker);
    EXPECT_EQ(white(), "");
    EXPECT_EQ(messages.takeShown(), (Texts{kDelete, kMove}));
    EXPECT_EQ(messages.takePreselected(), (std::vector{Answer::No, Answer::No}));
}

TEST_F(EntryCommandsTest, AFailureIsToldAndTheListIsThereAgain) {
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    files.writesUntilFailure = 0;
    commands.deleteEntry();
    EXPECT_EQ(
        messages.takeShown(),
        (Texts{kDelete, "error|Velmora|The file can not be written: No space left on device."}));
    EXPECT_EQ(yellow(), kAdams + kBaker);
    EXPECT_EQ(pane.lines, Texts{"Adams, Ann"});
}

TEST_F(EntryCommandsTest, ABookThatIsGoneIsToldOnce) {
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    files.unreachable = true;
    commands.deleteEntry();
    EXPECT_EQ(messages.takeShown().size(), 2U);
    EXPECT_EQ(pane.lines, Texts{});
}

TEST_F(EntryCommandsTest, ABookSwitchedDuringTheQuestionDoesNotDivertTheDelete) {
    white() = kAdams;
    pane.selected = "Adams, Ann";
    messages.willAnswer(true);
    messages.whileOpen([&] { view.SelectBook(kWhitePages); });
    commands.deleteEntry();
    EXPECT_EQ(yellow(), tombstoneBytes() + kBaker);
    EXPECT_EQ(white(), kAdams);
}

}  // namespace
}  // namespace velmora
