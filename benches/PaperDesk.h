#pragma once

#include <QMainWindow>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "benches/TimedLoop.h"
#include "core/DataLocations.h"
#include "core/LongJobs.h"
#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "core/forms/StatusBar.h"
#include "phonebook/FileBooks.h"
#include "phonebook/PhonebookStore.h"
#include "platform/PrintRecorder.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/NativePaths.h"
#include "platform/files/PosixFiles.h"
#include "platform/qt/QtPrintMetrics.h"
#include "platform/qt/QtPrinters.h"
#include "support/MemorySettings.h"

namespace velmora::bench {

// Names the file that is asked for, and has no other answer.
class NamesTheFile final : public Messages {
  public:
    explicit NamesTheFile(std::string path) : path_(std::move(path)) {}

    void warn(const std::string&, const std::string&) override {}
    void tell(const std::string&, const std::string&) override {}
    bool ask(const std::string&, const std::string&, Answer) override { return false; }
    bool confirm(const std::string&, const std::string&) override { return false; }
    std::optional<std::string> askText(const std::string&, const std::string&,
                                       const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToOpen(const FileQuestion&) override {
        return std::nullopt;
    }
    std::optional<std::string> chooseFileToSave(const FileQuestion&) override { return path_; }
    void standardError(const std::string& text) override { throw std::runtime_error(text); }

  private:
    std::string path_;
};

// Prints where another output does, and notes when the first job was ended; it can keep the jobs
// instead.
class NotingOutput final : public PrintOutput {
  public:
    explicit NotingOutput(PrintOutput& output) : output_(output) {}

    bool ask(const std::string& printer, const GoOn& goOn) override {
        return output_.ask(printer, goOn);
    }
    [[nodiscard]] std::vector<std::string> printerNames() const override {
        return output_.printerNames();
    }
    [[nodiscard]] std::string defaultPrinter() const override { return output_.defaultPrinter(); }
    bool print(PrintJob job, PrintWatch* watch) override {
        if (!ended_)
            ended_ = std::chrono::steady_clock::now();
        if (!kept_)
            return output_.print(std::move(job), watch);
        kept_->push_back(std::move(job));
        return true;
    }
    void beginRun(const std::string& title) override {
        ended_.reset();
        output_.beginRun(title);
    }
    std::optional<std::string> endRun() override { return output_.endRun(); }

    // When the job was handed over that the last run began with.
    [[nodiscard]] std::chrono::steady_clock::time_point ended() const { return ended_.value(); }

    // From now on jobs go nowhere else; with nothing they are printed again.
    void keepIn(std::vector<PrintJob>* jobs) { kept_ = jobs; }

  private:
    PrintOutput& output_;
    std::vector<PrintJob>* kept_ = nullptr;
    std::optional<std::chrono::steady_clock::time_point> ended_;
};

struct NoIcon final : CancelIcon {
    void showCancelIcon(bool) override {}
};

// Books in a folder, and everything that prints them into a file there: the event loop, a window
// with its status line, fonts and files are the program's own.
class PaperDesk {
  public:
    explicit PaperDesk(const std::string& folder)
        : path(folder + "/DATAY.QEL"),
          pdf(folder + "/printed.pdf"),
          messages(pdf),
          files_(NativePaths(codePage, folder, NativePath(folder))),
          locations_(folder, settings, files_, codePage) {
        window_.setStatusBar(&status);
        window_.resize(800, 200);
        window_.show();
        if (!printer.SetCurrentPrinter(kPrintToPdf))
            throw std::runtime_error("there is no file to print to");
    }
    ~PaperDesk() { window_.setStatusBar(nullptr); }
    PaperDesk(const PaperDesk&) = delete;
    PaperDesk& operator=(const PaperDesk&) = delete;

    const CodePage& codePage = CodePage::western();
    const std::string path;  // of the book
    const std::string pdf;

  private:
    test::MemorySettings medium_;

  public:
    SettingsStore settings{medium_};
    NamesTheFile messages;

  private:
    PosixFiles files_;
    DataLocations locations_;
    FileBooks books_{files_, locations_, [this](const std::string& file) {
                         return fileStampOf(files_.nativePath(file));
                     }};
    PrintService service_;
    QtPrintMetrics metrics_{codePage, service_};
    QtPrinters printers_{messages, files_, codePage, service_};
    QMainWindow window_;
    NoIcon icon_;

  public:
    PhonebookStore store{books_, codePage};
    StatusBar status{codePage};
    TimedLoop loop;
    NotingOutput output{printers_};
    PrintRecorder printer{metrics_, output};
    LongJobs jobs{{loop, status, icon_}};
    PrintJobs printing{{printer, jobs, messages, codePage}};
};

}  // namespace velmora::bench
