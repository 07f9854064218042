#pragma once

#include <QStackedLayout>

namespace velmora {

// Pages over each other of which one is on show. Only that one asks for room; the others are not
// even asked, so that a page costs nothing before it comes into view.
class PageStack final : public QStackedLayout {
  public:
    using QStackedLayout::QStackedLayout;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return false; }
};

}  // namespace velmora
