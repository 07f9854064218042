#include "core/forms/MenuFirst.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace velmora {
namespace {

class MenuFirstTest : public testing::Test {
  protected:
    MenuFirstTest() {
        auto* centre = new QWidget;
        auto* column = new QVBoxLayout(centre);
        for (auto** button : {&openFile, &clear, &web}) {
            *button = new QPushButton;
            column->addWidget(*button);
        }
        openFile->setText("Open &File");
        clear->setText("&Clear All");
        web->setText("&Web");
        window.setCentralWidget(centre);
        file = window.menuBar()->addMenu("&File");
        file->addAction("E&xit");
        phonebook = window.menuBar()->addMenu("P&honebook");
        phonebook->addAction("&Add");
        window.menuBar()->addMenu("&Help")->addAction("&About");
        calculator = window.menuBar()->addAction("&Calculator");
        menuFirst = new MenuFirst(window.menuBar());
        menuFirst->watchButtons(window);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    ~MenuFirstTest() override {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }

    QMainWindow window;
    QPushButton *openFile, *clear, *web;
    QMenu *file, *phonebook;
    QAction* calculator;
    MenuFirst* menuFirst;
};

TEST_F(MenuFirstTest, OpensTheMenuAndDoesNotMoveTheFocus) {
    web->setFocus();
    QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), file);
    EXPECT_FALSE(openFile->hasFocus());
}

TEST_F(MenuFirstTest, OpensTheFirstOfTwoMenusEachTime) {
    web->setText("&Hang Up");
    for (int time = 0; time < 3; ++time) {
        QTest::keyClick(&window, Qt::Key_H, Qt::AltModifier);
        ASSERT_EQ(QApplication::activePopupWidget(), phonebook) << time;
        phonebook->close();
        window.menuBar()->setActiveAction(nullptr);
        web->setFocus();
    }
}

TEST_F(MenuFirstTest, RunsAHeadThatIsACommand) {
    int calls = 0;
    QObject::connect(calculator, &QAction::triggered, [&] { ++calls; });
    QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(calls, 1);
}

TEST_F(MenuFirstTest, LeavesAKeyToAButtonThatHasItAlone) {
    int clicks = 0;
    QObject::connect(web, &QPushButton::clicked, [&] { ++clicks; });
    QTest::keyClick(&window, Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks == 1; }));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuFirstTest, LeavesTheKeyOfADisabledHeadToTheButton) {
    calculator->setEnabled(false);
    int clicks = 0;
    QObject::connect(clear, &QPushButton::clicked, [&] { ++clicks; });
    QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks == 1 || clear->hasFocus(); }));
}

}  // namespace
}  // namespace velmora
