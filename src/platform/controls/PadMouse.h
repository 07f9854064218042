#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPoint>
#include <cstddef>

#include "platform/controls/PadPage.h"

class QDropEvent;
class QMouseEvent;
class QTimerEvent;

namespace velmora {

class PadEdit;

// What the mouse does in a PadEdit: selects by characters, words and lines, drags what is selected,
// and takes what is dropped.
class PadMouse {
  public:
    // `edit` must outlive this object.
    explicit PadMouse(PadEdit& edit) : edit_(edit) {}

    // Positions are those of the viewport.
    void press(const QMouseEvent& event, QPoint position);
    void doublePress(const QMouseEvent& event, QPoint position);
    void move(const QMouseEvent& event, QPoint position);
    void release(const QMouseEvent& event, QPoint position);

    // True for the timer that scrolls while a selection is drawn beyond the edge.
    bool timer(const QTimerEvent& event);

    // Texts are inserted where they fall. Data of other kinds are left to the caller.
    void drop(QDropEvent& event);

    // Where what is dragged would fall; nothing outside a drag.
    void dragOver(QPoint position);
    void dragLeft();
    [[nodiscard]] const PadPage::Place* dropPlace() const { return over_ ? &dropAt_ : nullptr; }

  private:
    enum class By { Characters, Words, Lines };

    void selectBy(By by, std::size_t position);
    void extendTo(const PadPage::Place& place);
    void drag();

    PadEdit& edit_;
    By by_ = By::Characters;
    bool selecting_ = false;
    bool mayDrag_ = false;       // pressed on the selection, and not moved far yet
    bool dragging_ = false;      // the drag is our own
    bool droppedHere_ = false;   // and ended in this box
    PadBuffer::Selection unit_;  // the word or line that the selection began with
    QPoint pressedAt_;
    QPoint lastAt_;
    QElapsedTimer sinceDouble_;
    QBasicTimer scrolling_;
    PadPage::Place dropAt_;
    bool over_ = false;
};

}  // namespace velmora
