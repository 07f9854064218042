#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "core/LongJobs.h"
#include "core/ReportState.h"
#include "platform/CodePage.h"
#include "platform/Messages.h"
#include "platform/PrintSurface.h"

namespace velmora {

// In which face a job prints where the user has chosen none.
inline constexpr const char* kPrintFace = "Arial";

// Where a failure of the printer is told.
enum class FailureIsTold { InABox, OnTheStatusLine };

// How a job begins and ends. All texts are code-page text.
struct PrintTask {
    // Names the job in the printer's queue and in the file, behind "Velmora: ": "Complete Report,
    // Yellow Pages". Without one it is just "Velmora".
    std::string title{};

    // The job starts in this face (`kPrintFace` when empty) and size, in black, upright, at (0, 0),
    // in inches.
    std::string fontName{};
    float fontSize = 10;  // points

    // How the sheets lie. Without one they lie as the user chose. With one the user's choice is put
    // back at the end; not, however, by a cancelled job that `cancelLeavesOrientation`.
    std::optional<PageOrientation> orientation{};
    bool cancelLeavesOrientation = false;

    // What the status line shows once the job is over. Empty: nothing of its own.
    std::string lastText{};

    FailureIsTold failureIsTold = FailureIsTold::InABox;
};

class PrintJobs;

enum class PrintEnd {
    Printed,    // or there was nothing to print
    Cancelled,  // by `Image8`, by the end of the program, or at the question for a file name
    Failed,     // and the user was told
    Refused     // another job runs, as the status line says; nothing was done
};

// What a print job works with. It prints on `printer` and calls goOn() in between; it does not call
// EndDoc() or KillDoc() itself.
class PrintRun {
  public:
    PrintSurface& printer;
    ReportState& state;

    // Lets events run. False once the job was called off: what was printed so far is thrown away,
    // and the function returns.
    [[nodiscard]] bool goOn() { return job_.goOn(); }
    [[nodiscard]] bool cancelled() const { return job_.cancelled(); }

    // Progress, on the status line.
    void tell(const std::string& text) { job_.tell(text); }

    // For a run of many jobs, as letters are: sends what was printed so far as one job of this
    // title (see PrintTask::title) and goes on with the next. "Print to PDF" asks for one file for
    // all of them. False when the run was called off. Throws Failure.
    [[nodiscard]] bool endJob(const std::string& title);

  private:
    friend class PrintJobs;
    PrintRun(PrintJobs& jobs, LongJob& job);

    PrintJobs& jobs_;
    LongJob& job_;
};

using PrintWork = std::function<void(PrintRun&)>;

// Several jobs one after the other that are one run to the user: no other job comes between them,
// and "Print to PDF" asks for one file.
class PrintSeries {
  public:
    // Runs a job. One that is called off or fails does not end the series; one that is called off
    // at the question for the file name does: those behind it are then `Cancelled` at once.
    PrintEnd run(const PrintTask& task, const PrintWork& work);

    // Events run for this long, shorter when the program is closing.
    void waitFor(std::chrono::milliseconds duration);

  private:
    friend class PrintJobs;
    PrintSeries(PrintJobs& jobs, LongJob& job) : jobs_(jobs), job_(job) {}

    PrintJobs& jobs_;
    LongJob& job_;
};

// The one way to print. A job is a function that prints and lets events run; everything else is
// done here: the refusal while another job runs, the known state of face, size, colour and style at
// the start, `Image8`, the end of the document, what is put back, and the words on a failure.
//
//     printing_.run({.title = "To-Do List", .fontName = face}, [&](PrintRun& run) {
//         for (const std::string& line : lines) {
//             run.printer.Print(line);
//             if (!run.goOn())
//                 return;
//         }
//     });
//
// A test takes `test::PrintDesk`, which has one on a printer of paper that nobody needs.
class PrintJobs {
  public:
    // All must outlive the object.
    struct Parts {
        PrintSurface& printer;
        LongJobs& jobs;
        Messages& messages;
        const CodePage& codePage;
    };

    explicit PrintJobs(const Parts& parts) : parts_(parts) {}
    PrintJobs(const PrintJobs&) = delete;
    PrintJobs& operator=(const PrintJobs&) = delete;

    // Runs a job to its end: asks the print system, calls `work`, then sends what it printed.
    // Throws nothing for what a printer does. What `work` throws: a Failure is told as the task
    // says, anything else passes through; nothing is sent then.
    PrintEnd run(const PrintTask& task, const PrintWork& work);

    // Several jobs as one run. False when another job runs, as the status line says; `work` was not
    // called then. The title of the first job is that of the file.
    bool runSeries(const std::function<void(PrintSeries&)>& work);

    // Asks the print system anew, as a job: for what is shown of printers. False when another job
    // runs or the user called it off. Where no answer came, the status line says so and there is
    // "Print to PDF" only.
    bool askPrintSystem();

    // True while a job runs, as the status line then says: for commands that only open a form.
    [[nodiscard]] bool refuses() const { return parts_.jobs.refuses(); }

    // Of the run that goes on or comes next.
    [[nodiscard]] ReportState& state() { return state_; }

    // Where the next job goes: its printer, and how the sheets lie.
    [[nodiscard]] PrintSurface& printer() { return parts_.printer; }

  private:
    friend class PrintSeries;
    friend class PrintRun;
    class Watch;

    PrintEnd runOne(const PrintTask& task, const PrintWork& work, LongJob& job);
    void begin(const PrintTask& task);
    bool prepare(LongJob& job);
    bool endRun();
    bool send(const std::string& title, LongJob& job);
    void tellFailure(const PrintTask& task, const std::string& utf8Text);

    Parts parts_;
    ReportState state_;
    PrintTask lastTask_;      // of the run
    bool begun_ = false;      // the run has a job
    bool told_ = false;       // on the status line, how the job goes
    bool calledOff_ = false;  // the user named no file
};

}  // namespace velmora
