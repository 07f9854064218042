#pragma once

class QFrame;
class QWidget;

namespace velmora {

// The outline of a list that stands in a dialog. It takes the list over and grows with it.
[[nodiscard]] QFrame* makeListFrame(QWidget* list, QWidget* parent);

}  // namespace velmora
