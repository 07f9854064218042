#pragma once

#include <QLabel>

namespace velmora {

// A label of one line of plain text that ends in "..." (or begins so) when it is too long for its
// place; its tool tip then tells the whole. It never asks for more width than its minimum.
class ElidedLabel final : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

    [[nodiscard]] bool isElided() const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRect inside() const;

    Qt::TextElideMode mode_;
};

}  // namespace velmora
