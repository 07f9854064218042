#include "telephony/NationalNumber.h"

#include <algorithm>
#include <array>
#include <optional>

namespace velmora {
namespace {

struct Numbering {
    std::string_view country;
    std::string_view code;   // of the country, to callers from abroad
    std::string_view trunk;  // what calls within the country begin with
};

constexpr std::string_view kNorthAmericaCode = "1";
constexpr std::size_t kNorthAmericanDigits = 10;

// Countries and territories that share the North American numbers.
constexpr std::array<std::string_view, 25> kNorthAmerica{
    "AG", "AI", "AS", "BB", "BM", "BS", "CA", "DM", "DO", "GD", "GU", "JM", "KN",
    "KY", "LC", "MP", "MS", "PR", "SX", "TC", "TT", "US", "VC", "VG", "VI"};

constexpr std::array kNumberings = std::to_array<Numbering>({
    {"AE", "971", "0"}, {"AL", "355", "0"}, {"AM", "374", "0"}, {"AR", "54", "0"},
    {"AT", "43", "0"},  {"AU", "61", "0"},  {"AZ", "994", "0"}, {"BA", "387", "0"},
    {"BD", "880", "0"}, {"BE", "32", "0"},  {"BG", "359", "0"}, {"BR", "55", "0"},
    {"BY", "375", "8"}, {"CH", "41", "0"},  {"CL", "56", ""},   {"CN", "86", "0"},
    {"CO", "57", ""},   {"CY", "357", ""},  {"CZ", "420", ""},  {"DE", "49", "0"},
    {"DK", "45", ""},   {"DZ", "213", "0"}, {"EE", "372", ""},  {"EG", "20", "0"},
    {"ES", "34", ""},   {"FI", "358", "0"}, {"FR", "33", "0"},  {"GB", "44", "0"},
    {"GE", "995", "0"}, {"GR", "30", ""},   {"HK", "852", ""},  {"HR", "385", "0"},
    {"HU", "36", "06"}, {"ID", "62", "0"},  {"IE", "353", "0"}, {"IL", "972", "0"},
    {"IN", "91", "0"},  {"IQ", "964", "0"}, {"IR", "98", "0"},  {"IS", "354", ""},
    {"IT", "39", ""},   {"JO", "962", "0"}, {"JP", "81", "0"},  {"KE", "254", "0"},
    {"KR", "82", "0"},  {"KW", "965", ""},  {"KZ", "7", "8"},   {"LB", "961", "0"},
    {"LI", "423", ""},  {"LT", "370", "0"}, {"LU", "352", ""},  {"LV", "371", ""},
    {"MA", "212", "0"}, {"MC", "377", ""},  {"MD", "373", "0"}, {"ME", "382", "0"},
    {"MK", "389", "0"}, {"MT", "356", ""},  {"MX", "52", ""},   {"MY", "60", "0"},
    {"NG", "234", "0"}, {"NL", "31", "0"},  {"NO", "47", ""},   {"NZ", "64", "0"},
    {"PE", "51", "0"},  {"PH", "63", "0"},  {"PK", "92", "0"},  {"PL", "48", ""},
    {"PT", "351", ""},  {"QA", "974", ""},  {"RO", "40", "0"},  {"RS", "381", "0"},
    {"RU", "7", "8"},   {"SA", "966", "0"}, {"SE", "46", "0"},  {"SG", "65", ""},
    {"SI", "386", "0"}, {"SK", "421", "0"}, {"TH", "66", "0"},  {"TN", "216", ""},
    {"TR", "90", "0"},  {"TW", "886", "0"}, {"UA", "380", "0"}, {"UY", "598", "0"},
    {"VE", "58", "0"},  {"VN", "84", "0"},  {"ZA", "27", "0"},
});

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The digits of a number that is written with nothing but digits and the usual marks between them.
std::optional<std::string> digitsOf(std::string_view text) {
    std::string digits;
    for (const char c : text) {
        if (isDigit(c))
            digits += c;
        else if (std::string_view(" -./()").find(c) == std::string_view::npos)
            return std::nullopt;
    }
    return digits;
}

// What stands behind the mark of an international number, as digits.
std::optional<std::string> internationalDigits(std::string_view number) {
    for (const std::string_view mark : {"+", "00"})
        if (number.starts_with(mark))
            return digitsOf(number.substr(mark.size()));
    return std::nullopt;
}

std::string northAmerican(std::string_view received) {
    const auto international = internationalDigits(received);
    const auto digits = international ? international : digitsOf(received);
    if (digits && digits->size() == kNorthAmericanDigits + 1 &&
        digits->starts_with(kNorthAmericaCode))
        return digits->substr(1);
    return std::string(received);
}

}  // namespace

std::string nationalNumber(std::string_view received, std::string_view country) {
    std::string upper(country);
    std::ranges::transform(upper, upper.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    if (std::ranges::find(kNorthAmerica, upper) != kNorthAmerica.end())
        return northAmerican(received);
    const auto numbering = std::ranges::find(kNumberings, upper, &Numbering::country);
    const auto digits = internationalDigits(received);
    if (numbering == kNumberings.end() || !digits || !digits->starts_with(numbering->code) ||
        digits->size() == numbering->code.size())
        return std::string(received);
    return std::string(numbering->trunk) + digits->substr(numbering->code.size());
}

}  // namespace velmora
