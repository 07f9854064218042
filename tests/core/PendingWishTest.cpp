#include "core/PendingWish.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

class PendingWishTest : public ::testing::Test {
  protected:
    SharedState state;
    std::vector<std::string> done;
    PendingWish wish{state, [this](int kind) { done.push_back("book " + std::to_string(kind)); },
                     [this](int index) { done.push_back("letter " + std::to_string(index)); }};
};

TEST_F(PendingWishTest, TheBookComesBeforeTheLetterAndBothAreForgotten) {
    state.PendingBook = kWhitePages;
    state.PendingLetter = 5;
    wish.flipped();
    EXPECT_EQ(done, (std::vector<std::string>{"book 2", "letter 5"}));
    EXPECT_EQ(state.PendingBook, 0);
    EXPECT_EQ(state.PendingLetter, 0);
    wish.flipped();
    EXPECT_EQ(done.size(), 2U);
}

TEST_F(PendingWishTest, TheFirstLetterCanNotBeAskedFor) {
    state.PendingBook = kYellowPages;
    state.PendingLetter = 0;
    wish.flipped();
    EXPECT_EQ(done, (std::vector<std::string>{"book 1"}));
}

TEST_F(PendingWishTest, ABookThatIsNoneIsForgottenAtTheFirstFlip) {
    state.PendingBook = -1;
    wish.flipped();
    EXPECT_TRUE(done.empty());
    EXPECT_EQ(state.PendingBook, 0);
}

}  // namespace
}  // namespace velmora
