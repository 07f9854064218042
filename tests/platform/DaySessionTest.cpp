#include "platform/calendar/DaySession.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace velmora {
namespace {

using namespace std::chrono;
using Events = std::vector<std::string>;

minutes at(int hour, int minute = 0) {
    return hours(hour) + minutes(minute);
}

// Writes down what it is told; what its editor holds is up to the test.
class RecordingView final : public DaySessionView {
  public:
    void editComing() override {
        if (onComing)
            onComing();
    }
    void editBegun(int index, bool exists) override {
        events.push_back("begin " + std::to_string(index) + (exists ? " exists" : " new"));
        if (onBegun)
            onBegun();
    }
    void editEnded(int index, bool save) override {
        events.push_back("end " + std::to_string(index) + (save ? " save" : ""));
    }
    void removalComing() override { events.emplace_back("remove"); }
    void openEditor(int index) override {
        open = true;
        typed.reset();
        events.push_back("open " + std::to_string(index));
    }
    void closeEditor() override { open = false; }
    [[nodiscard]] std::optional<std::string> editedText() const override { return typed; }
    void blockChanged(int /*index*/) override {}
    void slotChanged(minutes /*slot*/) override {}
    void dayChanged() override {}
    void dragChanged(TimeSpan span) override { drags.push_back(span); }

    Events events;
    std::vector<TimeSpan> drags;
    bool open = false;
    std::optional<std::string> typed;
    std::function<void()> onComing;
    std::function<void()> onBegun;
};

class DaySessionTest : public testing::Test {
  protected:
    void add(const char* begin, const char* end, const char* text, const char* tag = "tag") {
        session.tasks().Add(begin, end, text);
        session.tasks().setTagVariant(session.tasks().Count() - 1, tag);
    }
    void addTwo() {
        add("09:00 AM", "10:00 AM", "first");
        add("1:00 PM", "2:00 PM", "second");
    }
    std::string times(int index) {
        const DayTask& task = session.tasks().Item(index);
        return task.BeginTime + "-" + task.EndTime;
    }

