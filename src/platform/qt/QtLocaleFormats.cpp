#include "platform/qt/QtLocaleFormats.h"

#include <QLocale>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// The toolkit's pattern letters in ours: months are "M" there, and all else is the same.
QString ourPattern(QString pattern) {
    return pattern.replace(QLatin1Char('M'), QLatin1Char('m'));
}

QString firstNotEmpty(const QString& name, const char* otherwise) {
    return name.isEmpty() ? QString::fromLatin1(otherwise) : name;
}

}  // namespace

LocaleFormats localeFormats(const QLocale& locale, const CodePage& codePage) {
    LocaleFormats formats;
    if (locale.language() == QLocale::C)
        return formats;
    const auto text = [&](const QString& name) { return fromQt(name, codePage); };
    for (int day = 0; day < 7; ++day) {
        const int qtDay = day == 0 ? 7 : day;
        const auto index = static_cast<std::size_t>(day);
        formats.weekdays[index] = text(locale.standaloneDayName(qtDay, QLocale::LongFormat));
        formats.shortWeekdays[index] = text(locale.standaloneDayName(qtDay, QLocale::ShortFormat));
    }
    for (int month = 1; month <= 12; ++month) {
        const auto index = static_cast<std::size_t>(month - 1);
        formats.months[index] = text(locale.standaloneMonthName(month, QLocale::LongFormat));
        QString shortName = locale.standaloneMonthName(month, QLocale::ShortFormat);
        shortName.remove(QLatin1Char('.'));
        formats.shortMonths[index] = text(shortName);
    }
    formats.am = text(firstNotEmpty(locale.amText(), "AM"));
    formats.pm = text(firstNotEmpty(locale.pmText(), "PM"));
    const bool american =
        locale.language() == QLocale::English && locale.territory() == QLocale::UnitedStates;
    if (!american)
        formats.longDate = text(ourPattern(locale.dateFormat(QLocale::LongFormat)));
    formats.firstWeekday = static_cast<unsigned>(locale.firstDayOfWeek()) % 7;
    return formats;
}

}  // namespace velmora
