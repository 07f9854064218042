#include "app/EntryForms.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include "forms/Widgets.h"
#include "phonebook/forms/AddForm.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeEntryEditor.h"
#include "support/FakeMessages.h"
#include "support/FakeRunningPrograms.h"
#include "support/FakeStatusLine.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::named;

class EntryFormsTest : public testing::Test {
  protected:
    // Opens the form and does this with it.
    void inForm(std::function<void(AddForm&)> act) {
        bool seen = false;
        QTimer::singleShot(0, qApp, [&] {
            auto* form = qobject_cast<AddForm*>(QApplication::activeModalWidget());
            ASSERT_NE(form, nullptr);
            seen = true;
            act(*form);
        });
        forms.openEntryForm(editor);
        EXPECT_TRUE(seen);
    }
    static void type(AddForm& form) { QTest::keyClicks(&named<QLineEdit>(form, "Text3"), "Adair"); }
    // What the next start finds.
    [[nodiscard]] std::vector<std::string> abandoned() {
        programs.running.clear();
        std::vector<std::string> names;
        for (const auto& kept : EntryRecovery(folder.path(), files, programs).abandoned())
            names.push_back(kept.draft.values[Field::Last]);
        programs.running = {"this run"};
        return names;
    }

    const std::vector<std::string> kAdair{"Adair"};
    test::TemporaryFolder folder;
    PosixFiles files{NativePaths(CodePage::western())};
    test::FakeRunningPrograms programs;
    EntryRecovery recovery{folder.path(), files, programs};
    test::FakeMessages messages;
    test::FakeStatusLine status;
    test::FakeEntryEditor editor;
    QWidget window;
    EntryForms forms{{messages, status, CodePage::western(), recovery, window}};
};

TEST_F(EntryFormsTest, WhatIsTypedIsOnTheDiskWithinTwoSecondsUntilTheFormCloses) {
    inForm([&](AddForm& form) {
        EXPECT_TRUE(abandoned().empty());
        type(form);
        EXPECT_TRUE(QTest::qWaitFor([&] { return abandoned() == kAdair; }, 2000));
        form.reject();
    });
    EXPECT_TRUE(abandoned().empty());
    EXPECT_EQ(editor.closedCount, 1);
}

TEST_F(EntryFormsTest, AWrittenEntryIsNotKept) {
    inForm([&](AddForm& form) {
        type(form);
        EXPECT_TRUE(QTest::qWaitFor([&] { return abandoned() == kAdair; }, 2000));
        QTest::mouseClick(&named<QPushButton>(form, "Command1"), Qt::LeftButton);
    });
    EXPECT_TRUE(abandoned().empty());
}

TEST_F(EntryFormsTest, AtTheEndOfTheProgramTheValuesAreKeptAtOnceAndStay) {
    inForm([&](AddForm& form) {
        type(form);
        forms.keepForNextStart();
        EXPECT_EQ(abandoned(), kAdair);
        recovery.seal();
        form.reject();
    });
    EXPECT_EQ(abandoned(), kAdair);
}

TEST_F(EntryFormsTest, AFormInWhichNothingWasTypedLeavesNothingBehind) {
    inForm([&](AddForm& form) {
        forms.keepForNextStart();
        form.reject();
    });
    forms.keepForNextStart();
    EXPECT_TRUE(abandoned().empty());
}

}  // namespace
}  // namespace velmora
