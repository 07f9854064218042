#pragma once

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QList>

// The file of the symbols: a picture in which each of them stands by itself.
namespace velmora {

struct Symbol {
    QByteArray body;   // what is drawn, in a square of 24, with "currentColor" for its colour
    QList<int> sizes;  // in device-independent pixels, in which it is drawn when Velmora is built
};

// By their ids.
using SymbolTable = QHash<QByteArray, Symbol>;

[[nodiscard]] SymbolTable cutSymbols(const QByteArray& svg);

// A picture of the symbol alone; the toolkit draws no symbol elements.
[[nodiscard]] QByteArray pictureOf(const Symbol& symbol, const QColor& colour);

}  // namespace velmora
