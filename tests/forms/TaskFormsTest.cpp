#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractSlider>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "forms/Widgets.h"
#include "planner/ListShapes.h"
#include "planner/forms/Form10.h"
#include "planner/forms/Form3.h"
#include "planner/forms/Monthly.h"
#include "platform/controls/EntryList.h"
#include "support/FakeClock.h"
#include "support/FakeMessages.h"
#include "support/MemorySettings.h"

namespace velmora::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// The forms on Thursday, 12 March 2026, at 10:42.
class TaskFormsTest : public testing::Test {
  protected:
    static void open(TaskDialog& form) {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    static EntryList& list(TaskDialog& form) { return named<EntryList>(form, "List1"); }
    static QLineEdit& box(TaskDialog& form) { return named<QLineEdit>(form, "Text1"); }
    static std::string label(TaskDialog& form, const char* name) {
        return named<QLabel>(form, name).text().toStdString();
    }
    static QString caption(TaskDialog& form, const char* name) {
        return named<QPushButton>(form, name).text();
    }
    static void type(TaskDialog& form, const char* text) {
        box(form).selectAll();
        QTest::keyClicks(&box(form), QLatin1String(text));
    }
    static void empty(TaskDialog& form) {
        box(form).selectAll();
        QTest::keyClick(&box(form), Qt::Key_Delete);
    }
    static void press(TaskDialog& form, const char* name) {
        QTest::mouseClick(&named<QPushButton>(form, name), Qt::LeftButton);
    }
    static void key(TaskDialog& form, const char* name, Qt::Key key) {
        QTest::keyClick(&named<QAbstractSlider>(form, name), key);
    }
    static void clickLine(TaskDialog& form, int row) {
        EntryList& lines = list(form);
        const QRect line = lines.visualRect(lines.model()->index(row, 0));
        QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, line.center());
    }
    [[nodiscard]] std::string read(const std::string& name) const { return settings.Read(name); }

    MemorySettings medium;
    SettingsStore settings{medium};
    FakeClock clock;
    FakeMessages messages;
    LocaleFormats locale;
    ToDoList toDo{settings, messages, clock, locale};
    WeeklyTasks weekly{settings, clock};
    MonthlyTasks monthly{settings, clock};
    Form3 form3{toDo, CodePage::western()};
    Form10 form10{weekly, CodePage::western()};
    Monthly monthlyForm{monthly, CodePage::western()};
};

TEST_F(TaskFormsTest, HaveTheirTitlesAndCaptions) {
    EXPECT_EQ(form3.windowTitle(), QStringLiteral("Task Manager - To Do"));
    EXPECT_EQ(form10.windowTitle(), QStringLiteral("Weekly Repetitive Tasks"));
    EXPECT_EQ(monthlyForm.windowTitle(), QStringLiteral("Monthly Repetitive Tasks"));
    EXPECT_EQ(caption(form3, "Command1"), QStringLiteral("&Add Task"));
    EXPECT_EQ(caption(form3, "Command2"), QStringLiteral("&Remove Task"));
    EXPECT_EQ(caption(form3, "Command3"), QStringLiteral("&Print Tasks"));
    EXPECT_EQ(caption(form3, "Command4"), QStringLiteral("&Close"));
    EXPECT_EQ(caption(form3, "Command5"), QStringLiteral("&Monthly"));
    EXPECT_EQ(caption(form3, "Command6"), QStringLiteral("&Weekly"));
    for (TaskDialog* form :
         {static_cast<TaskDialog*>(&form10), static_cast<TaskDialog*>(&monthlyForm)}) {
        EXPECT_EQ(caption(*form, "Command1"), QStringLiteral("&Add"));
        EXPECT_EQ(caption(*form, "Command2"), QStringLiteral("&Remove"));
        EXPECT_EQ(caption(*form, "Command3"), QStringLiteral("&Close"));
    }
}

