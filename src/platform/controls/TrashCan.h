#pragma once

#include <string>

#include "platform/controls/PaintedButton.h"

namespace velmora {

// The trash at the foot of the rail: a picture that takes what is dropped on it. By keyboard,
// Enter, the space bar or Delete on it stand for a drop of the document; the mouse drops only.
class TrashCan final : public PaintedButton {
    Q_OBJECT

  public:
    explicit TrashCan(QWidget* parent = nullptr);

    // What the can looks like. It is at rest but for the animation after a drop.
    enum class Look { AtRest, Open, Done };
    void setLook(Look look);
    [[nodiscard]] Look look() const { return look_; }

    // While the can is busy it takes no drops, and a drag over it shows so.
    void setTakesDrops(bool takes);
    [[nodiscard]] bool takesDrops() const { return takesDrops_; }

    // The size for a small window.
    void setSmall(bool small);

    // True while a drag that may be dropped is over the can.
    [[nodiscard]] bool dropTarget() const { return dropTarget_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // `line` holds the bytes of the entry's line.
    void entryDropped(const std::string& line);
    void documentDropped();

    // What would be taken at another time has come over the can, or was meant for it, while it is
    // busy.
    void refused();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    // Whether what is dragged or dropped may be taken now; tells the user when it may not.
    bool accepts(QDropEvent& event);
    void setDropTarget(bool target);

    Look look_ = Look::AtRest;
    bool dropTarget_ = false;
    bool takesDrops_ = true;
    bool small_ = false;
};

}  // namespace velmora
