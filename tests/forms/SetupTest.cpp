#include "core/forms/Setup.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <filesystem>

#include "forms/Screens.h"
#include "forms/Widgets.h"
#include "platform/controls/DialogBody.h"
#include "platform/controls/FolderChooser.h"
#include "platform/controls/Stepper.h"
#include "support/FakeMessages.h"
#include "support/FakeSound.h"
#include "support/FakeStatusLine.h"
#include "support/MemoryFiles.h"
#include "support/MemorySettings.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::named;
using Form = class Setup;  // a member of all tests hides the name
using testing::ElementsAre;
using testing::IsEmpty;

class SetupTest : public testing::Test {
  protected:
    void open() {
        form.present();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void showPage(int page) { named<QTabWidget>(form, "TabStrip1").setCurrentIndex(page); }

    QLineEdit& box(const char* name) { return named<QLineEdit>(form, name); }
    QCheckBox& check(const char* name) { return named<QCheckBox>(form, name); }
    QRadioButton& option(const char* name) { return named<QRadioButton>(form, name); }
    QPushButton& button(const char* name) { return named<QPushButton>(form, name); }
    QString label(const char* name) { return named<QLabel>(form, name).text(); }

    void apply() { QTest::mouseClick(&button("Command1"), Qt::LeftButton); }

    // Changes every control from what it shows.
    void changeAll() {
        for (const PreferenceRow& row : preferenceRows()) {
            const std::string name(row.controls[0]);
            if (auto* text = form.findChild<QLineEdit*>(QString::fromStdString(name)))
                text->setText(text->text() + "+");
            if (auto* tick = form.findChild<QCheckBox*>(QString::fromStdString(name)))
                tick->toggle();
            if (auto* arrows = form.findChild<StepperArrows*>(QString::fromStdString(name)))
                arrows->setValue(arrows->value() > 5 ? 5 : 6);
            if (std::holds_alternative<ChoiceKey>(row.key))
                option(std::string(row.controls[1]).c_str()).click();
        }
    }

    test::TemporaryFolder folder;
    test::MemorySettings medium;
    SettingsStore settings{medium};
    test::MemoryFiles files;
    test::FakeSound sound;
    test::FakeMessages messages;
    test::FakeStatusLine status;
    std::vector<std::string> effects;
    Preferences preferences{
        {settings,
         files,
         sound,
         messages,
         status,
         CodePage::western(),
         [](const std::function<void()>& work) { work(); },
         "/usr/bin",
         {.movePlanner = [this](const std::string& to) { effects.push_back("planner|" + to); },
          .setDayLimits = [this] { effects.emplace_back("limits"); }}}};
    Form form{preferences, CodePage::western()};
};

TEST_F(SetupTest, HasFivePagesOfWhichOneShows) {
    open();
    EXPECT_EQ(form.windowTitle(), "Preferences...");
    auto& tabs = named<QTabWidget>(form, "TabStrip1");
    const QStringList captions{"Phone/Modem Settings", "Network Settings", "Planner Settings",
                               "Phonebook Settings", "Internet"};
    ASSERT_EQ(tabs.count(), captions.size());
    for (int page = 0; page < tabs.count(); ++page) {
        EXPECT_EQ(tabs.tabText(page), captions[page]);
        tabs.setCurrentIndex(page);
        for (int other = 0; other < tabs.count(); ++other)
            EXPECT_EQ(named<DialogBody>(form, ("Picture" + std::to_string(other + 1)).c_str())
                          .isVisible(),
                      other == page);
    }
    EXPECT_EQ(button("Command1").text(), "&Apply");
    EXPECT_EQ(button("Command2").text(), "Cancel");
    EXPECT_EQ(button("Command3").text(), "&Help");
    EXPECT_TRUE(form.isModal());
}

TEST_F(SetupTest, ItsControlsHaveTheirCaptions) {
    const std::map<const char*, const char*> captions{
        {"Option1", "COM 1"},
        {"Option8", "COM 8"},
        {"Option9", "&Tone"},
        {"Option10", "&Pulse"},
        {"Option11", "&Left"},
        {"Option12", "&Right"},
        {"Option13", "&Center"},
        {"Check1", "Include &Phone Numbers and E-Mail"},
        {"Check2", "&Show Events of The Day at Startup"},
        {"Check3", "&Log Phone Calls"},
        {"Check4", "&Tab Before Salutation"},
        {"Check5", "&Use Caller ID"},
        {"Check6", "&Use Internet Settings from Control Panel (Optimize for Internet Explorer)"},
        {"Check7",
         "&Auto WordWrap DocPad Print Jobs. (Adds carriage returns at set intervals to prevent "
         "printer run off)."},
        {"Check8", "&Keep Current DocPad Document Active"},
        {"Check9", "Print the Envelope:"},
        {"Check10", "Print &Header"},
        {"playNow", "&Play Now"},
        {"setWhite", "Set White Pages Path"},
        {"setYellow", "Set Yellow Pages Path"},
        {"setCalendar", "Set Calendar Path"},
        {"clearWhite", "&Clear"},
        {"clearYellow", "&Clear"},
        {"clearCalendar", "&Clear"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(named<QAbstractButton>(form, name).text().toStdString(), caption) << name;
    QStringList texts;
    for (const QLabel* each : form.findChildren<QLabel*>())
        texts << each->text();
    for (const char* text :
         {"COM Port:",
          "Phone Type:",
          "Dialing Prefix:",
          "Modem Initialization String (If Necessary) (Used to Reset the Modem):",
          "Local Area Code:",
          "Area codes in phone numbers will be removed prior to dialing if within the first 4 "
          "digits.",
          "External Dialer:",
          "in PHONELOG.TXT.",
          "White Pages Path",
          "Yellow Pages Path",
          "Calendar Path",
          "Planner Hours Shown:",
          "End:",
          "Start:",
          "Play Sound on Alarm:",
          "Alarm Options",
          "Datewarden Options",
          "Number of days before event you should be reminded:",
          "Envelope Printing:",
          "With Reports.",
          "Default Salutation:",
          "Names of custom phonebook fields:",
          "By selecting this option you don't need to specify any of the other options listed "
          "below.",
          "Your Web Browser:",
          "Your E-Mail Reader",
          "Command Line Options for E-mail Reader to create new messages:",
          "Not needed for Eudora or Exchange",
          "+ recipient you click",
          "Click the button to the right of each box to select..."})
        EXPECT_TRUE(texts.contains(QLatin1String(text))) << text;
}

TEST_F(SetupTest, ShowsWhatIsStoredAndItsFallbacks) {
    settings.Save("PlannerStart", "08");
    settings.Save("EventDays", "14");
    settings.Save("ComPort", "COM3");
    settings.Save("White", "/books");
    settings.Save("KeepDoc", "1");
    open();
    EXPECT_EQ(label("Label27"), "08");
    EXPECT_EQ(label("Label28"), "23");
    EXPECT_EQ(label("Label11"), "14");
    EXPECT_TRUE(option("Option3").isChecked());
    EXPECT_TRUE(option("Option9").isChecked());
    EXPECT_TRUE(option("Option13").isChecked());
    EXPECT_EQ(box("Text4").text(), "/books");
    EXPECT_EQ(box("Text10").text(), "none");
    EXPECT_EQ(box("Text12").text(), "/n");
    EXPECT_EQ(box("Text14").text(), "/usr/bin\\dialer.exe");
    EXPECT_TRUE(check("Check8").isChecked());
    EXPECT_TRUE(check("Check6").isChecked());
    for (const char* name :
         {"Check1", "Check2", "Check3", "Check4", "Check5", "Check7", "Check9", "Check10"})
        EXPECT_FALSE(check(name).isChecked()) << name << " was never saved";
}

TEST_F(SetupTest, EveryControlIsStoredUnderItsKeyAndComesBack) {
    open();
    changeAll();
    apply();
    EXPECT_FALSE(form.isVisible());
    const std::map<std::string, std::string> stored{{"BROWSER", "+"},
                                                    {"EMAIL", "+"},
                                                    {"EMAILSETTINGS", "/n+"},
                                                    {"IEENHANCED", "NO"},
                                                    {"COMPORT", "COM2"},
                                                    {"COMTYPE", "Pulse"},
                                                    {"COMPREFIX", "+"},
                                                    {"COMINIT", "+"},
                                                    {"LOCALAREACODE", "+"},
                                                    {"DIALER", "/usr/bin\\dialer.exe+"},
                                                    {"LOGPHONE", "1"},
                                                    {"LETTERTEL", "1"},
                                                    {"LETTERTAB", "1"},
                                                    {"DEFAULTSAL", "+"},
                                                    {"CUSTOM1", "+"},
                                                    {"CUSTOM2", "+"},
                                                    {"EVENTSTART", "1"},
                                                    {"WORDWRAP", "1"},
                                                    {"HEADER", "1"},
                                                    {"KEEPDOC", "1"},
                                                    {"ENVELOPEPRINTING", "Center"},
                                                    {"ENVTOP", "ON"},
                                                    {"CALLERID", "ON"},
                                                    {"EVENTDAYS", "6"},
                                                    {"PLANNERSTART", "06"},
                                                    {"PLANNEREND", "07"},
                                                    {"WHITE", "+"},
                                                    {"YELLOW", "+"},
                                                    {"CALENDAR", "+"},
                                                    {"ALARMSOUND", "none+"}};
    EXPECT_EQ(medium.values, stored);
    EXPECT_THAT(effects, ElementsAre("planner|+", "limits"));
    open();
    EXPECT_TRUE(option("Option2").isChecked());
    EXPECT_EQ(label("Label27"), "06");
    EXPECT_EQ(label("Label28"), "07");
    EXPECT_EQ(box("Text9").text(), "+");
    EXPECT_FALSE(check("Check6").isChecked());
}

TEST_F(SetupTest, CancelEscapeAndTheFrameLeaveEveryKeyAsItWas) {
    settings.Save("White", "/books");
    const auto before = medium.values;
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(&button("Command2"), Qt::LeftButton); },
        [&] { QTest::keyClick(&option("Option1"), Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& way : ways) {
        open();
        changeAll();
        way();
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(medium.values, before);
    }
    EXPECT_THAT(effects, IsEmpty());
    open();
    EXPECT_EQ(box("Text4").text(), "/books") << "what was cancelled is forgotten";
}

TEST_F(SetupTest, WhatStandsInAFieldThatStillHasTheKeyboardIsStored) {
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(&button("Command1"), Qt::LeftButton); },
        [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier); },
        [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
        [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return, Qt::ControlModifier); },
    };
    int number = 0;
    for (const auto& way : ways) {
        open();
        box("Text9").setFocus();
        box("Text9").selectAll();
        QTest::keyClicks(&box("Text9"), QString::number(++number));
        way();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
        EXPECT_EQ(settings.Read("LocalAreaCode"), std::to_string(number));
    }
}

