#pragma once

class QAction;
class QMenu;

namespace velmora {

// Adds an item to a menu that shows and does what `original` shows and does, and that goes with the
// menu. An action itself may stand in several menus, but assistive tools know it in one only.
QAction* addTwin(QMenu& menu, QAction& original);

}  // namespace velmora
