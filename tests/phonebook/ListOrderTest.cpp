#include "phonebook/ListOrder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

using Lines = std::vector<std::string>;

Lines sorted(Lines lines) {
    ListOrder(CodePage::western()).sort(lines);
    return lines;
}

TEST(ListOrder, CaseDoesNotCountAndEqualLinesKeepTheirOrder) {
    EXPECT_EQ(sorted({"smith, B", "Smith, a", "SMITH, A", "Adams, Z"}),
              (Lines{"Adams, Z", "Smith, a", "SMITH, A", "smith, B"}));
    EXPECT_EQ(sorted({"SMITH, A", "Smith, a"}), (Lines{"SMITH, A", "Smith, a"}));
}

TEST(ListOrder, BytesDecideAndNoLanguage) {
    EXPECT_EQ(sorted({"[b", "\xE9mile, A", "zed", "Smith, A", "Smith Jones", "_a"}),
              (Lines{"Smith Jones", "Smith, A", "zed", "[b", "_a", "\xE9mile, A"}));
    EXPECT_EQ(sorted({"\xC9z",
                      "\xE9"
                      "a"}),
              (Lines{"\xE9"
                     "a",
                     "\xC9z"}));
}

TEST(ListOrder, SaysWhichLineStandsBefore) {
    const ListOrder order(CodePage::western());
    EXPECT_TRUE(order.before("adams", "Baker"));
    EXPECT_FALSE(order.before("Baker", "adams"));
    EXPECT_FALSE(order.before("ADAMS", "adams"));
}

TEST(ListOrder, EmptyAndSingleListsStayAsTheyAre) {
    EXPECT_EQ(sorted({}), Lines{});
    EXPECT_EQ(sorted({"x"}), Lines{"x"});
}

}  // namespace
}  // namespace velmora
