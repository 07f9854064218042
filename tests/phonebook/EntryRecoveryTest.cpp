#include "phonebook/EntryRecovery.h"

#include <gtest/gtest.h>

#include "core/DataLocations.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeRunningPrograms.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

EntryDraft draftWith(const std::string& last, std::optional<std::string> line = std::nullopt) {
    EntryDraft draft{{kWhitePagesFile, std::move(line)}, {}};
    draft.values[Field::Last] = last;
    return draft;
}

// Comparable, since the struct is all texts and a switch.
void expectSame(const EntryDraft& a, const EntryDraft& b) {
    EXPECT_EQ(a.origin.bookFile, b.origin.bookFile);
    EXPECT_EQ(a.origin.line, b.origin.line);
    EXPECT_EQ(a.values.fields, b.values.fields);
    EXPECT_EQ(a.values.justCompany, b.values.justCompany);
}

TEST(EntryDraft, AnyValuesComeBackFromTheirBytes) {
    EntryDraft draft = draftWith("O'Hara:5", "O'Hara, Ann");
    draft.values[Field::Memo] = std::string("a\r\nb\0\xFF 12:", 10);
    draft.values.justCompany = true;
    for (const auto& line :
         {draft.origin.line, std::optional<std::string>(), std::optional<std::string>("")}) {
        draft.origin.line = line;
        const auto back = draftOf(bytesOf(draft));
        ASSERT_TRUE(back);
        expectSame(*back, draft);
    }
}

TEST(EntryDraft, NothingComesBackFromBytesThatAreNoWholeDraft) {
    const std::string whole = bytesOf(draftWith("Adair", "Adair, Lucian"));
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(draftOf(whole.substr(0, size))) << size;
    EXPECT_FALSE(draftOf(whole + "0:"));
    EXPECT_FALSE(draftOf("99999999999999999999:x"));
    EXPECT_FALSE(draftOf("-1:x"));
    EntryDraft foreign = draftWith("Adair");
    foreign.origin.bookFile = "\\OTHER.QEL";
    EXPECT_FALSE(draftOf(bytesOf(foreign)));
}

class EntryRecoveryTest : public ::testing::Test {
  protected:
    // Leaves a draft behind as a session that was cut short does.
    void leaveBehind(const EntryDraft& draft, const std::string& run) {
        programs.own = run;
        EntryRecovery(folder.path(), files, programs).keep(draft);
        programs.own = "this run";
    }

    test::TemporaryFolder folder;
    PosixFiles files{NativePaths(CodePage::western())};
    test::FakeRunningPrograms programs;
    EntryRecovery recovery{folder.path(), files, programs};
};

TEST_F(EntryRecoveryTest, WhatEarlierSessionsLeftBehindIsFoundAndForgotten) {
    leaveBehind(draftWith("Adair"), "first");
    leaveBehind(draftWith("Avery", "Avery, Silas"), "second");
    const auto kept = recovery.abandoned();
    ASSERT_EQ(kept.size(), 2u);
    expectSame(kept[0].draft, draftWith("Adair"));
    expectSame(kept[1].draft, draftWith("Avery", "Avery, Silas"));
    recovery.forget(kept[0]);
    EXPECT_EQ(recovery.abandoned().size(), 1u);
}

TEST_F(EntryRecoveryTest, ACopyThatRunsHasItsDraftForItself) {
    leaveBehind(draftWith("Adair"), "other");
    programs.running.emplace_back("other");
    recovery.keep(draftWith("Avery"));
    EXPECT_TRUE(recovery.abandoned().empty());
    EXPECT_TRUE(folder.has("entry.recovery2"));
    recovery.discard();
    EXPECT_FALSE(folder.has("entry.recovery2"));
    EXPECT_TRUE(folder.has("entry.recovery1"));
}

TEST_F(EntryRecoveryTest, FilesThatAreNoRecoveryArePassedOver) {
    folder.write("entry.recovery1", "something else");
    folder.write("entry.recovery2", "Velmora entry recovery 1\nmark without an end");
    folder.write("entry.recovery3", "Velmora entry recovery 1\nmark\n5:Adair");
    EXPECT_TRUE(recovery.abandoned().empty());
    EXPECT_TRUE(folder.has("entry.recovery1"));
}

TEST_F(EntryRecoveryTest, OnceSealedNothingChangesAnyMore) {
    leaveBehind(draftWith("Adair"), "first");
    recovery.keep(draftWith("Avery"));
    recovery.seal();
    recovery.keep(draftWith("Other"));
    recovery.discard();
    recovery.forget(recovery.abandoned().at(0));
    programs.running.clear();
    const auto kept = EntryRecovery(folder.path(), files, programs).abandoned();
    ASSERT_EQ(kept.size(), 2u);
    EXPECT_EQ(kept[0].draft.values[Field::Last], "Adair");
    EXPECT_EQ(kept[1].draft.values[Field::Last], "Avery");
}

}  // namespace
}  // namespace velmora
