// Each setting of the preferences, changed in their form, acts where it should: in the whole
// program where that shows it, else in what the program reads.

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <optional>
#include <string>

#include "app/EventLoopOfTests.h"
#include "app/Program.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/Setup.h"
#include "core/forms/StatusBar.h"
#include "forms/Widgets.h"
#include "phonebook/PhonebookRecord.h"
#include "phonebook/forms/Form4.h"
#include "planner/forms/Form8.h"
#include "planner/sqlite/PlannerDatabase.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/Stepper.h"
#include "platform/files/ProgramFolder.h"
#include "platform/qt/Theme.h"
#include "platform/sqlite/SqliteSettings.h"
#include "reports/EnvelopePage.h"
#include "reports/forms/Envelope.h"
#include "support/FakeCallService.h"
#include "support/TemporaryFolder.h"
#include "telephony/DialSettings.h"
#include "telephony/forms/DialerPage.h"

namespace velmora {
namespace {

using test::forgetEarlierEnds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class PreferenceEffects : public testing::Test {
  protected:
    PreferenceEffects() {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.file("config")));
        std::filesystem::create_directory(folder.file("other"));
        folder.write("DATAY.QEL", entry("Adair"));
        folder.write("other/DATAY.QEL", entry("Abbott"));
        folder.write("other/DATAW.QEL", entry("Alder"));
        applyLook();
    }

    static std::string entry(const std::string& last) {
        PhonebookRecord record;
        record.assign(Field::First, "Ann");
        record.assign(Field::Last, last);
        record.assign(Field::Address1, "1 Lake Road");
        record.assign(Field::Phone, "5165551212");
        record.assign(Field::EMail, "ann@example.com");
        record.assign(Field::WebPage, "www.example.com");
        return {record.bytes().data(), record.bytes().size()};
    }

    Program& start(CallServices services = [] {
        return std::vector<std::unique_ptr<CallService>>();
    }) {
        program.reset();
        forgetEarlierEnds();
        program.emplace(NativePath(folder.path()), std::move(services));
        program->start();
        program->window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&program->window()));
        return *program;
    }

    // Opens the preferences, lets the user change them, and applies.
    void apply(const std::function<void(QWidget& form)>& change) {
        if (!program)
            start();
        program->commands().run(Commands::Setupmnu);
        auto* form = program->window().findChild<class Setup*>();
        ASSERT_NE(form, nullptr);
        change(*form);
        QTimer advice;
        QObject::connect(&advice, &QTimer::timeout, &advice, [this] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                advised = box->text().toStdString();
                box->accept();
            }
        });
        advice.start(1);
        test::named<QPushButton>(*form, "Command1").click();
        EXPECT_FALSE(form->isVisible());
    }
    void applyText(const char* box, const std::string& text) {
        apply([&](QWidget& form) {
            test::named<QLineEdit>(form, box).setText(QString::fromStdString(text));
        });
    }
    void applyTick(const char* box, bool on) {
        apply([&](QWidget& form) { test::named<QCheckBox>(form, box).setChecked(on); });
    }
    void applyOption(const char* option) {
        apply([&](QWidget& form) { test::named<QRadioButton>(form, option).setChecked(true); });
    }
    void applyNumber(const char* arrows, int number) {
        apply([&](QWidget& form) { test::named<StepperArrows>(form, arrows).setValue(number); });
    }

    EntryList& list() { return *program->window().leftColumn().list(); }
    std::string letterBy(CommandName command) {
        program->window().text().setBytes("");
        list().selectLine("Adair, Ann");
        program->commands().run(command);
        return program->window().text().bytes();
    }
    template <typename Form>
    Form* open(CommandName command) {
        program->commands().run(command);
        return program->window().findChild<Form*>();
    }
    static Form8* events() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* form = qobject_cast<Form8*>(window))
                return form;
        return nullptr;
    }

    // The settings as another reader finds them.
    template <typename Result>
    Result reading(const std::function<Result(const SettingsStore& settings)>& read) {
        SqliteSettings medium(configurationFolder() / "settings.db");
        return read(SettingsStore(medium));
    }
    DialSettings dialing() { return reading<DialSettings>(&DialSettings::read); }

    test::TemporaryFolder folder;
    std::optional<Program> program;
    std::string advised;
};

