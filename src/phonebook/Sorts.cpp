#include "phonebook/Sorts.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr int kHighestIndex = 32767;
constexpr int kOrders = 4;

int nextGap(int gap) {
    gap = gap * 10 / 13;
    if (gap == 0)
        return 1;
    return gap == 9 || gap == 10 ? 11 : gap;
}

// A name in the order in which it is compared, with its first bytes at hand: a sort goes over the
// list dozens of times.
struct SortedName {
    static constexpr std::size_t kBytesAtHand = 16;

    std::uint64_t begin = 0;  // the first eight bytes, the first one highest; behind the end zero
    std::uint64_t next = 0;
    std::uint32_t at = 0;  // in the list
};

SortedName sortedName(const std::string& name, std::size_t at) {
    SortedName sorted;
    for (std::size_t i = 0; i < std::min(name.size(), SortedName::kBytesAtHand); ++i) {
        const std::uint64_t byte = static_cast<unsigned char>(name[i]);
        (i < 8 ? sorted.begin : sorted.next) |= byte << 8 * (7 - i % 8);
    }
    sorted.at = static_cast<std::uint32_t>(at);
    return sorted;
}

// std::string compares its bytes as unsigned numbers.
bool isBehind(const SortedName& a, const SortedName& b, std::span<const std::string> compared) {
    if (a.begin != b.begin)
        return a.begin > b.begin;
    if (a.next != b.next)
        return a.next > b.next;
    return compared[a.at] > compared[b.at];
}

template <typename OutOfOrder>
void combSort(std::vector<SortedName>& list, OutOfOrder outOfOrder) {
    const int count = static_cast<int>(list.size());
    int gap = count;
    bool swapped = false;
    do {
        gap = nextGap(gap);
        swapped = false;
        for (int i = 0; i < count - gap; ++i) {
            SortedName& a = list[static_cast<std::size_t>(i)];
            SortedName& b = list[static_cast<std::size_t>(i) + static_cast<std::size_t>(gap)];
            if (outOfOrder(a, b)) {
                std::swap(a, b);
                swapped = true;
            }
        }
    } while (gap >= 2 || swapped);
}

}  // namespace

void SortNameList(std::span<std::string> names, int first, int last, int flags,
                  const CodePage& codePage) {
    const int order = flags % kOrders;
    if (last <= first || (order != kSortAscending && order != kSortDescending))
        return;
    if (first < 0 || last > kHighestIndex || last - first >= kHighestIndex ||
        static_cast<std::size_t>(last) >= names.size())
        throw Failure("There are too many names to sort.");
    const auto part =
        names.subspan(static_cast<std::size_t>(first),
                      static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1);
    std::vector<std::string> upper;
    if ((flags & kSortIgnoringCase) != 0)
        for (const std::string& name : part)
            upper.push_back(codePage.upper(name));
    const std::span<const std::string> compared = upper.empty() ? part : std::span(upper);
    std::vector<SortedName> list;
    list.reserve(compared.size());
    for (std::size_t i = 0; i < compared.size(); ++i)
        list.push_back(sortedName(compared[i], i));
    combSort(list, [&](const SortedName& a, const SortedName& b) {
        return order == kSortAscending ? isBehind(a, b, compared) : isBehind(b, a, compared);
    });
    std::vector<std::string> result;
    result.reserve(list.size());
    for (const SortedName& name : list)
        result.push_back(std::move(part[name.at]));
    std::move(result.begin(), result.end(), part.begin());
}

}  // namespace velmora