TEST_F(SetupTest, ANumberIsTypedIntoItsArrows) {
    open();
    showPage(2);
    auto& end = named<StepperArrows>(form, "VScroll2");
    end.setFocus();
    QTest::keyClicks(&end, "17");
    EXPECT_EQ(label("Label28"), "17");
    QTest::keyClick(&end, Qt::Key_Return);
    EXPECT_EQ(settings.Read("PlannerEnd"), "17");
}

TEST_F(SetupTest, AnEndBeforeTheStartIsStoredAsOneHourAfterIt) {
    open();
    named<StepperArrows>(form, "VScroll1").setValue(14);
    named<StepperArrows>(form, "VScroll2").setValue(9);
    apply();
    EXPECT_EQ(settings.Read("PlannerStart"), "14");
    EXPECT_EQ(settings.Read("PlannerEnd"), "15");
}

TEST_F(SetupTest, StaysOpenWithAllThatWasTypedWhenNothingCanBeStored) {
    open();
    box("Text9").setText(QStringLiteral("516"));
    medium.failing = true;
    apply();
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(box("Text9").text(), "516");
    EXPECT_EQ(messages.takeShown().size(), 1U);
    medium.failing = false;
    apply();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(settings.Read("LocalAreaCode"), "516");
}

TEST_F(SetupTest, TheSettingsOfTheDesktopSwitchOffWhatTheyReplace) {
    open();
    for (const bool desktops : {true, false, true}) {
        check("Check6").setChecked(desktops);
        EXPECT_EQ(button("Command8").isEnabled(), !desktops);
        EXPECT_EQ(button("Command13").isEnabled(), !desktops);
        EXPECT_EQ(box("Text12").isEnabled(), !desktops);
        EXPECT_TRUE(box("Text8").isEnabled());
        EXPECT_TRUE(box("Text11").isEnabled());
    }
}

