#pragma once

#include <QDialog>

class QWidget;

namespace velmora {

// The window over which a box opens: the one in front, or the main window while another program or
// the alert of an alarm is in front. Null before there is any.
[[nodiscard]] QWidget* boxOwner();

// Whether a window of ours that stays above all others is in view.
[[nodiscard]] bool hasWindowOnTop();

// Runs a dialog that waits for its answer. It holds up its owner and the windows around that, but
// not the alert of an alarm, which has to answer at any time. It opens above all
// windows of the program.
int runOverOwner(QDialog& dialog);

}  // namespace velmora
