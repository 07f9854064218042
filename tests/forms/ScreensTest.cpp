#include "forms/Screens.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "core/forms/Rail.h"
#include "core/forms/ToolStrip.h"
#include "forms/CalendarFixture.h"
#include "forms/Widgets.h"
#include "platform/controls/Dialog.h"
#include "platform/controls/DialogButton.h"

namespace velmora {
namespace {

// The main window on each of the small screens.
class ScreensTest : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        screen_ = test::screenNamed(GetParam());
        if (!screen_)
            GTEST_SKIP() << "the screen of a real display has the size that it has";
        calendar_.setScreen(screen_);
        calendar_.place().showCentred(170);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&calendar_));
        ASSERT_EQ(calendar_.screen(), screen_);
        ASSERT_TRUE(QTest::qWaitFor([this] { return room().contains(calendar_.frameGeometry()); }));
    }
    QRect room() const { return screen_->availableGeometry(); }

    // The parts of the toolbars and of the rail, which have to be whole in any case.
    void expectKeysWhole() {
        QList<QWidget*> parts{&test::named<QLabel>(calendar_, "Label8")};
        for (const auto* strip : calendar_.findChildren<ToolStrip*>())
            for (auto* key : strip->findChildren<QToolButton*>())
                parts << key;
        for (auto* key : calendar_.rail().findChildren<QAbstractButton*>())
            parts << key;
        for (QWidget* part : parts) {
            if (!part->isVisible())
                continue;
            const QRect place(part->mapTo(&calendar_, QPoint(0, 0)), part->size());
            EXPECT_TRUE(calendar_.rect().contains(place)) << part->objectName().toStdString();
        }
    }

    LocaleFormats locale_;
    DialerPage* dialerPage_ = new DialerPage;  // the window owns it
    Calendar calendar_{
        CodePage::western(),
        locale_,
        std::chrono::year(2026) / 3 / 12,
        {new SSDay(CodePage::western()), new PadEdit(CodePage::western()), partsOf(*dialerPage_)}};
    QScreen* screen_ = nullptr;
};

TEST_P(ScreensTest, HoldsTheMainWindowWithItsFrame) {
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer}) {
        calendar_.raisePaneButton(pane);
        QCoreApplication::processEvents();
        expectKeysWhole();
    }
    EXPECT_TRUE(room().contains(calendar_.frameGeometry()));
}

TEST_P(ScreensTest, HoldsADialogThatIsTooLargeForItWithItsFooter) {
    class Large final : public Dialog {
      public:
        explicit Large(QWidget* parent) : Dialog("Large", QStringLiteral("Large"), parent) {
            auto* block = new QWidget(this);
            block->setFixedSize(1500, 1200);
            auto* body = new QVBoxLayout;
            body->addWidget(block);
            layOut(body, {.right = {close}, .primary = close}, {.first = {100, 100}});
        }
        QPushButton* close = makeDialogButton("close", "&Close", this);
    };
    Large dialog(&calendar_);
    dialog.present();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_TRUE(room().contains(dialog.frameGeometry()));
    EXPECT_LE(dialog.height(), room().height() - 40);
    EXPECT_LE(dialog.width(), room().width() - 16);
    const QRect place(dialog.close->mapTo(&dialog, QPoint(0, 0)), dialog.close->size());
    EXPECT_TRUE(dialog.rect().contains(place));
}

INSTANTIATE_TEST_SUITE_P(Small, ScreensTest, testing::ValuesIn(test::kSmallScreens));

}  // namespace
}  // namespace velmora
