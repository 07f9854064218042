#include "core/PrintJobs.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "platform/Failure.h"
#include "platform/PrintWatch.h"

namespace velmora {
namespace {

constexpr std::chrono::milliseconds kSilentWait{300};
constexpr std::size_t kMostOfTitle = 100;  // bytes

// What queue and file show: one line, whatever an entry's name holds.
std::string documentTitle(const std::string& title) {
    std::string shown = kApplicationTitle;
    if (!title.empty())
        shown += ": " + title;
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    std::replace_if(shown.begin(), shown.end(), isControl, ' ');
    shown.resize(std::min(shown.size(), kMostOfTitle));
    return shown;
}

// Whatever is left of a job when it ends goes nowhere.
class KillAtEnd {
  public:
    explicit KillAtEnd(PrintSurface& printer) : printer_(printer) {}
    ~KillAtEnd() { printer_.KillDoc(); }
    KillAtEnd(const KillAtEnd&) = delete;
    KillAtEnd& operator=(const KillAtEnd&) = delete;

  private:
    PrintSurface& printer_;
};

// How the sheets lie during a job; puts the user's choice back.
class Sheets {
  public:
    Sheets(PrintSurface& printer, const PrintTask& task)
        : printer_(printer), chosen_(printer.Orientation()), changed_(task.orientation) {
        if (changed_)
            printer.SetOrientation(*task.orientation);
    }
    ~Sheets() {
        if (changed_)
            printer_.SetOrientation(chosen_);
    }
    Sheets(const Sheets&) = delete;
    Sheets& operator=(const Sheets&) = delete;

    void leave() { changed_.reset(); }

  private:
    PrintSurface& printer_;
    PageOrientation chosen_;
    std::optional<PageOrientation> changed_;
};

}  // namespace

// Tells how far the sending is, and lets it be called off.
class PrintJobs::Watch final : public PrintWatch {
  public:
    Watch(LongJob& job, bool& told) : job_(job), told_(told) {}

    bool playing(int page, int pages) override {
        if (pages > 1)
            tell("Sending Page " + std::to_string(page) + " of " + std::to_string(pages));
        return job_.goOn();
    }
    bool sending() override { return job_.goOn(); }
    bool waitingForTheQueue() override {
        tell("Too many jobs are waiting for the printer. Trying again...");
        return job_.goOn();
    }

  private:
    void tell(const std::string& text) {
        told_ = true;
        job_.tell(text);
    }

    LongJob& job_;
    bool& told_;
};

PrintRun::PrintRun(PrintJobs& jobs, LongJob& job)
    : printer(jobs.parts_.printer), state(jobs.state_), jobs_(jobs), job_(job) {}

bool PrintRun::endJob(const std::string& title) {
    return jobs_.send(title, job_);
}

PrintEnd PrintSeries::run(const PrintTask& task, const PrintWork& work) {
    return jobs_.runOne(task, work, job_);
}

void PrintSeries::waitFor(std::chrono::milliseconds duration) {
    jobs_.parts_.jobs.waitFor(duration);
}

PrintEnd PrintJobs::run(const PrintTask& task, const PrintWork& work) {
    PrintEnd end = PrintEnd::Refused;
    parts_.jobs.run([&](LongJob& job) {
        begun_ = false;
        calledOff_ = false;
        end = runOne(task, work, job);
        if (!endRun())
            end = PrintEnd::Failed;
    });
    return end;
}

bool PrintJobs::runSeries(const std::function<void(PrintSeries&)>& work) {
    return parts_.jobs.run([&](LongJob& job) {
        begun_ = false;
        calledOff_ = false;
        PrintSeries series(*this, job);
        work(series);
        endRun();
    });
}

bool PrintJobs::askPrintSystem() {
    bool wanted = false;
    told_ = false;
    parts_.jobs.run([&](LongJob& job) {
        try {
            wanted = prepare(job);
            if (std::exchange(told_, false))
                job.tell(kApplicationTitle);
        } catch (const Failure& failure) {
            wanted = true;
            job.tell(parts_.codePage.fromUtf8(failure.what()));
        }
    });
    return wanted;
}

// Puts the answers of the print system there before a job begins. False when it was called off.
bool PrintJobs::prepare(LongJob& job) {
    const auto began = std::chrono::steady_clock::now();
    return parts_.printer.AskPrintSystem([&] {
        if (!told_ && std::chrono::steady_clock::now() - began > kSilentWait) {
            told_ = true;
            job.tell("Waiting for the print system...");
        }
        return job.goOn();
    });
}

// Writes the file of the run, if it has one. False when that failed, and was told.
bool PrintJobs::endRun() {
    if (!begun_)
        return true;
    try {
        if (const auto file = parts_.printer.EndRun())
            parts_.jobs.status().showFile(lastTask_.lastText, *file);
        return true;
    } catch (const Failure& failure) {
        tellFailure(lastTask_, failure.what());
        return false;
    }
}

PrintEnd PrintJobs::runOne(const PrintTask& task, const PrintWork& work, LongJob& job) {
    if (calledOff_ || parts_.jobs.closing())
        return PrintEnd::Cancelled;
    parts_.jobs.beginAnew();
    Sheets sheets(parts_.printer, task);
    begin(task);
    const KillAtEnd kill(parts_.printer);
    std::optional<std::string> failed;
    try {
        if (!parts_.printer.NeedsPrintSystem() || prepare(job)) {
            PrintRun run(*this, job);
            work(run);
            (void)send(task.title, job);
        }
    } catch (const Failure& failure) {
        failed = failure.what();
    }
    const bool cancelled = job.cancelled();
    if (cancelled && task.cancelLeavesOrientation)
        sheets.leave();
    if (!task.lastText.empty() || told_)
        job.tell(task.lastText.empty() ? kApplicationTitle : task.lastText);
    state_.beginJob();
    if (cancelled)
        return PrintEnd::Cancelled;
    if (!failed)
        return PrintEnd::Printed;
    tellFailure(task, *failed);
    return PrintEnd::Failed;
}

// Jobs start alike, whatever the last one did.
void PrintJobs::begin(const PrintTask& task) {
    PrintSurface& printer = parts_.printer;
    if (!std::exchange(begun_, true))
        printer.BeginRun(documentTitle(task.title));
    lastTask_ = task;
    told_ = false;
    state_.beginJob();
    parts_.jobs.onCancel([this] {
        state_.ReportCancel = true;
        parts_.printer.KillDoc();
    });
    printer.KillDoc();
    printer.SetScaleMode(kInches);
    printer.SetFontName(task.fontName.empty() ? kPrintFace : task.fontName);
    printer.SetFontSize(task.fontSize);
    printer.SetForeColor(0);
    printer.SetFontBold(false);
    printer.SetFontItalic(false);
}

bool PrintJobs::send(const std::string& title, LongJob& job) {
    if (job.cancelled())
        return false;
    parts_.printer.SetTitle(documentTitle(title));
    Watch watch(job, told_);
    if (!parts_.printer.EndDoc(&watch) && !job.cancelled()) {
        calledOff_ = true;
        parts_.jobs.cancel();
    }
    return !job.cancelled();
}

void PrintJobs::tellFailure(const PrintTask& task, const std::string& utf8Text) {
    if (task.failureIsTold == FailureIsTold::InABox)
        parts_.messages.standardError(utf8Text);
    else
        parts_.jobs.status().show(parts_.codePage.fromUtf8(utf8Text));
}

}  // namespace velmora
