#include "docpad/Trash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "docpad/DocPadWorld.h"
#include "support/FakeEventLoop.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using Picture = TrashView::Picture;

// Records the pictures with the moment, in milliseconds of waiting, at which each came.
struct FakeTrashView final : TrashView {
    explicit FakeTrashView(const test::FakeEventLoop& eventLoop) : loop(eventLoop) {}
    void show(Picture picture) override { shown.emplace_back(picture, loop.waited); }
    const test::FakeEventLoop& loop;
    std::vector<std::pair<Picture, std::chrono::milliseconds>> shown;
};

struct FakeDroppedEntry final : DroppedEntry {
    [[nodiscard]] bool available() const override { return isAvailable; }
    void remove() override { ++removed; }
    bool isAvailable = true;
    int removed = 0;
};

class TrashTest : public ::testing::Test, protected test::DocPadWorld {
  protected:
    void expectAnimation() const {
        EXPECT_THAT(pictures.shown,
                    ElementsAre(std::pair(Picture::Image5, 0ms), std::pair(Picture::Image6, 2000ms),
                                std::pair(Picture::Image2, 3000ms)));
    }

    test::FakeEventLoop loop;
    FakeTrashView pictures{loop};
    FakeDroppedEntry entry;
    Trash trash{{text, view, dialog, state, messages, files, loop, pictures, entry}};
};

TEST_F(TrashTest, ADroppedEntryIsDeletedAndTheCanMoves) {
    trash.dropEntry();
    EXPECT_EQ(entry.removed, 1);
    expectAnimation();
}

TEST_F(TrashTest, WithoutASelectedEntryNothingHappens) {
    entry.isAvailable = false;
    trash.dropEntry();
    EXPECT_EQ(entry.removed, 0);
    EXPECT_THAT(pictures.shown, IsEmpty());
}

TEST_F(TrashTest, AnUnnamedDocumentIsEmptiedAfterTheQuestion) {
    type("text");
    messages.willAnswer(true);
    trash.dropDocPad();
    EXPECT_THAT(
        messages.takeShown(),
        ElementsAre("ask|Confirmation:|Are you sure that you want to delete DocPad's contents?"));
    EXPECT_THAT(messages.takePreselected(), ElementsAre(Answer::No));
    EXPECT_EQ(text.text, "");
    EXPECT_EQ(state.DocPadDirty, 1) << "the trash does not clear the flag";
    EXPECT_THAT(view.takeShown(), IsEmpty());
    expectAnimation();
}

TEST_F(TrashTest, ANamedDocumentIsRemovedFromTheDisk) {
    folder.write("a.txt", "text");
    dialog.setFileName(folder.file("a.txt"));
    type("text");
    messages.willAnswer(true);
    trash.dropDocPad();
    EXPECT_THAT(messages.takeShown(),
                ElementsAre("ask|Confirmation:|Are you sure that you want to delete " +
                            folder.file("a.txt") + "?"));
    EXPECT_FALSE(folder.has("a.txt"));
    EXPECT_EQ(text.text, "");
    EXPECT_THAT(view.takeShown(), ElementsAre("DocPad"));
    EXPECT_EQ(dialog.fileName(), folder.file("a.txt")) << "the name stays";
    expectAnimation();
}

TEST_F(TrashTest, NoKeepsTextAndFile) {
    folder.write("a.txt", "text");
    dialog.setFileName(folder.file("a.txt"));
    type("text");
    messages.willAnswer(false);
    trash.dropDocPad();
    EXPECT_TRUE(folder.has("a.txt"));
    EXPECT_EQ(text.text, "text");
    EXPECT_THAT(pictures.shown, IsEmpty());
}

TEST_F(TrashTest, AFileThatCanNotBeRemovedKeepsTheText) {
    dialog.setFileName(folder.file("none.txt"));
    text.setBytes("text");
    state.DocPadDirty = 0;
    messages.willAnswer(true);
    trash.dropDocPad();
    EXPECT_THAT(messages.takeShown().back(), StartsWith("error|Velmora|"));
    EXPECT_EQ(text.text, "text");
    EXPECT_EQ(state.DocPadDirty, 1);
    EXPECT_THAT(pictures.shown, IsEmpty());
}

TEST_F(TrashTest, TheAnimationEndsWithTheProgram) {
    loop.isClosing = true;
    trash.dropEntry();
    EXPECT_THAT(pictures.shown, ElementsAre(std::pair(Picture::Image5, 0ms)));
}

}  // namespace
}  // namespace velmora
