#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <thread>

#include "docpad/DocPadWorld.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kSaveAsked = "ask|Save|Save your DocPad changes?";
constexpr const char* kBackAsked =
    "ask|DocPad|Velmora ended without saving DocPad's text. Do you want it back?\n\nIt begins: ";
constexpr const char* kNotKept =
    "DocPad's text is only in memory: it could not be kept for the case that Velmora is cut short.";

class DocPadStart : public ::testing::Test, protected test::DocPadWorld {
  protected:
    void keep(const std::string& keepDoc, const std::string& bytes) {
        folder.write("last.txt", bytes);
        settings.Save("KeepDoc", keepDoc);
        settings.Save("Doc", folder.file("last.txt"));
    }
};

TEST_F(DocPadStart, LoadsTheLastDocumentWhenKeepDocIsOne) {
    keep(" 1 ", "a\r\nb");
    pad.LoadAtStart();
    EXPECT_EQ(text.text, "a\r\nb");
    EXPECT_EQ(dialog.fileName(), folder.file("last.txt"));
    EXPECT_EQ(dialog.fileTitle(), "") << "only a dialog sets the title";
    EXPECT_THAT(view.takeShown(), ElementsAre("now: DocPad: Loading", "DocPad"));
    EXPECT_EQ(state.DocPadDirty, 1) << "closing at once asks";
}

TEST_F(DocPadStart, LoadsNothingForOtherValuesOfKeepDoc) {
    for (const char* value : {"0", "", "YES", "01", "1x"}) {
        keep(value, "text");
        pad.LoadAtStart();
        EXPECT_EQ(text.text, "") << value;
        EXPECT_EQ(dialog.fileName(), "") << value;
    }
}

TEST_F(DocPadStart, LoadsFortyThousandBytesAndSilentlyNotOneMore) {
    keep("1", std::string(40001, 'x'));
    pad.LoadAtStart();
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(dialog.fileName(), "") << "the next Save would empty the file";
    EXPECT_THAT(messages.takeShown(), IsEmpty());

    keep("1", std::string(40000, 'x'));
    pad.LoadAtStart();
    EXPECT_EQ(text.text.size(), 40000u);
}

TEST_F(DocPadStart, PassesOverABlankNameAMissingFileAndAFolder) {
    settings.Save("KeepDoc", "1");
    for (const std::string& name :
         {std::string(), std::string("  "), folder.file("none.txt"), folder.path()}) {
        settings.Save("Doc", name);
        pad.LoadAtStart();
        EXPECT_EQ(dialog.fileName(), "") << name;
    }
    EXPECT_THAT(view.takeShown(), IsEmpty());
}

TEST_F(DocPadStart, AnEmptyFileRaisesNoFlag) {
    keep("1", "");
    pad.LoadAtStart();
    EXPECT_EQ(state.DocPadDirty, 0);
    EXPECT_EQ(dialog.fileName(), folder.file("last.txt"));
}

TEST_F(DocPadStart, AsksFirstWhenDocPadHoldsChangesAndNoSkipsTheLoad) {
    keep("1", "file");
    type("typed");
    messages.willAnswer(false);
    pad.LoadAtStart();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("ask|Open File?|Are you sure you want to open a text file? Doing so "
                            "will clear DocPad's contents."));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::No));
    EXPECT_EQ(text.text, "typed");
    messages.willAnswer(true);
    pad.LoadAtStart();
    EXPECT_EQ(text.text, "file");
}

class DocPadEnd : public ::testing::Test, protected test::DocPadWorld {
  protected:
    void expectLeft() {
        EXPECT_EQ(state.DocPadDirty, 0);
        EXPECT_EQ(view.current, "DocPad - Untitled");
        EXPECT_EQ(dialog.fileName(), "");
    }
};

TEST_F(DocPadEnd, AsksNothingWithoutChanges) {
    EXPECT_TRUE(pad.mayClose());
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    expectLeft();
}

TEST_F(DocPadEnd, YesSavesThroughTheDialog) {
    type("text");
    messages.willAnswer(true);
    willChoose("end.txt");
    EXPECT_TRUE(pad.mayClose());
    EXPECT_THAT(messages.takeShown().front(), kSaveAsked);
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::Yes));
    EXPECT_EQ(folder.read("end.txt"), "text\r\n");
    expectLeft();
}

TEST_F(DocPadEnd, NoLeavesTheTextUnsaved) {
    folder.write("a.txt", "old");
    dialog.setFileName(folder.file("a.txt"));
    type("text");
    messages.willAnswer(false);
    EXPECT_TRUE(pad.mayClose());
    EXPECT_EQ(folder.read("a.txt"), "old");
    expectLeft();
}

