#include "core/CloseDown.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/Failure.h"
#include "support/FakeMainForm.h"
#include "support/FakeTrayIcon.h"

namespace velmora {
namespace {

class CloseDownTest : public ::testing::Test {
  protected:
    CloseDownTest() { tray.InitTray(); }

    test::FakeMainForm form;
    test::FakeTrayIcon icon;
    Tray tray{icon, form};
    std::vector<std::string> log;
    bool may = true;
    CloseDown closeDown{tray,
                        {.commitEditors =
                             [this] {
                                 log.emplace_back("commit");
                                 throw Failure("locked");
                             },
                         .mayClose =
                             [this] {
                                 log.emplace_back("ask");
                                 return may;
                             },
                         .keepText =
                             [this] {
                                 log.emplace_back("text");
                                 throw Failure("full");
                             },
                         .keepForms =
                             [this] {
                                 log.emplace_back("forms");
                                 throw Failure("full");
                             },
                         .sealKept =
                             [this] {
                                 log.emplace_back("seal");
                                 throw Failure("sealed");
                             },
                         .keepWindow =
                             [this] {
                                 log.emplace_back("keep");
                                 throw Failure("full");
                             },
                         .endScans =
                             [this] {
                                 log.emplace_back("end");
                                 throw Failure("stop");
                             }}};
};

TEST_F(CloseDownTest, RunsItsStepsOnceInOrderWhateverFails) {
    EXPECT_TRUE(closeDown.run());
    EXPECT_TRUE(closeDown.run());
    EXPECT_TRUE(closeDown.done());
    EXPECT_EQ(log, (std::vector<std::string>{"commit", "ask", "forms", "seal", "keep", "end"}));
    EXPECT_FALSE(icon.shown);
}

TEST_F(CloseDownTest, WithoutAskingAllIsKeptWhateverFails) {
    closeDown.runWithoutAsking();
    EXPECT_TRUE(closeDown.done());
    EXPECT_EQ(log, (std::vector<std::string>{"text", "forms", "commit", "seal", "keep", "end"}));
    EXPECT_FALSE(icon.shown);
    EXPECT_TRUE(closeDown.run());
    closeDown.runWithoutAsking();
    EXPECT_EQ(log.size(), 6u) << "once";
}

TEST_F(CloseDownTest, WhatIsKeptBeforeAnEndThatMayBeCalledOffIsNotSealed) {
    closeDown.keepAll();
    EXPECT_EQ(log, (std::vector<std::string>{"text", "forms", "commit"}));
    EXPECT_FALSE(closeDown.done());
}

TEST_F(CloseDownTest, TextThatCouldNotBeSavedKeepsTheProgramGoing) {
    may = false;
    EXPECT_FALSE(closeDown.run());
    EXPECT_FALSE(closeDown.done());
    EXPECT_TRUE(icon.shown);
    may = true;
    EXPECT_TRUE(closeDown.run());
    EXPECT_FALSE(icon.shown);
}

}  // namespace
}  // namespace velmora
