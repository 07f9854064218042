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
#include "phonebook/PhonebookRecord.h"
#include "phonebook/forms/Form4.h"
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

TEST_F(ProgramTest, EachCommandIsBoundOrKnownNotToBeBuilt) {
    const std::set<std::string_view> notBuilt{
        Commands::mergeprntmnu, Commands::runmnu,    Commands::backupmnu,     Commands::exitwinmnu,
        Commands::Setupmnu,     Commands::repprnt,   Commands::importplanner, Commands::prntentry,
        Commands::faxmnu,       Commands::Importmnu, Commands::importoldmnu,  Commands::exportmnu,
        Commands::envmnu,       Commands::Explorer,  Commands::Control,       Commands::Insert1,
        Commands::Insert2,
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