    RecordingView view;
    DaySession session{view};
};

// --- Selection and slot ---

TEST_F(DaySessionTest, SelectsNoBlockThatIsNotThere) {
    addTwo();
    session.select(1);
    EXPECT_EQ(session.selected(), 1);
    session.select(2);
    EXPECT_EQ(session.selected(), -1);
}

TEST_F(DaySessionTest, TheSelectionStaysWithItsBlockAndGoesWithIt) {
    addTwo();
    session.select(1);
    session.tasks().Remove(0);
    EXPECT_EQ(session.selected(), 0);
    session.tasks().Remove(0);
    EXPECT_EQ(session.selected(), -1);
}

TEST_F(DaySessionTest, WalksTheBlocksInTimeFromTheSlot) {
    add("1:00 PM", "2:00 PM", "second");
    add("09:00 AM", "10:00 AM", "first");
    session.setSlot(at(9, 30));
    EXPECT_TRUE(session.selectBeside(1));
    EXPECT_EQ(session.selected(), 0);
    EXPECT_EQ(session.slot(), at(13));
    EXPECT_FALSE(session.selectBeside(1));
    EXPECT_TRUE(session.selectBeside(-1));
    EXPECT_EQ(session.selected(), 1);
    EXPECT_EQ(session.slot(), at(9));
}

TEST_F(DaySessionTest, TheSlotStaysWithinTheTimesShown) {
    session.blocks().setLastTime("5:00 PM");
    session.blocks().setFirstTime("8:00 AM");
    session.setSlot(at(3));
    EXPECT_EQ(session.slot(), at(8));
    session.setSlot(at(23));
    EXPECT_EQ(session.slot(), at(17, 30));
}

// --- Edits ---

TEST_F(DaySessionTest, ANewBlockIsAppendedThenToldThenEditedThenSaved) {
    addTwo();
    session.create({at(14), at(15)});
    EXPECT_TRUE(session.isEditing());
    EXPECT_EQ(session.edited(), 2);
    view.typed = "Dentist";
    session.saveEdit();
    EXPECT_EQ(view.events, (Events{"begin 2 new", "open 2", "end 2 save"}));
    EXPECT_EQ(session.tasks().Item(2), (DayTask{"02:00 PM", "03:00 PM", "Dentist", ""}));
    EXPECT_FALSE(view.open);
    EXPECT_EQ(session.selected(), 2);
}

TEST_F(DaySessionTest, ANewBlockLeftEmptyOrDroppedGoesAfterItsEnd) {
    session.create({at(14), at(15)});
    session.saveEdit();
    EXPECT_EQ(session.tasks().Count(), 0);
    session.create({at(14), at(15)});
    view.typed = "typed";
    session.dropEdit();
    EXPECT_EQ(session.tasks().Count(), 0);
    EXPECT_EQ(view.events,
              (Events{"begin 0 new", "open 0", "end -1", "begin 0 new", "open 0", "end -1"}));
}

TEST_F(DaySessionTest, AnEditThatChangedNothingLeavesTheTextAsItWas) {
    add("09:00 AM", "10:00 AM", "one\ntwo");
    session.edit(0);
    session.saveEdit();
    EXPECT_EQ(session.tasks().Item(0).text, "one\ntwo");
    EXPECT_EQ(view.events.back(), "end 0 save");
}

TEST_F(DaySessionTest, AnExistingBlockMayBeEmptied) {
    addTwo();
    session.edit(0);
    view.typed = "";
    session.saveEdit();
    EXPECT_EQ(session.tasks().Item(0).text, "");
    EXPECT_EQ(session.tasks().Count(), 2);
}

TEST_F(DaySessionTest, AnotherEditSavesTheOneThatIsOpen) {
    addTwo();
    session.edit(0);
    view.typed = "changed";
    session.edit(1);
    EXPECT_EQ(view.events,
              (Events{"begin 0 exists", "open 0", "end 0 save", "begin 1 exists", "open 1"}));
    EXPECT_EQ(session.tasks().Item(0).text, "changed");
}

TEST_F(DaySessionTest, TheListenerMayLoadTheDayAnewBeforeAnEdit) {
    addTwo();
    view.onComing = [this] {
        view.onComing = nullptr;
        session.tasks().RemoveAll();
        add("09:00 AM", "10:00 AM", "other");
        add("1:00 PM", "2:00 PM", "block");
    };
    session.edit(1);
    view.typed = "changed";
    session.saveEdit();
    EXPECT_EQ(session.tasks().Item(1).text, "changed");
}

TEST_F(DaySessionTest, ABlockThatIsTakenAwayEndsItsEditWithoutAWord) {
    addTwo();
    session.edit(1);
    session.tasks().RemoveAll();
    EXPECT_FALSE(session.isEditing());
    EXPECT_FALSE(view.open);
    session.saveEdit();
    EXPECT_EQ(view.events, (Events{"begin 1 exists", "open 1"}));
}

TEST_F(DaySessionTest, WhatTheEditorHeldBeforeIsNotTakenForWhatWasTyped) {
    addTwo();
    view.typed = "of another block";
    view.onBegun = [this] { session.saveEdit(); };
    session.edit(0);
    EXPECT_EQ(session.tasks().Item(0).text, "first");
    EXPECT_EQ(view.events, (Events{"begin 0 exists", "end 0 save"}));
}

// --- Removal ---

TEST_F(DaySessionTest, ARemovalIsToldWhileTheBlockIsThere) {
    addTwo();
    session.select(0);
    session.removeSelected();
    EXPECT_EQ(view.events, Events{"remove"});
    ASSERT_EQ(session.tasks().Count(), 1);
    EXPECT_EQ(session.tasks().Item(0).text, "second");
    EXPECT_EQ(session.selected(), -1);
}

TEST_F(DaySessionTest, ABlockThatIsNotStoredGoesSilently) {
    add("09:00 AM", "10:00 AM", "first", "");
    session.removeSelected();
    session.select(0);
    session.removeSelected();
    EXPECT_TRUE(view.events.empty());
    EXPECT_EQ(session.tasks().Count(), 0);
}

TEST_F(DaySessionTest, AnOpenEditOfTheBlockIsDroppedBeforeItsRemoval) {
    addTwo();
    session.edit(0);
    view.typed = "typed";
    session.removeSelected();
    EXPECT_EQ(view.events, (Events{"begin 0 exists", "open 0", "end 0", "remove"}));
}

// --- Drags ---

TEST_F(DaySessionTest, ADragBeginsWithItsFirstStepAndIsStoredAtItsEnd) {
    addTwo();
    session.hold(0, Grip::End);
    EXPECT_TRUE(session.holdsEdge());
    session.dragBy(minutes(2));
    EXPECT_EQ(session.drag(), nullptr);
    session.dragBy(minutes(28));
    ASSERT_NE(session.drag(), nullptr);
    EXPECT_EQ(session.drag()->now, (TimeSpan{at(9), at(10, 30)}));
    EXPECT_EQ(times(0), "09:00 AM-10:00 AM");
    session.finishDrag();
    EXPECT_EQ(times(0), "09:00 AM-10:30 AM");
    EXPECT_EQ(view.events, (Events{"begin 0 exists", "end 0 save"}));
    EXPECT_EQ(view.drags, (std::vector<TimeSpan>{{at(9), at(10)}, {at(9), at(10, 30)}}));
}

TEST_F(DaySessionTest, ADragBackToWhereItBeganAndADroppedOneStoreNothing) {
    add("9:00", "10:00", "as it was written");
    session.hold(0, Grip::Whole);
    session.dragBy(minutes(60));
    session.dragBy(minutes(1));
    session.finishDrag();
    session.hold(0, Grip::Whole);
    session.dragBy(minutes(60));
    session.dropDrag();
    EXPECT_EQ(times(0), "9:00-10:00");
    EXPECT_EQ(view.events, (Events{"begin 0 exists", "end 0", "begin 0 exists", "end 0"}));
}

TEST_F(DaySessionTest, OnlyTheTimesThatAreDraggedAreWrittenAnew) {
    add("9:00", "10:00", "x");
    session.hold(0, Grip::Begin);
    session.dragBy(minutes(-30));
    session.finishDrag();
    EXPECT_EQ(times(0), "08:30 AM-10:00");
}

TEST_F(DaySessionTest, StepsOfOneKindAreOneDrag) {
    addTwo();
    session.nudge(Grip::Whole, kDragStep);
    EXPECT_TRUE(view.events.empty()) << "nothing is selected";
    session.select(0);
    for (int i = 0; i < 12; ++i)
        session.nudge(Grip::Whole, kDragStep);
    EXPECT_EQ(view.events, Events{"begin 0 exists"});
    session.nudge(Grip::End, -kDragStep);
    EXPECT_EQ(times(0), "10:00 AM-11:00 AM");
    session.finishDrag();
    EXPECT_EQ(times(0), "10:00 AM-10:55 AM");
    EXPECT_EQ(view.events,
              (Events{"begin 0 exists", "end 0 save", "begin 0 exists", "end 0 save"}));
}

TEST_F(DaySessionTest, ADraggedBlockThatIsTakenAwayEndsWithoutAWord) {
    addTwo();
    session.hold(0, Grip::Whole);
    session.dragBy(minutes(60));
    session.tasks().RemoveAll();
    session.dragBy(minutes(90));
    session.finishDrag();
    EXPECT_EQ(view.events, Events{"begin 0 exists"});
}

// --- Ranges ---

TEST_F(DaySessionTest, ARangeBecomesABlockOfItsLengthEvenUpwards) {
    session.beginRange(at(16));
    EXPECT_EQ(session.range(), std::nullopt);
    session.rangeTo(at(14, 30));
    EXPECT_EQ(session.range(), (TimeSpan{at(14, 30), at(16, 30)}));
    session.finishRange();
    EXPECT_EQ(session.range(), std::nullopt);
    EXPECT_EQ(times(0), "02:30 PM-04:30 PM");
    EXPECT_TRUE(session.isEditing());
}

TEST_F(DaySessionTest, ARangeThatWasNotDrawnMakesNothing) {
    session.beginRange(at(16));
    session.finishRange();
    session.beginRange(at(16));
    session.rangeTo(at(17));
    session.dropRange();
    session.finishRange();
    EXPECT_EQ(session.tasks().Count(), 0);
    EXPECT_TRUE(view.events.empty());
}

// --- To end it all, and only to look ---

TEST_F(DaySessionTest, CommittingEndsWhateverIsUnderWay) {
    addTwo();
    session.hold(0, Grip::End);
    session.dragBy(minutes(30));
    session.commit();
    session.edit(1);
    view.typed = "changed";
    session.commit();
    session.commit();
    EXPECT_EQ(view.events,
              (Events{"begin 0 exists", "end 0 save", "begin 1 exists", "open 1", "end 1 save"}));
}

TEST_F(DaySessionTest, ADayToLookAtTakesNothing) {
    addTwo();
    session.select(0);
    session.setReadOnly(true);
    EXPECT_EQ(session.selected(), -1);
    session.select(0);
    session.edit(0);
    session.create({at(14), at(15)});
    session.hold(0, Grip::Whole);
    session.dragBy(minutes(60));
    session.beginRange(at(14));
    session.rangeTo(at(16));
    session.finishRange();
    session.removeSelected();
    EXPECT_EQ(session.selected(), -1);
    EXPECT_EQ(session.tasks().Count(), 2);
    EXPECT_TRUE(view.events.empty());
}

// --- Blocks in time ---

TEST(DayBlocks, CountsTheBlocksThatASlotTouches) {
    DayBlocks blocks([] {});
    blocks.tasks().Add("09:00 AM", "10:00 AM", "first");
    blocks.tasks().Add("09:15 AM", "09:45 AM", "second");
    EXPECT_EQ(blocks.countIn(at(8, 30)), 0);
    EXPECT_EQ(blocks.countIn(at(9)), 2);
    EXPECT_EQ(blocks.countIn(at(9, 30)), 2);
    EXPECT_EQ(blocks.countIn(at(10)), 0);
    EXPECT_EQ(blocks.firstBegin(), at(9));
}

TEST(DayBlocks, WidensTheTimesShownToTheBlocksOutsideThem) {
    DayBlocks blocks([] {});
    EXPECT_EQ(blocks.firstBegin(), std::nullopt);
    blocks.setLastTime("5:00 PM");
    blocks.setFirstTime("8:00 AM");
    EXPECT_EQ(blocks.shown(), (TimeSpan{at(8), at(18)}));
    blocks.tasks().Add("06:10 AM", "06:40 AM", "early");
    EXPECT_EQ(blocks.shown().begin, at(6));
    EXPECT_EQ(blocks.inTime(), std::vector<int>{0});
}

TEST(DayBlocks, TellsOfChangesOfItsTasksAndLaysShortBlocksOutAsLongAsAsked) {
    int changes = 0;
    DayBlocks blocks([&] { ++changes; });
    blocks.tasks().Add("09:00 AM", "09:05 AM", "short");
    EXPECT_EQ(changes, 1);
    blocks.setShortest(minutes(25));
    EXPECT_EQ(blocks.at(0).place.drawn, (TimeSpan{at(9), at(9, 25)}));
    EXPECT_EQ(blocks.at(0).span, (TimeSpan{at(9), at(9, 5)}));
}

}  // namespace
}  // namespace velmora
