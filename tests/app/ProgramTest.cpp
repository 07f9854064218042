#include "app/Program.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/CommandTable.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "forms/Widgets.h"
#include "phonebook/PhonebookRecord.h"
#include "phonebook/forms/Form4.h"
#include "planner/StoredText.h"
#include "platform/SystemClock.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/SSMonth.h"
#include "platform/controls/TrashCan.h"
#include "platform/files/ProgramFolder.h"
#include "platform/qt/Theme.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/FakeCallService.h"
#include "support/PlannerFixture.h"
#include "support/TemporaryFolder.h"
#include "telephony/forms/CallID.h"

namespace velmora {
namespace {

constexpr int kManyTurns = 20000;  // entries that take the event loop several turns

// The whole program in folders of its own, without the events of today.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.file("config")));
        applyLook();
    }

    void start() {
        start([] { return std::vector<std::unique_ptr<CallService>>(); });
    }
    void start(CallServices services) {
        program.emplace(NativePath(folder.path()), std::move(services));
        program->start();
        program->window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program->window()));
    }
    // Starts with a telephone service that the test makes ring once it is heard.
    test::FakeCallService& startWithTelephone() {
        SqliteSettings medium(configurationFolder() / "settings.db");
        SettingsStore(medium).Save("CallerID", "ON");
        SettingsStore(medium).Save("LogPhone", "1");
        test::FakeCallService* telephone = nullptr;
        start([&telephone] {
            std::vector<std::unique_ptr<CallService>> services;
            services.push_back(std::make_unique<test::FakeCallService>());
            telephone = static_cast<test::FakeCallService*>(services.front().get());
            return services;
        });
        if (!QTest::qWaitFor([&] { return telephone && telephone->isHeard(); }))
            throw std::runtime_error("the service is not heard");
        return *telephone;
    }
    static CallID* report() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* form = qobject_cast<CallID*>(window))
                return form;
        return nullptr;
    }
    template <typename Control>
    Control& inWindow(const char* name) {
        return *program->window().findChild<Control*>(QLatin1String(name));
    }

    // Yellow Pages so long that the event loop runs while they are looked through; one entry,
    // "Adair1000", has a number.
    void fillBook(int entries) {
        std::string book;
        for (int i = 0; i < entries; ++i) {
            PhonebookRecord record;
            record.assign(Field::First, "Ann");
            record.assign(Field::Last, "Adair" + std::to_string(i));
            if (i == 1000)
                record.assign(Field::Phone, "5165551212");
            book.append(record.bytes().data(), record.bytes().size());
        }
        folder.write("DATAY.QEL", book);
    }
    // The form of the search, ready to look for `text`.
    Form4* openSearch(const char* text) {
        program->commands().run(Commands::searchi);
        auto* form = program->window().findChild<Form4*>();
        if (form)
            form->findChild<QLineEdit*>("Text1")->setText(QLatin1String(text));
        return form;
    }
    static const std::vector<std::string>& linesOf(const QWidget& form) {
        return test::named<EntryList>(form, "List1").lines();
    }
    // All lines of the latest call are there.
    static bool isReported() {
        return report()->isVisible() && test::named<EntryList>(*report(), "List1").isEnabled();
    }

    // Lets `work` run from the event loop, ends the program from `during`, which is called while
    // the work is under way, and takes all down once nothing runs any more.
    void endDuring(const std::function<void()>& work, const std::function<bool()>& during) {
        bool ended = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            if (ended || !during())
                return;
            ended = true;
            program->endWithoutAsking();
        });
        watch.start(0);
        QTimer::singleShot(0, &watch, work);
        QTimer::singleShot(60000, &watch, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_TRUE(ended);
        program.reset();
    }

    test::TemporaryFolder folder;
    std::optional<Program> program;
};

TEST_F(ProgramTest, MayGoWhileAnAppointmentIsBeingTyped) {
    start();
    SSDay& day = program->window().day();
    day.setFocus();
    QTest::keyClicks(&day, "Tea");
    ASSERT_TRUE(day.isEditing());
    program.reset();
}

TEST_F(ProgramTest, EndsInTheMiddleOfASearch) {
    fillBook(2000);
    start();
    Form4* form = openSearch("no such text");
    ASSERT_NE(form, nullptr);
    bool searching = false;
    endDuring(
        [&] {
            searching = true;
            form->findChild<QPushButton*>("Command1")->click();
            searching = false;
        },
        [&] { return searching; });
}

TEST_F(ProgramTest, EndsInTheMiddleOfAPrint) {
    start();
    program->window().text().setBytes(std::string(20000, 'x'));
    bool printing = false;
    endDuring(
        [&] {
            printing = true;
            program->commands().run(Commands::printmnu);
            printing = false;
        },
        [&] { return printing; });
}