TEST_F(PreferenceEffects, TheHoursOfTheDayShowAtOnce) {
    apply([](QWidget& form) {
        test::named<StepperArrows>(form, "VScroll1").setValue(9);
        test::named<StepperArrows>(form, "VScroll2").setValue(11);
    });
    SSDay& day = program->window().day();
    for (const Qt::Key line : {Qt::Key_Home, Qt::Key_End}) {
        day.setFocus();
        QTest::keyClick(&day, Qt::Key_Escape);
        QTest::keyClick(&day, line);
        QTest::keyClicks(&day, "x");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    ASSERT_EQ(day.Tasks().Count(), 2);
    EXPECT_EQ(day.Tasks().Item(0).BeginTime, "09:00 AM");
    EXPECT_EQ(day.Tasks().Item(1).BeginTime, "11:30 AM") << "the last line in full";
}

TEST_F(PreferenceEffects, AnotherFolderOfEachBookCountsAtTheNextLook) {
    start();
    EXPECT_THAT(list().lines(), ElementsAre("Adair, Ann"));
    applyText("Text7", folder.file("other"));
    applyText("Text4", folder.file("other"));
    program->commands().run(Commands::White);
    EXPECT_THAT(list().lines(), ElementsAre("Alder, Ann"));
    program->commands().run(Commands::Yellow);
    EXPECT_THAT(list().lines(), ElementsAre("Abbott, Ann"));
    EXPECT_EQ(advised, "") << "the advice is for the planner's folder";
}

TEST_F(PreferenceEffects, ThePlannerMovesAtOnceAndTheNextStartOpensItThere) {
    start();
    QTest::keyClicks(&program->window().day(), "Tea");
    applyText("Text15", folder.file("other"));
    EXPECT_EQ(advised,
              "If you have changed your network settings, you should exit the program and then run "
              "it again for best results.");
    EXPECT_EQ(kindOfDatabase(NativePath(folder.file("other/qel.mdb"))), DatabaseKind::Planner);
    ASSERT_EQ(program->window().day().Tasks().Count(), 1) << "what was being typed";
    program.reset();
    std::filesystem::remove(folder.file("qel.mdb"));
    EXPECT_EQ(start().window().day().Tasks().Count(), 1);
}

TEST_F(PreferenceEffects, TheCustomFieldsGetTheirNames) {
    apply([](QWidget& form) {
        test::named<QLineEdit>(form, "Text3").setText(QStringLiteral("Shoe size"));
        test::named<QLineEdit>(form, "Text2").setText(QStringLiteral("Hat size"));
    });
    auto* search = open<Form4>(Commands::searchi);
    QStringList captions;
    for (const auto* box : search->findChildren<QCheckBox*>())
        captions << box->text();
    EXPECT_TRUE(captions.contains(QStringLiteral("Shoe size")));
    EXPECT_TRUE(captions.contains(QStringLiteral("Hat size")));
}

TEST_F(PreferenceEffects, LettersTakeTheSalutationAndTheTab) {
    start();
    EXPECT_THAT(letterBy(Commands::Insert2), Not(HasSubstr("Dear friend")));
    applyText("Text6", "Dear friend");
    const std::string plain = letterBy(Commands::Insert2);
    EXPECT_THAT(plain, HasSubstr("Dear friend"));
    EXPECT_THAT(plain, Not(HasSubstr("\t")));
    applyTick("Check4", true);
    EXPECT_THAT(letterBy(Commands::Insert2), HasSubstr("\t"));
}

TEST_F(PreferenceEffects, AnEntrysTextHasItsNumbersOrNot) {
    applyTick("Check1", true);
    EXPECT_THAT(letterBy(Commands::Insert1), HasSubstr("5165551212"));
    applyTick("Check1", false);
    EXPECT_THAT(letterBy(Commands::Insert1), Not(HasSubstr("5165551212")));
}

TEST_F(PreferenceEffects, AnOpenEnvelopeFollowsAtOnce) {
    start();
    list().selectLine("Adair, Ann");
    auto* envelope = open<Envelope>(Commands::envmnu);
    ASSERT_NE(envelope, nullptr);
    auto& sheet = test::named<QWidget>(*envelope, "sheet");
    test::named<QLineEdit>(*envelope, "Text1").setText(QStringLiteral("Home"));
    const QImage middle = sheet.grab().toImage();
    applyOption("Option11");
    const QImage left = sheet.grab().toImage();
    EXPECT_NE(left, middle);
    applyTick("Check9", true);
    EXPECT_NE(sheet.grab().toImage(), left);
    const auto feed = reading<EnvelopeFeed>(&readEnvelopeFeed);
    EXPECT_TRUE(feed.top);
}

TEST_F(PreferenceEffects, TheEventsOfTodayComeUpAtTheNextStartOrNot) {
    for (const bool wanted : {false, true, false}) {
        applyTick("Check2", wanted);
        start();
        if (wanted)
            EXPECT_TRUE(QTest::qWaitFor([] { return events() && events()->isVisible(); }));
        QCoreApplication::processEvents();
        EXPECT_EQ(events() && events()->isVisible(), wanted);
    }
}

TEST_F(PreferenceEffects, TheEventsOfTodayLookSoManyDaysAhead) {
    {
        SqliteSettings medium(configurationFolder() / "settings.db");
        SettingsStore settings(medium);
        for (int day = 1; day <= 31; ++day) {
            const std::string prefix = "Monthly\\" + std::to_string(day) + "\\";
            settings.Save(prefix + "NumTasks", "1");
            settings.Save(prefix + "1M", "Day " + std::to_string(day));
        }
    }
    const auto linesWith = [this](int days) {
        applyNumber("VScroll3", days);
        applyTick("Check2", true);
        start();
        EXPECT_TRUE(QTest::qWaitFor([] { return events() && events()->isVisible(); }));
        return test::named<EntryList>(*events(), "List1").lines().size();
    };
    const std::size_t today = linesWith(0);
    EXPECT_EQ(linesWith(3), today + 3);
}

TEST_F(PreferenceEffects, TheDocumentComesBackAtTheNextStartOrNot) {
    folder.write("letter.txt", "Dear Ann");
    for (const bool kept : {true, false}) {
        applyTick("Check8", kept);
        {
            SqliteSettings medium(configurationFolder() / "settings.db");
            SettingsStore(medium).Save("Doc", folder.file("letter.txt"));
        }
        EXPECT_EQ(start().window().text().bytes(), kept ? "Dear Ann" : "");
    }
}

TEST_F(PreferenceEffects, CallersAreListenedForAfterTheNextStart) {
    bool asked = false;
    const CallServices services = [&asked] {
        asked = true;
        return std::vector<std::unique_ptr<CallService>>();
    };
    applyTick("Check5", true);
    start(services);
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked; }));
}