TEST_F(TaskFormsTest, DoNotBlockTheMainWindowAndCloseByButtonAndEscape) {
    const std::array<std::pair<TaskDialog*, const char*>, 3> forms{
        {{&form3, "Command4"}, {&form10, "Command3"}, {&monthlyForm, "Command3"}}};
    for (const auto& [form, close] : forms) {
        open(*form);
        EXPECT_FALSE(form->isModal());
        press(*form, close);
        EXPECT_FALSE(form->isVisible());
        open(*form);
        QTest::keyClick(form, Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    }
}

TEST_F(TaskFormsTest, ATaskIsAddedWithEnterAndRemovedFromTheList) {
    open(form3);
    EXPECT_EQ(box(form3).text(), QStringLiteral("3/12/2026 10:42:00 AM - New Task"));
    EXPECT_TRUE(box(form3).hasFocus());
    type(form3, "buy milk & <b>bread</b>");
    QTest::keyClick(&box(form3), Qt::Key_Return);
    type(form3, "call Ann");
    press(form3, "Command1");
    EXPECT_THAT(list(form3).lines(), ElementsAre("buy milk & <b>bread</b>", "call Ann"));
    EXPECT_EQ(read("Tasks\\2"), "call Ann");
    clickLine(form3, 0);
    EXPECT_EQ(box(form3).text(), QStringLiteral("buy milk & <b>bread</b>"));
    press(form3, "Command2");
    EXPECT_THAT(list(form3).lines(), ElementsAre("call Ann"));
    EXPECT_EQ(box(form3).text(), QString());
    press(form3, "Command1");
    EXPECT_THAT(messages.takeShown(), ElementsAre("warn|Velmora|No task specified."));
    EXPECT_EQ(read("Tasks\\NumTasks"), "1");
}

TEST_F(TaskFormsTest, OfTwoEqualLinesTheFirstGoesWhicheverIsSelected) {
    open(form3);
    for (const char* text : {"same", "x", "same"}) {
        type(form3, text);
        press(form3, "Command1");
    }
    clickLine(form3, 2);
    press(form3, "Command2");
    EXPECT_THAT(list(form3).lines(), ElementsAre("x", "same"));
}

TEST_F(TaskFormsTest, TheTaskManagerSaysThatThereAreNoTasks) {
    open(form3);
    EXPECT_EQ(list(form3).emptyText(), QStringLiteral("No tasks."));
}

TEST_F(TaskFormsTest, TheTaskManagerOpensTheOtherFormsAndCloses) {
    std::vector<std::string> wanted;
    QObject::connect(&form3, &Form3::monthlyWanted, [&] { wanted.emplace_back("monthly"); });
    QObject::connect(&form3, &Form3::weeklyWanted, [&] { wanted.emplace_back("weekly"); });
    open(form3);
    press(form3, "Command5");
    EXPECT_FALSE(form3.isVisible());
    open(form3);
    press(form3, "Command6");
    EXPECT_FALSE(form3.isVisible());
    EXPECT_THAT(wanted, ElementsAre("monthly", "weekly"));
}

TEST_F(TaskFormsTest, PrintingTellsTheFontOfTheList) {
    std::string font;
    QObject::connect(&form3, &Form3::printWanted, [&](const std::string& name) { font = name; });
    open(form3);
    press(form3, "Command3");
    EXPECT_EQ(font, QFontInfo(list(form3).font()).family().toStdString());
    EXPECT_NE(font, "");
}

TEST_F(TaskFormsTest, AWeeklyTaskIsSetChangedAndRemoved) {
    open(form10);
    EXPECT_EQ(label(form10, "Label4"), "Thursday");
    EXPECT_EQ(label(form10, "Label1") + label(form10, "Label2") + label(form10, "Label3"), "10:42");
    EXPECT_EQ(box(form10).text(), QStringLiteral("Task"));
    key(form10, "VScroll3", Qt::Key_Home);
    key(form10, "VScroll3", Qt::Key_Up);
    EXPECT_EQ(label(form10, "Label4"), "Monday");
    key(form10, "VScroll1", Qt::Key_Home);
    key(form10, "VScroll2", Qt::Key_Home);
    EXPECT_EQ(label(form10, "Label1") + label(form10, "Label3"), "0000");
    type(form10, "bins - both");
    press(form10, "Command1");
    EXPECT_THAT(list(form10).lines(), ElementsAre("Monday - 00:00 - bins - both"));
    EXPECT_EQ(read("Weekly\\Monday\\1T"), "00:00");

    key(form10, "VScroll3", Qt::Key_End);
    EXPECT_EQ(label(form10, "Label4"), "Saturday");
    clickLine(form10, 0);
    EXPECT_EQ(label(form10, "Label4"), "Monday");
    EXPECT_EQ(box(form10).text(), QStringLiteral("bins - both"));
    empty(form10);
    QTest::keyClick(&box(form10), Qt::Key_Return);
    EXPECT_EQ(box(form10).text(), QStringLiteral("Weekly Task Set At This Time."));
    EXPECT_EQ(read("Weekly\\Monday\\1M"), "Weekly Task Set At This Time.");
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "1");

    press(form10, "Command2");  // nothing is selected
    EXPECT_EQ(list(form10).lines().size(), 1U);
    clickLine(form10, 0);
    press(form10, "Command2");
    EXPECT_THAT(list(form10).lines(), IsEmpty());
    EXPECT_EQ(read("Weekly\\Monday\\NumTasks"), "0");
}