TEST_F(ProgramTest, EndsWhileTheTrashMoves) {
    start();
    QTest::keyClicks(&program->window().text(), "letter");
    bool answered = false;
    endDuring([&] { emit program->window().rail().trash()->documentDropped(); },
              [&] {
                  if (answered)
                      return program->window().text().isEmpty();
                  if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                      answered = true;
                      box->button(QMessageBox::Yes)->click();
                  }
                  return false;
              });
}

TEST_F(ProgramTest, AnEmptyPlannerIsToldAsSoonAsAnEntryIsDragged) {
    start();
    EntryList& list = inWindow<EntryList>("List1");
    StatusBar& status = program->window().status();
    emit list.dragBegins();
    EXPECT_EQ(status.text(),
              "The planner is empty: type its first appointment into the day view before you "
              "schedule with an entry.");
    SSDay& day = program->window().day();
    day.setFocus();
    QTest::keyClicks(&day, "Tea");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_FALSE(day.isEditing());
    status.show("");
    emit list.dragBegins();
    EXPECT_EQ(status.text(), "");
}

TEST_F(ProgramTest, TheMonthOnShowIsRedAtOnceAndEveryOtherSoonAfterwards) {
    using namespace std::chrono;
    const year_month_day today = dateOf(SystemClock().now());
    const sys_days later = sys_days(today) + days(100);
    const std::string path = folder.file("qel.mdb");
    layDownDatabase(NativePath(path));
    test::addRawRow(path, test::rowOn(storedDay(today), 1, "now"));
    test::addRawRow(path, test::rowOn(storedDay(later), 2, "later"));
    start();
    auto& month = inWindow<SSMonth>("SSMonth1");
    EXPECT_TRUE(test::isRed(month, today));
    month.setDate(later);
    EXPECT_TRUE(QTest::qWaitFor([&] { return test::isRed(month, later); }));
    EXPECT_FALSE(test::isRed(month, sys_days(later) - days(1)));
}

TEST_F(ProgramTest, AnEntryAndATaskAreWrittenIntoDocPad) {
    PhonebookRecord record;
    record.assign(Field::First, "Ann");
    record.assign(Field::Last, "Adair");
    record.assign(Field::Address1, "1 Lake Road");
    folder.write("DATAY.QEL", std::string(record.bytes().data(), record.bytes().size()));
    start();
    PadEdit& pad = program->window().text();
    program->commands().run(Commands::Insert2);
    EXPECT_EQ(pad.bytes(), "") << "no entry is selected";
    ASSERT_TRUE(inWindow<EntryList>("List1").selectLine("Adair, Ann"));
    program->commands().run(Commands::Insert2);
    EXPECT_EQ(pad.bytes(), "Ann Adair\r\n1 Lake Road\r\n\r\n");
    program->commands().run(Commands::Insert1);
    EXPECT_EQ(pad.bytes(), "Ann Adair\r\n1 Lake Road\r\n\r\nAnn Adair\r\n1 Lake Road\r\n");

    pad.setBytes("");
    QMimeData entry;
    entry.setData(QLatin1String(kEntryFormat), "Adair, Ann");
    EXPECT_TRUE(test::dragOver(*pad.viewport(), entry));
    EXPECT_TRUE(test::dropOn(*pad.viewport(), entry));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !pad.isEmpty(); }));
    EXPECT_EQ(pad.bytes(), "Ann Adair\r\n1 Lake Road\r\n\r\n");
    EXPECT_TRUE(pad.hasFocus());
    EXPECT_EQ(pad.selectionStart(), pad.bytes().size());

    pad.setBytes("");
    QMimeData task;
    task.setData(QLatin1String(kTaskFormat), "Buy milk");
    EXPECT_TRUE(test::dragOver(*pad.viewport(), task));
    EXPECT_TRUE(test::dropOn(*pad.viewport(), task));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !pad.isEmpty(); }));
    EXPECT_EQ(pad.bytes(), "Buy milk\r\n");
}

TEST_F(ProgramTest, ATelephoneLinkBringsItsNumberToTheKeypadAndDialsNothing) {
    start();
    program->openLinks({"tel:+1-516-555-1212"});
    auto& number = inWindow<QLabel>("Label16");
    EXPECT_EQ(number.text(), "+15165551212");
    EXPECT_TRUE(number.isVisible());
    EXPECT_TRUE(inWindow<QPushButton>("Command24").isEnabled());
    EXPECT_FALSE(folder.has("phonelog.txt"));
}

TEST_F(ProgramTest, ALinkWithoutANumberSaysSoAndLeavesTheNumberAlone) {
    start();
    program->openLinks({"tel:5551212"});
    program->openLinks({"tel:nobody"});
    EXPECT_EQ(inWindow<QLabel>("Label16").text(), "5551212");
    EXPECT_EQ(program->window().status().text(), "The link holds no telephone number.");
    program->openLinks({});
    EXPECT_EQ(inWindow<QLabel>("Label16").text(), "5551212");
}

