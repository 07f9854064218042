#include "platform/qt/PrintServiceMain.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QLibrary>
#include <QPrinter>
#include <QPrinterInfo>
#include <array>
#include <csignal>
#include <cstdio>
#include <string_view>

namespace velmora {
namespace {

constexpr unsigned kLongestLife = 600;  // seconds, should nobody end it
constexpr int kLastGoodAnswer = 0x0007;
constexpr int kContinue = 100;  // of HTTP
constexpr std::size_t kPiece = 65536;

volatile std::sig_atomic_t takeBack = 0;

void line(const QStringList& parts) {
    const QByteArray text = parts.join(QLatin1Char('\t')).toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

QStringList numbers(std::initializer_list<double> all) {
    QStringList texts;
    for (const double number : all)
        texts << QString::number(number, 'f', 4);
    return texts;
}

void describeSheet(const QPrinterInfo& info) {
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageSize(info.defaultPageSize());  // it begins with A4, whatever the printer has
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Point);
    const QPageSize sheet = layout.pageSize();
    const QSizeF size = sheet.size(QPageSize::Point);
    const QMarginsF margins = layout.minimumMargins();
    line(QStringList{QStringLiteral("sheet"), info.printerName(), sheet.key(), sheet.name()} +
         numbers({size.width(), size.height(), margins.left(), margins.top(), margins.right(),
                  margins.bottom()}));
}

void describe(const QString& wanted) {
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        line({QStringLiteral("printer"), name});
    const QString chosen = QPrinterInfo::defaultPrinterName();
    if (!chosen.isEmpty())
        line({QStringLiteral("default"), chosen});
    const QPrinterInfo info = QPrinterInfo::printerInfo(wanted.isEmpty() ? chosen : wanted);
    if (!info.isNull())
        describeSheet(info);
    line({QStringLiteral("end")});
}

// The functions of the print system's library that hand a job on. It comes with the printing of the
// toolkit; where it is missing there are no printers either.
struct Cups {
    struct Option;

    Cups() : library(QStringLiteral("cups"), 2) {
        load(addOption, "cupsAddOption");
        load(createJob, "cupsCreateJob");
        load(startDocument, "cupsStartDocument");
        load(writeData, "cupsWriteRequestData");
        load(finishDocument, "cupsFinishDocument");
        load(cancelJob, "cupsCancelJob");
        load(lastError, "cupsLastError");
        load(lastText, "cupsLastErrorString");
    }

    template <typename Function>
    void load(Function*& function, const char* name) {
        function = reinterpret_cast<Function*>(library.resolve(name));
        complete = complete && function;
    }

    QLibrary library;
    bool complete = true;
    int (*addOption)(const char*, const char*, int, Option**) = nullptr;
    int (*createJob)(void*, const char*, const char*, int, Option*) = nullptr;
    int (*startDocument)(void*, const char*, int, const char*, const char*, int) = nullptr;
    int (*writeData)(void*, const char*, std::size_t) = nullptr;
    int (*finishDocument)(void*, const char*) = nullptr;
    int (*cancelJob)(const char*, int) = nullptr;
    int (*lastError)() = nullptr;
    const char* (*lastText)() = nullptr;
};

void refused(const Cups& cups) {
    const char* text = cups.lastText();
    line({QStringLiteral("refused"), QString::number(cups.lastError()),
          QString::fromUtf8(text ? text : "").simplified()});
}

// Hands the standard input on. False when the print system does not take it, or it is taken back.
bool handOn(const Cups& cups) {
    std::array<char, kPiece> piece;
    while (takeBack == 0) {
        const ssize_t count = ::read(STDIN_FILENO, piece.data(), piece.size());
        if (count == 0)
            return true;
        if (count < 0 ||
            cups.writeData(nullptr, piece.data(), static_cast<std::size_t>(count)) != kContinue)
            return false;
        line({QStringLiteral("more")});
    }
    return false;
}

void send(const QStringList& words) {
    const QString& name = words[0];
    if (QPrinterInfo::printerInfo(name).isNull())
        return line({QStringLiteral("gone")});
    const Cups cups;
    if (!cups.complete)
        return line({QStringLiteral("refused"), QStringLiteral("0"),
                     QStringLiteral("the print system can not be called")});
    const QByteArray queue = name.section(QLatin1Char('/'), 0, 0).toUtf8();
    const QByteArray title = words[1].toUtf8();
    Cups::Option* options = nullptr;
    int count = cups.addOption("media", words[2].toUtf8().constData(), 0, &options);
    if (words[3] == QStringLiteral("1"))
        count = cups.addOption("landscape", "", count, &options);
    const int job = cups.createJob(nullptr, queue.constData(), title.constData(), count, options);
    if (job == 0)
        return refused(cups);
    if (cups.startDocument(nullptr, queue.constData(), job, title.constData(), "application/pdf",
                           1) != kContinue ||
        !handOn(cups) || cups.finishDocument(nullptr, queue.constData()) > kLastGoodAnswer) {
        refused(cups);
        cups.cancelJob(queue.constData(), job);
        return;
    }
    line({QStringLiteral("end")});
}

void takeBackOnTerm() {
    struct sigaction action {};
    action.sa_handler = [](int) { takeBack = 1; };  // and a waiting read() returns
    ::sigaction(SIGTERM, &action, nullptr);
}

}  // namespace

bool isPrintServiceCall(int argc, char** argv) {
    return argc > 2 && std::string_view(argv[1]) == kPrintServiceArgument;
}

int printServiceMain(int argc, char** argv) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::alarm(kLongestLife);
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(2);
    line({QStringLiteral("ready")});
    if (words[0] == QStringLiteral("describe")) {
        describe(words.value(1));
    } else if (words[0] == QStringLiteral("send") && words.size() == 5) {
        takeBackOnTerm();
        send(words.mid(1));
    }
    // What the libraries have begun needs no orderly end.
    ::_exit(0);
}

}  // namespace velmora
