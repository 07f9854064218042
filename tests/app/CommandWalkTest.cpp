// Every row of the menus and every key of the toolbars, in the whole program: each does something
// that can be seen.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>

#include "app/EventLoopOfTests.h"
#include "app/Program.h"
#include "core/CommandTable.h"
#include "core/forms/ClockLabel.h"
#include "core/forms/CommandMenus.h"
#include "core/forms/LeftColumn.h"
#include "core/forms/PhonebookPage.h"
#include "core/forms/StatusBar.h"
#include "core/forms/ToolStrip.h"
#include "forms/Widgets.h"
#include "phonebook/PhonebookRecord.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSMonth.h"
#include "platform/files/ProgramFolder.h"
#include "platform/qt/Theme.h"
#include "platform/sqlite/SqliteSettings.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using test::forgetEarlierEnds;

constexpr std::chrono::year_month_day kAnotherDay{std::chrono::year(2020), std::chrono::March,
                                                  std::chrono::day(12)};

PhonebookRecord anEntry() {
    PhonebookRecord record;
    record.assign(Field::First, "Ann");
    record.assign(Field::Last, "Adair");
    record.assign(Field::Phone, "5165551212");
    record.assign(Field::WorkPhone, "5165551213");
    record.assign(Field::OtherPhone, "5165551214");
    record.assign(Field::Fax, "5165551215");
    record.assign(Field::EMail, "ann@example.com");
    record.assign(Field::WebPage, "www.example.com");
    return record;
}

// A line on which nobody answers.
class SilentModem {
  public:
    SilentModem() : line_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        if (line_ < 0 || ::grantpt(line_) != 0 || ::unlockpt(line_) != 0)
            throw std::runtime_error("no pseudo terminal");
    }
    ~SilentModem() { ::close(line_); }
    SilentModem(const SilentModem&) = delete;
    SilentModem& operator=(const SilentModem&) = delete;

    [[nodiscard]] QByteArray name() const { return ::ptsname(line_); }

  private:
    int line_;
};

class CommandWalkTest : public testing::Test {
  protected:
    CommandWalkTest() {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.file("config")));
        std::filesystem::create_directory(folder.file("programs"));
        std::filesystem::create_directory(folder.file("data"));
        for (const char* each : {"xdg-open", "gnome-control-center"})
            makeRecorder(each);
        path = qgetenv("PATH");
        qputenv("PATH", QByteArray::fromStdString(folder.file("programs")));
        const PhonebookRecord record = anEntry();
        const std::string book(record.bytes().data(), record.bytes().size());
        folder.write("data/DATAY.QEL", book);
        folder.write("data/DATAW.QEL", book + book);
        folder.write("data/phonelog.txt", "a call\r\n");
        SqliteSettings medium(configurationFolder() / "settings.db");
        SettingsStore settings(medium);
        settings.Save("IEEnhanced", "YES");
        settings.Save("EventStart", "0");
        settings.Save("ComPort", "COM1");
        qputenv("VELMORA_COM1", modem.name());
        applyLook();
        QObject::connect(&boxes, &QTimer::timeout, &boxes, [this] { answerBox(); });
        boxes.start(1);
    }
    ~CommandWalkTest() override {
        program.reset();
        qputenv("PATH", path);
        qunsetenv("VELMORA_COM1");
    }

    // In place of a program of the desktop: leaves a file behind that says that it was started.
    void makeRecorder(const std::string& name) const {
        const std::string file = folder.file("programs/" + name);
        folder.write("programs/" + name,
                     "#!/bin/sh\necho \"$0 $*\" >> " + folder.file("started") + "\n");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    }

    // Boxes are seen and called off; a question is answered with No.
    void answerBox() {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!box || ownForm(*box))
            return;
        seen += "box " + box->windowTitle().toStdString() + "\n";
        auto* message = qobject_cast<QMessageBox*>(box);
        auto* no = message ? message->button(QMessageBox::No) : nullptr;
        if (no)
            no->click();
        else
            box->reject();
    }
    // The forms with names of ours stay for a look; they are closed before the next command. The
    // form of an entry holds the command up until it closes, as boxes do.
    static bool ownForm(const QDialog& box) {
        static const std::set<QString> names{"Setup", "Form6", "frmAbout"};
        return names.contains(box.objectName());
    }

    void begin() {
        forgetEarlierEnds();
        program.emplace(NativePath(folder.file("data")));
        program->start();
        Calendar& window = program->window();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        program->commands().run(Commands::Phonebook);
        EntryList& list = *window.leftColumn().list();
        ASSERT_TRUE(list.selectLine("Adair, Ann"));
        emit list.lineClicked();
        program->commands().run(Commands::Planner);
    }

    // Brings everything to where the next command finds it.
    void prepare() {
        for (QWidget* other : QApplication::topLevelWidgets())
            if (other != &program->window() && other->isVisible())
                other->close();
        program->commands().run(Commands::Phonebook);
        Calendar& window = program->window();
        window.leftColumn().month()->setDate(kAnotherDay);
        EntryList& list = *window.leftColumn().list();
        list.selectLine("Adair, Ann");
        if (window.phonebookPage().hangUpButton()->isVisible())
            window.phonebookPage().hangUpButton()->click();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        PadEdit& pad = window.text();
        pad.setBytes("Dear Ann\r\n");
        pad.setFocus();
        pad.selectAll();
        QApplication::clipboard()->setText(QStringLiteral("text"));
        window.status().show("before");
        folder.write("started", "");
        seen.clear();
    }

    // What a user can see of the program, and what else has been started.
    std::string picture() {
        Calendar& window = program->window();
        std::string all = seen + window.status().text() + "\n" + window.text().bytes() + "\n" +
                          QApplication::clipboard()->text().toStdString() + "\n" +
                          folder.read("started") + "\n";
        for (const QWidget* other : QApplication::topLevelWidgets())
            if (other->isVisible() && other->isWindow() && other != &window)
                all += other->objectName().toStdString() + "|" +
                       other->windowTitle().toStdString() + "\n";
        all += window.clock().clockText() + "\n";
        all += window.leftColumn().month()->date() == kAnotherDay ? "another day " : "this day ";
        all += std::to_string(window.leftColumn().list()->lines().size());
        all += window.dayViewShown() ? " day" : " no day";
        all += window.phonebookPage().isVisible() ? " phonebook" : " no phonebook";
        return all;
    }

    // Whether anything has changed, soon or by itself a little later.
    bool doesSomething(const std::function<void()>& work) {
        prepare();
        QCoreApplication::processEvents();
        seen.clear();
        program->window().status().show("before");
        const std::string before = picture();
        work();
        const bool changed = QTest::qWaitFor([&] { return picture() != before; }, 10000);
        EXPECT_TRUE(changed) << "still as before: " << before;
        EXPECT_FALSE(program->ended());
        return changed;
    }

    test::TemporaryFolder folder;
    SilentModem modem;
    QByteArray path;
    QTimer boxes;
    std::string seen;
    std::optional<Program> program;
};

