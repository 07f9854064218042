#include "platform/qt/QtLocaleFormats.h"

#include <QLocale>
#include <optional>

#include "platform/qt/QtText.h"

namespace velmora {
namespace {

// Collects texts of a locale and notes whether the code page can write all of them.
class NameWriter {
  public:
    explicit NameWriter(const CodePage& codePage) : codePage_(codePage) {}

    std::string operator()(const QString& name) {
        std::string text = fromQt(name, codePage_);
        fits_ = fits_ && toQt(text, codePage_) == name;
        return text;
    }
    [[nodiscard]] bool allFit() const { return fits_; }

  private:
    const CodePage& codePage_;
    bool fits_ = true;
};

// The toolkit's pattern letters in ours: months are "M" there, and all else is the same.
QString ourPattern(QString pattern) {
    return pattern.replace(QLatin1Char('M'), QLatin1Char('m'));
}

QString withoutPoint(QString shortName) {
    return shortName.remove(QLatin1Char('.'));
}

// Nothing when the code page lacks a letter of them.
std::optional<LocaleFormats> datesOf(const QLocale& locale, const CodePage& codePage) {
    LocaleFormats formats;
    NameWriter text(codePage);
    for (int day = 0; day < 7; ++day) {
        const int qtDay = day == 0 ? 7 : day;
        const auto index = static_cast<std::size_t>(day);
        formats.weekdays[index] = text(locale.standaloneDayName(qtDay, QLocale::LongFormat));
        formats.shortWeekdays[index] = text(locale.standaloneDayName(qtDay, QLocale::ShortFormat));
    }
    for (int month = 1; month <= 12; ++month) {
        const auto index = static_cast<std::size_t>(month - 1);
        formats.months[index] = text(locale.standaloneMonthName(month, QLocale::LongFormat));
        formats.shortMonths[index] =
            text(withoutPoint(locale.standaloneMonthName(month, QLocale::ShortFormat)));
        formats.monthsInDate[index] = text(locale.monthName(month, QLocale::LongFormat));
    }
    const bool american =
        locale.language() == QLocale::English && locale.territory() == QLocale::UnitedStates;
    if (!american)
        formats.longDate = text(ourPattern(locale.dateFormat(QLocale::LongFormat)));
    if (!text.allFit())
        return std::nullopt;
    return formats;
}

// A half of the day by the locale's word, or by the English one.
std::string halfDay(const QString& word, const char* english, const CodePage& codePage) {
    NameWriter text(codePage);
    const std::string own = text(word);
    return own.empty() || !text.allFit() ? english : own;
}

}  // namespace

LocaleFormats localeFormats(const QLocale& locale, const CodePage& codePage) {
    if (locale.language() == QLocale::C)
        return {};
    LocaleFormats formats = datesOf(locale, codePage).value_or(LocaleFormats());
    formats.am = halfDay(locale.amText(), "AM", codePage);
    formats.pm = halfDay(locale.pmText(), "PM", codePage);
    formats.firstWeekday = static_cast<unsigned>(locale.firstDayOfWeek()) % 7;
    return formats;
}

}  // namespace velmora
