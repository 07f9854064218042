#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "docpad/ClipboardCommands.h"
#include "docpad/forms/FocusedWidget.h"
#include "docpad/forms/FontDialog.h"
#include "docpad/forms/PadEditFont.h"
#include "docpad/forms/RecoveryTimer.h"
#include "docpad/forms/TrashPictures.h"
#include "platform/controls/PadEdit.h"

namespace velmora {
namespace {

const CodePage& page() {
    return CodePage::western();
}

TEST(FontDialog, ItsListHasANameForAssistiveTools) {
    const FontDialog dialog({"DejaVu Sans", 9.75, -1}, 4, 14, page());
    EXPECT_EQ(dialog.findChild<QWidget*>("families")->accessibleName(), "Font");
}

TEST(FontDialog, HoldsSizesWithinTheLimits) {
    FontDialog dialog({"DejaVu Sans", 9.75, -1}, 4, 14, page());
    auto* size = dialog.findChild<QDoubleSpinBox*>(QStringLiteral("size"));
    EXPECT_EQ(size->value(), 9.75);
    size->setValue(14.5);
    EXPECT_EQ(dialog.chosen().size, 14);
    size->setValue(1);
    EXPECT_EQ(dialog.chosen().size, 4);
}

TEST(FontDialog, BeginsWithThePresentFontAndColour) {
    const ControlFont now{"DejaVu Sans", 10, 255 + 256 * 2 + 65536 * 3};
    const FontDialog dialog(now, 4, 14, page());
    EXPECT_EQ(dialog.chosen(), now);
}

TEST(FontDialog, TheControlsOwnColourCanBeChosenAgain) {
    FontDialog dialog({"DejaVu Sans", 10, 255}, 4, 14, page());
    dialog.show();
    auto* own = dialog.findChild<QPushButton*>(QStringLiteral("ownColour"));
    ASSERT_TRUE(own->isEnabled());
    QTest::mouseClick(own, Qt::LeftButton);
    EXPECT_EQ(dialog.chosen().colour, -1);
    EXPECT_FALSE(own->isEnabled());
}

TEST(PadEditFont, GivesBackTheFontThatItGot) {
    PadEdit pad(page());
    PadEditFont holder(pad, page());
    EXPECT_EQ(holder.font().colour, -1);
    for (const ControlFont& font :
         {ControlFont{"DejaVu Sans", 12.5, 255}, ControlFont{"DejaVu Sans", 4, -1}}) {
        holder.setFont(font);
        EXPECT_EQ(holder.font(), font);
    }
}

TEST(PadEditFont, TheColourIsThatOfTheText) {
    PadEdit pad(page());
    pad.show();
    const QColor own = pad.palette().color(QPalette::Text);
    PadEditFont holder(pad, page());
    holder.setFont({"DejaVu Sans", 10, 255});
    EXPECT_EQ(pad.palette().color(QPalette::Text), QColor(255, 0, 0));
    holder.setFont({"DejaVu Sans", 10, -1});
    EXPECT_EQ(pad.palette().color(QPalette::Text), own);
}

class Focus : public ::testing::Test {
  protected:
    Focus() {
        line.move(0, 200);
        window.resize(300, 300);
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    QWidget window;
    PadEdit pad{page(), &window};
    QLineEdit line{&window};
    QPushButton button{&window};
    FocusedWidget focused{page()};
    SystemClipboard clipboard{page()};
    ClipboardCommands commands{focused, clipboard};
};

TEST_F(Focus, CommandsActOnTheControlThatHasIt) {
    pad.setBytes("one\ntwo");
    pad.select(0, 5);
    pad.setFocus();
    commands.EditCopy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one\nt"));

    line.setText(QStringLiteral("line"));
    line.setFocus();
    line.setSelection(1, 2);
    commands.EditCut();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("in"));
    EXPECT_EQ(line.text(), QStringLiteral("le"));

    pad.setFocus();
    commands.EditPaste();
    EXPECT_EQ(pad.bytes(), "inwo");
}

TEST_F(Focus, PastedLinesEndInCrLf) {
    QApplication::clipboard()->setText(QStringLiteral("1\n2"));
    pad.setFocus();
    commands.EditPaste();
    EXPECT_EQ(pad.bytes(), "1\r\n2");
}

TEST_F(Focus, AButtonInPassingDoesNotCount) {
    pad.setBytes("text");
    pad.selectAll();
    pad.setFocus();
    button.setFocus();
    ASSERT_TRUE(button.hasFocus());
    commands.EditCopy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("text"));
}

TEST_F(Focus, CopyOfNothingEmptiesTheClipboard) {
    QApplication::clipboard()->setText(QStringLiteral("before"));
    pad.setBytes("text");
    pad.setFocus();
    commands.EditCopy();
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
}

TEST(RecoveryTimer, RunsOnceAfterThePause) {
    int runs = 0;
    RecoveryTimer timer([&runs] {
        ++runs;
        return false;
    });
    timer.setTimes(1, 1000000);
    timer.changed();
    timer.changed();
    EXPECT_TRUE(timer.waiting());
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs == 1; }));
    EXPECT_FALSE(timer.waiting());
}

TEST(RecoveryTimer, RunsDuringTypingWithoutAPauseToo) {
    int runs = 0;
    RecoveryTimer timer([&runs] {
        ++runs;
        return false;
    });
    timer.setTimes(1000000, 1);
    timer.changed();
    EXPECT_TRUE(QTest::qWaitFor([&] {
        timer.changed();
        return runs > 0;
    }));
}

TEST(RecoveryTimer, AStoppedOneWaitsForNothing) {
    RecoveryTimer timer([] {
        ADD_FAILURE();
        return false;
    });
    timer.changed();
    timer.stop();
    EXPECT_FALSE(timer.waiting());
}

TEST(TrashPictures, ShowTheCanAndTakeDropsOnlyAtRest) {
    TrashCan can;
    TrashPictures pictures(can);
    pictures.show(TrashView::Picture::Image5);
    EXPECT_EQ(can.look(), TrashCan::Look::Open);
    EXPECT_FALSE(can.takesDrops());
    pictures.show(TrashView::Picture::Image6);
    EXPECT_EQ(can.look(), TrashCan::Look::Done);
    EXPECT_FALSE(can.takesDrops());
    pictures.show(TrashView::Picture::Image2);
    EXPECT_EQ(can.look(), TrashCan::Look::AtRest);
    EXPECT_TRUE(can.takesDrops());
}

}  // namespace
}  // namespace velmora
