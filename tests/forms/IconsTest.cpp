#include "platform/qt/Icons.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <algorithm>
#include <cstdlib>

#include "platform/qt/DrawnIcons.h"
#include "platform/qt/SymbolFile.h"

namespace velmora {
namespace {

// The colours of all points that are not transparent.
bool paintedOnlyIn(const QImage& image, const QColor& colour) {
    bool any = false;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor at = image.pixelColor(x, y);
            if (at.alpha() < 255)
                continue;
            any = true;
            if (at.rgb() != colour.rgb())
                return false;
        }
    return any;
}

QStringList symbolIds() {
    QFile file(QStringLiteral(":/icons.svg"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList ids;
    const QRegularExpression symbol(QStringLiteral("<symbol id=\"([^\"]+)\""));
    auto matches = symbol.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext())
        ids << matches.next().captured(1);
    return ids;
}

TEST(Icons, DrawsEverySymbolOfTheFile) {
    const QStringList ids = symbolIds();
    ASSERT_EQ(58, ids.size());
    for (const QString& id : ids) {
        const QIcon icon = symbolIcon(id, Theme::light());
        ASSERT_FALSE(icon.isNull()) << id.toStdString();
        EXPECT_TRUE(paintedOnlyIn(icon.pixmap(QSize(24, 24), 2.0).toImage(), Theme::light().ink))
            << id.toStdString();
    }
}

TEST(Icons, TakesTheColourOfItsState) {
    const Theme& theme = Theme::dark();
    const QIcon icon =
        symbolIcon(QStringLiteral("Save"), IconColours{theme.ink, theme.dis, theme.accent});
    const auto image = [&](QIcon::Mode mode, QIcon::State state) {
        return icon.pixmap(QSize(20, 20), 2.0, mode, state).toImage();
    };
    EXPECT_TRUE(paintedOnlyIn(image(QIcon::Normal, QIcon::Off), theme.ink));
    EXPECT_TRUE(paintedOnlyIn(image(QIcon::Disabled, QIcon::Off), theme.dis));
    EXPECT_TRUE(paintedOnlyIn(image(QIcon::Active, QIcon::Off), theme.accent));
    EXPECT_TRUE(paintedOnlyIn(image(QIcon::Normal, QIcon::On), theme.accent));
}

TEST(Icons, RendersAtThePixelsOfTheScreen) {
    const QIcon icon = symbolIcon(QStringLiteral("Save"), Theme::light());
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
        const QPixmap pixmap = icon.pixmap(QSize(20, 20), ratio);
        EXPECT_EQ(QSize(qRound(20 * ratio), qRound(20 * ratio)), pixmap.size());
        EXPECT_EQ(ratio, pixmap.devicePixelRatio());
    }
    const QPixmap direct =
        symbolPixmap(QStringLiteral("Image2"), {32, 32}, 1.5, Theme::light().ink2);
    EXPECT_EQ(QSize(48, 48), direct.size());
    EXPECT_EQ(1.5, direct.devicePixelRatio());
}

// The largest distance of two points' colours or opacities.
int distance(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            const QRgb left = qPremultiply(one), right = qPremultiply(other);
            for (const int each : {qAlpha(left) - qAlpha(right), qRed(left) - qRed(right),
                                   qGreen(left) - qGreen(right), qBlue(left) - qBlue(right)})
                most = std::max(most, std::abs(each));
        }
    return most;
}

QImage readByTheToolkit(const QString& id, int side, const QColor& colour) {
    QFile file(QStringLiteral(":/icons.svg"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray picture = pictureOf(cutSymbols(file.readAll()).value(id.toUtf8()), colour);
    QBuffer buffer(&picture);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize({side, side});
    return reader.read();
}

TEST(Icons, DrawsBeforehandWhatTheToolkitWouldDraw) {
    QFile file(QStringLiteral(":/icons.svg"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const SymbolTable symbols = cutSymbols(file.readAll());
    int drawn = 0;
    for (auto symbol = symbols.begin(); symbol != symbols.end(); ++symbol)
        for (const int size : symbol->sizes)
            for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
                const QString id = QString::fromUtf8(symbol.key());
                const int side = qRound(size * ratio);
                ASSERT_FALSE(drawnSymbol(symbol.key().toStdString(), side).empty());
                for (const Theme* theme : {&Theme::light(), &Theme::dark()})
                    for (const QColor& colour : {QColor(theme->ink), QColor(theme->danger)})
                        EXPECT_LE(distance(symbolPixmap(id, {size, size}, ratio, colour).toImage(),
                                           readByTheToolkit(id, side, colour)),
                                  2)
                            << symbol.key().toStdString() << " " << side;
                ++drawn;
            }
    EXPECT_GT(drawn, 200);
}

TEST(Icons, ReadsASizeThatWasNotDrawnBeforehand) {
    ASSERT_TRUE(drawnSymbol("Save", 57).empty());
    const QImage image =
        symbolPixmap(QStringLiteral("Save"), {57, 57}, 1, Theme::light().ink).toImage();
    EXPECT_TRUE(paintedOnlyIn(image, Theme::light().ink));
    const QImage wide =
        symbolPixmap(QStringLiteral("Save"), {40, 20}, 1, Theme::light().ink).toImage();
    EXPECT_EQ(QSize(40, 20), wide.size());
    EXPECT_EQ(0, wide.pixelColor(2, 10).alpha()) << "it lies in the middle";
    EXPECT_TRUE(paintedOnlyIn(wide, Theme::light().ink));
}

TEST(Icons, IsNullForAnUnknownSymbol) {
    EXPECT_TRUE(symbolIcon(QStringLiteral("Nothing"), Theme::light()).isNull());
    EXPECT_TRUE(symbolPixmap(QStringLiteral("Nothing"), {24, 24}, 1, Qt::black).isNull());
}

TEST(Icons, DrawsTheApplicationIconInAnySizeWithoutTheToolkitsReaders) {
    const QIcon icon = applicationIcon();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(QList<QSize>{QSize(48, 48)}, icon.availableSizes()) << "what the window tells";
    for (const qreal ratio : {1.0, 2.0}) {
        const QPixmap picture = icon.pixmap(QSize(64, 64), ratio);
        EXPECT_EQ(QSize(qRound(64 * ratio), qRound(64 * ratio)), picture.size());
        EXPECT_EQ(ratio, picture.devicePixelRatio());
        const QImage image = picture.toImage();
        EXPECT_EQ(QColor(0x2B5BB8), image.pixelColor(image.width() / 4, image.height() / 8));
        EXPECT_EQ(0, image.pixelColor(0, 0).alpha());
    }
}

}  // namespace
}  // namespace velmora
