#include <gtest/gtest.h>

#include "docpad/DocPadWorld.h"

namespace velmora {
namespace {

class RecoveryAtTheEnd : public ::testing::Test, protected test::DocPadWorld {};

// The program is told to end while a box is open, which closes as if it were cancelled.
class EndInABox : public ::testing::Test, protected test::DocPadWorld {
  protected:
    EndInABox() {
        folder.write("letter.txt", "on the disk");
        settings.Save("Doc", letter);
        dialog.setFileName(letter);
        type("typed");
        messages.whileOpen([this] { loop.isClosing = true; });
    }

    void expectNothingChanged() {
        EXPECT_EQ(folder.read("letter.txt"), "on the disk");
        EXPECT_FALSE(folder.has("letter.txt~"));
        EXPECT_EQ(text.text, "typed");
        EXPECT_TRUE(pad.changed());
        EXPECT_EQ(settings.Read("Doc"), letter);
        EXPECT_EQ(dialog.fileName(), letter);
    }

    const std::string letter = folder.file("letter.txt");
};

TEST_F(EndInABox, SaveAsWritesNothing) {
    willCancel();
    EXPECT_FALSE(pad.Save());
    expectNothingChanged();
}

TEST_F(EndInABox, OpenReadsNothing) {
    state.DocPadDirty = 0;
    willCancel();
    pad.Open();
    state.DocPadDirty = 1;
    expectNothingChanged();
}

TEST_F(EndInABox, NewKeepsTheText) {
    messages.willAnswer(false);
    pad.New();
    expectNothingChanged();
    EXPECT_TRUE(printer.printed.empty());
}

TEST_F(EndInABox, TheQuestionBeforeTheEndIsNotAnswered) {
    messages.willAnswer(false);
    EXPECT_FALSE(pad.mayClose());
    expectNothingChanged();
}

TEST_F(EndInABox, ASessionThatEndsDuringItsQuestionTakesNoTextForUnwanted) {
    messages.willAnswer(false);
    EXPECT_FALSE(pad.mayEnd());
    pad.dropGivenUp();
    expectNothingChanged();
}

TEST_F(EndInABox, NoOtherTextIsOfferedAfterTheOneThatIsCutOff) {
    programs.own = "an earlier run";
    RecoveryFile(folder.path(), files, programs, clock).keep("one", "");
    RecoveryFile(folder.path(), files, programs, clock).keep("two", "");
    programs.own = "this run";
    messages.willAnswer(false);
    pad.offerRecovery();
    EXPECT_TRUE(folder.has("docpad.recovery1"));
    EXPECT_TRUE(folder.has("docpad.recovery2"));
}

TEST_F(RecoveryAtTheEnd, WhatIsKeptStaysWhateverAnOpenBoxDoesAfterwards) {
    type("text");
    pad.keepForRecovery();
    ASSERT_TRUE(folder.has("docpad.recovery1"));
    const std::string kept = folder.read("docpad.recovery1");
    // A question that is open while the program ends is answered No.
    messages.willAnswer(false);
    messages.whileOpen([&] { recovery.seal(); });
    pad.New();
    pad.keepForRecovery();
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(folder.read("docpad.recovery1"), kept);
}

TEST_F(RecoveryAtTheEnd, ANoBeforeAnEndThatIsCalledOffCostsNothing) {
    type("text");
    pad.keepForRecovery();
    messages.willAnswer(false);
    EXPECT_TRUE(pad.mayEnd());
    EXPECT_EQ(text.text, "text");
    EXPECT_TRUE(pad.changed());
    EXPECT_TRUE(folder.has("docpad.recovery1"));
    type(" and more");
    pad.dropGivenUp();
    EXPECT_TRUE(pad.changed()) << "the No was about another text";
    EXPECT_TRUE(folder.has("docpad.recovery1"));
}

TEST_F(RecoveryAtTheEnd, ATextThatTheUserDoesNotWantIsNotOfferedAgain) {
    type("text");
    pad.keepForRecovery();
    messages.willAnswer(false);
    EXPECT_TRUE(pad.mayEnd());
    pad.dropGivenUp();
    pad.keepForRecovery();
    EXPECT_FALSE(folder.has("docpad.recovery1"));
}

TEST_F(RecoveryAtTheEnd, AYesBeforeTheEndSavesAndAFailureKeepsTheSessionGoing) {
    type("text");
    messages.willAnswer(true);
    willChoose("letter.txt");
    EXPECT_TRUE(pad.mayEnd());
    EXPECT_EQ(folder.read("letter.txt"), "text\r\n");
    EXPECT_TRUE(pad.mayEnd()) << "nothing is left to ask";
    type("!");
    messages.willAnswer(true);
    willChoose("no folder/letter.txt");
    EXPECT_FALSE(pad.mayEnd());
    EXPECT_TRUE(pad.changed());
}

TEST_F(RecoveryAtTheEnd, AnOfferThatTheEndCutsOffIsMadeAgain) {
    programs.own = "an earlier run";
    RecoveryFile(folder.path(), files, programs, clock).keep("text", "");
    programs.own = "this run";
    messages.willAnswer(false);
    messages.whileOpen([&] { recovery.seal(); });
    pad.offerRecovery();
    EXPECT_TRUE(folder.has("docpad.recovery1"));
}

}  // namespace
}  // namespace velmora
