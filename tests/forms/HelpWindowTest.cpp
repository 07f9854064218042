#include "core/forms/HelpWindow.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include "core/HelpTopics.h"
#include "core/forms/HelpPageView.h"
#include "forms/Widgets.h"
#include "platform/controls/EntryList.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

using ::testing::ElementsAre;

QString resource(const QString& name) {
    QFile file(QStringLiteral(":/help/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

class HelpWindowTest : public ::testing::Test {
  protected:
    void show(const char* topic) {
        window.showTopic(topic);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    HelpPageView& page() { return test::named<HelpPageView>(window, "Browser1"); }
    QLineEdit& box() { return test::named<QLineEdit>(window, "Text1"); }
    EntryList& list() { return test::named<EntryList>(window, "List1"); }
    QPushButton& button(const char* name) { return test::named<QPushButton>(window, name); }
    std::string topic() { return page().topic().toStdString(); }
    const std::vector<std::string>& lines() { return list().lines(); }

    HelpIndex index{resource(QStringLiteral("index.txt")).toStdString(), CodePage::western()};
    HelpWindow window{index, CodePage::western()};
};

TEST_F(HelpWindowTest, OpensAtATopicAndMarksItInTheContents) {
    show("add-entry");
    EXPECT_EQ("add-entry", topic());
    EXPECT_TRUE(page().toPlainText().startsWith(QStringLiteral("Adding and changing an entry")));
    EXPECT_EQ("Adding and changing an entry", list().selectedLine());
    EXPECT_EQ(index.pages().size(), lines().size());
    EXPECT_FALSE(window.isModal());
}

TEST_F(HelpWindowTest, AnUnknownTopicOpensTheFirstPage) {
    show("no such page");
    EXPECT_EQ("welcome", topic());
}

TEST_F(HelpWindowTest, EachPageOfTheIndexIsThereUnderItsTitle) {
    for (const HelpPage& entry : index.pages()) {
        window.showTopic(entry.topic);
        EXPECT_EQ(entry.topic, topic());
        EXPECT_EQ(entry.title, page().toPlainText().section(QLatin1Char('\n'), 0, 0).toStdString());
    }
}

TEST_F(HelpWindowTest, EachPageIsInTheIndex) {
    const auto files = QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")});
    EXPECT_EQ(static_cast<qsizetype>(index.pages().size()), files.size());
    for (const QString& file : files)
        EXPECT_NE(nullptr, index.page(file.chopped(5).toStdString())) << file.toStdString();
}

TEST_F(HelpWindowTest, EachLinkLeadsToAPageAndEachPictureIsThere) {
    const QRegularExpression links(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
    int count = 0;
    for (const HelpPage& entry : index.pages()) {
        const QString name = QString::fromStdString(entry.topic) + QStringLiteral(".html");
        for (auto found = links.globalMatch(resource(name)); found.hasNext(); ++count) {
            const QString target = found.next().captured(1);
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/help/") + target))
                << entry.topic << " -> " << target.toStdString();
        }
    }
    EXPECT_GT(count, 20);
}

TEST_F(HelpWindowTest, EachWindowAndPaneHasAPage) {
    for (const char* name : {"AddForm", "Form4", "Other", "Schedule", "TextSearch", "FontDialog",
                             "Calculator", "HelpWindow", ""})
        EXPECT_NE(nullptr, index.page(helpTopicOf(name))) << name;
    for (const Pane pane : {Pane::Planner, Pane::Phonebook, Pane::Dialer})
        EXPECT_NE(nullptr, index.page(helpTopicOf(pane)));
}

TEST_F(HelpWindowTest, TypingFiltersTheContents) {
    show("welcome");
    box().setFocus();
    QTest::keyClicks(&box(), QStringLiteral("percent"));
    EXPECT_THAT(lines(), ElementsAre("The calculator (percent)"));
    EXPECT_EQ("welcome", topic());
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ("calculator", topic());
    EXPECT_TRUE(window.isVisible());
    box().clear();
    EXPECT_EQ(index.pages().size(), lines().size());
    EXPECT_EQ("The calculator", list().selectedLine());
}

TEST_F(HelpWindowTest, TheDownKeyGoesIntoTheList) {
    show("welcome");
    box().setFocus();
    QTest::keyClicks(&box(), QStringLiteral("search"));
    QTest::keyClick(&box(), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_NE("welcome", topic());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(HelpWindowTest, AClickedLineOpensItsPage) {
    show("welcome");
    const QRect line = list().visualRect(list().model()->index(1, 0));
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, line.center());
    EXPECT_EQ(index.pages()[1].topic, topic());
}

TEST_F(HelpWindowTest, GoesBackAndForwardByKeys) {
    show("welcome");
    window.showTopic("planner");
    window.showTopic("year");
    for (QWidget* focus : {static_cast<QWidget*>(&page()), static_cast<QWidget*>(&box())}) {
        focus->setFocus();
        QTest::keyClick(focus, Qt::Key_Left, Qt::AltModifier);
        EXPECT_EQ("planner", topic());
        EXPECT_EQ("The planner", list().selectedLine());
        QTest::keyClick(focus, Qt::Key_Right, Qt::AltModifier);
        EXPECT_EQ("year", topic());
    }
    EXPECT_FALSE(button("Command2").isEnabled());
    button("Command1").click();
    button("Command1").click();
    EXPECT_EQ("welcome", topic());
    EXPECT_FALSE(button("Command1").isEnabled());
    button("Command2").click();
    EXPECT_EQ("planner", topic());
}

TEST_F(HelpWindowTest, FollowsLinksBetweenPages) {
    show("year");
    page().setSource(QUrl(QStringLiteral("planner.html")));
    EXPECT_EQ("planner", topic());
    EXPECT_TRUE(page().toPlainText().startsWith(QStringLiteral("The planner")));
}

TEST_F(HelpWindowTest, FollowsALinkByTheKeyboard) {
    show("year");
    page().setFocus();
    QTest::keyClick(&page(), Qt::Key_Tab);
    QTest::keyClick(&page(), Qt::Key_Return);
    EXPECT_EQ("keys", topic());
}

TEST_F(HelpWindowTest, ShowsNothingFromElsewhere) {
    show("welcome");
    for (const char* other : {"https://example.org/", "file:///etc/passwd", "qrc:/look.qss",
                              "qrc:/help/../look.qss", "../look.qss", "mailto:a@example.org"}) {
        page().setSource(QUrl(QString::fromLatin1(other)));
        EXPECT_EQ("welcome", topic()) << other;
        EXPECT_TRUE(page().toPlainText().startsWith(QStringLiteral("Welcome to Velmora"))) << other;
    }
    EXPECT_FALSE(page().openExternalLinks());
}

TEST_F(HelpWindowTest, TakesItsColoursFromTheTheme) {
    const QString style = page().document()->defaultStyleSheet();
    EXPECT_TRUE(style.contains(Theme::of(window).accent.name(), Qt::CaseInsensitive));
    EXPECT_FALSE(style.contains(QStringLiteral("{accent}")));
}

TEST_F(HelpWindowTest, EscapeAndCloseCloseIt) {
    show("welcome");
    QTest::keyClick(&page(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    show("keys");
    button("Command3").click();
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace velmora
