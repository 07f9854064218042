#include "platform/Format.h"

#include "platform/Text.h"

namespace velmora {
namespace {

using namespace std::chrono;

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool startsWithIgnoringCase(std::string_view text, std::string_view lowerStart) {
    if (text.size() < lowerStart.size())
        return false;
    for (std::size_t i = 0; i < lowerStart.size(); ++i)
        if (lowerAscii(text[i]) != lowerStart[i])
            return false;
    return true;
}

bool isHalfDayToken(std::string_view rest) {
    return startsWithIgnoringCase(rest, "am/pm") || startsWithIgnoringCase(rest, "ampm");
}

std::string padded(long long number, std::size_t width) {
    std::string digits = std::to_string(number);
    if (digits.size() < width)
        digits.insert(0, width - digits.size(), '0');
    return digits;
}

// The civil parts of a moment, taken apart once.
struct Parts {
    explicit Parts(Moment moment)
        : days(floor<std::chrono::days>(moment)), date(days), time(moment - days), weekday(days) {}

    local_days days;
    year_month_day date;
    hh_mm_ss<seconds> time;
    std::chrono::weekday weekday;
};

class PatternWriter {
  public:
    PatternWriter(Moment moment, const LocaleFormats& locale) : parts_(moment), locale_(locale) {}

    std::string write(std::string_view pattern) {
        twelveHours_ = hasHalfDayToken(pattern);
        besideDay_ = hasDayNumber(pattern);
        for (std::size_t i = 0; i < pattern.size();)
            i += writeToken(pattern.substr(i));
        return std::move(out_);
    }

  private:
    static bool hasHalfDayToken(std::string_view pattern) {
        for (std::size_t i = 0; i < pattern.size(); ++i)
            if (isHalfDayToken(pattern.substr(i)))
                return true;
        return false;
    }

    static bool hasDayNumber(std::string_view pattern) {
        bool quoted = false;
        for (std::size_t i = 0; i < pattern.size();) {
            std::size_t run = 1;
            while (i + run < pattern.size() &&
                   lowerAscii(pattern[i + run]) == lowerAscii(pattern[i]))
                ++run;
            if (pattern[i] == '\'')
                quoted ^= run % 2 == 1;
            else if (!quoted && lowerAscii(pattern[i]) == 'd' && run <= 2)
                return true;
            i += run;
        }
        return false;
    }

    // Writes the token at the start of `rest`; returns how many characters of it were used.
    std::size_t writeToken(std::string_view rest) {
        if (isHalfDayToken(rest)) {
            out_ += parts_.time.hours() < hours(12) ? "AM" : "PM";
            return lowerAscii(rest[2]) == '/' ? 5 : 4;
        }
        if (rest[0] == '\'') {
            const std::size_t close = rest.find('\'', 1);
            const std::size_t end = close == std::string_view::npos ? rest.size() : close;
            out_ += rest.substr(1, end - 1);
            return end + 1 > rest.size() ? rest.size() : end + 1;
        }
        const char letter = lowerAscii(rest[0]);
        std::size_t count = 1;
        while (count < rest.size() && lowerAscii(rest[count]) == letter)
            ++count;
        return writeRun(letter, count, rest);
    }

    std::size_t writeRun(char letter, std::size_t count, std::string_view rest) {
        const auto number = [this](long long value, std::size_t width) {
            out_ += padded(value, width);
        };
        switch (letter) {
            case 'd':
                count = std::min<std::size_t>(count, 4);
                if (count <= 2)
                    number(unsigned(parts_.date.day()), count);
                else
                    out_ += names(count, locale_.shortWeekdays,
                                  locale_.weekdays)[parts_.weekday.c_encoding()];
                break;
            case 'm':
                count = std::min<std::size_t>(count, 4);
                if (behindHour_ && count <= 2)
                    number(parts_.time.minutes().count(), count);
                else if (count <= 2)
                    number(unsigned(parts_.date.month()), count);
                else
                    out_ += monthName(count);
                break;
            case 'y':
                count = count >= 4 ? 4 : std::min<std::size_t>(count, 2);
                if (count == 4)
                    number(int(parts_.date.year()), 4);
                else
                    number(int(parts_.date.year()) % 100, 2);
                break;
            case 'h':
                count = std::min<std::size_t>(count, 2);
                number(hour(), count);
                behindHour_ = true;
                return count;
            case 'n':
                count = std::min<std::size_t>(count, 2);
                number(parts_.time.minutes().count(), count);
                break;
            case 's':
                count = std::min<std::size_t>(count, 2);
                number(parts_.time.seconds().count(), count);
                break;
            default:
                out_ += rest.substr(0, count);
                return count;  // ":" between hour and minutes keeps "mm" minutes
        }
        behindHour_ = false;
        return count;
    }

