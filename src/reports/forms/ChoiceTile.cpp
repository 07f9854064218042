#include "reports/forms/ChoiceTile.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>

#include "platform/controls/FocusRing.h"
#include "platform/controls/Painting.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kBookHeight = 40;
constexpr int kPageTileHeight = 140;
constexpr int kBookRadius = 6;
constexpr int kPageRadius = 8;
constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kCaptionRow = 40;
constexpr int kIndicator = 16;
constexpr double kLargestPage = 11;  // inches
constexpr int kLineStep = 6;
constexpr int kPageMargin = 6;

struct Colours {
    QColor ground;
    QColor text;
};

// The tiles of the books are light in the dark, too.
bool isLight(ChoiceTile::Look look) {
    return look == ChoiceTile::Look::YellowPages || look == ChoiceTile::Look::WhitePages;
}

Colours coloursOf(ChoiceTile::Look look, const Theme& theme, bool chosen) {
    switch (look) {
        case ChoiceTile::Look::YellowPages:
            return {theme.amber, theme.onamber};
        case ChoiceTile::Look::WhitePages:
            return {Theme::light().surface, Theme::light().ink};
        case ChoiceTile::Look::Plain:
            return {theme.canvas, theme.ink};
        case ChoiceTile::Look::Page:
            break;
    }
    return {chosen ? theme.tint : theme.alt, theme.ink};
}

}  // namespace

ChoiceTile::ChoiceTile(const char* name, const QString& caption, Look look, QWidget* parent,
                       const QSizeF& page)
    : QRadioButton(caption, parent), look_(look), page_(page) {
    setObjectName(QString::fromLatin1(name));
    setAttribute(Qt::WA_LayoutUsesWidgetRect);  // the tile is what lines up, not its indicator
    setSizePolicy(QSizePolicy::Expanding,
                  look == Look::Page ? QSizePolicy::Expanding : QSizePolicy::Fixed);
}

QSize ChoiceTile::sizeHint() const {
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    return {2 * kMargin + kIndicator + kGap + text,
            look_ == Look::Page ? kPageTileHeight : kBookHeight};
}

bool ChoiceTile::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void ChoiceTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintGround(painter);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int text = fontMetrics().size(Qt::TextShowMnemonic, this->text()).width();
    const bool withPage = look_ == Look::Page;
    const int rowTop = withPage ? height() - kCaptionRow : 0;
    const int rowHeight = withPage ? kCaptionRow : height();
    const int left =
        withPage ? std::max(kMargin, (width() - kIndicator - kGap - text) / 2) : kMargin;
    if (withPage)
        paintPage(painter, rect().adjusted(0, kMargin, 0, -kCaptionRow));
    option.rect = QRect(left, rowTop + (rowHeight - kIndicator) / 2, kIndicator, kIndicator);
    if (isLight(look_))
        option.palette = Theme::light().toPalette();  // a dark disc would look chosen
    style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &option, &painter, this);
    painter.setPen(coloursOf(look_, Theme::of(*this), isChecked()).text);
    const int textLeft = left + kIndicator + kGap;
    painter.drawText(QRect(textLeft, rowTop, width() - textLeft, rowHeight),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, this->text());
}

void ChoiceTile::paintGround(QPainter& painter) const {
    const Theme& theme = Theme::of(*this);
    const bool ring = look_ == Look::Page && isChecked();
    const int radius = look_ == Look::Page ? kPageRadius : kBookRadius;
    drawPanel(painter, rect(), radius, coloursOf(look_, theme, isChecked()).ground, theme.edge);
    if (ring || hasFocus())
        drawRing(painter, rect(), 2, radius, theme.accent);
}

// Pages of all tiles stand on one line.
void ChoiceTile::paintPage(QPainter& painter, const QRect& room) const {
    const Theme& theme = Theme::of(*this);
    const double scale = room.height() / kLargestPage;
    const QSize size = (page_ * scale).toSize();
    const QRect page(room.center().x() - size.width() / 2, room.bottom() - size.height() + 1,
                     size.width(), size.height());
    drawPanel(painter, page, 2, theme.surface, theme.line2);
    for (int y = page.top() + kPageMargin + 1; y < page.bottom() - 2; y += kLineStep)
        drawHorizontal(painter, page.left() + kPageMargin, page.right() - kPageMargin + 1, y,
                       theme.edge);
}

}  // namespace velmora