TEST_F(SetupTest, ProgramsAndTheSoundAreChosenAndACancelLeavesThem) {
    open();
    check("Check6").setChecked(false);
    struct Choice {
        int page;
        const char* button;
        const char* box;
    };
    for (const Choice& each : {Choice{0, "chooseDialer", "Text14"},
                               {2, "chooseSound", "Text10"},
                               {4, "Command8", "Text8"},
                               {4, "Command13", "Text11"}}) {
        showPage(each.page);
        messages.willAnswer(std::optional<std::string>("/opt/caf\xE9"));
        QTest::mouseClick(&button(each.button), Qt::LeftButton);
        EXPECT_EQ(box(each.box).text(), QStringLiteral("/opt/caf\u00E9"));
        messages.willAnswer(std::nullopt);
        QTest::mouseClick(&button(each.button), Qt::LeftButton);
        EXPECT_EQ(box(each.box).text(), QStringLiteral("/opt/caf\u00E9"));
        EXPECT_TRUE(box(each.box).hasFocus());
    }
    const std::vector<std::string> shown = messages.takeShown();
    EXPECT_EQ(shown.size(), 8U);
    EXPECT_EQ(shown[2], "open|Select Sound File|.wav|Wave Files (*.wav)|*.wav|All Files (*.*)|*.*");
}

