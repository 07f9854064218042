#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <string>

#include "support/TestsFolder.h"

namespace velmora::test {

// A print system of this process's own, with the queue "Pocket" on Letter paper as the default;
// see tests/e2e/print_shop.py. Make it before anything looks for printers.
class PrintShop {
  public:
    PrintShop() {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QStringLiteral("/usr/bin/python3"),
                       {QString::fromStdString(testsFolder() + "/e2e/print_shop.py")});
        qputenv("CUPS_SERVER", QByteArray::fromStdString(answer()));
    }
    ~PrintShop() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }
    PrintShop(const PrintShop&) = delete;
    PrintShop& operator=(const PrintShop&) = delete;

    // The file of the next job that arrives at the printer.
    std::string nextSheet() { return ask("next"); }

    // True when no other job has arrived, and none is on its way.
    bool hasNothingMore() { return ask("nothing more") == "True"; }

    // Runs a command of the print system.
    void administer(const std::string& command) { ask("administer " + command); }

  private:
    std::string ask(const std::string& line) {
        process_.write(QByteArray::fromStdString(line + "\n"));
        return answer();
    }

    std::string answer() {
        constexpr int kPatience = 60000;  // milliseconds
        while (!process_.canReadLine())
            if (!process_.waitForReadyRead(kPatience)) {
                ADD_FAILURE() << "the print shop does not answer";
                return {};
            }
        return process_.readLine().trimmed().toStdString();
    }

    QProcess process_;
};

// The only one, made by main().
PrintShop& printShop();

}  // namespace velmora::test