TEST_F(PreferenceEffects, TheDialerTakesEachOfItsSettings) {
    applyOption("Option3");
    EXPECT_EQ(dialing().port, 3);
    applyOption("Option10");
    EXPECT_EQ(dialing().command, "ATDP");
    applyText("Text5", "9,");
    EXPECT_EQ(dialing().prefix, "9,");
    applyText("Text1", "ATZ");
    EXPECT_EQ(dialing().initialisation, "ATZ");
    applyText("Text9", "516");
    EXPECT_EQ(withoutAreaCode("5165551212", dialing().areaCode, CodePage::western()), "5551212");
    applyTick("Check3", true);
    EXPECT_TRUE(dialing().log);
}

TEST_F(PreferenceEffects, DocPadsPagesReadTheirTwo) {
    const auto onPaper = [this] {
        return reading<std::pair<bool, bool>>([](const SettingsStore& settings) {
            return std::pair(settings.read(keys::Wordwrap), settings.read(keys::Header));
        });
    };
    applyTick("Check7", true);
    EXPECT_EQ(onPaper(), std::pair(true, false));
    applyTick("Check7", false);
    applyTick("Check10", true);
    EXPECT_EQ(onPaper(), std::pair(false, true));
}

// Programs that leave a file behind with what they were started with.
class ProgramEffects : public PreferenceEffects {
  protected:
    ProgramEffects() {
        std::filesystem::create_directory(folder.file("programs"));
        for (const char* name : {"xdg-open", "browser", "mailer", "dialer", "paplay"}) {
            folder.write(std::string("programs/") + name,
                         "#!/bin/sh\necho \"${0##*/} $*\" >> " + folder.file("started") + "\n");
            std::filesystem::permissions(folder.file(std::string("programs/") + name),
                                         std::filesystem::perms::owner_all);
        }
        path_ = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(folder.file("programs")));
        start();
        list().selectLine("Adair, Ann");
    }
    ~ProgramEffects() override {
        program.reset();
        qputenv("PATH", path_);
    }

    std::string startedBy(const std::function<void()>& work) {
        folder.write("started", "");
        work();
        EXPECT_TRUE(QTest::qWaitFor([this] { return folder.read("started").ends_with("\n"); }));
        return folder.read("started");
    }
    std::string startedBy(CommandName command) {
        return startedBy([&] { program->commands().run(command); });
    }
    std::string tool(const char* name) { return folder.file(std::string("programs/") + name); }

  private:
    QByteArray path_;
};

