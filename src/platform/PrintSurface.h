#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Text.h"

namespace velmora {

class PrintWatch;

// Lets events run, then tells whether what waits is still wanted. An empty one: it is.
using GoOn = std::function<bool()>;

enum class PageOrientation { Portrait = 1, Landscape = 2 };

// How the print positions are told: the one scale that Velmora prints in.
inline constexpr int kInches = 5;

// The current printer, as everything that prints sees it. All lengths are inches from the left top
// corner of the printable area, x to the right and y downwards. Texts are code-page text.
//
// A job is what lies between the first output and `EndDoc` or `KillDoc`; nothing reaches the
// printer before `EndDoc`. Font, colour, scale, orientation and the current printer outlive a job;
// the end of a job takes bold and italic off and puts the position back to (0, 0). Operations that
// are not said to throw never do.
class PrintSurface {
  public:
    virtual ~PrintSurface() = default;

    // 5, inches; each job sets it first.
    virtual void SetScaleMode(int mode) = 0;

    // Holds for the jobs that begin from now on; one in hand keeps what it began with.
    [[nodiscard]] virtual PageOrientation Orientation() const = 0;
    virtual void SetOrientation(PageOrientation orientation) = 0;

    // The font of what is printed next; the size is in points, fractions count.
    [[nodiscard]] virtual std::string FontName() const = 0;
    virtual void SetFontName(const std::string& name) = 0;
    [[nodiscard]] virtual float FontSize() const = 0;
    virtual void SetFontSize(float points) = 0;
    virtual void SetFontBold(bool bold) = 0;
    virtual void SetFontItalic(bool italic) = 0;

    // Of text: red + 256 * green + 65536 * blue; negative is black.
    virtual void SetForeColor(int colour) = 0;

    // The print position: the upper left corner of the text that comes next.
    [[nodiscard]] virtual float CurrentX() const = 0;
    [[nodiscard]] virtual float CurrentY() const = 0;
    virtual void SetCurrentX(float inches) = 0;
    virtual void SetCurrentY(float inches) = 0;

    // The size of the text in the font as it stands; needs no job. CR LF begins a line: a text that
    // ends in one has an empty last line, which counts.
    [[nodiscard]] virtual float TextHeight(const std::string& text) const = 0;
    [[nodiscard]] virtual float TextWidth(const std::string& text) const = 0;

    // Prints the text and ends the line: x goes back to 0, and y moves down by the text's height.
    // A line that would pass the bottom of the page begins a new page first.
    virtual void Print(const std::string& text) = 0;
    // Without the end of the line: the position is then behind the last character.
    virtual void PrintPart(const std::string& text) = 0;

    // A straight line in a colour as of `SetForeColor`; the position is then at its end.
    virtual void Line(float x1, float y1, float x2, float y2, int colour) = 0;

    virtual void NewPage() = 0;

    // The page of the job in hand that the position is on, counted from 1. It rises by itself when
    // a page is full.
    [[nodiscard]] virtual int Page() const = 0;

    // Names the jobs that end from now on, in the printer's queue and in the file. Code-page text
    // without control characters.
    virtual void SetTitle(const std::string& title) = 0;

    // Sends the job; prints nothing when there was no output. Empty pages at the end are left out.
    // Events run between pages when there is a watch. False when the user called the job off, as
    // "Print to PDF" lets them, or when the watch said no. Throws Failure when the job can not be
    // printed. It is gone in any case.
    virtual bool EndDoc(PrintWatch* watch) = 0;
    bool EndDoc() { return EndDoc(nullptr); }
    // Throws the job away: nothing of it reaches the printer.
    virtual void KillDoc() = 0;

    // What follows up to the end of the class may ask the print system, which may take seconds; so
    // PrintJobs asks first. What this answers holds until it is asked anew. Events run. False when
    // `goOn` said no. Throws Failure when the print system does not answer.
    virtual bool AskPrintSystem(const GoOn& goOn) = 0;
    // False when the next job can do without: the user has chosen "Print to PDF" for it.
    [[nodiscard]] virtual bool NeedsPrintSystem() const = 0;

    // The jobs from here on are one run to the user: "Print to PDF" puts them into one file of this
    // title. What is left of a run before is dropped.
    virtual void BeginRun(const std::string& title) = 0;
    // The file that the run has been written to; nothing when it went to a printer, or nowhere.
    // Throws Failure when the file can not be written.
    virtual std::optional<std::string> EndRun() = 0;

    // The printers by name, as the system lists them. "Print to PDF" is always among them.
    [[nodiscard]] virtual std::vector<std::string> PrinterNames() const = 0;
    [[nodiscard]] virtual std::string CurrentPrinter() const = 0;
    // Holds for the jobs that begin from now on. False when there is no printer of that name; the
    // current one stays.
    virtual bool SetCurrentPrinter(const std::string& name) = 0;
};

}  // namespace velmora
