#include <gtest/gtest.h>

#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

#include "forms/Widgets.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/PaneButton.h"
#include "platform/controls/TrashCan.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

class RailTest : public testing::Test {
  protected:
    RailTest() {
        entry.setData(QLatin1String(kEntryFormat), QByteArray("M\xFCller, Jo"));
        document.setData(QLatin1String(kDocumentFormat), {});
        text.setText(QStringLiteral("some text"));
    }

    QMimeData entry;
    QMimeData document;
    QMimeData text;
    PaneButton button{QStringLiteral("Phonebook"), QStringLiteral("Phonebook")};
    TrashCan trash;
};

TEST_F(RailTest, PaneButtonClicksByMouseAndKeyboardAndTellsThePointer) {
    test::showActive(button);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QSignalSpy hovered(&button, &PaneButton::hovered);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_EQ(3, clicked.count());
    QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
    QCoreApplication::sendEvent(&button, &enter);
    EXPECT_GE(hovered.count(), 1);
    EXPECT_EQ(QStringLiteral("Phonebook"), button.text());
    EXPECT_EQ(QStringLiteral("Phonebook"), button.caption()->text());
    EXPECT_GE(button.sizeHint().width(), 76);
    EXPECT_GE(button.sizeHint().height(), 66);
}

TEST_F(RailTest, PaneButtonLooksRaisedOrFlat) {
    button.resize(button.sizeHint());
    const Theme& theme = Theme::of(button);
    const QPoint corner(10, 8);
    EXPECT_NE(theme.surface.rgb(), test::pixelOf(button, corner).rgb());
    button.setRaised(true);
    EXPECT_EQ(theme.surface.rgb(), test::pixelOf(button, corner).rgb());
    EXPECT_EQ(QFont::DemiBold, button.caption()->font().weight());
    button.setRaised(false);
    EXPECT_EQ(QFont::Normal, button.caption()->font().weight());
}

TEST_F(RailTest, PaneButtonTakesEntriesOnly) {
    button.resize(button.sizeHint());
    std::string dropped;
    QObject::connect(&button, &PaneButton::entryDropped, &button,
                     [&](const std::string& line) { dropped = line; });
    EXPECT_FALSE(test::dragOver(button, text));
    EXPECT_FALSE(test::dragOver(button, document));
    EXPECT_FALSE(button.dropTarget());
    EXPECT_TRUE(test::dragOver(button, entry));
    EXPECT_TRUE(button.dropTarget());
    EXPECT_EQ(Theme::of(button).tint.rgb(), test::pixelOf(button, {12, 8}).rgb());
    test::dragOut(button);
    EXPECT_FALSE(button.dropTarget());
    EXPECT_FALSE(test::dropOn(button, text));
    EXPECT_EQ("", dropped);
    test::dragOver(button, entry);
    EXPECT_TRUE(test::dropOn(button, entry));
    EXPECT_EQ("M\xFCller, Jo", dropped);
    EXPECT_FALSE(button.dropTarget());
}

TEST_F(RailTest, TrashTakesEntriesAndTheDocument) {
    trash.resize(trash.sizeHint());
    std::string dropped;
    QObject::connect(&trash, &TrashCan::entryDropped, &trash,
                     [&](const std::string& line) { dropped = line; });
    QSignalSpy documents(&trash, &TrashCan::documentDropped);
    EXPECT_FALSE(test::dragOver(trash, text));
    EXPECT_TRUE(test::dragOver(trash, entry));
    EXPECT_TRUE(trash.dropTarget());
    EXPECT_EQ(Theme::of(trash).dangertint.rgb(), test::pixelOf(trash, {12, 8}).rgb());
    EXPECT_TRUE(test::dropOn(trash, entry));
    EXPECT_EQ("M\xFCller, Jo", dropped);
    EXPECT_EQ(0, documents.count());
    EXPECT_TRUE(test::dragOver(trash, document));
    EXPECT_TRUE(test::dropOn(trash, document));
    EXPECT_EQ(1, documents.count());
    EXPECT_FALSE(trash.dropTarget());
}

TEST_F(RailTest, TrashThatIsBusyShowsThatItTakesNothingAndTells) {
    trash.resize(trash.sizeHint());
    QSignalSpy refused(&trash, &TrashCan::refused);
    QSignalSpy documents(&trash, &TrashCan::documentDropped);
    test::dragOver(trash, entry);
    trash.setTakesDrops(false);
    EXPECT_FALSE(trash.dropTarget());
    EXPECT_FALSE(test::dragOver(trash, document));
    EXPECT_FALSE(trash.dropTarget());
    EXPECT_EQ(1, refused.count());
    EXPECT_FALSE(test::dropOn(trash, document));
    EXPECT_EQ(0, documents.count());
    EXPECT_FALSE(test::dragOver(trash, text));
    EXPECT_EQ(2, refused.count()) << "what it never takes is no matter of now";
    trash.setTakesDrops(true);
    EXPECT_TRUE(test::dragOver(trash, document));
}

TEST_F(RailTest, TrashIsEmptiedByKeyboardButNeverByAClick) {
    test::showActive(trash);
    QSignalSpy documents(&trash, &TrashCan::documentDropped);
    QSignalSpy refused(&trash, &TrashCan::refused);
    trash.setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Delete})
        QTest::keyClick(&trash, key);
    EXPECT_EQ(4, documents.count());
    QTest::mouseClick(&trash, Qt::LeftButton);
    EXPECT_EQ(4, documents.count());
    EXPECT_TRUE(trash.focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(QStringLiteral("Trash"), trash.accessibleName());
    trash.setTakesDrops(false);
    QTest::keyClick(&trash, Qt::Key_Return);
    EXPECT_EQ(4, documents.count());
    EXPECT_EQ(1, refused.count());
}

TEST_F(RailTest, TrashChangesItsLook) {
    trash.resize(trash.sizeHint());
    const QImage atRest = trash.grab().toImage();
    trash.setLook(TrashCan::Look::Open);
    const QImage open = trash.grab().toImage();
    trash.setLook(TrashCan::Look::Done);
    const QImage done = trash.grab().toImage();
    EXPECT_NE(atRest, open);
    EXPECT_NE(atRest, done);
    EXPECT_NE(open, done);
}

}  // namespace
}  // namespace velmora
