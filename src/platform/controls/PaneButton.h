#pragma once

#include <string>

#include "platform/controls/PaintedButton.h"

class QLabel;

namespace velmora {

// A button of the rail that switches panes: an icon above a caption, raised while its pane shows.
// A line of the entry list can be dropped on it.
class PaneButton final : public PaintedButton {
    Q_OBJECT

  public:
    // `symbol` is the id of the icon.
    PaneButton(QString symbol, const QString& caption, QWidget* parent = nullptr);

    // The caption is a label of its own; give it its object name here.
    [[nodiscard]] QLabel* caption() const { return caption_; }

    // Raised and blue, or flat and black.
    void setRaised(bool raised);
    [[nodiscard]] bool raised() const { return raised_; }

    // The size for a small window.
    void setSmall(bool small);

    // True while a drag that may be dropped is over the button.
    [[nodiscard]] bool dropTarget() const { return dropTarget_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    // `line` holds the bytes of the entry's line.
    void entryDropped(const std::string& line);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void weighCaption();
    void setDropTarget(bool target);

    QString symbol_;
    QLabel* caption_;
    bool raised_ = false;
    bool dropTarget_ = false;
    bool small_ = false;
};

}  // namespace velmora