TEST_F(TaskFormsTest, TheBarsOfWeeklyTasksKeepTheirRanges) {
    const auto range = [&](const char* name) {
        const auto& bar = named<QAbstractSlider>(form10, name);
        return std::pair(bar.minimum(), bar.maximum());
    };
    EXPECT_EQ(range("VScroll1"), std::pair(0, 23));
    EXPECT_EQ(range("VScroll2"), std::pair(0, 59));
    EXPECT_EQ(range("VScroll3"), std::pair(1, 7));
}

TEST_F(TaskFormsTest, AMonthlyTaskIsSetAndRemoved) {
    open(monthlyForm);
    EXPECT_EQ(label(monthlyForm, "Label1"), "12");
    const auto& bar = named<QAbstractSlider>(monthlyForm, "VScroll1");
    EXPECT_EQ(std::pair(bar.minimum(), bar.maximum()), std::pair(1, 31));
    key(monthlyForm, "VScroll1", Qt::Key_End);
    EXPECT_EQ(label(monthlyForm, "Label1"), "31");
    type(monthlyForm, "rent");
    press(monthlyForm, "Command1");
    press(monthlyForm, "Command1");
    EXPECT_THAT(list(monthlyForm).lines(), ElementsAre("31 - rent", "31 - rent"));
    key(monthlyForm, "VScroll1", Qt::Key_Home);
    type(monthlyForm, "mine");
    clickLine(monthlyForm, 0);
    EXPECT_EQ(label(monthlyForm, "Label1"), "31");
    EXPECT_EQ(box(monthlyForm).text(), QStringLiteral("mine"));
    press(monthlyForm, "Command2");
    EXPECT_THAT(list(monthlyForm).lines(), ElementsAre("31 - rent"));
    press(monthlyForm, "Command2");  // nothing is selected
    EXPECT_EQ(read("Monthly\\31\\NumTasks"), "1");
    empty(monthlyForm);
    press(monthlyForm, "Command1");
    EXPECT_EQ(box(monthlyForm).text(), QStringLiteral("Monthly Task."));
}

TEST_F(TaskFormsTest, OpeningAnewShowsWhatWasStoredMeanwhile) {
    open(monthlyForm);
    monthlyForm.reject();
    NumberedList(settings, monthlyTasksOf(5)).append("", "from elsewhere");
    open(monthlyForm);
    EXPECT_THAT(list(monthlyForm).lines(), ElementsAre("5 - from elsewhere"));
}

}  // namespace
}  // namespace velmora::test
