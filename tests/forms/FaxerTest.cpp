#include "telephony/forms/Faxer.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>

#include "docpad/PadFakes.h"
#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "support/PrintDesk.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class FaxerTest : public ::testing::Test {
  protected:
    FaxerTest() { desk.printer.names = {"Pocket", "Fax-Line", "Office", kPrintToPdf}; }

    EntryList& list() { return test::named<EntryList>(form, "List1"); }
    std::string line() { return test::named<QLabel>(form, "Printer").text().toStdString(); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(form, name); }

    test::PrintDesk desk;
    test::FakePadText text;
    Fax fax{{desk.printing, text, desk.status, desk.messages}};
    Faxer form{fax, CodePage::western()};
};

TEST_F(FaxerTest, ListsTheQueuesWithNoneChosenAndTellsThePrinter) {
    form.present();
    EXPECT_EQ("Send Fax", form.windowTitle().toStdString());
    EXPECT_EQ("&Use this Device to Send Fax", button("Command1").text().toStdString());
    EXPECT_EQ("&Close", button("Command2").text().toStdString());
    EXPECT_THAT(list().lines(), ElementsAre("Pocket", "Fax-Line", "Office"));
    EXPECT_FALSE(list().hasSelection());
    EXPECT_EQ("The printer now: Pocket", line());
    EXPECT_EQ("Please Wait.", desk.status.text);
    EXPECT_FALSE(form.isModal());
    EXPECT_TRUE(button("Command1").isDefault());
    EXPECT_EQ(form.focusWidget(), &list());
    EXPECT_TRUE(button("Command1").isEnabled());
}

TEST_F(FaxerTest, SendsOnTheChosenQueueAndStaysOpen) {
    form.present();
    test::showActive(form);
    list().selectLine("Fax-Line");
    desk.loop.onYield = [this] { EXPECT_FALSE(button("Command1").isEnabled()); };
    QTest::mouseClick(&button("Command1"), Qt::LeftButton);
    desk.loop.onYield = nullptr;
    const auto jobs = desk.printer.takeJobs();
    ASSERT_THAT(jobs, SizeIs(1));
    EXPECT_EQ("Fax-Line", jobs[0].printer);
    EXPECT_EQ("The printer now: Fax-Line", line());
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(button("Command1").isEnabled());
    EXPECT_TRUE(button("Command1").hasFocus()) << "and not the one that closes";
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(1U, desk.printer.jobsSent());
}

TEST_F(FaxerTest, OpenedAnewItListsWhatThereIsThenAndKeepsTheChoice) {
    form.present();
    list().selectLine("Office");
    desk.printer.names = {"Office", "New", kPrintToPdf};
    form.present();
    EXPECT_THAT(list().lines(), ElementsAre("Office", "New"));
    EXPECT_EQ("Office", list().selectedLine());
    desk.printer.names = {kPrintToPdf};
    form.present();
    EXPECT_EQ("There is no printer.", list().emptyText().toStdString());
}

TEST_F(FaxerTest, ClosesByButtonAndEscape) {
    form.present();
    QTest::mouseClick(&button("Command2"), Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    form.present();
    QTest::keyClick(&list(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FaxerTest, StaysAwayWhileAJobRuns) {
    desk.jobs.run([this](LongJob&) { form.present(); });
    EXPECT_FALSE(form.isVisible());
}

}  // namespace
}  // namespace velmora
