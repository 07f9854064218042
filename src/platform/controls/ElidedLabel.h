#pragma once

#include <QLabel>

namespace velmora {

// A label of one line of plain text that ends in "..." (or begins so) when it is too long for its
// place. It never asks for more width than its minimum.
class ElidedLabel final : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Qt::TextElideMode mode_;
};

}  // namespace velmora
