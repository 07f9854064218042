#pragma once

#include <QWidget>
#include <string>

namespace velmora {

// The trash at the foot of the rail: a picture that takes what is dropped on it.
class TrashCan final : public QWidget {
    Q_OBJECT

  public:
    explicit TrashCan(QWidget* parent = nullptr);

    // What the can looks like. It is at rest but for the animation after a drop.
    enum class Look { AtRest, Open, Done };
    void setLook(Look look);
    [[nodiscard]] Look look() const { return look_; }

    // True while a drag that may be dropped is over the can.
    [[nodiscard]] bool dropTarget() const { return dropTarget_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // `line` holds the bytes of the entry's line.
    void entryDropped(const std::string& line);
    void documentDropped();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void setDropTarget(bool target);

    Look look_ = Look::AtRest;
    bool dropTarget_ = false;
};

}  // namespace velmora
