#include "platform/bus/BusCalls.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTimer>
#include <cstring>

#include "app/DesktopCallServices.h"
#include "platform/bus/Exchange.h"
#include "platform/bus/SilentBus.h"
#include "platform/qt/PollPump.h"
#include "support/TemporaryFolder.h"

namespace velmora {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

// Lets events run until the condition holds.
bool eventsUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer end(std::chrono::seconds(20));
    while (!condition() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return condition();
}

class BusCallsTest : public ::testing::Test {
  protected:
    BusCallsTest() { tick.start(20); }  // so that no wait for events lasts

    struct Heard {
        std::string service, number, name;
        bool operator==(const Heard&) const = default;
    };

    void listen() {
        services = desktopCallServices();
        for (const auto& service : services)
            service->listen([this, name = service->name()](const CallReport& report) {
                if (report.number.starts_with("probe"))
                    probed.insert(name);
                else
                    heard.push_back({name, report.number, report.name});
            });
    }

    // Rings until a call of the service is heard, so that no later one is missed.
    void awaitLine(const char* service) {
        probed.erase(service);
        QElapsedTimer sinceProbe;
        ASSERT_TRUE(eventsUntil([&] {
            if (!sinceProbe.isValid() || sinceProbe.hasExpired(200)) {
                exchange.call(service, QStringLiteral("probe"));
                sinceProbe.start();
            }
            return probed.contains(service);
        }));
    }
    void startAndAwait(std::initializer_list<const char*> kinds) {
        for (const char* kind : kinds) {
            exchange.start(kind);
            awaitLine(kind);
        }
    }
    bool heardSoFar(std::size_t calls) {
        return eventsUntil([&] { return heard.size() >= calls; });
    }

    QTimer tick;
    test::Exchange exchange;
    std::vector<std::unique_ptr<CallService>> services;
    std::vector<Heard> heard;
    std::set<std::string> probed;
};

constexpr std::initializer_list<const char*> kAll{"ofono", "modemmanager", "kdeconnect"};

TEST_F(BusCallsTest, HearsServicesThatStartedLater) {
    listen();
    startAndAwait(kAll);
    exchange.call("ofono", "+15165551212", "Ann");
    exchange.call("modemmanager", "+15165551213");
    exchange.call("kdeconnect", "+15165551214", "Bob");
    ASSERT_TRUE(heardSoFar(3));
    EXPECT_THAT(heard, ::testing::UnorderedElementsAre(Heard{"ofono", "+15165551212", "Ann"},
                                                       Heard{"modemmanager", "+15165551213", ""},
                                                       Heard{"kdeconnect", "+15165551214", "Bob"}));
}

TEST_F(BusCallsTest, HearsServicesThatRanBeforeAndThoseThatWereStartedAnew) {
    for (const char* kind : kAll)
        exchange.start(kind);
    listen();
    for (const char* kind : kAll) {
        awaitLine(kind);
        exchange.stop(kind);
        exchange.start(kind);
        exchange.call(kind, "555");
    }
    ASSERT_TRUE(heardSoFar(3));
    EXPECT_THAT(heard, SizeIs(3));
}

TEST_F(BusCallsTest, OnlyWhatComesInIsACall) {
    listen();
    startAndAwait(kAll);
    for (const char* state : {"dialing", "alerting", "active", "disconnected", ""})
        exchange.call("ofono", "1", "", state);
    exchange.call("ofono", "2", "", "waiting");
    exchange.call("modemmanager", "1", "", "outgoing");
    for (const char* type : {"missedCall", "talking", "ringing", ""})
        exchange.call("kdeconnect", "1", "", type);
    for (const char* kind : kAll)
        awaitLine(kind);
    EXPECT_THAT(heard, ElementsAre(Heard{"ofono", "2", ""}));
}

TEST_F(BusCallsTest, AModemMayTellTheNumberLaterAndUseAPathAgain) {
    listen();
    startAndAwait({"modemmanager"});
    const auto call = [this](const char* what, int path, const char* number = "") {
        exchange.obey("modem_call", {{"what", what}, {"call", path}, {"number", number}});
    };
    call("added", 1);
    awaitLine("modemmanager");
    EXPECT_THAT(heard, IsEmpty());
    call("changed", 1, "111");
    ASSERT_TRUE(heardSoFar(1));
    call("changed", 1, "112");  // it has been told
    call("deleted", 1);
    call("added", 1, "222");
    ASSERT_TRUE(heardSoFar(2));
    call("added", 2);
    call("deleted", 2);
    awaitLine("modemmanager");
    EXPECT_THAT(heard,
                ElementsAre(Heard{"modemmanager", "111", ""}, Heard{"modemmanager", "222", ""}));
}

TEST_F(BusCallsTest, TextsOfAnyLengthAndKindComeAsTheyAre) {
    listen();
    startAndAwait({"ofono", "kdeconnect"});
    const QString name = QStringLiteral("<b>Ann</b>\r\n&\u00e9 \u65e5\t\x7f");
    for (const char* kind : {"ofono", "kdeconnect"}) {
        heard.clear();
        for (const int length : {0, 7, 40, 500})
            exchange.call(kind, QString(length, '5'), name);
        exchange.call(kind, "5", QString(100000, 'x'));
        ASSERT_TRUE(heardSoFar(5));
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(heard[i].number, std::string(std::array{0U, 7U, 40U, 500U}[i], '5'));
            EXPECT_EQ(heard[i].name, name.toStdString());
        }
        EXPECT_THAT(heard[4].name, SizeIs(100000));
    }
}

