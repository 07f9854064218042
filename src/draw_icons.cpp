// Draws the icons when Velmora is built, and writes them down as data of the program. draw_icons
// SYMBOLS APPLICATION_ICON RESULT: two pictures and the C++ source to make.

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>

#include "platform/qt/SymbolFile.h"

namespace velmora {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 2};  // of screens
constexpr int kApplicationSides[] = {16, 22, 24, 32, 48};
constexpr int kLongestId = 15;

QByteArray contentsOf(const char* path) {
    QFile file(QString::fromLocal8Bit(path));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(std::string(path) + " can not be read");
    return file.readAll();
}

QImage drawing(const QByteArray& svg, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        throw std::runtime_error("a picture is none");
    renderer.render(&painter, QRectF(image.rect()));
    return image;
}

// Numbers of one array, so many a line.
class Numbers {
  public:
    void add(quint32 number) {
        text_ += QByteArray::number(number) + (++count_ % 16 == 0 ? ",\n" : ",");
    }
    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] const QByteArray& text() const { return text_; }

  private:
    QByteArray text_;
    int count_ = 0;
};

QList<int> sidesOf(const Symbol& symbol) {
    QList<int> sides;
    for (const int size : symbol.sizes)
        for (const double scale : kScales)
            if (const int side = qRound(size * scale); !sides.contains(side))
                sides << side;
    std::sort(sides.begin(), sides.end());
    return sides;
}

QByteArray symbolData(const SymbolTable& symbols) {
    Numbers coverage;
    QByteArray places;
    QList<QByteArray> ids = symbols.keys();
    std::sort(ids.begin(), ids.end());
    for (const QByteArray& id : ids) {
        if (id.size() > kLongestId)
            throw std::runtime_error("an id is too long");
        for (const int side : sidesOf(symbols[id])) {
            places += "{\"" + id + "\", " + QByteArray::number(side) + ", " +
                      QByteArray::number(coverage.count()) + "},\n";
            const QImage image = drawing(pictureOf(symbols[id], Qt::black), side);
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x)
                    coverage.add(static_cast<quint32>(qAlpha(image.pixel(x, y))));
        }
    }
    return "constexpr Symbol kSymbolList[] = {\n" + places +
           "};\nconstexpr std::uint8_t kCoverageList[] = {\n" + coverage.text() +
           "};\n}\nconst std::span<const Symbol> kSymbols(kSymbolList);\n"
           "const std::span<const std::uint8_t> kCoverage(kCoverageList);\n";
}

QByteArray applicationData(const QByteArray& svg) {
    Numbers points;
    QByteArray places;
    for (const int side : kApplicationSides) {
        places +=
            "{" + QByteArray::number(side) + ", " + QByteArray::number(points.count()) + "},\n";
        const QImage image = drawing(svg, side);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                points.add(reinterpret_cast<const QRgb*>(image.constScanLine(y))[x]);
    }
    return "namespace {\nconstexpr Picture kIconList[] = {\n" + places +
           "};\nconstexpr std::uint32_t kPointList[] = {\n" + points.text() +
           "};\n}\nconst std::span<const Picture> kApplicationIcons(kIconList);\n"
           "const std::span<const std::uint32_t> kPoints(kPointList);\n";
}

void drawIcons(const char* symbols, const char* applicationIcon, const char* result) {
    const QByteArray source =
        "#include \"platform/qt/DrawnIcons.h\"\n\nnamespace velmora::drawn {\nnamespace {\n" +
        symbolData(cutSymbols(contentsOf(symbols))) + applicationData(contentsOf(applicationIcon)) +
        "}\n";
    QFile file(QString::fromLocal8Bit(result));
    if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size() || !file.flush())
        throw std::runtime_error(std::string(result) + " can not be written");
}

}  // namespace
}  // namespace velmora

int main(int argc, char** argv) try {
    if (argc != 4) {
        std::cerr << "Usage: draw_icons SYMBOLS APPLICATION_ICON RESULT\n";
        return 2;
    }
    velmora::drawIcons(argv[1], argv[2], argv[3]);
    return 0;
} catch (const std::exception& error) {
    std::cerr << "draw_icons: " << error.what() << '\n';
    return 1;
}
