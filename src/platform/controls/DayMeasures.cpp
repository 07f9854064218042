#include "platform/controls/DayMeasures.h"

#include <QFontMetrics>
#include <algorithm>

#include "platform/Format.h"
#include "platform/Text.h"
#include "platform/calendar/TimeColumn.h"
#include "platform/controls/DayPainter.h"
#include "platform/controls/Painting.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

QString shortTime(std::string_view text) {
    return QString::fromLatin1(
        QByteArray::fromStdString(formatTimeText(text, "h:nn AM/PM", LocaleFormats())));
}

}  // namespace

QFont DayMeasures::blockFont() const {
    return sized(font, small ? std::min(8.6, font.pointSizeF()) : font.pointSizeF(), QFont::Medium);
}

int DayMeasures::slotHeight() const {
    return std::max(24, QFontMetrics(blockFont()).height() + 7);
}

int DayMeasures::gutterWidth() const {
    const QFontMetrics metrics(DayPainter::gutterFont(font, small));
    return std::max(small ? 46 : 60, metrics.horizontalAdvance(QStringLiteral("12 PM")) + 14);
}

int DayMeasures::captionHeight() const {
    return captioned ? std::max(26, QFontMetrics(captionFont).height() + 10) : 0;
}

std::chrono::minutes DayMeasures::shortestDrawn() const {
    const int pixels = QFontMetrics(blockFont()).height() + 4;
    return std::chrono::minutes(pixels * kSlot.count() / slotHeight());
}

QSize DayMeasures::sizeFor(int slotCount, int letters) const {
    return {gutterWidth() + QFontMetrics(blockFont()).averageCharWidth() * letters,
            captionHeight() + slotCount * slotHeight()};
}

QString shownTime(std::chrono::minutes time) {
    return shortTime(writeTime(time));
}

QString shownTimes(const DayTask& task, const CodePage& codePage) {
    if (!readTimeOfDay(task.BeginTime) || !readTimeOfDay(task.EndTime))
        return toQt(trimBlanks(task.BeginTime + " " + task.EndTime), codePage);
    return shortTime(task.BeginTime) + DayPainter::dash() + shortTime(task.EndTime);
}

}  // namespace velmora
