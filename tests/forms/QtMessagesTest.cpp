#include "platform/qt/QtMessages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace velmora {
namespace {

class QtMessagesTest : public testing::Test {
  protected:
    // Runs while the next box is open; the box must have been there.
    template <typename Box>
    void inBox(std::function<void(Box& box)> act) {
        QTimer::singleShot(0, qApp, [this, act] {
            auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            seen = true;
            act(*box);
        });
    }
    void TearDown() override { EXPECT_TRUE(seen); }

    bool seen = false;
    QtMessages messages{CodePage::western()};
};

TEST_F(QtMessagesTest, AWarningShowsItsTextsAsTheyAre) {
    inBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "No Commas");
        EXPECT_EQ(box.text(), QStringLiteral("<b>A & B</b> \u20AC"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Warning);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
    });
    messages.warn("No Commas", "<b>A & B</b> \x80");
}

TEST_F(QtMessagesTest, ANoticeHasAnInformationMark) {
    inBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    messages.tell("Velmora", "Done.");
}

TEST_F(QtMessagesTest, AQuestionIsAnsweredByItsButtons) {
    inBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(messages.ask("Save", "Save your DocPad changes?", Answer::Yes));
    inBox<QMessageBox>(
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    EXPECT_FALSE(messages.ask("Save", "Save your DocPad changes?", Answer::Yes));
}

TEST_F(QtMessagesTest, NeitherEscapeNorTheFrameAnswersAQuestion) {
    inBox<QMessageBox>([](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_TRUE(box.isVisible());
        QTest::keyClick(box.button(QMessageBox::Yes), Qt::Key_Escape);
        EXPECT_TRUE(box.isVisible());
        EXPECT_FALSE(box.close());
        EXPECT_TRUE(box.isVisible());
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(messages.ask("Save", "Save your DocPad changes?", Answer::No));
}

TEST_F(QtMessagesTest, EnterPressesThePreselectedAnswer) {
    const auto enter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
    inBox<QMessageBox>(enter);
    EXPECT_TRUE(messages.ask("Save", "Save your DocPad changes?", Answer::Yes));
    inBox<QMessageBox>(enter);
    EXPECT_FALSE(messages.ask("Confirmation:", "Delete?", Answer::No));
}

TEST_F(QtMessagesTest, BoxesGoAboveAWindowThatStaysOnTopAndOtherwiseAboveTheirOwner) {
    const auto topmost = [](QWidget& box) {
        return box.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    };
    QDialog form;
    form.setWindowFlag(Qt::WindowStaysOnTopHint);
    for (const bool onTop : {true, false}) {
        form.setVisible(onTop);
        inBox<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(topmost(box), onTop);
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        (void)messages.ask("Save", "Save your DocPad changes?", Answer::Yes);
        inBox<QInputDialog>([&](QInputDialog& box) {
            EXPECT_EQ(topmost(box), onTop);
            box.reject();
        });
        (void)messages.askText("t", "p", "a");
        inBox<QFileDialog>([&](QFileDialog& box) {
            EXPECT_EQ(topmost(box), onTop);
            EXPECT_EQ(box.testOption(QFileDialog::DontUseNativeDialog), onTop);
            box.reject();
        });
        (void)messages.chooseFileToOpen({"Open", "", "", ""});
    }
}

TEST_F(QtMessagesTest, ADialogToSaveAsksToReplaceUnlessTheCommandDoes) {
    for (const bool asks : {true, false}) {
        inBox<QFileDialog>([&](QFileDialog& box) {
            EXPECT_EQ(box.testOption(QFileDialog::DontConfirmOverwrite), !asks);
            EXPECT_EQ(box.fileMode(), QFileDialog::AnyFile) << "a new name is accepted";
            box.reject();
        });
        (void)messages.chooseFileToSave({.title = "Save", .asksToReplace = asks});
    }
}

TEST_F(QtMessagesTest, NoBoxBelongsToAnAlertSoThatTheMainWindowWaitsForIt) {
    QMainWindow window;
    window.show();
    QWidget alert(nullptr, Qt::Window | Qt::WindowStaysOnTopHint);
    alert.show();
    alert.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&alert));
    inBox<QMessageBox>([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_FALSE(messages.ask("Save", "Save your DocPad changes?", Answer::Yes));
}

TEST_F(QtMessagesTest, AnInputGivesItsTextOrNothing) {
    inBox<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Schedule Other...");
        EXPECT_EQ(box.labelText(), "What would you like to schedule?");
        EXPECT_EQ(box.textValue(), "Other Event");
        box.setTextValue(QStringLiteral("caf\u00E9"));
        box.accept();
    });
    EXPECT_EQ(
        messages.askText("Schedule Other...", "What would you like to schedule?", "Other Event"),
        "caf\xE9");
    inBox<QInputDialog>([](QInputDialog& box) { box.reject(); });
    EXPECT_EQ(messages.askText("t", "p", "a"), std::nullopt);
}

TEST_F(QtMessagesTest, TheStandardErrorHasTheApplicationsTitle) {
    inBox<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Velmora");
        EXPECT_EQ(box.text(), QStringLiteral("The disk is full \u2014 \u0416."));
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        box.close();
    });
    messages.standardError("The disk is full \xE2\x80\x94 \xD0\x96.");
}

TEST(QtFilter, PatternsAreKeptAndAllFilesMeansAll) {
    EXPECT_EQ(toQtFilter("Text (*.txt)|*.txt|Documents (*.doc)|*.doc"),
              "Text (*.txt);;Documents (*.doc)");
    EXPECT_EQ(toQtFilter("Wave Files (*.wav)|*.wav|All Files (*.*)|*.*"),
              "Wave Files (*.wav);;All Files (*)");
    EXPECT_EQ(toQtFilter("Both|*.a;*.b"), "Both (*.a *.b)");
}

}  // namespace
}  // namespace velmora
