#include "core/PaneSwitch.h"

namespace velmora {

void PaneSwitch::show(Pane pane) {
    current_ = pane;
    for (const PaneState& row : paneStates(pane, form_.docPadBox().width))
        form_.setControlState(row.control, row.state);
    form_.raisePaneButton(pane);
    if (const char* text = paneShownText(pane); *text)
        statusLine_.show(text);
}

}  // namespace velmora
