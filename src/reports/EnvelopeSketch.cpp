#include "reports/EnvelopeSketch.h"

#include <algorithm>

#include "platform/PrintRecorder.h"

namespace velmora {
namespace {

constexpr double kRounding = 1e-4;  // sums of heights may come out a little too big

// Measures as the printer does, on a sheet that has no end: what would go over to a second page is
// to be seen where it was meant to be.
class EndlessSheet final : public PrintMetrics {
  public:
    explicit EndlessSheet(const PrintMetrics& metrics) : metrics_(metrics) {}

    [[nodiscard]] double lineHeight(const PrintFont& font) const override {
        return metrics_.lineHeight(font);
    }
    [[nodiscard]] double textWidth(const PrintFont& font, std::string_view line) const override {
        return metrics_.textWidth(font, line);
    }
    [[nodiscard]] PrintableArea printableArea(const std::string&, PageOrientation) const override {
        return {1000, 1000};
    }

  private:
    const PrintMetrics& metrics_;
};

// Keeps the job that is printed to it.
class KeptJob final : public PrintOutput {
  public:
    PrintJob job{};

    bool ask(const std::string&, const GoOn&) override { return true; }
    [[nodiscard]] std::vector<std::string> printerNames() const override { return {}; }
    [[nodiscard]] std::string defaultPrinter() const override { return {}; }
    bool print(PrintJob printed, PrintWatch*) override {
        job = std::move(printed);
        return true;
    }
    void beginRun(const std::string&) override {}
    std::optional<std::string> endRun() override { return std::nullopt; }
};

}  // namespace

EnvelopeSketch sketchEnvelope(const EnvelopeContent& content, const EnvelopeFeed& feed,
                              const PrintMetrics& metrics, const EnvelopeSheetSize& sheet) {
    const EndlessSheet endless(metrics);
    KeptJob kept;
    PrintRecorder recorder(endless, kept);
    recorder.SetOrientation(PageOrientation::Landscape);
    printEnvelopePage(recorder, content, feed);
    recorder.EndDoc();
    EnvelopeSketch sketch;
    if (kept.job.pages.empty())
        return sketch;
    for (const auto& mark : kept.job.pages.front()) {
        const auto* text = std::get_if<PrintedText>(&mark);
        if (!text)
            continue;
        const double width = metrics.textWidth(text->font, text->text);
        const double height = metrics.lineHeight(text->font);
        const bool outside =
            static_cast<double>(text->x) + width > sheet.printableWidth + kRounding ||
            static_cast<double>(text->y) + height > sheet.printableHeight + kRounding;
        sketch.texts.push_back({*text, width, height, outside});
        sketch.fits = sketch.fits && !outside;
    }
    return sketch;
}

}  // namespace velmora
