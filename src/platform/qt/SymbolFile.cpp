#include "platform/qt/SymbolFile.h"

namespace velmora {
namespace {

QByteArray attribute(const QByteArray& tag, const QByteArray& name) {
    const QByteArray begin = " " + name + "=\"";
    const qsizetype at = tag.indexOf(begin);
    if (at < 0)
        return {};
    const qsizetype value = at + begin.size();
    return tag.mid(value, tag.indexOf('"', value) - value);
}

QList<int> numbersIn(const QByteArray& text) {
    QList<int> numbers;
    for (const QByteArray& word : text.split(' '))
        if (const int number = word.toInt(); number > 0)
            numbers << number;
    return numbers;
}

}  // namespace

SymbolTable cutSymbols(const QByteArray& svg) {
    static const QByteArray kOpen = "<symbol ";
    static const QByteArray kClose = "</symbol>";
    SymbolTable table;
    qsizetype at = 0;
    while ((at = svg.indexOf(kOpen, at)) >= 0) {
        const qsizetype body = svg.indexOf('>', at) + 1;
        const qsizetype bodyEnd = svg.indexOf(kClose, body);
        if (body <= 0 || bodyEnd < 0)
            break;
        const QByteArray tag = svg.mid(at, body - at);
        table.insert(attribute(tag, "id"),
                     {svg.mid(body, bodyEnd - body), numbersIn(attribute(tag, "data-drawn"))});
        at = bodyEnd + kClose.size();
    }
    return table;
}

QByteArray pictureOf(const Symbol& symbol, const QColor& colour) {
    QByteArray body = symbol.body;
    body.replace("currentColor", colour.name().toUtf8());
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">)" + body + "</svg>";
}

}  // namespace velmora
