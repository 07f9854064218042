#include "app/Program.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/CommandTable.h"
#include "core/forms/Rail.h"
#include "core/forms/StatusBar.h"
#include "forms/Widgets.h"
#include "phonebook/PhonebookRecord.h"
#include "phonebook/forms/Form4.h"
#include "platform/controls/DragFormats.h"
#include "platform/controls/EntryList.h"
#include "platform/controls/PadEdit.h"
#include "platform/controls/SSDay.h"
#include "platform/controls/TrashCan.h"
#include "platform/qt/Theme.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

// The whole program in folders of its own, without the events of today.
class ProgramTest : public testing::Test {
  protected:
    ProgramTest() {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.file("config")));
        applyLook();
    }

    void start() {
        program.emplace(NativePath(folder.path()));
        program->start();
        program->window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&program->window()));
    }
    template <typename Control>
    Control& inWindow(const char* name) {
        return *program->window().findChild<Control*>(QLatin1String(name));
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
    std::string book;
    for (int i = 0; i < 2000; ++i) {
        PhonebookRecord record;
        record.assign(Field::First, "Ann");
        record.assign(Field::Last, "Adair" + std::to_string(i));
        book.append(record.bytes().data(), record.bytes().size());
    }
    folder.write("DATAY.QEL", book);
    start();
    program->commands().run(Commands::searchi);
    auto* form = program->window().findChild<Form4*>();
    ASSERT_NE(form, nullptr);
    form->findChild<QLineEdit*>("Text1")->setText("no such text");
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

TEST_F(ProgramTest, EachCommandIsBoundOrKnownNotToBeBuilt) {
    const std::set<std::string_view> notBuilt{
        Commands::runmnu,        Commands::backupmnu, Commands::exitwinmnu, Commands::Setupmnu,
        Commands::importplanner, Commands::faxmnu,    Commands::Importmnu,  Commands::importoldmnu,
        Commands::exportmnu,     Commands::Explorer,  Commands::Control,
    };
    program.emplace(NativePath(folder.path()));
    std::set<std::string_view> rows;
    for (const MenuRow& row : menuTree())
        if (!isHead(row) && !isSeparator(row))
            rows.insert(row.name);
    for (const auto keys : {mainToolbar(), contactToolbar(), phonebookToolbar()})
        for (const ToolRow& row : keys)
            rows.insert(row.command);
    for (const std::string_view name : rows)
        EXPECT_NE(program->commands().isBound(name), notBuilt.contains(name)) << name;
    for (const std::string_view name : notBuilt)
        EXPECT_TRUE(rows.contains(name)) << name;
}

}  // namespace
}  // namespace velmora
