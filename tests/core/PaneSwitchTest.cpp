#include "core/PaneSwitch.h"

#include <gtest/gtest.h>

#include "support/FakeMainForm.h"
#include "support/FakeStatusLine.h"

namespace velmora {
namespace {

constexpr auto kShown = ControlState::Shown;
constexpr auto kHidden = ControlState::Hidden;
constexpr auto kEnabled = ControlState::Enabled;
constexpr auto kDisabled = ControlState::Disabled;

class PaneSwitchTest : public ::testing::Test {
  protected:
    test::FakeMainForm form;
    test::FakeStatusLine statusLine;
    PaneSwitch panes{form, statusLine};
};

TEST_F(PaneSwitchTest, EachPaneGivesEveryControlItsState) {
    struct Row {
        PaneControl control;
        ControlState planner;
        ControlState phonebook;
        ControlState dialer;
    };
    const Row rows[] = {
        {PaneControl::Label1, kShown, kHidden, kHidden},
        {PaneControl::SSDay1, kShown, kHidden, kHidden},
        {PaneControl::Picture4, kHidden, kShown, kHidden},
        {PaneControl::Label17, kHidden, kShown, kHidden},
        {PaneControl::List1, kDisabled, kEnabled, kDisabled},
        {PaneControl::Picture3, kHidden, kHidden, kShown},
        {PaneControl::Label16, kHidden, kHidden, kShown},
        {PaneControl::Command20, kDisabled, kDisabled, kEnabled},
        {PaneControl::Command21, kDisabled, kDisabled, kEnabled},
        {PaneControl::Command22, kDisabled, kDisabled, kEnabled},
        {PaneControl::Command24, kDisabled, kDisabled, kEnabled},
        {PaneControl::Label18, kHidden, kShown, kHidden},
        {PaneControl::Label19, kHidden, kHidden, kHidden},
        {PaneControl::Picture2, kHidden, kShown, kHidden},
        {PaneControl::Command26, kDisabled, kEnabled, kDisabled},
        {PaneControl::Command5, kDisabled, kEnabled, kDisabled},
    };
    for (const Pane pane : {Pane::Phonebook, Pane::Dialer, Pane::Planner}) {
        panes.show(pane);
        EXPECT_EQ(form.raised, pane);
        EXPECT_EQ(panes.current(), pane);
        for (const Row& row : rows) {
            const ControlState expected = pane == Pane::Planner     ? row.planner
                                          : pane == Pane::Phonebook ? row.phonebook
                                                                    : row.dialer;
            EXPECT_EQ(form.states[row.control], expected) << static_cast<int>(row.control);
        }
        EXPECT_EQ(form.states.size(), std::size(rows));
    }
}

TEST_F(PaneSwitchTest, ButtonsUnderAWideDocPadAreNotEnabled) {
    form.box.width = 9600;
    panes.show(Pane::Phonebook);
    EXPECT_FALSE(form.states.count(PaneControl::Command26));
    EXPECT_FALSE(form.states.count(PaneControl::Command5));
    form.box.width = 9599;
    panes.show(Pane::Phonebook);
    EXPECT_EQ(form.states[PaneControl::Command26], kEnabled);
    EXPECT_EQ(form.states[PaneControl::Command5], kEnabled);
    form.box.width = 9600;
    panes.show(Pane::Dialer);
    EXPECT_EQ(form.states[PaneControl::Command26], kDisabled);
}

TEST_F(PaneSwitchTest, OnlyThePhonebookWritesToTheStatusLine) {
    statusLine.text = "before";
    panes.show(Pane::Dialer);
    panes.show(Pane::Planner);
    EXPECT_EQ(statusLine.text, "before");
    panes.show(Pane::Phonebook);
    EXPECT_EQ(statusLine.text, "Click a letter on the virtual rolodex.");
}

TEST(Panes, HoverTextsTellWhatAPaneButtonDoes) {
    EXPECT_STREQ(paneHoverText(Pane::Planner), "Activates the Daily Planner");
    EXPECT_STREQ(paneHoverText(Pane::Phonebook), "Activates the Phonebook.");
    EXPECT_STREQ(paneHoverText(Pane::Dialer), "Activates the Telephone/Voice Mail Dialer.");
}

}  // namespace
}  // namespace velmora
