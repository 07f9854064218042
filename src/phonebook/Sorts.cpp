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

// A name in the order in which it is compared, with its first bytes at hand: most names differ
// there.
struct SortedName {
    static constexpr std::size_t kBytesAtHand = 16;

    std::uint64_t begin = 0;  // the first eight bytes, the first one highest; behind the end zero
    std::uint64_t next = 0;
    std::uint32_t at = 0;  // in the list
};

// Compares names as the flags ask for, ascending.
class NameOrder {
  public:
    // All must outlive this object.
    NameOrder(std::span<const std::string> names, bool ignoringCase, const CodePage& codePage)
        : names_(names), ignoringCase_(ignoringCase), codePage_(codePage) {}

    [[nodiscard]] SortedName at(std::size_t index) const {
        const std::string& name = names_[index];
        SortedName sorted;
        for (std::size_t i = 0; i < std::min(name.size(), SortedName::kBytesAtHand); ++i) {
            const char shown = ignoringCase_ ? codePage_.upper(name[i]) : name[i];
            const std::uint64_t byte = static_cast<unsigned char>(shown);
            (i < 8 ? sorted.begin : sorted.next) |= byte << 8 * (7 - i % 8);
        }
        sorted.at = static_cast<std::uint32_t>(index);
        return sorted;
    }

    // std::string compares its bytes as unsigned numbers, too.
    [[nodiscard]] bool isBefore(const SortedName& a, const SortedName& b) const {
        if (a.begin != b.begin)
            return a.begin < b.begin;
        if (a.next != b.next)
            return a.next < b.next;
        const std::string& nameOfA = names_[a.at];
        const std::string& nameOfB = names_[b.at];
        return ignoringCase_ ? codePage_.compareIgnoringCase(nameOfA, nameOfB) < 0
                             : nameOfA < nameOfB;
    }

  private:
    std::span<const std::string> names_;
    bool ignoringCase_;
    const CodePage& codePage_;
};

// What the comb sort goes over: the rank of a name above its place in the list. Names that compare
// equal have one rank.
using Ranked = std::uint32_t;
constexpr int kBitsOfPlace = 16;

void combSort(std::vector<Ranked>& list) {
    const std::size_t count = list.size();
    int gap = static_cast<int>(count);
    bool swapped = false;
    do {
        gap = nextGap(gap);
        const auto apart = static_cast<std::size_t>(gap);
        Ranked swaps = 0;
        for (std::size_t i = 0; i + apart < count; ++i) {
            // Without a jump, which nobody could foretell.
            const Ranked a = list[i];
            const Ranked b = list[i + apart];
            const bool isBehind = a >> kBitsOfPlace > b >> kBitsOfPlace;
            list[i] = isBehind ? b : a;
            list[i + apart] = isBehind ? a : b;
            swaps |= static_cast<Ranked>(isBehind);
        }
        swapped = swaps != 0;
    } while (gap >= 2 || swapped);
}

// The places of the names in the order that the comb sort gives. A sort that knows nothing of equal
// names goes first and says which rank each has; without any equal ones it is the same order.
std::vector<std::size_t> placesInOrder(std::size_t count, const NameOrder& order, bool descending) {
    std::vector<SortedName> sorted;
    sorted.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        sorted.push_back(order.at(i));
    std::sort(sorted.begin(), sorted.end(), [&](const SortedName& a, const SortedName& b) {
        return descending ? order.isBefore(b, a) : order.isBefore(a, b);
    });
    std::vector<Ranked> list(count);
    Ranked rank = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0 && (descending ? order.isBefore(sorted[i], sorted[i - 1])
                                 : order.isBefore(sorted[i - 1], sorted[i])))
            ++rank;
        list[sorted[i].at] = rank << kBitsOfPlace | sorted[i].at;
    }
    std::vector<std::size_t> places;
    places.reserve(count);
    if (rank + 1 == count) {
        for (const SortedName& name : sorted)
            places.push_back(name.at);
        return places;
    }
    combSort(list);
    for (const Ranked each : list)
        places.push_back(each & ((1U << kBitsOfPlace) - 1));
    return places;
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
    const NameOrder compared(part, (flags & kSortIgnoringCase) != 0, codePage);
    std::vector<std::string> result;
    result.reserve(part.size());
    for (const std::size_t place : placesInOrder(part.size(), compared, order == kSortDescending))
        result.push_back(std::move(part[place]));
    std::move(result.begin(), result.end(), part.begin());
}

}  // namespace velmora
