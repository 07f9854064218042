#pragma once

#include <array>
#include <vector>

namespace velmora {

// The three panes of the main window; one shows at a time.
enum class Pane { Planner = 0, Phonebook = 1, Dialer = 2 };

inline constexpr std::size_t kPaneCount = 3;

// The controls of the main window whose state depends on the pane.
enum class PaneControl {
    SSDay1,     // the day view
    Label1,     // the date line
    Picture4,   // the letter tabs
    Label17,    // the selected entry's details
    List1,      // the entry list
    Picture3,   // the keypad
    Label16,    // the last number dialed
    Command20,  // the four dial buttons
    Command21,
    Command22,
    Command24,
    Label18,    // "Yellow Pages"
    Label19,    // "White Pages"
    Picture2,   // the holder of the phonebook's details
    Command26,  // associates
    Command5,   // open the attached file
};

enum class ControlState { Shown, Hidden, Enabled, Disabled };

struct PaneState {
    PaneControl control;
    ControlState state;
};

// The states that a pane gives to the controls, in the order in which they are set.
// `docPadWidth` is the width of DocPad's text box in twips: from 9600 on it covers Command26 and
// Command5, which are then left as they are.
[[nodiscard]] std::vector<PaneState> paneStates(Pane pane, int docPadWidth);

// Texts of the status line: under the pointer on a pane's button, and on showing a pane ("" where
// the line stays as it is).
[[nodiscard]] const char* paneHoverText(Pane pane);
[[nodiscard]] const char* paneShownText(Pane pane);

}  // namespace velmora
