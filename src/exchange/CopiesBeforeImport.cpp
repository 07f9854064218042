#include "exchange/CopiesBeforeImport.h"

#include <algorithm>

#include "platform/Format.h"

namespace velmora {
namespace {

constexpr std::string_view kEnding = ".before-import-";
constexpr std::string_view kShape = "dddddddd-dddddd";  // a digit for each "d"

bool isMoment(std::string_view text) {
    return text.size() >= kShape.size() &&
           std::equal(kShape.begin(), kShape.end(), text.begin(), [](char shape, char byte) {
               return shape == 'd' ? byte >= '0' && byte <= '9' : byte == shape;
           });
}

}  // namespace

NativePath nameBeforeImport(const NativePath& file, Moment moment,
                            const std::function<bool(const NativePath&)>& isTaken) {
    const NativePath name = file.withEnding(
        std::string(kEnding) + formatMoment(moment, "yyyymmdd-hhnnss", LocaleFormats()));
    NativePath free = name;
    for (char letter = 'b'; isTaken(free) && letter <= 'z'; ++letter)
        free = name.withEnding(std::string(1, letter));
    return free;
}

std::vector<std::string> outdatedBeforeImports(const std::string& name,
                                               std::vector<std::string> names) {
    const std::string begin = name + std::string(kEnding);
    std::erase_if(names, [&](const std::string& other) {
        return !other.starts_with(begin) || !isMoment(std::string_view(other).substr(begin.size()));
    });
    std::sort(names.begin(), names.end());
    names.resize(names.size() - std::min(names.size(), kKeptBeforeImports));
    return names;
}

}  // namespace velmora
