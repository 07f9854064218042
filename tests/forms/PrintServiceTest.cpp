#include "platform/qt/PrintService.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include "platform/Failure.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;

// Takes connections and never says a word.
class SilentServer {
  public:
    SilentServer() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        EXPECT_EQ(::bind(socket_, reinterpret_cast<sockaddr*>(&address), size), 0);
        EXPECT_EQ(::listen(socket_, 8), 0);
        ::getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &size);
        qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)));
    }
    ~SilentServer() {
        qunsetenv("CUPS_SERVER");
        ::close(socket_);
    }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

  private:
    int socket_;
};

class PrintServiceTest : public testing::Test {
  protected:
    // A print system that says what a shell script writes.
    [[nodiscard]] QString saying(const char* script) {
        QString path = QString::fromStdString(folder_.path() + "/service");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#!/bin/sh\n") + script);
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    test::TemporaryFolder folder_;
};

TEST_F(PrintServiceTest, ASystemThatTakesTheConnectionAndNeverAnswersIsGivenUp) {
    const SilentServer server;
    PrintService service(QStringLiteral("/proc/self/exe"), 1s);
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    try {
        service.ask({}, {});
        ADD_FAILURE() << "was answered";
    } catch (const Failure& failure) {
        EXPECT_STREQ(failure.what(), "The print system does not answer.");
    }
    EXPECT_GT(ticks, 10) << "events stood still";
    EXPECT_TRUE(service.answers().printers.isEmpty());
}

TEST_F(PrintServiceTest, AQuestionIsCalledOffAtOnce) {
    const SilentServer server;
    PrintService service(QStringLiteral("/proc/self/exe"), 10min);
    int turns = 0;
    EXPECT_FALSE(service.ask({}, [&] { return ++turns < 5; }));
}

TEST_F(PrintServiceTest, AQuestionInTheBackgroundTellsThatNoAnswerCame) {
    const SilentServer server;
    PrintService service(QStringLiteral("/proc/self/exe"), 500ms);
    std::optional<bool> answered;
    service.askSoon({}, [&](bool good) { answered = good; });
    EXPECT_FALSE(answered);
    EXPECT_TRUE(PrintService::pause(1min, [&] { return !answered; }) || answered == false);
    EXPECT_EQ(answered, false);
}

TEST_F(PrintServiceTest, AnswersInTheBackgroundAreKept) {
    PrintService service(
        saying("printf 'ready\\nprinter\\tPocket\\ndefault\\tPocket\\n'\n"
               "printf 'sheet\\tPocket\\tA4\\tA4\\t595\\t842\\t9\\t9\\t9\\t9\\nend\\n'"));
    bool answered = false;
    service.askSoon({}, [&](bool good) { answered = good; });
    PrintService::pause(1min, [&] { return !answered; });
    EXPECT_TRUE(answered);
    ASSERT_TRUE(service.sheetOf(QStringLiteral("Pocket")));
    EXPECT_EQ(service.sheetOf(QStringLiteral("Pocket"))->name, QStringLiteral("A4"));
    EXPECT_EQ(service.sheetOf(QStringLiteral("Attic")), nullptr);
}

TEST_F(PrintServiceTest, AnAnswerThatBreaksOffOrTalksNonsenseIsNone) {
    for (const char* script :
         {R"(printf 'ready\nprinter\tPocket\n')", R"(printf 'sheet\tPocket\nend\tx\n')",
          "head -c 100000 /dev/urandom", "kill -SEGV $$", "exit 3"}) {
        PrintService service(saying(script));
        EXPECT_TRUE(service.answers().printers.isEmpty()) << script;
        EXPECT_EQ(service.sheetOf(QStringLiteral("Pocket")), nullptr) << script;
    }
}

TEST_F(PrintServiceTest, AProgramThatCanNotBeStartedIsNoAnswer) {
    PrintService service(QStringLiteral("/no/such/program"));
    EXPECT_TRUE(service.answers().printers.isEmpty());
}

TEST_F(PrintServiceTest, AJobThatNobodyTakesWithinTheLimitIsAFailure) {
    PrintService service(
        saying(
            "if [ $2 = send ]; then echo ready; exec sleep 600; fi\n"
            "printf "
            "'printer\\tPocket\\nsheet\\tPocket\\tA4\\tA4\\t595\\t842\\t9\\t9\\t9\\t9\\nend\\n'"),
        3s);
    EXPECT_THROW((void)service.send(QStringLiteral("Pocket"), QStringLiteral("x"),
                                    PageOrientation::Portrait, "%PDF", {}),
                 Failure);
}

TEST_F(PrintServiceTest, AQueueThatIsFullIsNotARefusal) {
    for (const auto& [code, sent] : {std::pair(0x050B, PrintService::Sent::NotNow),
                                     std::pair(0x0506, PrintService::Sent::Refused)}) {
        const std::string script =
            "if [ $2 = send ]; then cat >/dev/null; printf 'refused\\t" + std::to_string(code) +
            "\\tno\\n'; exit; fi\n"
            "printf "
            "'printer\\tPocket\\nsheet\\tPocket\\tA4\\tA4\\t595\\t842\\t9\\t9\\t9\\t9\\nend\\n'";
        PrintService service(saying(script.c_str()));
        const auto answer = service.send(QStringLiteral("Pocket"), QStringLiteral("x"),
                                         PageOrientation::Portrait, "%PDF", {});
        EXPECT_EQ(answer.sent, sent);
        EXPECT_EQ(answer.why, "no");
    }
}

}  // namespace
}  // namespace velmora
