#include "core/forms/PrinterDialog.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"

namespace velmora {
namespace {

class PrinterDialogTest : public testing::Test {
  protected:
    EntryList& printers() { return test::named<EntryList>(dialog_, "printers"); }
    QPushButton& ok() { return test::named<QPushButton>(dialog_, "ok"); }
    QRadioButton& radio(const char* name) { return test::named<QRadioButton>(dialog_, name); }

    PrinterDialog dialog_{{"Pocket", "B\xFCro", "Print to PDF"},
                          {"B\xFCro", PageOrientation::Landscape},
                          CodePage::western()};
};

TEST_F(PrinterDialogTest, ShowsThePrintersWithTheCurrentOneChosen) {
    EXPECT_EQ(dialog_.windowTitle(), "Printer Setup");
    ASSERT_EQ(printers().lines().size(), 3U);
    EXPECT_EQ(printers().model()->index(1, 0).data().toString(), QStringLiteral("B\u00FCro"));
    EXPECT_EQ(printers().selectedLine(), "B\xFCro");
    EXPECT_TRUE(radio("landscape").isChecked());
    EXPECT_EQ(dialog_.chosen(), (PrinterChoice{"B\xFCro", PageOrientation::Landscape}));
}

TEST_F(PrinterDialogTest, TellsWhatWasChosen) {
    test::showActive(dialog_);
    EXPECT_TRUE(printers().hasFocus());
    EXPECT_EQ(printers().accessibleName(), QStringLiteral("Printer"));
    QTest::keyClick(&printers(), Qt::Key_Down);
    QTest::mouseClick(&radio("portrait"), Qt::LeftButton, {}, {8, 8});
    QTest::keyClick(&printers(), Qt::Key_Return);
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
    EXPECT_EQ(dialog_.chosen(), (PrinterChoice{"Print to PDF", PageOrientation::Portrait}));
}

TEST_F(PrinterDialogTest, EscapeCancels) {
    test::showActive(dialog_);
    QTest::keyClick(&printers(), Qt::Key_Escape);
    EXPECT_FALSE(dialog_.isVisible());
    EXPECT_EQ(dialog_.result(), QDialog::Rejected);
}

TEST_F(PrinterDialogTest, ADoubleClickChoosesAndCloses) {
    test::showActive(dialog_);
    const QPoint place = printers().visualRect(printers().model()->index(0, 0)).center();
    QTest::mouseClick(printers().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(printers().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(dialog_.result(), QDialog::Accepted);
    EXPECT_EQ(dialog_.chosen().printer, "Pocket");
}

TEST(PrinterDialog, HasNoOkWhileNoPrinterIsChosen) {
    PrinterDialog dialog({"Pocket"}, {"Attic", PageOrientation::Portrait}, CodePage::western());
    EXPECT_FALSE(test::named<QPushButton>(dialog, "ok").isEnabled());
    EXPECT_EQ(dialog.chosen().printer, "");
    test::named<EntryList>(dialog, "printers").selectLine("Pocket");
    EXPECT_TRUE(test::named<QPushButton>(dialog, "ok").isEnabled());
    EXPECT_EQ(dialog.chosen(), (PrinterChoice{"Pocket", PageOrientation::Portrait}));
}

}  // namespace
}  // namespace velmora
