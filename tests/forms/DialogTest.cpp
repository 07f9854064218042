#include "platform/controls/Dialog.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include "forms/Widgets.h"
#include "platform/controls/DialogBody.h"
#include "platform/controls/DialogButton.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr QSize kFirst(420, 300);

// Two fields with a block between them, and three buttons.
class Question final : public Dialog {
  public:
    explicit Question(QSize block = {10, 10},
                      Qt::Orientations grows = Qt::Horizontal | Qt::Vertical)
        : Dialog("Question", QStringLiteral("A Question"), nullptr) {
        auto* rigid = new QWidget(this);
        rigid->setFixedSize(block);
        memo->setObjectName(QStringLiteral("memo"));
        auto* body = new QVBoxLayout;
        body->addWidget(makeLabel(QStringLiteral("&First:"), first));
        body->addWidget(first);
        body->addWidget(rigid);
        body->addWidget(memo, 1);
        body->addWidget(last);
        layOut(body, {.left = {help}, .right = {ok, cancel}, .primary = ok},
               {.first = kFirst, .grows = grows});
        setTabStops({last, first});
        guard(*first, CodePage::western());
    }

    void beginAnew() override { ++begun; }
    [[nodiscard]] QWidget* firstField() const override { return first; }
    [[nodiscard]] DialogBody& body() const { return *findChild<DialogBody*>(); }
    [[nodiscard]] QRect placeOf(const QWidget& part) const {
        return {part.mapTo(this, QPoint(0, 0)), part.size()};
    }

    QLineEdit* first = new QLineEdit(this);
    QPlainTextEdit* memo = new QPlainTextEdit(this);
    QLineEdit* last = new QLineEdit(this);
    QPushButton* ok = makeDialogButton("ok", "&Ok", this);
    QPushButton* cancel = makeDialogButton("cancel", "&Cancel", this);
    QPushButton* help = makeHelpButton("help");
    int begun = 0;
};

QRect room() {
    return QGuiApplication::primaryScreen()->availableGeometry();
}

void open(Question& question) {
    question.present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&question));
}

TEST(Dialog, OpensInItsFirstSizeInTheMiddleOfTheScreen) {
    Question question;
    open(question);
    EXPECT_EQ(question.size(), kFirst);
    const QPoint off = question.frameGeometry().center() - room().center();
    EXPECT_LE(std::abs(off.x()), 20);
    EXPECT_LE(std::abs(off.y()), 20);
    EXPECT_TRUE(question.first->hasFocus());
    EXPECT_EQ(question.windowTitle(), "A Question");
    EXPECT_EQ(question.objectName(), "Question");
}

TEST(Dialog, ScrollsItsBodyAndKeepsItsFooterWhereTheScreenIsTooSmall) {
    Question question({room().width() + 400, room().height() + 300});
    open(question);
    EXPECT_LE(question.height(), room().height() - 40);
    EXPECT_LE(question.width(), room().width() - 16);
    EXPECT_LE(question.minimumHeight(), room().height() - 40);
    EXPECT_TRUE(question.body().verticalScrollBar()->isVisible());
    EXPECT_TRUE(question.body().horizontalScrollBar()->isVisible());
    for (const QPushButton* button : {question.ok, question.cancel, question.help})
        EXPECT_TRUE(question.rect().contains(question.placeOf(*button)));
    EXPECT_TRUE(room().contains(question.frameGeometry()));
}

TEST(Dialog, AMemoGivesWayBeforeTheBodyScrolls) {
    Question question;
    question.memo->setMinimumHeight(60);
    open(question);
    question.resize(question.width(), question.minimumHeight());
    QCoreApplication::processEvents();
    EXPECT_FALSE(question.body().verticalScrollBar()->isVisible());
    EXPECT_EQ(question.memo->height(), 60);
}

TEST(Dialog, CanNotBecomeSmallerThanItsPartsNeed) {
    Question question({500, 350});
    open(question);
    EXPECT_GE(question.width(), 500 + 2 * 16);
    question.resize(10, 10);
    EXPECT_GE(question.body().height(), question.body().minimumSizeHint().height());
    EXPECT_FALSE(question.body().verticalScrollBar()->isVisible());
}

TEST(Dialog, AFieldOutOfSightComesIntoViewWithTheFocus) {
    Question question({100, room().height()});
    open(question);
    ASSERT_TRUE(question.body().verticalScrollBar()->isVisible());
    const QRect seen = question.placeOf(*question.body().viewport());
    EXPECT_TRUE(seen.contains(question.placeOf(*question.first)));
    QTest::keyClick(question.first, Qt::Key_Backtab);
    ASSERT_TRUE(question.last->hasFocus());
    EXPECT_TRUE(seen.contains(question.placeOf(*question.last)));
    QTest::keyClick(question.last, Qt::Key_Tab);
    EXPECT_TRUE(seen.contains(question.placeOf(*question.first)));
}

