#include "docpad/DocPad.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "docpad/DocPadWorld.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

constexpr const char* kSaveAsked = "ask|Save|Save your DocPad changes?";
constexpr const char* kOpenAsked =
    "ask|Open File?|Are you sure you want to open a text file? Doing so will clear DocPad's "
    "contents.";
constexpr const char* kFilter = "|Text (*.txt)|*.txt|Documents (*.doc)|*.doc";

class DocPadTest : public ::testing::Test, protected test::DocPadWorld {
  protected:
    // A pad with this text that counts as unchanged.
    void clean(const std::string& bytes) {
        text.setBytes(bytes);
        state.DocPadDirty = 0;
    }
};

TEST_F(DocPadTest, EveryChangeOfTheTextSetsTheFlag) {
    EXPECT_EQ(state.DocPadDirty, 0);
    type("a");
    EXPECT_EQ(state.DocPadDirty, 1);
    state.DocPadDirty = 0;
    text.setBytes("a");
    EXPECT_EQ(state.DocPadDirty, 0) << "an equal text is no change";
}

TEST_F(DocPadTest, NewOnAnUnchangedEmptyPadAsksNothingAndLeavesTheFlagAtZero) {
    settings.Save("Doc", "old.txt");
    dialog.setFileName("/old.txt");
    pad.New();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(state.DocPadDirty, 0);
    EXPECT_THAT(view.takeShown(), ElementsAre("DocPad - Untitled"));
    EXPECT_EQ(settings.Read("Doc"), "");
    EXPECT_EQ(dialog.fileName(), "/old.txt") << "the dialog keeps the old name";
}

TEST_F(DocPadTest, NewOnATextEndsWithTheFlagSetAgain) {
    clean("text");
    pad.New();
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(state.DocPadDirty, 1);
}

TEST_F(DocPadTest, NewWithYesPrintsAndClearsAndLeavesTheFileUnsaved) {
    folder.write("letter.txt", "old\r\n");
    willChoose("letter.txt");
    pad.Open();
    type("new");
    messages.takeShown();
    messages.willAnswer(true);
    pad.New();
    EXPECT_THAT(messages.takeShown(), ElementsAre(kSaveAsked));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::Yes));
    EXPECT_THAT(printer.printed, ElementsAre("old\r\nnew"));
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(folder.read("letter.txt"), "old\r\n");
}

TEST_F(DocPadTest, NewWithNoClearsWithoutPrinting) {
    type("text");
    messages.willAnswer(false);
    pad.New();
    EXPECT_THAT(printer.printed, IsEmpty());
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(view.current, "DocPad - Untitled");
}

TEST_F(DocPadTest, NewKeepsATextThatCouldNotBePrinted) {
    type("text");
    printer.works = false;
    messages.willAnswer(true);
    pad.New();
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_EQ(view.current, "DocPad");
}

TEST_F(DocPadTest, CommandsStartedWhileNewPrintsDoNothing) {
    type("text");
    messages.willAnswer(true);
    printer.whilePrinting = [this] {
        pad.New();
        pad.Open();
        pad.Print();
        EXPECT_EQ(text.text, "text");
    };
    pad.New();
    EXPECT_THAT(printer.printed, ElementsAre("text"));
    EXPECT_EQ(text.text, "");
}

TEST_F(DocPadTest, PrintPrintsAndChangesNothing) {
    type("text");
    pad.Print();
    pad.Print();
    EXPECT_THAT(printer.printed, ElementsAre("text", "text"));
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(state.DocPadDirty, 1);
}

TEST_F(DocPadTest, OpenReadsTheFileAndRemembersIt) {
    folder.write("notes.txt", std::string("a\r\nb\nc\rd\0e", 10));
    willChoose("notes.txt");
    pad.Open();
    EXPECT_THAT(messages.takeShown(), ElementsAre(std::string("open|Open|") + kFilter));
    EXPECT_EQ(text.text, std::string("a\r\nb\nc\rd\0e", 10));
    EXPECT_EQ(state.DocPadDirty, 1) << "leaving at once asks whether to save";
    EXPECT_THAT(view.takeShown(), ElementsAre("now: DocPad: Loading", "DocPad - notes.txt"));
    EXPECT_EQ(settings.Read("Doc"), folder.file("notes.txt"));
    EXPECT_EQ(dialog.fileName(), folder.file("notes.txt"));
    EXPECT_EQ(dialog.fileTitle(), "notes.txt");
}

TEST_F(DocPadTest, OpenAsksFirstWhenThereAreChanges) {
    type("typed");
    messages.willAnswer(false);
    pad.Open();
    EXPECT_THAT(messages.takeShown(), ElementsAre(kOpenAsked));
    EXPECT_EQ(text.text, "typed");

    folder.write("notes.txt", "file");
    messages.willAnswer(true);
    willChoose("notes.txt");
    pad.Open();
    EXPECT_EQ(text.text, "file");
}

TEST_F(DocPadTest, OpenOfAnEmptyFileIntoAnEmptyPadLeavesTheFlagAtZero) {
    folder.write("empty.txt", "");
    willChoose("empty.txt");
    pad.Open();
    EXPECT_EQ(state.DocPadDirty, 0);
}

TEST_F(DocPadTest, OpenTakesFortyThousandBytes) {
    folder.write("long.txt", std::string(40000, 'x'));
    willChoose("long.txt");
    pad.Open();
    EXPECT_EQ(text.text.size(), 40000u);
    EXPECT_EQ(view.current, "DocPad - long.txt");
}