TEST_F(BusCallsTest, SignalsOfAnotherShapeAreNoCalls) {
    listen();
    startAndAwait(kAll);
    const auto send = [this](const char* service, const char* member, const char* signature,
                             const QJsonArray& values) {
        exchange.obey("signal", {{"service", service},
                                 {"member", member},
                                 {"signature", signature},
                                 {"values", values}});
    };
    send("ofono", "CallAdded", "s", {"nonsense"});
    send("ofono", "CallAdded", "os", {"/a", "b"});
    send("modemmanager", "CallAdded", "s", {"/a"});
    send("modemmanager", "CallAdded", "o", {"/no/such/call"});
    send("modemmanager", "CallDeleted", "s", {"/a"});
    send("kdeconnect", "callReceived", "ss", {"callReceived", "1"});
    send("kdeconnect", "callReceived", "s", {"callReceived"});
    for (const char* kind : kAll)
        awaitLine(kind);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(BusCallsTest, AHundredCallsInASecondAreAllHeard) {
    listen();
    startAndAwait({"kdeconnect"});
    for (int i = 0; i < 100; ++i)
        exchange.call("kdeconnect", QString::number(1000 + i));
    ASSERT_TRUE(heardSoFar(100));
    for (std::size_t i = 0; i < 100; ++i)
        EXPECT_EQ(heard[i].number, std::to_string(1000 + i));
}

TEST_F(BusCallsTest, ABusThatIsStartedAnewIsJoinedAgain) {
    const auto bus = std::make_shared<MessageBus>(MessageBus::Kind::System);
    OfonoCalls calls(bus);
    calls.listen([this](const CallReport& report) {
        if (report.number == "probe")
            probed.insert("ofono");
    });
    const PollPump pump(*bus, 50ms);
    startAndAwait({"ofono"});
    exchange.stop("ofono");
    exchange.obey("restart_bus", {{"kind", "system"}});
    startAndAwait({"ofono"});
}

// More than a loaded machine takes for a turn, and far less than any wait for a bus.
constexpr auto kNoticed = 250ms;

// --- Buses that are not as they should be ---

// A place where connections are taken, or not even that, and nothing is ever said.
class SilentBus {
  public:
    enum class Manner { Accepts, LeavesWaiting };

    explicit SilentBus(Manner manner)
        : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, folder_.file("bus").c_str(), sizeof address.sun_path - 1);
        if (::bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            ::listen(socket_, manner == Manner::Accepts ? 10 : 0) != 0)
            throw std::runtime_error("no socket");
        const QByteArray name = QByteArray::fromStdString("unix:path=" + folder_.file("bus"));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", name);
        qputenv("DBUS_SESSION_BUS_ADDRESS", name);
    }
    ~SilentBus() {
        ::close(socket_);
        qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    }
    SilentBus(const SilentBus&) = delete;
    SilentBus& operator=(const SilentBus&) = delete;

    // True once somebody has said something to it.
    [[nodiscard]] bool wasSpokenTo() {
        if (connection_ < 0)
            connection_ = ::accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        char byte = 0;
        return connection_ >= 0 && ::recv(connection_, &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 1;
    }

  private:
    test::TemporaryFolder folder_;
    int socket_;
    int connection_ = -1;
};