TEST_F(SetupTest, PlayNowPlaysWhatStandsInTheBox) {
    files["/gong.wav"] = "RIFF";
    open();
    showPage(2);
    box("Text10").setText(QStringLiteral("/gong.wav"));
    QTest::mouseClick(&button("playNow"), Qt::LeftButton);
    EXPECT_THAT(sound.takeHeard(), ElementsAre("play /gong.wav"));
    EXPECT_EQ(settings.Read("AlarmSound"), "");
}

TEST_F(SetupTest, AFolderIsChosenAndSetIntoEachPathAndCleared) {
    folder.write("x", "");
    const std::string inner = folder.file("in the books");
    std::filesystem::create_directory(inner);
    open();
    showPage(1);
    auto& places = named<QComboBox>(form, "Drive1");
    EXPECT_GE(places.count(), 2);
    auto& tree = named<QTreeView>(form, "Dir1");
    EXPECT_EQ(named<FolderChooser>(form, "folders").folder(), places.currentText());
    named<FolderChooser>(form, "folders").showFolder(QString::fromStdString(folder.path()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount(tree.rootIndex()) == 1; }));
    QTest::keyClick(&tree, Qt::Key_Down);
    EXPECT_EQ(named<FolderChooser>(form, "folders").folder().toStdString(), inner);
    for (const auto& [set, clear, name] : {std::tuple("setWhite", "clearWhite", "Text4"),
                                           {"setYellow", "clearYellow", "Text7"},
                                           {"setCalendar", "clearCalendar", "Text15"}}) {
        QTest::mouseClick(&button(set), Qt::LeftButton);
        EXPECT_EQ(box(name).text().toStdString(), inner);
        QTest::mouseClick(&button(clear), Qt::LeftButton);
        EXPECT_EQ(box(name).text(), "");
    }
    QTest::mouseClick(&button("setWhite"), Qt::LeftButton);
    apply();
    EXPECT_EQ(settings.Read("White"), inner);
}

TEST_F(SetupTest, AFolderThatTheCodePageCanNotNameIsRefused) {
    const std::string cyrillic = folder.file("\xD0\x96");
    std::filesystem::create_directory(cyrillic);
    open();
    showPage(1);
    named<FolderChooser>(form, "folders").showFolder(QString::fromStdString(cyrillic));
    QSignalSpy refused(&form, &Form::folderRefused);
    box("Text4").setText(QStringLiteral("/before"));
    QTest::mouseClick(&button("setWhite"), Qt::LeftButton);
    EXPECT_EQ(refused.size(), 1);
    EXPECT_EQ(box("Text4").text(), "/before");
}

TEST_F(SetupTest, ValuesThatNoControlCouldWriteAreShownAndHurtNothing) {
    using namespace std::string_literals;
    settings.Save("PlannerStart", "99");
    settings.Save("PlannerEnd", "abc");
    settings.Save("EventDays", "-1e9");
    settings.Save("ComPort", "\xFF\0x"s);
    settings.Save("ComType", "\r\n");
    settings.Save("White", "/bo\r\noks");
    settings.Save("AlarmSound", std::string(100000, 'x'));
    settings.Save("Browser", "/");
    open();
    EXPECT_EQ(label("Label27"), "23");
    EXPECT_EQ(label("Label28"), "23");
    EXPECT_EQ(label("Label11"), "0");
    EXPECT_TRUE(option("Option1").isChecked());
    EXPECT_EQ(box("Text8").text(), "/");
    apply();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(settings.Read("ComPort"), "COM1");
    EXPECT_EQ(settings.Read("Browser"), "/");
    EXPECT_EQ(settings.Read("AlarmSound"), std::string(100000, 'x'));
}

