#include <gtest/gtest.h>

#include <QAction>
#include <QLocale>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include "platform/qt/MenuTap.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtLocaleFormats.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TestIds.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

TEST(QtText, AllBytesCrossTheBorderAndComeBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(fromQt(toQt(all, CodePage::western()), CodePage::western()), all);
}

TEST(QtText, WhatTheCodePageLacksBecomesOneQuestionMark) {
    const QString text = QStringLiteral("a\u0416\U0001F600\u20AC");
    EXPECT_EQ(fromQt(text, CodePage::western()), "a??\x80");
    EXPECT_EQ(keepToCodePage(text, CodePage::western()), QStringLiteral("a??\u20AC"));
}

TEST(QtEventLoop, PostedWorkRunsOnceAfterThePresentEvent) {
    QtEventLoop loop;
    int runs = 0;
    loop.post([&] { ++runs; });
    EXPECT_EQ(runs, 0);
    loop.yield();
    loop.yield();
    EXPECT_EQ(runs, 1);
}

TEST(QtEventLoop, EventsRunWhileItWaits) {
    QtEventLoop loop;
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    loop.waitFor(1ms);
    EXPECT_TRUE(ran);
}

TEST(QtEventLoop, ClosingEndsWaitsAndDropsPostedWork) {
    QtEventLoop loop;
    QTimer::singleShot(0, [&] { loop.beginClosing(); });
    loop.waitFor(24h);  // returns because of the closing alone
    EXPECT_TRUE(loop.closing());
    bool ran = false;
    loop.post([&] { ran = true; });
    loop.waitFor(24h);
    loop.yield();
    EXPECT_FALSE(ran);
}

TEST(MenuTap, TellsWhatThePointerRestsOnAndNothingElse) {
    std::vector<QString> seen;
    MenuTap tap([&](const QAction& item) { seen.push_back(item.text()); });
    QMenu menu;
    QAction* first = menu.addAction("First");
    menu.addSeparator();
    QAction* second = menu.addAction("Second");
    tap.watch(&menu);
    menu.popup(QPoint(10, 10));
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_TRUE(seen.empty());
    const auto moveTo = [&](QAction* item) {
        QTest::mouseMove(&menu, menu.actionGeometry(item).center());
    };
    moveTo(first);
    moveTo(first);
    moveTo(second);
    moveTo(first);
    EXPECT_EQ(seen, (std::vector<QString>{"First", "Second", "First"}));
    menu.close();
}

TEST(QtLocaleFormats, TheLanguageOfTheMachineSpeaksEnglish) {
    const LocaleFormats formats = localeFormats(QLocale::c(), CodePage::western());
    EXPECT_EQ(formats.weekdays[0], "Sunday");
    EXPECT_EQ(formats.longDate, "dddd, mmmm dd, yyyy");
    EXPECT_EQ(formats.firstWeekday, 0U);
}

TEST(QtLocaleFormats, ALocaleBringsItsNamesItsPatternAndItsWeek) {
    const QLocale german(QLocale::German, QLocale::Germany);
    const LocaleFormats formats = localeFormats(german, CodePage::western());
    EXPECT_EQ(formats.weekdays[0], "Sonntag");
    EXPECT_EQ(formats.months[2], "M\xE4rz");
    EXPECT_EQ(formats.firstWeekday, 1U);
    using namespace std::chrono;
    const Moment moment{local_days(year(2001) / 3 / 9)};
    EXPECT_EQ(formatMoment(moment, NamedFormat::LongDate, formats), "Freitag, 9. M\xE4rz 2001");
    EXPECT_EQ(formatMoment(moment, NamedFormat::MediumDate, formats), "09-M\xE4r-01");
}

TEST(QtLocaleFormats, AmericansReadTheLongDateWithTwoDigits) {
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    EXPECT_EQ(localeFormats(american, CodePage::western()).longDate, "dddd, mmmm dd, yyyy");
}

TEST(TestIds, AWidgetTellsItsNameOnceItIsPolished) {
    TestIds ids;
    QWidget widget;
    widget.setObjectName("List1");
    widget.installEventFilter(&ids);
    widget.ensurePolished();
    EXPECT_EQ(widget.accessibleDescription(), "List1");
}

}  // namespace
}  // namespace velmora
