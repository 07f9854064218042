#include "reports/forms/EnvelopeSheet.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/PrintPages.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSizeF kEnvelope(9.5, 4.125);  // inches, the usual business envelope
constexpr int kDots = 1200;              // an inch, in which texts are laid out as on paper
constexpr double kPointsAnInch = 72;

QColor colourOf(int number) {
    return {number & 255, number >> 8 & 255, number >> 16 & 255};
}

}  // namespace

EnvelopeSheet::EnvelopeSheet(const CodePage& codePage, QWidget* parent)
    : QWidget(parent), codePage_(codePage) {
    setAccessibleName(tr("Picture of the envelope"));
}

void EnvelopeSheet::show(const EnvelopeSketch& sketch, const EnvelopeFeed& feed,
                         const EnvelopeSheetSize& sheet) {
    sketch_ = sketch;
    feed_ = feed;
    sheet_ = sheet;
    update();
}

QSize EnvelopeSheet::sizeHint() const {
    return {308, 238};
}

QRectF EnvelopeSheet::envelope() const {
    double top = (sheet_.height - kEnvelope.height()) / 2;
    if (feed_.position == EnvelopePosition::Left)
        top = 0;
    else if (feed_.position == EnvelopePosition::Right)
        top = sheet_.height - kEnvelope.height();
    return {{0, top}, kEnvelope};
}

void EnvelopeSheet::paintEvent(QPaintEvent*) {
    const Theme& theme = Theme::light();  // paper is paper, in every theme
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale =
        std::min((width() - 1) / sheet_.width, (height() - 1) / sheet_.height);  // dots an inch
    painter.translate(0.5, 0.5);
    painter.scale(scale, scale);
    const auto pen = [&](const QColor& colour, Qt::PenStyle style) {
        QPen line(colour, 1, style);
        line.setCosmetic(true);
        painter.setPen(line);
    };
    const QRectF sheet(0, 0, sheet_.width, sheet_.height);
    const QRectF printable(sheet_.left, sheet_.top, sheet_.printableWidth, sheet_.printableHeight);
    pen(theme.edge, Qt::SolidLine);
    painter.setBrush(theme.surface);
    painter.drawRect(sheet);
    painter.setBrush(Qt::NoBrush);
    pen(sketch_.fits ? theme.line : theme.danger, Qt::DotLine);
    painter.drawRect(printable);
    if (feed_.position) {
        pen(theme.ink2, Qt::DashLine);
        painter.drawRect(envelope());
    }
    painter.setClipRect(sheet);
    painter.translate(printable.topLeft());
    paintTexts(painter);
}

void EnvelopeSheet::paintTexts(QPainter& painter) const {
    painter.scale(1.0 / kDots, 1.0 / kDots);
    for (const SketchedText& each : sketch_.texts) {
        QFont font = toQt(each.text.font, codePage_);
        font.setPixelSize(
            std::max(1, qRound(static_cast<double>(each.text.font.size) * kDots / kPointsAnInch)));
        painter.setFont(font);
        painter.setPen(each.outside ? Theme::light().danger : colourOf(each.text.colour));
        const QPointF place(each.text.x * kDots, each.text.y * kDots);
        painter.drawText(place + QPointF(0, QFontMetricsF(font).ascent()),
                         toQt(each.text.text, codePage_));
    }
}

}  // namespace velmora
