#pragma once

class QFrame;
class QLayout;
class QString;
class QWidget;

namespace velmora {

// The head of a group of controls in a dialog: its caption, and a hairline to the right of it.
[[nodiscard]] QLayout* makeGroupHead(const QString& caption, QWidget* parent);

// The hairline by itself.
[[nodiscard]] QFrame* makeHairline(QWidget* parent);

}  // namespace velmora
