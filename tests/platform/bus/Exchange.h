#pragma once

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>

#include "support/TestsFolder.h"

namespace velmora::test {

// Message buses of this process's own and the mocks of telephone services on them; see
// tests/e2e/telephone_exchange.py. The environment names the buses as long as it lives.
class Exchange {
  public:
    Exchange() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral("/usr/bin/python3"),
                       {QString::fromStdString(testsFolder() + "/e2e/telephone_exchange.py")});
        const QByteArrayList addresses = answer().split(' ');
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", addresses.value(0));
        qputenv("DBUS_SESSION_BUS_ADDRESS", addresses.value(1));
    }
    ~Exchange() {
        process_.closeWriteChannel();
        process_.waitForFinished();
        qunsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    }
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    // Has one of its operations done.
    void obey(const char* operation, const QJsonObject& keywords) {
        process_.write(
            QJsonDocument(QJsonArray{operation, keywords}).toJson(QJsonDocument::Compact) + '\n');
        EXPECT_EQ(answer().toStdString(), "done");
    }

    void start(const char* service) { obey("start", {{"service", service}}); }
    void stop(const char* service) { obey("stop", {{"service", service}}); }
    void call(const char* service, const QString& number, const QString& name = {},
              const char* state = "incoming") {
        obey("call", {{"service", service}, {"number", number}, {"name", name}, {"state", state}});
    }

  private:
    QByteArray answer() {
        constexpr int kPatience = 60000;  // milliseconds
        while (!process_.canReadLine())
            if (process_.state() == QProcess::NotRunning || !process_.waitForReadyRead(kPatience)) {
                ADD_FAILURE() << "the telephone exchange does not answer";
                return {};
            }
        return process_.readLine().trimmed();
    }

    QProcess process_;
};

}  // namespace velmora::test
