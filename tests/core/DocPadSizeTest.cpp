#include "core/DocPadSize.h"

#include <gtest/gtest.h>

#include "support/FakeMainForm.h"
#include "support/FakeStatusLine.h"

namespace velmora {
namespace {

class DocPadSizeTest : public ::testing::Test {
  protected:
    test::FakeMainForm form;
    test::FakeStatusLine statusLine;
    SharedState state;
    PaneSwitch panes{form, statusLine};
    DocPadSize docPad{form, state, panes};
};

TEST_F(DocPadSizeTest, MaximisingKeepsTheOldPlaceAndTakesTheCaption) {
    panes.show(Pane::Phonebook);
    form.docPad = "DocPad - letter.txt";
    docPad.maximise();
    EXPECT_TRUE(docPad.maximised());
    EXPECT_FALSE(form.yearButton);
    EXPECT_EQ(state.SavedDocPadBox.left, 12000);
    EXPECT_EQ(state.SavedDocPadBox.top, 900);
    EXPECT_EQ(state.SavedDocPadBox.width, 6000);
    EXPECT_EQ(state.SavedDocPadBox.height, 9000);
    EXPECT_FALSE(form.maximiseButton);
    EXPECT_TRUE(form.restoreButton);
    EXPECT_EQ(form.caption, "DocPad - letter.txt");
    EXPECT_EQ(form.box.left, 0);
    EXPECT_EQ(form.states[PaneControl::Command26], ControlState::Disabled);
    EXPECT_EQ(form.states[PaneControl::Picture4], ControlState::Hidden);
    EXPECT_EQ(form.states[PaneControl::Command5], ControlState::Disabled);
}

TEST_F(DocPadSizeTest, RestoringUndoesEveryStep) {
    panes.show(Pane::Phonebook);
    docPad.maximise();
    docPad.restore();
    EXPECT_FALSE(docPad.maximised());
    EXPECT_TRUE(form.yearButton);
    EXPECT_EQ(form.box.left, 12000);
    EXPECT_EQ(form.box.width, 6000);
    EXPECT_TRUE(form.maximiseButton);
    EXPECT_FALSE(form.restoreButton);
    EXPECT_EQ(form.caption, "Velmora");
    EXPECT_EQ(form.states[PaneControl::Command26], ControlState::Enabled);
    EXPECT_EQ(form.states[PaneControl::Picture4], ControlState::Shown);
    EXPECT_EQ(form.states[PaneControl::Command5], ControlState::Enabled);
}

TEST_F(DocPadSizeTest, OutsideThePhonebookItsControlsStayAway) {
    panes.show(Pane::Planner);
    docPad.maximise();
    docPad.restore();
    EXPECT_EQ(form.states[PaneControl::Command26], ControlState::Disabled);
    EXPECT_EQ(form.states[PaneControl::Picture4], ControlState::Hidden);
}

TEST_F(DocPadSizeTest, APaneSwitchLeavesDocPadMaximised) {
    docPad.maximise();
    panes.show(Pane::Phonebook);
    EXPECT_TRUE(docPad.maximised());
    EXPECT_EQ(form.box.left, 0);
    docPad.restore();
    EXPECT_EQ(form.states[PaneControl::Command26], ControlState::Enabled);
}

TEST_F(DocPadSizeTest, TheSameStepTwiceChangesNothing) {
    docPad.restore();
    EXPECT_TRUE(form.log.empty());
    docPad.maximise();
    docPad.maximise();
    EXPECT_EQ(state.SavedDocPadBox.left, 12000);
}

}  // namespace
}  // namespace velmora
