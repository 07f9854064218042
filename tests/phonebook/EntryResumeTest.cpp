#include "phonebook/EntryResume.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/PendingWish.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/FakeRunningPrograms.h"
#include "support/FakeStatusLine.h"
#include "support/PhonebookFixture.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::bytesOf;
using test::personRecord;
using Texts = std::vector<std::string>;

struct FakeEntryForm final : EntryFormOpener {
    void openEntryForm(EntryEditor& editor) override {
        ++opened;
        if (whileOpen)
            whileOpen(editor);
        editor.closed();
    }
    int opened = 0;
    std::function<void(EntryEditor&)> whileOpen;
};

class EntryResumeTest : public testing::Test, protected test::PhonebookFixture {
  protected:
    void leaveBehind(const std::string& last, std::optional<std::string> line = std::nullopt) {
        programs.own = "an earlier run";
        EntryDraft draft{{kWhitePagesFile, std::move(line)}, {}};
        draft.values[Field::First] = "Ann";
        draft.values[Field::Last] = last;
        EntryRecovery(folder.path(), realFiles, programs).keep(draft);
        programs.own = "this run";
    }
    static std::string question(const std::string& name) {
        return "ask|Phonebook|Velmora ended while an entry was in its form (" + name +
               "). Do you want to go on with it?";
    }

    test::TemporaryFolder folder;
    PosixFiles realFiles{NativePaths(CodePage::western())};
    test::FakeRunningPrograms programs;
    EntryRecovery recovery{folder.path(), realFiles, programs};
    test::FakeMessages messages;
    test::FakePhonebookPane pane;
    test::FakeStatusLine statusLine;
    FakeEntryForm form;
    EntryWriter writer{store, messages};
    LetterView view{state, store, pane};
    EntryCommands commands{
        {state, settings, store, writer, view, messages, [] {}}, pane, statusLine, form};
    EntryResume resume{recovery, commands, messages};
};

TEST_F(EntryResumeTest, NothingIsAskedWhereNothingWasCutShort) {
    resume.offer();
    EXPECT_EQ(messages.takeShown(), Texts{});
}

TEST_F(EntryResumeTest, ANewEntryGoesOnInItsOwnBook) {
    leaveBehind("Adair");
    messages.willAnswer(true);
    form.whileOpen = [&](EntryEditor& editor) {
        EXPECT_EQ(editor.caption(), "Add Entry");
        EXPECT_EQ(state.EntryChangeMode, 0);
        const Entry values = editor.load();
        EXPECT_EQ(values[Field::Last], "Adair");
        EXPECT_TRUE(folder.has("entry.recovery2")) << "kept until it is written";
        EXPECT_EQ(editor.apply(values), EntryEditor::Outcome::Written);
    };
    resume.offer();
    EXPECT_EQ(messages.takeShown(), Texts{question("Ann Adair")});
    EXPECT_EQ(messages.takePreselected(), std::vector{Answer::Yes});
    EXPECT_EQ(white(), bytesOf(personRecord("Adair", "Ann")));
    EXPECT_EQ(state.BookKind, kWhitePages);
    EXPECT_FALSE(folder.has("entry.recovery1"));
}

TEST_F(EntryResumeTest, AChangedEntryIsChangedWhereItLies) {
    white() = bytesOf(personRecord("Adams", "Ann"));
    leaveBehind("Adair", "Adams, Ann");
    messages.willAnswer(true);
    form.whileOpen = [&](EntryEditor& editor) {
        EXPECT_EQ(editor.caption(), "Edit Entry");
        EXPECT_EQ(state.EntryChangeMode, 1);
        EXPECT_EQ(editor.apply(editor.load()), EntryEditor::Outcome::Written);
    };
    resume.offer();
    EXPECT_EQ(white(), bytesOf(personRecord("Adair", "Ann")));
}

TEST_F(EntryResumeTest, NoForgetsAndTheNextIsAskedAboutUntilOneIsTaken) {
    leaveBehind("Adair");
    leaveBehind("Avery");
    leaveBehind("Axton");
    messages.willAnswer(false);
    messages.willAnswer(true);
    resume.offer();
    EXPECT_EQ(messages.takeShown(), (Texts{question("Ann Adair"), question("Ann Avery")}));
    EXPECT_EQ(form.opened, 1);
    programs.running = {"this run"};
    const auto rest = recovery.abandoned();
    ASSERT_EQ(rest.size(), 1u);
    EXPECT_EQ(rest[0].draft.values[Field::Last], "Axton");
}

}  // namespace
}  // namespace velmora