TEST_F(ProgramTest, IsBroughtToTheFront) {
    start();
    program->window().showMinimized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return program->window().isMinimized(); }));
    program->bringToFront("a-token");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&program->window()));
    EXPECT_FALSE(program->window().isMinimized());
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN")) << "it is good for one window";
}

TEST_F(ProgramTest, NoTelephoneServiceIsAskedUnlessTheSettingSaysSo) {
    bool asked = false;
    start([&asked] {
        asked = true;
        return std::vector<std::unique_ptr<CallService>>();
    });
    program->window().repaint();  // painted once more, and so painted before
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    EXPECT_FALSE(asked);
    EXPECT_EQ(report(), nullptr);
}

TEST_F(ProgramTest, ACallIsReportedAndLoggedAndANewEntryTakesItsNumber) {
    qputenv("VELMORA_COUNTRY", "de");
    test::FakeCallService& telephone = startWithTelephone();
    qunsetenv("VELMORA_COUNTRY");
    telephone.ring({"", "+4930123456"});
    ASSERT_TRUE(QTest::qWaitFor([] { return report()->isVisible(); }));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return program->window().status().text() == "No matching entries to incoming call found.";
    }));
    EXPECT_TRUE(
        QString::fromStdString(folder.read("phonelog.txt")).endsWith("\tIncoming\t030123456\r\n"));

    bool answered = false;
    QTimer::singleShot(0, report(), [&] {
        QWidget* form = QApplication::activeModalWidget();
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(test::named<QLineEdit>(*form, "Text9").text(), "030123456");
        test::named<QPushButton>(*report(), "NewEntry").click();
        EXPECT_EQ(program->window().status().text(),
                  "Answer the open dialog first, then make the new entry.");
        answered = true;
        form->close();
    });
    test::named<QPushButton>(*report(), "NewEntry").click();
    EXPECT_TRUE(answered);
}

TEST_F(ProgramTest, EndsInTheMiddleOfACall) {
    std::string book;
    for (int i = 0; i < 2000; ++i)
        book.append(PhonebookRecord().bytes().data(), kRecordSize);
    folder.write("DATAY.QEL", book);
    test::FakeCallService& telephone = startWithTelephone();
    endDuring(
        [&] {
            telephone.ring({"", "5165551212"});
        },
        [&] {
            auto* form = report();
            return form->isVisible() && !test::named<EntryList>(*form, "List1").isEnabled();
        });
}

TEST_F(ProgramTest, ACallDuringASearchIsReportedAtOnceAndNeitherDisturbsTheOther) {
    fillBook(kManyTurns);
    test::FakeCallService& telephone = startWithTelephone();
    Form4* form = openSearch("adair1000");
    ASSERT_NE(form, nullptr);
    auto& search = test::named<QPushButton>(*form, "Command1");
    search.click();
    const std::vector<std::string> undisturbed = linesOf(*form);
    ASSERT_EQ(undisturbed.size(), 11U);

    bool rung = false;
    bool searching = true;
    bool reportedBeforeTheEnd = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (!std::exchange(rung, true))
            telephone.ring({"", "5165551212"});
        reportedBeforeTheEnd |= searching && isReported();
    });
    watch.start(0);
    search.click();
    searching = false;
    EXPECT_TRUE(reportedBeforeTheEnd);
    EXPECT_EQ(linesOf(*form), undisturbed);
    EXPECT_EQ(linesOf(*report()), std::vector<std::string>{"Y: Adair1000, Ann"});
}

TEST_F(ProgramTest, ASearchThatBeginsDuringACallEndsWellAndSoDoesTheCall) {
    fillBook(kManyTurns);
    test::FakeCallService& telephone = startWithTelephone();
    Form4* form = openSearch("adair1000");
    ASSERT_NE(form, nullptr);

    bool searched = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (!report()->isVisible() || isReported() || std::exchange(searched, true))
            return;
        test::named<QPushButton>(*form, "Command1").click();
        EXPECT_EQ(linesOf(*form).size(), 11U);
        EXPECT_FALSE(isReported());
    });
    watch.start(0);
    telephone.ring({"", "5165551212"});
    EXPECT_TRUE(QTest::qWaitFor([] { return isReported(); }));
    EXPECT_TRUE(searched);
    EXPECT_EQ(linesOf(*form).size(), 11U);
    EXPECT_EQ(linesOf(*report()), std::vector<std::string>{"Y: Adair1000, Ann"});
}

TEST_F(ProgramTest, EachCommandIsBound) {
    program.emplace(NativePath(folder.path()));
    std::set<std::string_view> rows;
    for (const MenuRow& row : menuTree())
        if (!isHead(row) && !isSeparator(row))
            rows.insert(row.name);
    for (const auto keys : {mainToolbar(), contactToolbar(), phonebookToolbar()})
        for (const ToolRow& row : keys)
            rows.insert(row.command);
    for (const std::string_view name : rows)
        EXPECT_TRUE(program->commands().isBound(name)) << name;
}

}  // namespace
}  // namespace velmora