TEST_F(CommandWalkTest, EachRowOfTheMenusRunsSomething) {
    begin();
    for (const MenuRow& row : menuTree()) {
        if (isHead(row) || isSeparator(row) || row.name == Commands::exitmnu)
            continue;
        QAction* item = program->window().menus().item(row.name);
        ASSERT_NE(item, nullptr) << row.name;
        EXPECT_TRUE(item->isEnabled()) << row.name;
        EXPECT_TRUE(doesSomething([item] { item->trigger(); })) << row.name;
    }
}

TEST_F(CommandWalkTest, EachKeyOfTheToolbarsRunsSomething) {
    begin();
    Calendar& window = program->window();
    const std::pair<ToolStrip*, std::span<const ToolRow>> strips[] = {
        {&window.mainKeys(), mainToolbar()},
        {window.phonebookPage().contactKeys(), contactToolbar()},
        {window.leftColumn().bookKeys(), phonebookToolbar()}};
    std::set<std::string_view> inMenus;
    for (const MenuRow& row : menuTree())
        inMenus.insert(row.name);
    std::string_view chosen;
    for (const auto& [strip, rows] : strips) {
        QObject::connect(strip, &ToolStrip::chosen, &boxes,
                         [&chosen](const ToolRow& row) { chosen = row.command; });
        for (const ToolRow& row : rows) {
            QToolButton* key = strip->button(row.key);
            ASSERT_NE(key, nullptr) << row.key;
            EXPECT_TRUE(key->isEnabled()) << row.key;
            // What the menus run has been walked there.
            if (inMenus.contains(row.command) && row.command != Commands::plprint)
                continue;
            if (row.command == Commands::Yellow)
                program->commands().run(Commands::White);
            EXPECT_TRUE(doesSomething([key] { key->click(); })) << row.key;
            EXPECT_EQ(chosen, row.command) << row.key;
        }
    }
}

TEST_F(CommandWalkTest, ExitEndsTheProgram) {
    begin();
    QTimer::singleShot(0, &boxes,
                       [this] { program->window().menus().item(Commands::exitmnu)->trigger(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(program->ended());
}

}  // namespace
}  // namespace velmora
