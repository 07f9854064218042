#pragma once

#include <vector>

#include "platform/PrintDevice.h"
#include "reports/EnvelopePage.h"

namespace velmora {

// A sheet of paper in landscape; inches.
struct EnvelopeSheetSize {
    double width = 11;
    double height = 8.5;
    double left = 0.25;  // the corner of what can be printed on
    double top = 0.25;
    double printableWidth = 10.5;
    double printableHeight = 8;

    bool operator==(const EnvelopeSheetSize&) const = default;
};

// A text that will be printed, its left top corner from that of the printable area.
struct SketchedText {
    PrintedText text;
    double width = 0;
    double height = 0;
    bool outside = false;  // of the printable area, in whole or in part
};

// What an envelope will look like.
struct EnvelopeSketch {
    std::vector<SketchedText> texts;
    bool fits = true;  // all of it lies inside
};

// Lays out what printEnvelopePage() prints, measured as the printer does.
[[nodiscard]] EnvelopeSketch sketchEnvelope(const EnvelopeContent& content,
                                            const EnvelopeFeed& feed, const PrintMetrics& metrics,
                                            const EnvelopeSheetSize& sheet);

}  // namespace velmora