TEST_F(SetupTest, TheHelpIsAskedForByItsButton) {
    open();
    QSignalSpy wanted(&form, &Dialog::helpWanted);
    QTest::mouseClick(&button("Command3"), Qt::LeftButton);
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted[0][0].toString(), "Setup");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(SetupTest, EachControlIsReachedByKeysAlone) {
    open();
    check("Check6").setChecked(false);
    auto& tabs = named<QTabWidget>(form, "TabStrip1");
    for (int page = 0; page < tabs.count(); ++page) {
        tabs.setCurrentIndex(page);
        tabs.tabBar()->setFocus();
        std::set<QString> reached;
        QPoint before(-1, -1);
        for (int step = 0; step < 60; ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* now = QApplication::focusWidget();
            if (!reached.insert(now->objectName()).second)
                break;
            const QRect place(now->mapTo(&form, QPoint()), now->size());
            if (tabs.currentWidget()->isAncestorOf(now)) {
                EXPECT_TRUE(place.center().y() > before.y() - 12)
                    << now->objectName().toStdString();
                before = place.center();
            }
        }
        const QWidget* shown = tabs.currentWidget();
        for (const PreferenceRow& row : preferenceRows()) {
            const bool choice = std::holds_alternative<ChoiceKey>(row.key);
            bool found = false, here = false;
            for (const std::string_view each : row.controls) {
                const QString name = QString::fromUtf8(each.data(), qsizetype(each.size()));
                if (name.isEmpty() || !shown->findChild<QWidget*>(name))
                    continue;
                here = true;
                found = found || reached.contains(name);
            }
            EXPECT_TRUE(found || !here) << row.controls[0] << (choice ? " (one of them)" : "");
        }
        for (const char* name : {"Command1", "Command2", "Command3"})
            EXPECT_TRUE(reached.contains(QLatin1String(name))) << name << " on page " << page;
    }
}

TEST_F(SetupTest, FitsEveryScreenWithItsTabsAndButtonsInSight) {
    for (const char* name : test::kSmallScreens) {
        QScreen* screen = test::screenNamed(name);
        ASSERT_NE(screen, nullptr);
        QWidget owner;
        owner.setGeometry(QRect(screen->geometry().topLeft(), QSize(300, 200)));
        owner.show();
        for (const qreal points : {9.75, 16.0}) {
            Form fitted(preferences, CodePage::western(), &owner);
            QFont font = fitted.font();
            font.setPointSizeF(points);
            fitted.setFont(font);
            test::showActive(fitted);
            EXPECT_LE(fitted.height(), screen->availableGeometry().height() - 40);
            EXPECT_LE(fitted.width(), screen->availableGeometry().width() - 16);
            auto& tabs = named<QTabWidget>(fitted, "TabStrip1");
            for (int page = 0; page < tabs.count(); ++page) {
                tabs.setCurrentIndex(page);
                QCoreApplication::processEvents();
                const auto inSight = [&](const QWidget& part) {
                    const QRect place(part.mapTo(&fitted, QPoint()), part.size());
                    return fitted.rect().contains(place) && !part.visibleRegion().isEmpty();
                };
                for (const char* button : {"Command1", "Command2", "Command3"})
                    EXPECT_TRUE(inSight(named<QPushButton>(fitted, button)))
                        << button << " on " << name << " at " << points;
                EXPECT_TRUE(inSight(*tabs.tabBar())) << name << " at " << points;
            }
        }
    }
}

TEST_F(SetupTest, AtItsUsualSizeNoPageScrolls) {
    open();
    EXPECT_GE(form.width(), 700);
    EXPECT_GE(form.height(), 562);
    for (int page = 0; page < 5; ++page) {
        showPage(page);
        QCoreApplication::processEvents();
        auto& area = named<DialogBody>(form, ("Picture" + std::to_string(page + 1)).c_str());
        EXPECT_FALSE(area.verticalScrollBar()->isVisible()) << page;
        EXPECT_FALSE(area.horizontalScrollBar()->isVisible()) << page;
    }
}

}  // namespace
}  // namespace velmora
