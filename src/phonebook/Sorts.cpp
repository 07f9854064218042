#include "phonebook/Sorts.h"

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

// std::string compares its bytes as unsigned numbers.
template <typename OutOfOrder, typename Swap>
void combSort(int count, OutOfOrder outOfOrder, Swap swap) {
    int gap = count;
    bool swapped = false;
    do {
        gap = nextGap(gap);
        swapped = false;
        for (int i = 0; i < count - gap; ++i)
            if (outOfOrder(i, i + gap)) {
                swap(i, i + gap);
                swapped = true;
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
    const auto part = names.subspan(static_cast<std::size_t>(first));
    const int count = last - first + 1;
    std::vector<std::string> upper;
    if ((flags & kSortIgnoringCase) != 0)
        for (int i = 0; i < count; ++i)
            upper.push_back(codePage.upper(part[static_cast<std::size_t>(i)]));
    const std::span<std::string> compared = upper.empty() ? part : std::span(upper);
    const auto at = [](std::span<std::string> list, int i) -> std::string& {
        return list[static_cast<std::size_t>(i)];
    };
    combSort(
        count,
        [&](int a, int b) {
            return order == kSortAscending ? at(compared, a) > at(compared, b)
                                           : at(compared, a) < at(compared, b);
        },
        [&](int a, int b) {
            std::swap(at(part, a), at(part, b));
            if (!upper.empty())
                std::swap(upper[static_cast<std::size_t>(a)], upper[static_cast<std::size_t>(b)]);
        });
}

}  // namespace velmora
