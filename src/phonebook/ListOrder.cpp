#include "phonebook/ListOrder.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace velmora {

void ListOrder::sort(std::vector<std::string>& lines) const {
    struct Keyed {
        std::string upper;
        std::size_t place;
    };
    std::vector<Keyed> keys;
    keys.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        keys.push_back({codePage_.upper(lines[i]), i});
    std::sort(keys.begin(), keys.end(), [](const Keyed& a, const Keyed& b) {
        const int order = a.upper.compare(b.upper);
        return order < 0 || (order == 0 && a.place < b.place);
    });
    std::vector<std::string> sorted;
    sorted.reserve(lines.size());
    for (const Keyed& key : keys)
        sorted.push_back(std::move(lines[key.place]));
    lines = std::move(sorted);
}

}  // namespace velmora