    [[nodiscard]] const std::string& monthName(std::size_t count) const {
        const std::size_t month = unsigned(parts_.date.month()) - 1;
        if (count == 4 && besideDay_ && !locale_.monthsInDate[month].empty())
            return locale_.monthsInDate[month];
        return names(count, locale_.shortMonths, locale_.months)[month];
    }

    template <typename Names>
    static const Names& names(std::size_t count, const Names& shortNames, const Names& fullNames) {
        return count == 3 ? shortNames : fullNames;
    }

    [[nodiscard]] long long hour() const {
        const auto value = parts_.time.hours().count();
        if (!twelveHours_)
            return value;
        return value % 12 == 0 ? 12 : value % 12;
    }

    Parts parts_;
    const LocaleFormats& locale_;
    std::string out_;
    bool twelveHours_ = false;
    bool besideDay_ = false;  // the pattern has the number of a day
    bool behindHour_ = false;
};

// Reads one or two digits at `i` and moves it on.
std::optional<int> oneOrTwoDigits(std::string_view text, std::size_t& i) {
    const std::size_t begin = i;
    int value = 0;
    while (i < text.size() && i < begin + 2 && text[i] >= '0' && text[i] <= '9')
        value = value * 10 + (text[i++] - '0');
    if (i == begin)
        return std::nullopt;
    return value;
}

enum class HalfDay { None, Am, Pm, Unreadable };

HalfDay readHalfDay(std::string_view rest) {
    rest = trimBlanks(rest);
    if (rest.empty())
        return HalfDay::None;
    const bool whole = rest.size() == 1 || (rest.size() == 2 && lowerAscii(rest[1]) == 'm');
    const char first = lowerAscii(rest[0]);
    if (!whole || (first != 'a' && first != 'p'))
        return HalfDay::Unreadable;
    return first == 'a' ? HalfDay::Am : HalfDay::Pm;
}

}  // namespace

std::string formatMoment(Moment moment, std::string_view pattern, const LocaleFormats& locale) {
    return PatternWriter(moment, locale).write(pattern);
}

std::string formatMoment(Moment moment, NamedFormat format, const LocaleFormats& locale) {
    switch (format) {
        case NamedFormat::LongDate:
            return formatMoment(moment, locale.longDate, locale);
        case NamedFormat::MediumDate:
            return formatMoment(moment, "dd-mmm-yy", locale);
        case NamedFormat::MediumTime: {
            const Parts parts(moment);
            const auto hour = parts.time.hours().count();
            return padded(hour % 12 == 0 ? 12 : hour % 12, 2) + ":" +
                   padded(parts.time.minutes().count(), 2) + " " +
                   (hour < 12 ? locale.am : locale.pm);
        }
        case NamedFormat::ShortTime:
            return formatMoment(moment, "hh:nn", locale);
    }
    return {};
}

std::optional<seconds> readTimeOfDay(std::string_view text) {
    text = trimBlanks(text);
    std::size_t i = 0;
    const auto hour = oneOrTwoDigits(text, i);
    if (!hour)
        return std::nullopt;
    std::array<int, 2> minuteAndSecond{};
    bool anyColon = false;
    for (int& part : minuteAndSecond) {
        if (i >= text.size() || text[i] != ':')
            break;
        const auto value = oneOrTwoDigits(text, ++i);
        if (!value || *value > 59)
            return std::nullopt;
        part = *value;
        anyColon = true;
    }
    const HalfDay half = readHalfDay(text.substr(i));
    if (half == HalfDay::Unreadable || (half == HalfDay::None && !anyColon))
        return std::nullopt;
    int hours24 = *hour;
    if (half != HalfDay::None) {
        if (*hour < 1 || *hour > 12)
            return std::nullopt;
        hours24 = *hour % 12 + (half == HalfDay::Pm ? 12 : 0);
    } else if (*hour > 23) {
        return std::nullopt;
    }
    return hours(hours24) + minutes(minuteAndSecond[0]) + seconds(minuteAndSecond[1]);
}

std::string formatTimeText(std::string_view text, std::string_view pattern,
                           const LocaleFormats& locale) {
    const auto time = readTimeOfDay(text);
    if (!time)
        return std::string(text);
    return formatMoment(Moment(local_days(year(2000) / 1 / 1)) + *time, pattern, locale);
}

}  // namespace velmora
