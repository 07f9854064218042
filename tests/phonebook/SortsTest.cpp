#include "phonebook/Sorts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Failure.h"

namespace velmora {
namespace {

using Names = std::vector<std::string>;

Names sorted(Names names, int flags) {
    SortNameList(names, 0, static_cast<int>(names.size()) - 1, flags, CodePage::western());
    return names;
}

TEST(Sorts, FlagsGiveTheOrderAndTheComparison) {
    const Names names{"b", "C", "a", "B"};
    EXPECT_EQ(sorted(names, 1), (Names{"B", "C", "a", "b"}));
    EXPECT_EQ(sorted(names, 2), (Names{"b", "a", "C", "B"}));
    EXPECT_EQ(sorted({"b", "C", "a", "D"}, 5), (Names{"a", "b", "C", "D"}));
    EXPECT_EQ(sorted({"b", "C", "a", "D"}, 6), (Names{"D", "C", "b", "a"}));
    for (const int flags : {0, 3, 4, 7}) {
        SCOPED_TRACE(flags);
        EXPECT_EQ(sorted(names, flags), names);
    }
}

TEST(Sorts, BytesCompareAsUnsignedNumbers) {
    EXPECT_EQ(sorted({"\xE9", "z", "a"}, 1), (Names{"a", "z", "\xE9"}));
    EXPECT_EQ(sorted({"\xE9", "\xC9"}, 5), (Names{"\xE9", "\xC9"}));
}

TEST(Sorts, SignsBehindTheLettersStayBehindThemIgnoringCase) {
    EXPECT_EQ(sorted({"[b", "_a", "zed", "Smith, A", "Smith Jones"}, 5),
              (Names{"Smith Jones", "Smith, A", "zed", "[b", "_a"}));
}

TEST(Sorts, OnlyTheGivenPartIsSorted) {
    Names names{"d", "c", "b", "a"};
    SortNameList(names, 1, 2, 1, CodePage::western());
    EXPECT_EQ(names, (Names{"d", "b", "c", "a"}));
    SortNameList(names, 2, 2, 1, CodePage::western());
    SortNameList(names, 3, 0, 1, CodePage::western());
    EXPECT_EQ(names, (Names{"d", "b", "c", "a"}));
    Names none;
    SortNameList(none, 0, -1, 5, CodePage::western());
}

// Worked by hand. Four names: gaps 3, 2, 1. The first pass swaps the outer two, the last one the
// inner two; equal names never swap.
TEST(Sorts, EqualNamesComeOutAsTheGapsGive) {
    EXPECT_EQ(sorted({"B", "b", "a", "A"}, 5), (Names{"A", "a", "b", "B"}));
    EXPECT_EQ(sorted({"b", "B", "a", "A"}, 5), (Names{"A", "a", "B", "b"}));
}

// Worked by hand. Thirteen names: 13 / 1.3 is 10, which becomes 11, so the first pass compares 0
// with 11 and 1 with 12 only; of the equal "X" and "x" the later one comes to stand first.
TEST(Sorts, AGapOfNineOrTenBecomesEleven) {
    Names names(13, "m");
    names[0] = "X";
    names[1] = "x";
    names[11] = "a";
    names[12] = "b";
    const Names result = sorted(names, 5);
    EXPECT_EQ(result[0], "a");
    EXPECT_EQ(result[1], "b");
    EXPECT_EQ(result[11], "X");
    EXPECT_EQ(result[12], "x");
}

TEST(Sorts, LongListsComeOutInOrder) {
    Names names;
    unsigned seed = 3;
    for (int i = 0; i < 30001; ++i)
        names.push_back(std::to_string((seed = seed * 1103515245 + 12345) >> 8));
    Names expected = names;
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(sorted(names, 5), expected);
    std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(sorted(names, 2), expected);
}

// The steps as they are told, name by name.
void sortStepByStep(Names& names, bool descending) {
    const auto outOfOrder = [&](const std::string& a, const std::string& b) {
        const int order = CodePage::western().compareIgnoringCase(a, b);
        return descending ? order < 0 : order > 0;
    };
    std::size_t gap = names.size();
    for (bool swapped = true; gap >= 2 || swapped;) {
        gap = std::max<std::size_t>(gap * 10 / 13, 1);
        if (gap == 9 || gap == 10)
            gap = 11;
        swapped = false;
        for (std::size_t i = 0; i + gap < names.size(); ++i)
            if (outOfOrder(names[i], names[i + gap])) {
                std::swap(names[i], names[i + gap]);
                swapped = true;
            }
    }
}

TEST(Sorts, EqualNamesOfAnyListStandAsTheStepsLeaveThem) {
    unsigned seed = 7;
    const auto next = [&] { return (seed = seed * 1103515245 + 12345) >> 16; };
    for (const std::size_t count : {2U, 12U, 13U, 100U, 3000U}) {
        Names names(count);
        for (std::string& name : names) {
            // Few names in many spellings, most alike for longer than a machine word or two.
            name = next() % 3 == 0 ? "Sm" : "Bellweather, Adrian";
            name += static_cast<char>('0' + next() % 10);
            name[next() % 2] = static_cast<char>(name[0] ^ ' ');
        }
        for (const int flags : {5, 6}) {
            SCOPED_TRACE(count);
            Names expected = names;
            sortStepByStep(expected, flags == 6);
            EXPECT_EQ(sorted(names, flags), expected);
        }
    }
}

TEST(Sorts, IndicesOutsideTheArrayOrAbove32767Fail) {
    Names names(40000, "x");
    const CodePage& page = CodePage::western();
    EXPECT_NO_THROW(SortNameList(names, 1, 32767, 1, page));
    EXPECT_THROW(SortNameList(names, 0, 32767, 1, page), Failure);
    EXPECT_THROW(SortNameList(names, 32000, 32768, 1, page), Failure);
    EXPECT_THROW(SortNameList(names, -1, 5, 1, page), Failure);
    Names few(3, "x");
    EXPECT_THROW(SortNameList(few, 0, 3, 1, page), Failure);
}

}  // namespace
}  // namespace velmora