TEST(Dialog, APartThatNeedsMoreRoomThanBeforeGetsIt) {
    Question question;
    open(question);
    auto* long_ = new QLabel(&question);
    long_->setMinimumWidth(600);
    question.body().widget()->layout()->addWidget(long_);
    EXPECT_TRUE(QTest::qWaitFor([&] { return question.width() >= 600; }));
}

TEST(Dialog, GrowsOnlyInTheDirectionsThatItSays) {
    Question question({10, 10}, Qt::Horizontal);
    open(question);
    EXPECT_EQ(question.minimumHeight(), question.maximumHeight());
    question.resize(800, 700);
    EXPECT_EQ(question.size(), QSize(800, kFirst.height()));
}

TEST(Dialog, EnterIsForThePrimaryButtonUnlessAnotherHasTheFocus) {
    Question question;
    EXPECT_TRUE(question.ok->isDefault());
    for (const QPushButton* button : {question.ok, question.cancel, question.help})
        EXPECT_FALSE(button->autoDefault());
    int pressed = 0;
    QObject::connect(question.ok, &QPushButton::clicked, [&] { ++pressed; });
    open(question);
    QTest::keyClick(question.first, Qt::Key_Return);
    EXPECT_EQ(pressed, 1);
    question.memo->setFocus();
    QTest::keyClick(question.memo, Qt::Key_Return);
    EXPECT_EQ(pressed, 1);
    question.help->setFocus();
    QTest::keyClick(question.help, Qt::Key_Return);
    EXPECT_EQ(pressed, 1) << "Enter is for the button that has the focus";
    question.memo->setFocus();
    QTest::keyClick(question.memo, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(pressed, 2);
    EXPECT_EQ(question.memo->toPlainText(), "\n");
}

TEST(Dialog, TheFooterComesBehindTheBodyForTheTabKey) {
    Question question;
    open(question);
    question.last->setFocus();
    for (QWidget* next :
         {static_cast<QWidget*>(question.first), static_cast<QWidget*>(question.help),
          static_cast<QWidget*>(question.ok), static_cast<QWidget*>(question.cancel)}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next);
    }
}

TEST(Dialog, AnOpenOneComesForwardAsItIsAndAClosedOneBeginsAnew) {
    Question question;
    open(question);
    question.last->setFocus();
    question.showMinimized();
    question.present();
    EXPECT_FALSE(question.isMinimized());
    EXPECT_TRUE(question.last->hasFocus() || question.focusWidget() == question.last);
    EXPECT_EQ(question.begun, 1);
    question.reject();
    open(question);
    EXPECT_EQ(question.begun, 2);
    EXPECT_TRUE(question.first->hasFocus());
}

TEST(Dialog, ItsPlaceIsTheMiddleAtEachOpeningAndItsSizeTheOneItHad) {
    Question question;
    open(question);
    question.move(room().topLeft());
    question.resize(500, 400);
    question.reject();
    open(question);
    EXPECT_EQ(question.size(), QSize(500, 400));
    EXPECT_GT(question.x(), room().left() + 100);
}

TEST(Dialog, CanBeTakenDownWithTheFocusInIt) {
    for (int time = 0; time < 3; ++time) {
        Question question;
        open(question);
        QTest::keyClick(question.first, Qt::Key_Tab);
        EXPECT_NE(QApplication::focusWidget(), nullptr);
    }
}

TEST(Dialog, TellsOfReplacedCharactersAndOfTheWishForHelp) {
    Question question;
    QSignalSpy replaced(&question, &Dialog::characterReplaced);
    QSignalSpy help(&question, &Dialog::helpWanted);
    open(question);
    question.first->insert(QStringLiteral("\u4E2D"));
    EXPECT_EQ(question.first->text(), "?");
    EXPECT_EQ(replaced.count(), 1);
    question.help->click();
    ASSERT_EQ(help.count(), 1);
    EXPECT_EQ(help.first().first().toString(), "Question");
}

TEST(DialogButtonTest, APrimaryButtonLooksSoAlsoWhenItHasBeenMeasuredBefore) {
    QWidget window;
    auto* button = makeDialogButton("search", "", &window);
    button->resize(button->sizeHint());
    makePrimary(*button);
    const QColor ground = button->grab().toImage().pixelColor(button->rect().center());
    EXPECT_EQ(ground, Theme::of(window).accentfill);
}

}  // namespace
}  // namespace velmora
