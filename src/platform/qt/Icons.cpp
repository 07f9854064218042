#include "platform/qt/Icons.h"

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <cstdint>
#include <span>
#include <utility>

#include "platform/qt/DrawnIcons.h"
#include "platform/qt/SymbolFile.h"

namespace velmora {
namespace {

const SymbolTable& symbols() {
    static const SymbolTable table = [] {
        QFile file(QStringLiteral(":/icons.svg"));
        return file.open(QIODevice::ReadOnly) ? cutSymbols(file.readAll()) : SymbolTable();
    }();
    return table;
}

bool isSymbol(const QByteArray& id) {
    return isDrawnSymbol({id.constData(), static_cast<std::size_t>(id.size())}) ||
           symbols().contains(id);
}

// Of a size in which nothing was drawn beforehand. The toolkit loads what it reads such pictures
// with when the first one is asked for.
QImage read(QByteArray svg, int side) {
    QBuffer buffer(&svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize({side, side});
    return reader.read();
}

QImage coloured(std::span<const std::uint8_t> coverage, int side, const QColor& colour) {
    const QRgb opaque = colour.rgb() & RGB_MASK;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x)
            line[x] =
                qPremultiply(QRgb{coverage[static_cast<std::size_t>(y * side + x)]} << 24 | opaque);
    }
    return image;
}

QImage symbolImage(const QByteArray& id, int side, const QColor& colour) {
    const auto coverage = drawnSymbol({id.constData(), static_cast<std::size_t>(id.size())}, side);
    return coverage.empty() ? read(pictureOf(symbols().value(id), colour), side)
                            : coloured(coverage, side, colour);
}

QImage applicationImage(int side) {
    const auto points = drawnApplicationIcon(side);
    if (!points.empty())
        return QImage(reinterpret_cast<const uchar*>(points.data()), side, side,
                      QImage::Format_ARGB32_Premultiplied);
    QFile file(QStringLiteral(":/app-icon.svg"));
    return file.open(QIODevice::ReadOnly) ? read(file.readAll(), side) : QImage();
}

// `size` is in device pixels; the picture is square and lies in the middle.
QPixmap inTheMiddle(const QImage& image, const QSize& size) {
    if (size == image.size())
        return QPixmap::fromImage(image);
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).drawImage((size.width() - image.width()) / 2,
                                (size.height() - image.height()) / 2, image);
    return pixmap;
}

// `size` is in device pixels.
QPixmap cached(const QString& id, const QSize& size, const QColor& colour) {
    const QString key = QStringLiteral("velmora/%1/%2x%3/%4")
                            .arg(id)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(colour.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    const int side = qMin(size.width(), size.height());
    pixmap = inTheMiddle(symbolImage(id.toUtf8(), side, colour), size);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class SymbolEngine final : public QIconEngine {
  public:
    SymbolEngine(QString id, const IconColours& colours) : id_(std::move(id)), colours_(colours) {}

    QIconEngine* clone() const override { return new SymbolEngine(*this); }
    QString key() const override { return QStringLiteral("velmora-symbol"); }
    bool isNull() override { return false; }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return cached(id_, size, colourOf(mode, state));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        return cached(id_, size, colourOf(mode, state));
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect.topLeft(),
                            symbolPixmap(id_, rect.size(), ratio, colourOf(mode, state)));
    }

  private:
    [[nodiscard]] const QColor& colourOf(QIcon::Mode mode, QIcon::State state) const {
        if (mode == QIcon::Disabled)
            return colours_.disabled;
        return mode == QIcon::Normal && state == QIcon::Off ? colours_.normal : colours_.active;
    }

    QString id_;
    IconColours colours_;
};

// Gives the program's icon itself: the toolkit would load its readers of all kinds of pictures for
// the one file.
class ApplicationIconEngine final : public QIconEngine {
  public:
    QIconEngine* clone() const override { return new ApplicationIconEngine(*this); }
    QString key() const override { return QStringLiteral("velmora-icon"); }
    bool isNull() override { return false; }

    // Window managers and trays make theirs of it.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {{48, 48}}; }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override { return size; }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
        return inTheMiddle(applicationImage(qMin(size.width(), size.height())), size);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        return pixmap(size, mode, state);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }
};

}  // namespace

QIcon symbolIcon(const QString& id, const IconColours& colours) {
    return isSymbol(id.toUtf8()) ? QIcon(new SymbolEngine(id, colours)) : QIcon();
}

QIcon symbolIcon(const QString& id, const Theme& theme) {
    return symbolIcon(id, IconColours{theme.ink, theme.dis, theme.ink});
}

QPixmap symbolPixmap(const QString& id, const QSize& size, qreal devicePixelRatio,
                     const QColor& colour) {
    if (!isSymbol(id.toUtf8()))
        return {};
    QPixmap pixmap = cached(id, (QSizeF(size) * devicePixelRatio).toSize(), colour);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon applicationIcon() {
    return QIcon(new ApplicationIconEngine);
}

}  // namespace velmora