TEST_F(DocPadEnd, ACancelledDialogDoesNotStopTheEnd) {
    type("text");
    messages.willAnswer(true);
    willCancel();
    EXPECT_TRUE(pad.mayClose());
    expectLeft();
}

TEST_F(DocPadEnd, ASaveThatFailsKeepsTheProgramGoing) {
    type("text");
    messages.willAnswer(true);
    willChoose("none/end.txt");
    EXPECT_FALSE(pad.mayClose());
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_EQ(view.current, "DocPad");
}

class DocPadRecovery : public ::testing::Test, protected test::DocPadWorld {
  protected:
    // Leaves a text behind as a session that was cut short does.
    void leaveBehind(const std::string& bytes, const std::string& name = "") {
        programs.own = "an earlier run";
        RecoveryFile earlier(folder.path(), files, programs, clock);
        earlier.keep(bytes, name);
        clock.advance(std::chrono::seconds(1));
        programs.own = "this run";
    }
    [[nodiscard]] bool kept(int number = 1) const {
        return folder.has("docpad.recovery" + std::to_string(number));
    }
};

TEST_F(DocPadRecovery, OffersTheTextOfASessionThatWasCutShort) {
    leaveBehind(std::string("a\r\n\0\xFF", 5), "/docs/letter.txt");
    messages.willAnswer(true);
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre(std::string(kBackAsked) + "a \xFF\nIts file: /docs/letter.txt"));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::Yes));
    EXPECT_EQ(text.text, std::string("a\r\n\0\xFF", 5));
    EXPECT_EQ(dialog.fileName(), "/docs/letter.txt");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_THAT(folder.read("docpad.recovery1"),
                ::testing::StartsWith("Velmora DocPad recovery 2\nthis run\n"))
        << "it stays kept until it is saved, now as this run's own";
    EXPECT_FALSE(kept(2)) << "and takes no second place";
}

TEST_F(DocPadRecovery, NineTextsThatWereLeftBehindDoNotEndAllKeeping) {
    for (int number = 1; number <= 9; ++number)
        leaveBehind("text " + std::to_string(number));
    messages.willAnswer(true);
    pad.offerRecovery();
    EXPECT_EQ(text.text, "text 9");
    type(" and more");
    pad.keepForRecovery();
    EXPECT_THAT(folder.read("docpad.recovery9"), ::testing::EndsWith("\ntext 9 and more"));
    EXPECT_EQ(status.text, "");
}

TEST_F(DocPadRecovery, AsksAboutOneTextAfterTheOtherTheNewestFirst) {
    folder.write("docpad.recovery3", "Velmora DocPad recovery 1\nsome mark\n\nof an old version");
    leaveBehind("first");
    leaveBehind("second");
    leaveBehind("third");
    messages.willAnswer(false);
    messages.willAnswer(true);
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre(std::string(kBackAsked) + "third", std::string(kBackAsked) + "second"));
    EXPECT_EQ(text.text, "second");
    // The rest at the next start.
    messages.willAnswer(false);
    messages.willAnswer(false);
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), ElementsAre(std::string(kBackAsked) + "first",
                                                  std::string(kBackAsked) + "of an old version"));
    EXPECT_FALSE(kept(1));
    EXPECT_TRUE(kept(2)) << "the one that was taken";
    EXPECT_FALSE(kept(3));
    EXPECT_FALSE(kept(4));
}

TEST_F(DocPadRecovery, NeverAsksAboutAnEmptyText) {
    leaveBehind("");
    text.setBytes("present");
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, ATextThatAnotherCopyTookWhileTheQuestionStoodStaysWithIt) {
    leaveBehind("text");
    for (const bool answer : {false, true}) {
        messages.whileOpen([this] {
            programs.own = "another run";
            programs.running.emplace_back("another run");
            RecoveryFile another(folder.path(), files, programs, clock);
            for (const auto& kept : another.abandoned(""))
                another.take(kept);
            programs.own = "this run";
        });
        messages.willAnswer(answer);
        pad.offerRecovery();
        EXPECT_THAT(folder.read("docpad.recovery1"), ::testing::HasSubstr("\nanother run\n"));
        programs.running = {"this run"};
    }
    EXPECT_EQ(text.text, "text");
    EXPECT_THAT(folder.read("docpad.recovery2"), ::testing::EndsWith("\ntext"))
        << "who took it too has a place of its own";
}

