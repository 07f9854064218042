#pragma once

#include <QRadioButton>
#include <QSizeF>

namespace velmora {

// An option button that fills a tile: a book in its own colour, or a size with a page drawn to
// scale above its caption. A click anywhere on the tile chooses it.
class ChoiceTile final : public QRadioButton {
    Q_OBJECT

  public:
    enum class Look { YellowPages, WhitePages, Plain, Page };

    // `page` is the size of the page in inches, for a tile that shows one.
    ChoiceTile(const char* name, const QString& caption, Look look, QWidget* parent,
               const QSizeF& page = {});

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool hitButton(const QPoint& position) const override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintGround(QPainter& painter) const;
    void paintPage(QPainter& painter, const QRect& room) const;

    Look look_;
    QSizeF page_;
};

}  // namespace velmora