// The longest time in which no event ran, while `work` was done and events ran until `until`.
std::chrono::milliseconds longestGap(const std::function<void()>& work,
                                     const std::function<bool()>& until) {
    std::chrono::milliseconds longest{0};
    QElapsedTimer sinceTick;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick, [&] {
        longest = std::max(longest, std::chrono::milliseconds(sinceTick.restart()));
    });
    tick.start(1);
    sinceTick.start();
    work();
    EXPECT_TRUE(eventsUntil(until));
    return longest;
}

TEST(BusesThatDoNotAnswer, HoldUpNeitherTheWindowNorTheEnd) {
    SilentBus bus(SilentBus::Manner::Accepts);
    std::vector<std::unique_ptr<CallService>> services;
    QElapsedTimer all;
    all.start();
    int turns = 0;
    const auto gap = longestGap(
        [&] {
            services = desktopCallServices();
            for (const auto& service : services)
                service->listen([](const CallReport&) { ADD_FAILURE() << "nobody calls"; });
        },
        [&] { return bus.wasSpokenTo() && ++turns > 50; });
    EXPECT_LT(gap, kNoticed);
    services.clear();
    EXPECT_LT(all.elapsed(), 5000);
}

TEST(BusesThatDoNotAnswer, ASessionBusThatSaysNothingIsForgotten) {
    const SilentBus bus(SilentBus::Manner::Accepts);
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    QElapsedTimer took;
    took.start();
    forgetSilentSessionBus(100ms);
    EXPECT_GE(took.elapsed(), 100);
    EXPECT_NE(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address);
    took.restart();
    forgetSilentSessionBus(20s);
    EXPECT_LT(took.elapsed(), 10000) << "there is none any more";
}

TEST(BusesThatDoNotAnswer, OneThatAnswersOrIsNotThereStaysTheSessionBus) {
    const test::Exchange exchange;
    const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    forgetSilentSessionBus(20s);
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    forgetSilentSessionBus(20s);
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "unix:path=/nowhere");
}

TEST(BusesThatDoNotAnswer, NoRoomForAConnectionHoldsNothingUpEither) {
    SilentBus bus(SilentBus::Manner::LeavesWaiting);
    std::vector<std::unique_ptr<CallService>> first = desktopCallServices();
    std::vector<std::unique_ptr<CallService>> second = desktopCallServices();
    int turns = 0;
    const auto gap = longestGap([] {}, [&] { return ++turns > 100; });
    EXPECT_LT(gap, kNoticed);
}

TEST(BusesThatDoNotAnswer, WhereThereIsNoneAllIsSilent) {
    test::TemporaryFolder folder;
    for (const std::string& address :
         {"unix:path=" + folder.file("none"), std::string("nonsense"), std::string()}) {
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", QByteArray::fromStdString(address));
        qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(address));
        std::vector<std::unique_ptr<CallService>> services = desktopCallServices();
        for (const auto& service : services)
            service->listen([](const CallReport&) {});
        int turns = 0;
        EXPECT_LT(longestGap([] {}, [&] { return ++turns > 20; }), kNoticed);
    }
    qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

}  // namespace
}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
