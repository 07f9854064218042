#include "platform/qt/QtPrinters.h"

#include <QBuffer>
#include <QLibrary>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <optional>

#include "platform/Failure.h"
#include "platform/qt/PrintPages.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

const QString kCreator = QStringLiteral("Velmora");

// The printer of this name; one that is null where there is none. QPrinter would silently take the
// default printer instead.
QPrinterInfo infoOf(const std::string& name, const CodePage& codePage) {
    return name == kPrintToPdf ? QPrinterInfo() : QPrinterInfo::printerInfo(toQt(name, codePage));
}

void prepare(QPrinter& printer, const QPrinterInfo& info, PageOrientation orientation) {
    printer.setPageSize(info.defaultPageSize());  // it begins with A4, whatever the printer has
    printer.setPageOrientation(toQt(orientation));
    printer.setPageLayout(withNeededMargins(printer.pageLayout()));
}

// What the print system said to the job that this thread handed over last; nothing when it took it.
// QPrinter looks at no answer. The functions live in the library that it has loaded by then.
struct Refusal {
    int answer = 0;
    std::string text;
};

std::optional<Refusal> refusal() {
    QLibrary cups(QStringLiteral("cups"), 2);
    const auto lastError = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
    const auto lastText = reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
    constexpr int kLastGoodAnswer = 0x0007;
    if (!lastError || !lastText || lastError() <= kLastGoodAnswer)
        return std::nullopt;
    const char* text = lastText();
    return Refusal{lastError(), text ? text : ""};
}

// Whether the printer may take the job later: too many are waiting, or it is busy.
bool isForNow(const Refusal& refusal) {
    constexpr int kNotPossible = 0x0404;  // how a queue says that it holds as many as it may
    constexpr int kTemporary = 0x0505;
    constexpr int kBusy = 0x0507;
    constexpr int kTooManyJobs = 0x050B;
    return refusal.answer == kNotPossible || refusal.answer == kTemporary ||
           refusal.answer == kBusy || refusal.answer == kTooManyJobs;
}

Failure notPrinted(const std::string& utf8Printer, const std::string& why) {
    return Failure("Nothing was printed: the printer \"" + utf8Printer + "\" " + why +
                   ". Printer Setup in the File menu chooses another one.");
}

}  // namespace

QPageLayout layoutOf(const std::string& printer, PageOrientation orientation,
                     const CodePage& codePage) {
    const QPrinterInfo info = infoOf(printer, codePage);
    if (info.isNull())
        return letterLayout(orientation);
    QPrinter device(info, QPrinter::HighResolution);
    prepare(device, info, orientation);
    return device.pageLayout();
}

std::vector<std::string> QtPrinters::printerNames() const {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        // One whose name has other characters could not be asked for.
        if (keepToCodePage(name, codePage_) == name)
            names.push_back(fromQt(name, codePage_));
    names.emplace_back(kPrintToPdf);
    return names;
}

std::string QtPrinters::defaultPrinter() const {
    const QString name = QPrinterInfo::defaultPrinterName();
    if (name.isEmpty() || keepToCodePage(name, codePage_) != name)
        return kPrintToPdf;
    return fromQt(name, codePage_);
}

bool QtPrinters::print(const PrintJob& job) {
    if (job.printer == kPrintToPdf)
        return printToFile(job);
    printOnPaper(job);
    return true;
}

void QtPrinters::printOnPaper(const PrintJob& job) {
    const std::string name = codePage_.toUtf8(job.printer);
    const QPrinterInfo info = infoOf(job.printer, codePage_);
    if (info.isNull())
        throw notPrinted(name, "is not there any more");
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setResolution(kPrinterResolution);
    printer.setCreator(kCreator);
    printer.setDocName(toQt(job.title, codePage_));
    prepare(printer, info, job.orientation);
    if (!paintPages(printer, job, codePage_))
        throw notPrinted(name, "can not be reached");
    const auto why = refusal();
    if (why && isForNow(*why))
        throw QueueIsFull(notPrinted(name, "takes no more now (" + why->text + ")").what());
    if (why)
        throw notPrinted(name, "did not take it (" + why->text + ")");
}

bool QtPrinters::printToFile(const PrintJob& job) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString proposal = folder + QStringLiteral("/Velmora.pdf");
    const std::optional<std::string> path =
        messages_.chooseFileToSave({.title = kPrintToPdf,
                                    .defaultExtension = ".pdf",
                                    .filter = "PDF (*.pdf)|*.pdf|All Files (*.*)|*.*",
                                    .fileName = fromQt(proposal, codePage_)});
    if (!path)
        return false;
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(kPrinterResolution);
    writer.setTitle(toQt(job.title, codePage_));
    writer.setCreator(kCreator);
    writer.setPageLayout(letterLayout(job.orientation));
    if (!paintPages(writer, job, codePage_))
        throw Failure("Nothing was printed: the pages could not be made.");
    const QByteArray& pdf = bytes.data();
    files_.writeWhole(*path, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
    return true;
}

}  // namespace velmora