TEST_F(DocPadTest, OpenRefusesOneByteMoreAndKeepsTextAndSetting) {
    folder.write("long.txt", std::string(40001, 'x'));
    settings.Save("Doc", "before");
    clean("text");
    willChoose("long.txt");
    pad.Open();
    EXPECT_EQ(messages.takeShown().back(),
              "tell|File Exceeded Maximum Length.|The file you selected is too large.");
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(state.DocPadDirty, 0);
    EXPECT_THAT(view.takeShown(), ElementsAre("DocPad"));
    EXPECT_EQ(settings.Read("Doc"), "before");
    EXPECT_EQ(dialog.fileName(), folder.file("long.txt"));
}

TEST_F(DocPadTest, ACancelledOpenReadsThePresentFileAgain) {
    folder.write("notes.txt", "file");
    willChoose("notes.txt");
    pad.Open();
    type(" and more");
    messages.willAnswer(true);
    willCancel();
    pad.Open();
    EXPECT_EQ(text.text, "file");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_EQ(settings.Read("Doc"), folder.file("notes.txt"));
}

TEST_F(DocPadTest, ACancelledOpenWithoutANameForgetsTheDocumentOfTheSettings) {
    settings.Save("Doc", "before");
    clean("text");
    willCancel();
    pad.Open();
    EXPECT_EQ(settings.Read("Doc"), "");
    EXPECT_EQ(text.text, "text");
    EXPECT_THAT(view.takeShown(), IsEmpty());
}

TEST_F(DocPadTest, OpenOfAFileThatCanNotBeReadShowsTheErrorAndKeepsTheText) {
    clean("text");
    willChoose("missing.txt");
    pad.Open();
    EXPECT_THAT(messages.takeShown().back(), StartsWith("error|Velmora|The file "));
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(view.current, "DocPad");
    EXPECT_FALSE(folder.has("missing.txt"));
}

TEST_F(DocPadTest, SaveWritesTheTextAndALineEnd) {
    type(std::string("a\nb\0\xE9", 5));
    willChoose("new.txt");
    EXPECT_TRUE(pad.Save());
    EXPECT_THAT(messages.takeShown(), ElementsAre(std::string("save|Save As|") + kFilter));
    EXPECT_EQ(folder.read("new.txt"), std::string("a\nb\0\xE9\r\n", 7));
    EXPECT_EQ(state.DocPadDirty, 0);
    EXPECT_EQ(status.text, "Saving ");
    EXPECT_THAT(view.takeShown(), ElementsAre("now: DocPad: Saving", "DocPad - new.txt"));
    EXPECT_EQ(settings.Read("Doc"), "") << "only Open and New write it";
}

TEST_F(DocPadTest, OpenSaveOpenShowsTwoMoreBytesEachTime) {
    folder.write("notes.txt", "text");
    for (const char* expected : {"text", "text\r\n", "text\r\n\r\n"}) {
        state.DocPadDirty = 0;
        willChoose("notes.txt");
        pad.Open();
        EXPECT_EQ(text.text, expected);
        willChoose("notes.txt");
        EXPECT_TRUE(pad.Save());
    }
}

TEST_F(DocPadTest, SaveOfAnEmptyTextWritesTheLineEndAlone) {
    willChoose("new.txt");
    EXPECT_TRUE(pad.Save());
    EXPECT_EQ(folder.read("new.txt"), "\r\n");
}

TEST_F(DocPadTest, ACancelledSaveWritesToThePresentNameAndKeepsWhatTheFileHeld) {
    folder.write("notes.txt", "old");
    willChoose("notes.txt");
    pad.Open();
    type(" new");
    willCancel();
    EXPECT_TRUE(pad.Save());
    EXPECT_EQ(folder.read("notes.txt"), "old new\r\n");
    EXPECT_EQ(folder.read("notes.txt~"), "old");
    EXPECT_EQ(state.DocPadDirty, 0);
}

TEST_F(DocPadTest, AChosenSaveKeepsNoCopy) {
    folder.write("notes.txt", "old");
    type("new");
    willChoose("notes.txt");
    EXPECT_TRUE(pad.Save());
    EXPECT_EQ(folder.read("notes.txt"), "new\r\n");
    EXPECT_FALSE(folder.has("notes.txt~"));
}

TEST_F(DocPadTest, ACancelledSaveWithoutANameLeavesTheTextUnsavedAndTheFlagAtZero) {
    type("text");
    willCancel();
    EXPECT_TRUE(pad.Save());
    EXPECT_EQ(state.DocPadDirty, 0);
    EXPECT_EQ(text.text, "text");
    EXPECT_THAT(view.takeShown(), IsEmpty());
    EXPECT_EQ(status.text, "");
}

TEST_F(DocPadTest, TheCaptionOfTheWindowFollowsWhileDocPadFillsIt) {
    text.width = 8000;
    pad.New();
    EXPECT_THAT(view.takeShown(), ElementsAre("DocPad - Untitled", "caption: DocPad - Untitled"));
    type("x");
    willChoose("a.txt");
    pad.Save();
    EXPECT_THAT(view.takeShown(),
                ElementsAre("now: DocPad: Saving", "DocPad - a.txt", "caption: DocPad - a.txt"));
    willChoose("a.txt");
    pad.Open();
    EXPECT_THAT(view.takeShown(),
                ElementsAre("now: DocPad: Loading", "DocPad - a.txt", "caption: DocPad - a.txt"));
    text.width = 7999;
    messages.willAnswer(false);
    pad.New();
    EXPECT_THAT(view.takeShown(), ElementsAre("DocPad - Untitled"));
}

}  // namespace
}  // namespace velmora
