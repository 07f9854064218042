#include "core/Panes.h"

namespace velmora {
namespace {

constexpr int kCoveringDocPadWidth = 9600;

struct PaneRow {
    PaneControl control;
    std::array<ControlState, kPaneCount> inPane;  // Planner, Phonebook, Dialer
    bool coveredByDocPad = false;
};

constexpr auto kShown = ControlState::Shown;
constexpr auto kHidden = ControlState::Hidden;
constexpr auto kEnabled = ControlState::Enabled;
constexpr auto kDisabled = ControlState::Disabled;

constexpr std::array<PaneRow, 16> kPaneTable{{
    {PaneControl::SSDay1, {kShown, kHidden, kHidden}},
    {PaneControl::Label1, {kShown, kHidden, kHidden}},
    {PaneControl::Picture4, {kHidden, kShown, kHidden}},
    {PaneControl::Label17, {kHidden, kShown, kHidden}},
    {PaneControl::List1, {kDisabled, kEnabled, kDisabled}},
    {PaneControl::Picture3, {kHidden, kHidden, kShown}},
    {PaneControl::Label16, {kHidden, kHidden, kShown}},
    {PaneControl::Command20, {kDisabled, kDisabled, kEnabled}},
    {PaneControl::Command21, {kDisabled, kDisabled, kEnabled}},
    {PaneControl::Command22, {kDisabled, kDisabled, kEnabled}},
    {PaneControl::Command24, {kDisabled, kDisabled, kEnabled}},
    {PaneControl::Label18, {kHidden, kShown, kHidden}},
    {PaneControl::Label19, {kHidden, kHidden, kHidden}},
    {PaneControl::Picture2, {kHidden, kShown, kHidden}},
    {PaneControl::Command26, {kDisabled, kEnabled, kDisabled}, true},
    {PaneControl::Command5, {kDisabled, kEnabled, kDisabled}, true},
}};

std::size_t indexOf(Pane pane) {
    return static_cast<std::size_t>(pane);
}

}  // namespace

std::vector<PaneState> paneStates(Pane pane, int docPadWidth) {
    std::vector<PaneState> states;
    states.reserve(kPaneTable.size());
    for (const PaneRow& row : kPaneTable) {
        const ControlState state = row.inPane[indexOf(pane)];
        const bool covered = row.coveredByDocPad && docPadWidth >= kCoveringDocPadWidth;
        if (!(covered && state == kEnabled))
            states.push_back({row.control, state});
    }
    return states;
}

const char* paneHoverText(Pane pane) {
    static constexpr std::array<const char*, kPaneCount> kTexts{
        "Activates the Daily Planner",
        "Activates the Phonebook.",
        "Activates the Telephone/Voice Mail Dialer.",
    };
    return kTexts[indexOf(pane)];
}

const char* paneShownText(Pane pane) {
    return pane == Pane::Phonebook ? "Click a letter on the virtual rolodex." : "";
}

}  // namespace velmora
