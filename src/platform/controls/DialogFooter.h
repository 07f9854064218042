#pragma once

#include <QWidget>

class QAbstractButton;
class QHBoxLayout;

namespace velmora {

// The strip at the foot of a dialog: side commands at the left, the doing button and Cancel at the
// right edge.
class DialogFooter final : public QWidget {
    Q_OBJECT

  public:
    explicit DialogFooter(QWidget* parent = nullptr);

    // Buttons of each side stand in the order in which they are added; the footer takes them over.
    void addLeft(QAbstractButton* button);
    void addRight(QAbstractButton* button);

  private:
    QHBoxLayout* row_;
    int leftCount_ = 0;
};

}  // namespace velmora
