#include "platform/qt/Icons.h"

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace velmora {
namespace {

using SymbolTable = QHash<QByteArray, QByteArray>;

// The inner text of each symbol; Qt's renderer draws no symbol elements.
SymbolTable cutSymbols(const QByteArray& svg) {
    static const QByteArray kOpen = "<symbol id=\"";
    static const QByteArray kClose = "</symbol>";
    SymbolTable table;
    qsizetype at = 0;
    while ((at = svg.indexOf(kOpen, at)) >= 0) {
        const qsizetype id = at + kOpen.size();
        const qsizetype idEnd = svg.indexOf('"', id);
        const qsizetype body = svg.indexOf('>', idEnd) + 1;
        const qsizetype bodyEnd = svg.indexOf(kClose, body);
        if (idEnd < 0 || body <= 0 || bodyEnd < 0)
            break;
        table.insert(svg.mid(id, idEnd - id), svg.mid(body, bodyEnd - body));
        at = bodyEnd + kClose.size();
    }
    return table;
}

const SymbolTable& symbols() {
    static const SymbolTable table = [] {
        QFile file(QStringLiteral(":/icons.svg"));
        return file.open(QIODevice::ReadOnly) ? cutSymbols(file.readAll()) : SymbolTable();
    }();
    return table;
}

bool isSymbol(const QString& id) {
    return symbols().contains(id.toUtf8());
}

QByteArray coloured(const QString& id, const QColor& colour) {
    QByteArray body = symbols().value(id.toUtf8());
    body.replace("currentColor", colour.name().toUtf8());
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)" + body + "</svg>";
}

// `size` is in device pixels; the picture is square and lies in the middle.
QPixmap rendered(const QByteArray& svg, const QSize& size) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    const int side = qMin(size.width(), size.height());
    QPainter painter(&pixmap);
    QSvgRenderer(svg).render(
        &painter, QRectF(QRect((size.width() - side) / 2, (size.height() - side) / 2, side, side)));
    return pixmap;
}

// `size` is in device pixels.
QPixmap drawn(const QString& id, const QSize& size, const QColor& colour) {
    const QString key = QStringLiteral("velmora/%1/%2x%3/%4")
                            .arg(id)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(colour.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = rendered(coloured(id, colour), size);
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
        return drawn(id_, size, colourOf(mode, state));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override {
        return drawn(id_, size, colourOf(mode, state));
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

// Draws the program's icon itself: the toolkit would load its readers of all kinds of pictures for
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
        QFile file(QStringLiteral(":/app-icon.svg"));
        return file.open(QIODevice::ReadOnly) ? rendered(file.readAll(), size) : QPixmap();
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
    return isSymbol(id) ? QIcon(new SymbolEngine(id, colours)) : QIcon();
}

QIcon symbolIcon(const QString& id, const Theme& theme) {
    return symbolIcon(id, IconColours{theme.ink, theme.dis, theme.ink});
}

QPixmap symbolPixmap(const QString& id, const QSize& size, qreal devicePixelRatio,
                     const QColor& colour) {
    if (!isSymbol(id))
        return {};
    QPixmap pixmap = drawn(id, (QSizeF(size) * devicePixelRatio).toSize(), colour);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QIcon applicationIcon() {
    return QIcon(new ApplicationIconEngine);
}

}  // namespace velmora
