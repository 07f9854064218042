#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTest>
#include <algorithm>
#include <utility>

#include "platform/files/PosixFiles.h"
#include "platform/qt/DesktopPrograms.h"
#include "platform/qt/QtText.h"
#include "support/FakeMessages.h"
#include "support/FakePhonebookPane.h"
#include "support/PhonebookFixture.h"
#include "support/TemporaryFolder.h"
#include "telephony/MailAndWeb.h"

namespace velmora {
namespace {

// Starts what it is told to, and counts.
class CountingStarter final : public ProgramStarter {
  public:
    explicit CountingStarter(ProgramStarter& real) : real_(real) {}
    bool start(const std::string& program, const std::vector<std::string>& arguments) override {
        const bool started = real_.start(program, arguments);
        count += started ? 1 : 0;
        return started;
    }
    bool startMinimised(const std::string& program,
                        const std::vector<std::string>& arguments) override {
        return start(program, arguments);
    }
    [[nodiscard]] bool finds(const std::string& program) const override {
        return real_.finds(program);
    }
    int count = 0;

  private:
    ProgramStarter& real_;
};

// Entries that hold what a shell, an option parser or a launcher would take for something else, and
// a program that records what it was started with: in place of the browser, of the mail program and
// of the desktop's opener, which is looked for on the search path.
class HostileTextsTest : public ::testing::Test, protected test::PhonebookFixture {
  protected:
    HostileTextsTest() {
        QDir().mkpath(QString::fromStdString(folder.file("eudora")));
        QDir().mkpath(QString::fromStdString(folder.file("records")));
        for (const std::string& program : {folder.file("xdg-open"), folder.file("eudora/program")})
            makeRecorder(program);
        qputenv("PATH", QByteArray::fromStdString(folder.path() + ":") + path);
        settings.Save("Browser", folder.file("eudora/program"));
        settings.Save("EMail", folder.file("eudora/program"));
        list.selected = "Smith, Ann";
    }
    ~HostileTextsTest() override { qputenv("PATH", path); }

    // It writes its arguments, each with a NUL behind it, and gives the file its name when all are
    // there.
    void makeRecorder(const std::string& program) {
        QFile file(QString::fromStdString(program));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\ncd '" + QByteArray::fromStdString(folder.file("records")) +
                   "'\nprintf '%s\\0' \"$@\" >$$.part\nmv $$.part $$.done\n");
        file.close();
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    // About 200 texts.
    std::vector<std::string> hostileTexts() const {
        const std::string touch = "touch " + folder.file("owned");
        std::vector<std::string> texts;
        for (const std::string& core : {std::string("$(" + touch + ")"),
                                        "`" + touch + "`",
                                        "; " + touch,
                                        "| " + touch,
                                        "&& " + touch,
                                        "& " + touch + " &",
                                        "> " + folder.file("owned"),
                                        "\"; " + touch,
                                        "'; " + touch,
                                        "\n" + touch,
                                        "\r\n" + touch,
                                        std::string("\0", 1) + touch,
                                        std::string("--version"),
                                        std::string("-h"),
                                        std::string("%s%n%x"),
                                        std::string("%0a%00"),
                                        std::string("*"),
                                        std::string("~"),
                                        std::string("$HOME"),
                                        std::string("\\\\host\\share"),
                                        std::string("..\\..\\x"),
                                        std::string("\x1b[2J"),
                                        std::string("file:///etc/passwd"),
                                        std::string("x.desktop"),
                                        std::string("javascript:alert(1)"),
                                        std::string("a b  c"),
                                        std::string("\tx"),
                                        std::string("\xE9\x80\xFF"),
                                        std::string("!!"),
                                        std::string("#")})
            for (const char* before :
                 {"", "-", " --o=", "\"", "ann@x.example ", "http://x/", "'a' "})
                texts.push_back(before + core);
        return texts;
    }

    void storeEntry(const std::string& text) {
        PhonebookRecord ann = test::personRecord("Smith", "Ann");
        for (const Field field : {Field::EMail, Field::WebPage, Field::FileAttachment})
            ann.assign(field, text);
        yellow() = test::bytesOf(ann);
    }

    // The arguments of all programs that were started since the last call.
    std::vector<QByteArrayList> records() {
        QDir done(QString::fromStdString(folder.file("records")), QStringLiteral("*.done"));
        const auto ended = [&] {
            done.refresh();
            return static_cast<int>(done.count()) == starter.count;
        };
        EXPECT_TRUE(QTest::qWaitFor(ended, 60000)) << done.count() << " of " << starter.count;
        std::vector<QByteArrayList> all;
        for (const QString& name : done.entryList()) {
            QFile file(done.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            QByteArrayList arguments = file.readAll().split('\0');
            arguments.removeLast();  // behind the last NUL
            all.push_back(arguments);
            file.remove();
        }
        starter.count = 0;
        return all;
    }

    // What must reach a program of a text: blanks and NULs at its edges are none of it.
    QByteArray unharmed(std::string text) const {
        std::erase_if(text, [](char c) { return c == '\0'; });
        return toQt(text, codePage).trimmed().toUtf8();
    }

    // Runs the commands on an entry of each text, and looks at what has reached the programs.
    template <typename Run>
    void expectHarmless(const Run& run) {
        const auto texts = hostileTexts();
        ASSERT_GE(texts.size(), 200U);
        std::vector<std::string> batch;
        for (const std::string& text : texts) {
            storeEntry(text);
            run();
            batch.push_back(text);
            if (batch.size() % 30 == 0 || text == texts.back())
                lookAt(std::exchange(batch, {}));
        }
        EXPECT_GT(reached, 200) << "most of them are no harm";
    }
    void lookAt(const std::vector<std::string>& batch) {
        for (const QByteArrayList& arguments : records()) {
            if (arguments == QByteArrayList{QByteArray()} || arguments.isEmpty())
                continue;  // the program alone
            ASSERT_EQ(arguments.size(), 1) << arguments.join("|").toStdString();
            EXPECT_FALSE(arguments[0].startsWith('-')) << arguments[0].toStdString();
            EXPECT_TRUE(std::any_of(batch.begin(), batch.end(), [&](const std::string& text) {
                return arguments[0].contains(unharmed(text));
            })) << arguments[0].toStdString();
            ++reached;
        }
        EXPECT_FALSE(QFile::exists(QString::fromStdString(folder.file("owned"))));
    }

    const QByteArray path = qgetenv("PATH");
    test::TemporaryFolder folder;
    test::FakePhonebookPane list;
    test::FakeMessages messages;
    QtProgramStarter real{codePage};
    CountingStarter starter{real};
    DesktopOpener opener{starter};
    PosixFiles realFiles{NativePaths(codePage)};
    SelectedEntry entry{state, PhonebookFixture::store, list};
    MailAndWeb commands{{settings,
                         entry,
                         realFiles,
                         starter,
                         opener,
                         messages,
                         codePage,
                         {"https://home.example/", "desk@home.example"},
                         folder.path()}};
    int reached = 0;
};

TEST_F(HostileTextsTest, ReachTheNamedProgramsAsOneArgumentOrNotAtAll) {
    expectHarmless([this] {
        commands.mailToEntry();
        commands.goToEntrysPage();
    });
}

TEST_F(HostileTextsTest, ReachTheOpenerOfTheDesktopAsOneArgumentOrNotAtAll) {
    settings.Save("IEEnhanced", "YES");
    expectHarmless([this] {
        commands.mailToEntry();
        commands.goToEntrysPage();
        commands.openEntrysFile();
    });
}

}  // namespace
}  // namespace velmora
