#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "platform/qt/MenuTap.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtLocaleFormats.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtUserInput.h"
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
    const WorkOwner owner;
    int runs = 0;
    loop.post(owner, [&] { ++runs; });
    EXPECT_EQ(runs, 0);
    loop.yield();
    loop.yield();
    EXPECT_EQ(runs, 1);
}

TEST(QtEventLoop, YieldsOnEachOthersHeelsAreOneTurnAndEventsRunAllTheSame) {
    QtEventLoop loop;
    int turns = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] { ++turns; });
    timer.start(0);
    constexpr int kYields = 10'000;
    for (int i = 0; i < kYields; ++i)
        loop.yield();
    EXPECT_LT(turns, kYields / 2);
    const int before = turns;
    while (turns == before)
        loop.yield();
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
    const WorkOwner owner;
    loop.post(owner, [&] { ran = true; });
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

TEST(MenuTap, TellsOfTheItemsOfTheBarToo) {
    std::vector<QString> seen;
    MenuTap tap([&](const QAction& item) { seen.push_back(item.text()); });
    QMainWindow window;
    QMenuBar* bar = window.menuBar();
    bar->setNativeMenuBar(false);
    QAction* dialer = bar->addAction("Dialer");
    bar->addAction("Calculator");
    tap.watch(bar);
    window.show();
    const auto moveTo = [&](QPoint place) { QTest::mouseMove(bar, place); };
    moveTo(bar->actionGeometry(dialer).center());
    moveTo(bar->actionGeometry(dialer).center() + QPoint(1, 0));
    EXPECT_EQ(seen, (std::vector<QString>{"Dialer"}));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(bar, &leave);
    moveTo(bar->actionGeometry(dialer).center());
    EXPECT_EQ(seen, (std::vector<QString>{"Dialer", "Dialer"}));
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

// A date in each of them; `page` is what the program takes for that locale.
TEST(QtLocaleFormats, NamesThatTheCodePageCanNotWriteGiveWayToEnglishDates) {
    using namespace std::chrono;
    const Moment moment{local_days(year(2001) / 3 / 9) + hours(14)};
    for (const char* name : {"ja_JP", "fa_IR", "hi_IN", "ko_KR", "ka_GE"}) {
        SCOPED_TRACE(name);
        const LocaleFormats formats =
            localeFormats(QLocale(QLatin1String(name)), CodePage::forLocale(name));
        EXPECT_EQ(formatMoment(moment, NamedFormat::LongDate, formats), "Friday, March 09, 2001");
        EXPECT_EQ(formatMoment(moment, NamedFormat::MediumDate, formats), "09-Mar-01");
        EXPECT_EQ(formatMoment(moment, NamedFormat::MediumTime, formats).find('?'),
                  std::string::npos);
        EXPECT_EQ(formats.shortWeekdays[5], "Fri");
    }
    // The week still begins where the locale begins it.
    EXPECT_EQ(localeFormats(QLocale(QLatin1String("fa_IR")), CodePage::numbered(1256)).firstWeekday,
              6U);
}

TEST(QtLocaleFormats, NoLocaleOfTheToolkitWritesQuestionMarksIntoADate) {
    using namespace std::chrono;
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(all.size(), 400);
    for (const QLocale& locale : all) {
        const CodePage page = CodePage::forLocale(locale.name().toStdString());
        const LocaleFormats formats = localeFormats(locale, page);
        for (int month = 1; month <= 12; ++month) {
            const Moment moment{local_days(year(2001) / month / 9) + hours(14)};
            for (const NamedFormat format :
                 {NamedFormat::LongDate, NamedFormat::MediumDate, NamedFormat::MediumTime})
                EXPECT_EQ(formatMoment(moment, format, formats).find('?'), std::string::npos)
                    << locale.name().toStdString();
        }
    }
}

TEST(QtLocaleFormats, MonthsBesideADayHaveTheFormThatStandsInADate) {
    using namespace std::chrono;
    const Moment moment{local_days(year(2001) / 3 / 9)};
    const auto in = [&](const char* name, const char* pattern) {
        const CodePage page = CodePage::forLocale(name);
        return page.toUtf8(
            formatMoment(moment, pattern, localeFormats(QLocale(QLatin1String(name)), page)));
    };
    EXPECT_EQ(in("pl_PL", "d mmmm yyyy"), "9 marca 2001");
    EXPECT_EQ(in("pl_PL", "mmmm yyyy"), "marzec 2001");
    EXPECT_EQ(in("cs_CZ", "d. mmmm yyyy"), "9. b\u0159ezna 2001");
    EXPECT_EQ(in("ru_RU", "d mmmm"), "9 \u043C\u0430\u0440\u0442\u0430");
    EXPECT_EQ(in("el_GR", "dd mmmm"), "09 \u039C\u03B1\u03C1\u03C4\u03AF\u03BF\u03C5");
    EXPECT_EQ(in("el_GR", "mmmm"), "\u039C\u03AC\u03C1\u03C4\u03B9\u03BF\u03C2");
    EXPECT_EQ(in("de_DE", "d. mmmm"), "9. M\u00E4rz");
}

TEST(TestIds, AWidgetTellsItsNameOnceItIsPolished) {
    TestIds ids;
    QWidget widget;
    widget.setObjectName("List1");
    widget.installEventFilter(&ids);
    widget.ensurePolished();
    EXPECT_EQ(widget.accessibleDescription(), "List1");
}

TEST(QtUserInput, ShutsOutTheWindowsThatAreOpenAndLetsThemInAgain) {
    QMainWindow window;
    auto* box = new QLineEdit(&window);
    window.setCentralWidget(box);
    QWidget disabled;
    disabled.setEnabled(false);
    for (QWidget* each : {static_cast<QWidget*>(&window), &disabled})
        each->show();
    box->setFocus();
    QtUserInput input;
    {
        const UserInput::ShutOut out(input);
        QTest::keyClicks(box, QStringLiteral("lost"));
        EXPECT_FALSE(window.isEnabled());
        QDialog question(&window);
        question.show();
        EXPECT_TRUE(question.isEnabled()) << "what is asked meanwhile can be answered";
    }
    QTest::keyClicks(box, QStringLiteral("kept"));
    EXPECT_EQ(box->text(), QStringLiteral("kept"));
    EXPECT_TRUE(window.isEnabled());
    EXPECT_FALSE(disabled.isEnabled());
}

}  // namespace
}  // namespace velmora
