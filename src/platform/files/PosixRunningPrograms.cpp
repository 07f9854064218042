#include "platform/files/PosixRunningPrograms.h"

#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>

namespace velmora {
namespace {

// The whole of a small file of the system; nothing when it is not there.
std::string systemText(const std::string& path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The mark of the process with this number, or nothing when there is none.
std::string markOf(const std::string& number) {
    const std::string status = systemText("/proc/" + number + "/stat");
    // The name of the program stands in brackets and may hold blanks; what counts is behind it.
    const std::size_t name = status.rfind(')');
    if (name == std::string::npos)
        return {};
    std::istringstream fields(status.substr(name + 1));
    constexpr int kBegin = 20;  // of the fields behind the name, the one with the moment
    std::string began;
    for (int i = 0; i < kBegin; ++i)
        fields >> began;
    std::string start = systemText("/proc/sys/kernel/random/boot_id");
    std::erase_if(start,
                  [](char letter) { return std::isspace(static_cast<unsigned char>(letter)); });
    return number + "-" + began + "-" + start;
}

// Takes the longest begin of `text` that consists of `letters`; its length.
std::size_t take(std::string_view& text, std::string_view letters) {
    const std::size_t length = std::min(text.find_first_not_of(letters), text.size());
    text.remove_prefix(length);
    return length;
}

bool takeHyphen(std::string_view& text) {
    return take(text, "-") == 1;
}

}  // namespace

bool PosixRunningPrograms::isMark(std::string_view text) {
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::size_t kLengthOfIdentity = 36;
    return take(text, kDigits) > 0 && takeHyphen(text) && take(text, kDigits) > 0 &&
           takeHyphen(text) && text.size() == kLengthOfIdentity &&
           take(text, "0123456789abcdef-") == kLengthOfIdentity;
}

std::string PosixRunningPrograms::ownMark() const {
    return markOf(std::to_string(getpid()));
}

bool PosixRunningPrograms::runs(const std::string& mark) const {
    const std::string number = mark.substr(0, mark.find('-'));
    const bool digits = !number.empty() && std::all_of(number.begin(), number.end(),
                                                       [](char c) { return c >= '0' && c <= '9'; });
    return digits && markOf(number) == mark;
}

}  // namespace velmora
