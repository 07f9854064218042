#include "benches/BareLoop.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace velmora::bench {
namespace {

constexpr std::size_t kRecord = 1595;
constexpr std::size_t kBlock = std::size_t(1) << 20;
constexpr std::size_t kWidths[] = {15, 20, 10, 50,  60,  75, 75, 75,  75, 50, 30, 20,  20,
                                   20, 25, 20, 100, 200, 30, 25, 250, 20, 25, 25, 255, 25};
constexpr std::size_t kFirst = 0, kFirstWidth = 15;
constexpr std::size_t kLast = 15, kLastWidth = 20;
constexpr std::size_t kCompany = 45, kCompanyWidth = 50;
constexpr std::size_t kNumberPlaces[] = {535, 555, 575, 620}, kNumberWidth = 20;

// Calls visit(record) for each full record until it returns false.
template <typename Visit>
void eachRecord(const std::string& path, Visit visit) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        throw std::runtime_error("can not read " + path);
    const auto block = std::make_unique<char[]>(kBlock + kRecord);
    std::size_t held = 0;
    bool goOn = true;
    for (ssize_t got = 0; goOn && (got = ::read(file, block.get() + held, kBlock)) > 0;) {
        const char* at = block.get();
        const char* const end = at + held + static_cast<std::size_t>(got);
        for (; goOn && at + kRecord <= end; at += kRecord)
            goOn = visit(at);
        held = static_cast<std::size_t>(end - at);
        std::memmove(block.get(), at, held);
    }
    ::close(file);
}

char upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

std::string_view trimmed(const char* field, std::size_t width) {
    std::size_t begin = 0;
    while (begin < width && field[begin] == ' ')
        ++begin;
    while (width > begin && (field[width - 1] == ' ' || field[width - 1] == '\0'))
        --width;
    return {field + begin, width - begin};
}

bool equal(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (upper(a[i]) != upper(b[i]))
            return false;
    return true;
}

}  // namespace

std::size_t countUnderLetter(const std::string& path, char letter) {
    std::size_t count = 0;
    eachRecord(path, [&](const char* record) {
        std::string_view name = trimmed(record + kLast, kLastWidth);
        if (name.empty())
            name = trimmed(record + kCompany, kCompanyWidth);
        if (!name.empty() && upper(name.front()) == letter)
            ++count;
        return true;
    });
    return count;
}

std::size_t findPerson(const std::string& path, const std::string& last, const std::string& first) {
    std::size_t number = 0;
    bool found = false;
    eachRecord(path, [&](const char* record) {
        ++number;
        found = equal(trimmed(record + kLast, kLastWidth), last) &&
                equal(trimmed(record + kFirst, kFirstWidth), first);
        return !found;
    });
    return found ? number : 0;
}

std::size_t countFieldsWith(const std::string& path, const std::string& upperText) {
    std::size_t count = 0;
    std::string folded(kRecord, ' ');
    eachRecord(path, [&](const char* record) {
        for (std::size_t i = 0; i < kRecord; ++i)
            folded[i] = upper(record[i]);
        std::string_view rest = folded;
        for (const std::size_t width : kWidths) {
            if (rest.substr(0, width).find(upperText) != std::string_view::npos)
                ++count;
            rest.remove_prefix(width);
        }
        return true;
    });
    return count;
}

std::size_t countCallers(const std::string& path, const std::string& number) {
    const std::string area = number.substr(0, 3);
    const std::string local = number.substr(3, 3) + "-" + number.substr(6);
    const std::string forms[] = {number, local, "(" + area + ") " + local, area + " " + local,
                                 area + "-" + local};
    std::size_t count = 0;
    eachRecord(path, [&](const char* record) {
        bool calls = false;
        for (const std::size_t place : kNumberPlaces) {
            const std::string_view text = trimmed(record + place, kNumberWidth);
            for (const std::string& form : forms)
                calls = calls || text == form;
        }
        count += calls ? 1 : 0;
        return true;
    });
    return count;
}

}  // namespace velmora::bench
