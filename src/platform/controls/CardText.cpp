#include "platform/controls/CardText.h"

#include <QRegularExpression>
#include <QStringList>

namespace velmora {
namespace {

const QStringList& spouseLabels() {
    static const QStringList labels{QStringLiteral("Spouse:")};
    return labels;
}

const QStringList& numberLabels() {
    static const QStringList labels{QStringLiteral("H:"), QStringLiteral("W:"),
                                    QStringLiteral("F:"), QStringLiteral("P:"),
                                    QStringLiteral("O:"), QStringLiteral("Em:")};
    return labels;
}

const QRegularExpression& gap() {
    static const QRegularExpression blanks(QStringLiteral(" {4,}"));
    return blanks;
}

QString withoutBlanks(QStringView text) {
    while (text.startsWith(u' '))
        text = text.mid(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toString();
}

CardPart partOf(const QString& text, const QStringList& labels) {
    for (const QString& label : labels)
        if (text == label || text.startsWith(label + QLatin1Char(' ')))
            return {label, withoutBlanks(QStringView(text).mid(label.size()))};
    return {{}, text};
}

std::vector<CardPart> partsOf(const QString& line, const QStringList& labels) {
    std::vector<CardPart> parts;
    for (const QString& text : line.split(gap())) {
        const QString part = withoutBlanks(text);
        if (!part.isEmpty())
            parts.push_back(partOf(part, labels));
    }
    return parts;
}

bool isNumberLine(const QString& line) {
    const auto has = [&](const char* text) { return line.contains(QLatin1String(text)); };
    return (line.startsWith(QLatin1String("H: ")) && has("    W: ") && has("    F: ")) ||
           (line.startsWith(QLatin1String("P: ")) && has("    O: ") && has("    Em: "));
}

void appendName(std::vector<CardLine>& lines, const QString& line) {
    const QRegularExpressionMatch blanks = gap().match(line);
    const qsizetype end = blanks.hasMatch() ? blanks.capturedStart() : line.size();
    lines.push_back({true, false, {{{}, withoutBlanks(QStringView(line).left(end))}}});
    if (blanks.hasMatch())
        lines.push_back({false, false, partsOf(line.mid(end), spouseLabels())});
}

}  // namespace

std::vector<CardLine> partsOfCard(QString text) {
    std::vector<CardLine> lines;
    if (text.isEmpty())
        return lines;
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QStringList texts = text.split(QLatin1Char('\n'));
    appendName(lines, texts.first());
    enum { Before, Within, Behind } numbers = Before;
    for (const QString& line : texts.mid(1)) {
        const bool number = numbers != Behind && isNumberLine(line);
        const bool first = number && numbers == Before;
        const bool behind = !number && numbers == Within;
        numbers = number ? Within : numbers == Within ? Behind : numbers;
        CardLine next{false, false, partsOf(line, number ? numberLabels() : QStringList())};
        // A blank line is space enough.
        next.spaceBefore =
            (first && !lines.back().parts.empty()) || (behind && !next.parts.empty());
        lines.push_back(std::move(next));
    }
    return lines;
}

}  // namespace velmora
