#include "platform/DateText.h"

#include <array>

#include "platform/Text.h"

namespace velmora {
namespace {

using namespace std::chrono;

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

std::string padded(unsigned number, std::size_t width) {
    std::string digits = std::to_string(number);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

struct Number {
    int value = 0;
    std::size_t digits = 0;
};

// Takes a text apart from its beginning; each step says whether it found what it wanted.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(trimBlanks(text)) {}

    bool number(Number& number, std::size_t fewest, std::size_t most) {
        number = {};
        while (number.digits < rest_.size() && number.digits <= most && isDigit(number.digits))
            number.value = number.value * 10 + (rest_[number.digits++] - '0');
        rest_.remove_prefix(number.digits);
        return number.digits >= fewest && number.digits <= most;
    }

    bool character(char wanted) {
        if (rest_.empty() || rest_[0] != wanted)
            return false;
        rest_.remove_prefix(1);
        return true;
    }

    bool blanks() {
        const std::size_t before = rest_.size();
        while (character(' ')) {
        }
        return rest_.size() < before;
    }

    // A month's English name; 1 to 12.
    bool monthName(Number& month) {
        std::string word;
        while (word.size() < rest_.size() && isLetter(rest_[word.size()]))
            word += static_cast<char>(rest_[word.size()] | 0x20);
        rest_.remove_prefix(word.size());
        static constexpr std::array<std::string_view, 12> kNames{
            "january", "february", "march",     "april",   "may",      "june",
            "july",    "august",   "september", "october", "november", "december"};
        for (std::size_t i = 0; i < kNames.size(); ++i)
            if (word == kNames[i] || word == kNames[i].substr(0, 3))
                month.value = static_cast<int>(i) + 1;
        return month.value != 0;
    }

    [[nodiscard]] char next() const { return rest_.empty() ? '\0' : rest_[0]; }
    [[nodiscard]] bool atEnd() const { return rest_.empty(); }
    [[nodiscard]] bool atLetter() const { return !rest_.empty() && isLetter(rest_[0]); }

  private:
    [[nodiscard]] bool isDigit(std::size_t i) const { return rest_[i] >= '0' && rest_[i] <= '9'; }
    static bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

    std::string_view rest_;
};

struct Parts {
    Number year;
    Number month;
    Number day;
};

bool readNamed(Reader& reader, Parts& parts) {
    if (!reader.monthName(parts.month) || !reader.blanks() || !reader.number(parts.day, 1, 2))
        return false;
    const bool comma = reader.character(',');
    const bool blanks = reader.blanks();
    return (comma || blanks) && reader.number(parts.year, 2, 4);
}

bool readNumeric(Reader& reader, Parts& parts) {
    Number first;
    if (!reader.number(first, 1, 4))
        return false;
    if (first.digits <= 2) {
        parts.month = first;
        return reader.character('/') && reader.number(parts.day, 1, 2) && reader.character('/') &&
               reader.number(parts.year, 2, 4);
    }
    parts.year = first;
    const bool dashes = first.digits == 4 && reader.next() == '-';
    const char separator = dashes ? '-' : '/';
    const std::size_t fewest = dashes ? 2 : 1;
    return reader.character(separator) && reader.number(parts.month, fewest, 2) &&
           reader.character(separator) && reader.number(parts.day, fewest, 2);
}

int withCentury(const Number& written, int pivot) {
    if (written.digits > 2)
        return written.value;
    const int first = pivot - 50;
    const int offset = (written.value - first) % 100;
    return first + (offset < 0 ? offset + 100 : offset);
}

}  // namespace

std::string writeDate(year_month_day date) {
    return padded(unsigned(date.month()), 2) + "/" + padded(unsigned(date.day()), 2) + "/" +
           padded(static_cast<unsigned>(int(date.year())), 4);
}

std::optional<year_month_day> readDate(std::string_view text, year pivot) {
    Reader reader(text);
    Parts parts;
    const bool read = reader.atLetter() ? readNamed(reader, parts) : readNumeric(reader, parts);
    if (!read || !reader.atEnd())
        return std::nullopt;
    const int fullYear = withCentury(parts.year, int(pivot));
    const year_month_day date(year(fullYear), month(static_cast<unsigned>(parts.month.value)),
                              day(static_cast<unsigned>(parts.day.value)));
    if (fullYear < kFirstYear || fullYear > kLastYear || !date.ok())
        return std::nullopt;
    return date;
}

}  // namespace velmora