TEST_F(DocPadRecovery, ASavedTextIsNotKept) {
    type("text");
    willChoose("a.txt");
    EXPECT_TRUE(pad.Save());
    pad.keepForRecovery();
    EXPECT_FALSE(kept());
    EXPECT_FALSE(pad.keepInBackground());
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, KeepsTheTextInTheBackgroundAndTellsWhenItIsThere) {
    type("text");
    EXPECT_TRUE(pad.keepInBackground());
    while (pad.keepInBackground())
        std::this_thread::yield();
    EXPECT_THAT(folder.read("docpad.recovery1"), ::testing::EndsWith("\ntext"));
    EXPECT_FALSE(pad.keepInBackground()) << "nothing has changed since";
    type(" and more");
    EXPECT_TRUE(pad.keepInBackground());
    messages.willAnswer(false);
    EXPECT_TRUE(pad.mayClose());
    EXPECT_FALSE(kept()) << "a write under way is waited for";
}

TEST_F(DocPadRecovery, ATextThatCanNotBeKeptIsTold) {
    for (int number = 1; number <= 9; ++number)
        folder.write("docpad.recovery" + std::to_string(number), "something else");
    type("text");
    pad.keepForRecovery();
    EXPECT_EQ(status.text, kNotKept);
    status.text.clear();
    EXPECT_FALSE(pad.keepInBackground());
    EXPECT_EQ(status.text, kNotKept);
}

TEST_F(DocPadRecovery, ATextThatCanNotBeWrittenInTheBackgroundIsTold) {
    type("text");
    pad.keepForRecovery();
    std::filesystem::remove(folder.file("docpad.recovery1"));
    std::filesystem::create_directory(folder.file("docpad.recovery1"));
    type(" and more");
    EXPECT_TRUE(pad.keepInBackground());
    while (pad.keepInBackground())
        std::this_thread::yield();
    EXPECT_EQ(status.text, kNotKept);
}

TEST_F(DocPadRecovery, NoForgetsTheText) {
    leaveBehind("text");
    messages.willAnswer(false);
    pad.offerRecovery();
    EXPECT_EQ(text.text, "");
    EXPECT_FALSE(kept());
    messages.takeShown();
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
}

TEST_F(DocPadRecovery, OffersNothingOfACopyThatStillRuns) {
    leaveBehind("text");
    programs.running.emplace_back("an earlier run");
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_TRUE(kept());
}

TEST_F(DocPadRecovery, OffersNothingThatStandsInThePadAlready) {
    leaveBehind("text");
    text.setBytes("text");
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, PassesOverFilesThatAreNoRecovery) {
    folder.write("docpad.recovery1", "something else");
    folder.write("docpad.recovery2", "Velmora DocPad recovery 1\nmark without an end");
    folder.write("docpad.recovery3", "Velmora DocPad recovery 2\nmark\nnoon\nname\ntext");
    pad.offerRecovery();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_TRUE(kept(1));
}

TEST_F(DocPadRecovery, KeepsTheTextUntilItIsSaved) {
    type("text");
    pad.keepForRecovery();
    const std::string head = "Velmora DocPad recovery 2\nthis run\n" +
                             std::to_string(clock.now().time_since_epoch().count()) + "\n\n";
    EXPECT_EQ(folder.read("docpad.recovery1"), head + "text");
    type(" and more");
    pad.keepForRecovery();
    EXPECT_EQ(folder.read("docpad.recovery1"), head + "text and more");
    willChoose("a.txt");
    EXPECT_TRUE(pad.Save());
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, KeepsTheTextWhileItCouldNotBeSaved) {
    type("text");
    pad.keepForRecovery();
    willChoose("none/a.txt");
    EXPECT_FALSE(pad.Save());
    EXPECT_TRUE(kept());
}

TEST_F(DocPadRecovery, NothingStaysBehindAfterACleanEnd) {
    type("text");
    pad.keepForRecovery();
    messages.willAnswer(false);
    EXPECT_TRUE(pad.mayClose());
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, AnEmptyPadKeepsNothing) {
    type("text");
    pad.keepForRecovery();
    text.setBytes("");
    pad.keepForRecovery();
    EXPECT_FALSE(kept());
}

TEST_F(DocPadRecovery, TwoCopiesOfTheProgramKeepTheirTextsApart) {
    leaveBehind("theirs");
    programs.running.emplace_back("an earlier run");
    type("ours");
    pad.keepForRecovery();
    EXPECT_THAT(folder.read("docpad.recovery1"), ::testing::EndsWith("theirs"));
    EXPECT_THAT(folder.read("docpad.recovery2"), ::testing::EndsWith("ours"));
}

}  // namespace
}  // namespace velmora
