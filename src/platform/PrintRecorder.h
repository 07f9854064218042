#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/PrintDevice.h"
#include "platform/PrintJob.h"
#include "platform/PrintSurface.h"

namespace velmora {

// The print surface: keeps the pages of a job and hands them over at its end, so that a job which
// is thrown away has never reached a printer.
//
// A text breaks where it has a line end (CR LF, a lone CR, a lone LF) and nowhere else; what passes
// the right edge is cut by the printer. A tab goes on at the next half inch from the beginning of
// its line of text; other control characters are blanks. Empty pages at the end of a job are not
// printed, and neither is a job of empty pages.
class PrintRecorder : public PrintSurface {
  public:
    // Both must outlive the recorder. Neither is asked for anything before it is needed.
    PrintRecorder(const PrintMetrics& metrics, PrintOutput& output)
        : metrics_(metrics), output_(output) {}

    void SetScaleMode(int) override {}  // there is no other scale

    [[nodiscard]] PageOrientation Orientation() const override { return orientation_; }
    void SetOrientation(PageOrientation orientation) override { orientation_ = orientation; }

    [[nodiscard]] std::string FontName() const override { return font_.name; }
    void SetFontName(const std::string& name) override { font_.name = name; }
    [[nodiscard]] float FontSize() const override { return font_.size; }
    void SetFontSize(float points) override { font_.size = points; }
    void SetFontBold(bool bold) override { font_.bold = bold; }
    void SetFontItalic(bool italic) override { font_.italic = italic; }
    void SetForeColor(int colour) override;

    [[nodiscard]] float CurrentX() const override { return x_; }
    [[nodiscard]] float CurrentY() const override { return y_; }
    void SetCurrentX(float inches) override { x_ = inches; }
    void SetCurrentY(float inches) override { y_ = inches; }

    [[nodiscard]] float TextHeight(const std::string& text) const override;
    [[nodiscard]] float TextWidth(const std::string& text) const override;

    void Print(const std::string& text) override;
    void PrintPart(const std::string& text) override;
    void Line(float x1, float y1, float x2, float y2, int colour) override;
    void NewPage() override;
    [[nodiscard]] int Page() const override;
    void SetTitle(const std::string& title) override { title_ = title; }
    using PrintSurface::EndDoc;
    bool EndDoc(PrintWatch* watch) override;
    void KillDoc() override;

    bool AskPrintSystem(const GoOn& goOn) override;
    [[nodiscard]] bool NeedsPrintSystem() const override { return chosenPrinter_ != kPrintToPdf; }

    // What SetCurrentPrinter() was told last; empty as long as the system's default is current.
    [[nodiscard]] std::string chosenPrinter() const { return chosenPrinter_.value_or(""); }
    void BeginRun(const std::string& title) override { output_.beginRun(title); }
    std::optional<std::string> EndRun() override { return output_.endRun(); }

    [[nodiscard]] std::vector<std::string> PrinterNames() const override;
    [[nodiscard]] std::string CurrentPrinter() const override;
    bool SetCurrentPrinter(const std::string& name) override;

  private:
    // The job in hand; opens one when there is none.
    PrintJob& job();
    // `count` lines of the font, in inches.
    [[nodiscard]] float heightOf(std::size_t count) const;
    [[nodiscard]] bool fits(double lineTop, double lineHeight);
    // Prints a line of text at the position. Returns its width where that is wanted.
    double put(std::string_view line, bool widthWanted);
    // Prints a text, with the position on its last line then, behind it where the next text is to
    // stand there. Returns where the line below it is.
    float putLines(const std::string& text, bool goesOnBehind);
    void beginPage();
    void endJob();

    const PrintMetrics& metrics_;
    PrintOutput& output_;
    PrintFont font_{.name = "Arial", .size = 10};
    int colour_ = 0;
    std::string title_ = "Velmora";
    float x_ = 0;
    float y_ = 0;
    PageOrientation orientation_ = PageOrientation::Portrait;
    std::optional<std::string> chosenPrinter_;
    std::optional<PrintJob> job_;
    std::optional<double> pageHeight_;  // of the job in hand, once it was asked for
};

}  // namespace velmora
