#pragma once

#include <QMargins>
#include <QRect>

class QWidget;

namespace velmora {

// True where no program may place its windows or bring them to the front by itself.
[[nodiscard]] bool systemPlacesWindows();

// What the window manager draws around a window. It is known once a window is in view; until then
// the answer is what another window of the program has, or a guess.
[[nodiscard]] QMargins frameOf(const QWidget& window);

// The greatest size of a window's inside with which its frame fits into `room`.
[[nodiscard]] QSize largestInside(const QRect& room, const QWidget& window);

// Puts a window, with its frame, into the middle of `room`, its top higher by `raise`. The left top
// corner stays inside. Where no program may place its windows, nothing happens.
void centreIn(const QRect& room, QWidget& window, int raise = 0);

// Moves a window no further than it must so that its frame is inside `room`, the left top corner
// first.
void moveInto(const QRect& room, QWidget& window);

}  // namespace velmora
