#include "platform/qt/QtPrinters.h"

#include <QStandardPaths>
#include <chrono>
#include <utility>

#include "platform/Failure.h"
#include "platform/PrintWatch.h"
#include "platform/qt/PrintPages.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

constexpr std::chrono::milliseconds kBetweenTries{1000};  // of a queue that is full

Failure notPrinted(const std::string& utf8Printer, const std::string& why) {
    return Failure("Nothing was printed: the printer \"" + utf8Printer + "\" " + why +
                   ". Printer Setup in the File menu chooses another one.");
}

}  // namespace

QPageLayout layoutOf(const std::string& printer, PageOrientation orientation, PrintService& service,
                     const CodePage& codePage) {
    const PrintService::Sheet* sheet =
        printer == kPrintToPdf ? nullptr : service.sheetOf(toQt(printer, codePage));
    return sheet ? sheet->layout(orientation) : letterLayout(orientation);
}

bool QtPrinters::ask(const std::string& printer, const GoOn& goOn) {
    return service_.ask(toQt(printer, codePage_), goOn);
}

std::vector<std::string> QtPrinters::printerNames() const {
    std::vector<std::string> names;
    for (const QString& name : service_.answers().printers)
        // One whose name has other characters could not be asked for.
        if (keepToCodePage(name, codePage_) == name)
            names.push_back(fromQt(name, codePage_));
    names.emplace_back(kPrintToPdf);
    return names;
}

std::string QtPrinters::defaultPrinter() const {
    const QString& name = service_.answers().standard;
    if (name.isEmpty() || keepToCodePage(name, codePage_) != name)
        return kPrintToPdf;
    return fromQt(name, codePage_);
}

bool QtPrinters::print(PrintJob job, PrintWatch* watch) {
    if (job.printer != kPrintToPdf)
        return printOnPaper(job, watch);
    if (run_)
        return printToFile(job, watch);
    beginRun(job.title);
    try {
        const bool done = printToFile(job, watch);
        endRun();
        return done;
    } catch (const Failure&) {
        run_.reset();
        throw;
    }
}

bool QtPrinters::printOnPaper(PrintJob& job, PrintWatch* watch) {
    const std::string utf8Name = codePage_.toUtf8(job.printer);
    const QString name = toQt(job.printer, codePage_);
    const PrintService::Sheet* sheet = service_.sheetOf(name);
    if (!sheet)
        throw notPrinted(utf8Name, "is not there any more");
    PdfPages pages(job.title, codePage_);
    if (!pages.play(job, sheet->layout(job.orientation), watch))
        return false;
    const QByteArray pdf = pages.finish();
    const GoOn sending = [&] { return !watch || watch->sending(); };
    const GoOn waiting = [&] { return watch && watch->waitingForTheQueue(); };
    while (true) {
        const PrintService::Answer answer =
            service_.send(name, toQt(job.title, codePage_), job.orientation, pdf, sending);
        switch (answer.sent) {
            case PrintService::Sent::Yes:
                return true;
            case PrintService::Sent::CalledOff:
                return false;
            case PrintService::Sent::PrinterGone:
                throw notPrinted(utf8Name, "is not there any more");
            case PrintService::Sent::Refused:
                throw notPrinted(utf8Name, "did not take it (" + answer.why + ")");
            case PrintService::Sent::NotNow:
                if (!watch)
                    throw notPrinted(utf8Name, "did not take it (" + answer.why + ")");
                if (!PrintService::pause(kBetweenTries, waiting))
                    return false;
        }
    }
}

std::optional<std::string> QtPrinters::fileToWrite() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString proposal = folder + QStringLiteral("/Velmora.pdf");
    return messages_.chooseFileToSave({.title = kPrintToPdf,
                                       .defaultExtension = ".pdf",
                                       .filter = "PDF (*.pdf)|*.pdf|All Files (*.*)|*.*",
                                       .fileName = fromQt(proposal, codePage_)});
}

bool QtPrinters::printToFile(PrintJob& job, PrintWatch* watch) {
    if (run_->path.empty()) {
        const std::optional<std::string> path = fileToWrite();
        if (!path)
            return false;
        run_->path = *path;
    }
    if (!run_->pages)
        run_->pages = std::make_unique<PdfPages>(run_->title, codePage_);
    if (run_->pages->play(job, letterLayout(job.orientation), watch))
        return true;
    run_->pages.reset();
    return false;
}

void QtPrinters::beginRun(const std::string& title) {
    run_ = Run{.title = title};
}

std::optional<std::string> QtPrinters::endRun() {
    const std::optional<Run> run = std::exchange(run_, std::nullopt);
    if (!run || !run->pages || run->pages->empty())
        return std::nullopt;
    const QByteArray pdf = run->pages->finish();
    files_.writeWhole(run->path, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
    return run->path;
}

}  // namespace velmora
