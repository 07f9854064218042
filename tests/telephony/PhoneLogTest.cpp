#include "telephony/PhoneLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "docpad/DocPadWorld.h"
#include "platform/Failure.h"
#include "support/FakeClock.h"
#include "telephony/PhoneLogViewer.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class PhoneLogTest : public ::testing::Test, protected test::DocPadWorld {
  protected:
    test::FakeClock clock;
    LocaleFormats locale;
    PhoneLog log{folder.path(), files, clock, locale};
    PhoneLogViewer viewer{log, pad, view, dialog, messages};
};

TEST_F(PhoneLogTest, WritesOneLineForEachCall) {
    clock.set(std::chrono::year(2001) / 11 / 15, 17h + 34min);
    log.append(PhoneLog::Direction::Outgoing, "5551212");
    clock.set(std::chrono::year(2001) / 11 / 16, 5min);
    log.append(PhoneLog::Direction::Incoming, "(516) 555-1212");
    EXPECT_EQ(folder.read("phonelog.txt"),
              "15-Nov-01\t05:34 PM\tOutgoing\t5551212\r\n"
              "16-Nov-01\t12:05 AM\tIncoming\t(516) 555-1212\r\n");
}

TEST_F(PhoneLogTest, AppendsToAnAnnotatedLogAsItStands) {
    folder.write("PhoneLog.TXT", "my note");
    clock.set(std::chrono::year(2001) / 11 / 15, 17h + 34min);
    log.append(PhoneLog::Direction::Outgoing, "1");
    EXPECT_EQ(folder.read("PhoneLog.TXT"), "my note15-Nov-01\t05:34 PM\tOutgoing\t1\r\n");
    EXPECT_FALSE(folder.has("phonelog.txt"));
}

TEST_F(PhoneLogTest, FailsWhereTheFolderIsGone) {
    PhoneLog lost(folder.file("none"), files, clock, locale);
    EXPECT_THROW(lost.append(PhoneLog::Direction::Outgoing, "1"), Failure);
}

TEST_F(PhoneLogTest, TheViewerShowsTheLogAndSaveWritesItBack) {
    folder.write("phonelog.txt", "line\r\n");
    viewer.view();
    EXPECT_THAT(messages.takeShown(), IsEmpty());
    EXPECT_EQ(text.text, "line\r\n");
    EXPECT_THAT(view.takeShown(), ElementsAre("now: DocPad: Loading", "DocPad - PHONELOG.TXT"));
    EXPECT_EQ(dialog.fileName(), folder.path() + "\\PHONELOG.TXT");
    EXPECT_EQ(dialog.fileTitle(), "");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_EQ(settings.Read("Doc"), "");

    type("note");
    willCancel();
    EXPECT_TRUE(pad.Save());
    EXPECT_EQ(folder.read("phonelog.txt"), "line\r\nnote\r\n");
    EXPECT_FALSE(folder.has("PHONELOG.TXT")) << "both names are one file";
}

TEST_F(PhoneLogTest, TheViewerAsksWhenThereAreChanges) {
    folder.write("phonelog.txt", "line\r\n");
    type("typed");
    messages.willAnswer(false);
    viewer.view();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("ask|View Phone Log?|Are you sure you wish to view/annotate the phone "
                            "log? Doing so will clear DocPad's contents."));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::No));
    EXPECT_EQ(text.text, "typed");
    messages.willAnswer(true);
    viewer.view();
    EXPECT_EQ(text.text, "line\r\n");
}

TEST_F(PhoneLogTest, TheViewerCreatesAMissingLogAndShowsItEmpty) {
    text.setBytes("text");
    state.DocPadDirty = 0;
    viewer.view();
    EXPECT_EQ(folder.read("phonelog.txt"), "");
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(view.current, "DocPad - PHONELOG.TXT");
}

TEST_F(PhoneLogTest, TheViewerShowsFortyThousandBytesAndRefusesOneMore) {
    folder.write("phonelog.txt", std::string(40000, 'x'));
    viewer.view();
    EXPECT_EQ(text.text.size(), 40000u);

    dialog.setFileName("/before.txt");
    text.setBytes("text");
    state.DocPadDirty = 0;
    folder.write("phonelog.txt", std::string(40001, 'x'));
    viewer.view();
    EXPECT_EQ(messages.takeShown().back(),
              "tell|File Exceeded Maximum Length.|The phone log is too large.");
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(dialog.fileName(), "/before.txt");
    EXPECT_EQ(view.current, "DocPad");
}

TEST_F(PhoneLogTest, TheViewerSetsTheCaptionWhileDocPadFillsTheWindow) {
    text.width = 8000;
    viewer.view();
    EXPECT_THAT(view.takeShown(), ElementsAre("now: DocPad: Loading", "DocPad - PHONELOG.TXT",
                                              "caption: DocPad - PHONELOG.TXT"));
}

TEST_F(PhoneLogTest, ALogThatCanNotBeReadShowsTheErrorAndKeepsTheText) {
    std::filesystem::create_directory(folder.file("phonelog.txt"));
    text.setBytes("text");
    state.DocPadDirty = 0;
    viewer.view();
    EXPECT_THAT(messages.takeShown().back(), StartsWith("error|Velmora|"));
    EXPECT_EQ(text.text, "text");
}

}  // namespace
}  // namespace velmora
