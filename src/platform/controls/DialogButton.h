#pragma once

class QPushButton;
class QWidget;

namespace velmora {

// A button of a dialog under its object name, with a caption in ASCII that holds its access key. It
// belongs to `parent`; only the button that is made primary answers Enter.
[[nodiscard]] QPushButton* makeDialogButton(const char* name, const char* caption, QWidget* parent);

// The one button of a dialog that Enter presses, and that is painted so.
void makePrimary(QPushButton& button);

}  // namespace velmora