TEST_F(ProgramEffects, MailAndWebGoToTheDesktopOrToTheProgramsThatAreNamed) {
    applyTick("Check6", true);
    EXPECT_EQ(startedBy(Commands::webmnu), "xdg-open http://www.example.com\n");
    EXPECT_EQ(startedBy(Commands::emailmnu), "xdg-open mailto:ann@example.com\n");
    apply([this](QWidget& form) {
        test::named<QCheckBox>(form, "Check6").setChecked(false);
        test::named<QLineEdit>(form, "Text8").setText(QString::fromStdString(tool("browser")));
        test::named<QLineEdit>(form, "Text11").setText(QString::fromStdString(tool("mailer")));
        test::named<QLineEdit>(form, "Text12").setText(QStringLiteral("--new"));
    });
    EXPECT_EQ(startedBy(Commands::webmnu), "browser www.example.com\n");
    EXPECT_EQ(startedBy(Commands::emailmnu), "mailer --new\n");
}

TEST_F(ProgramEffects, TheExternalDialerIsTheOneThatIsNamed) {
    applyText("Text14", tool("dialer"));
    auto* page = program->window().findChild<DialerPage*>();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(startedBy([&] { page->externalButton()->click(); }), "dialer \n");
}

TEST_F(ProgramEffects, TheSoundIsPlayedByPlayNowBeforeItIsStored) {
    using namespace std::string_literals;
    folder.write("gong.wav", "RIFF\0\0\0\0WAVE"s);
    std::filesystem::resize_file(folder.file("gong.wav"), std::uintmax_t(1) << 30);
    program->commands().run(Commands::Setupmnu);
    auto& form = *program->window().findChild<class Setup*>();
    test::named<QLineEdit>(form, "Text10").setText(QString::fromStdString(folder.file("gong.wav")));
    EXPECT_EQ(startedBy([&] { test::named<QPushButton>(form, "playNow").click(); }),
              "paplay " + folder.file("gong.wav") + "\n");
}

}  // namespace
}  // namespace velmora
