#pragma once

#include <memory>

#include "platform/CodePage.h"
#include "platform/PrintDevice.h"

class QPaintDevice;

namespace velmora {

// Measures with the fonts of this machine at the resolution of printers. Fonts need no printer;
// only the printable area asks for one.
class QtPrintMetrics final : public PrintMetrics {
  public:
    // `codePage` must outlive the metrics.
    explicit QtPrintMetrics(const CodePage& codePage);
    ~QtPrintMetrics() override;

    [[nodiscard]] double lineHeight(const PrintFont& font) const override;
    [[nodiscard]] double textWidth(const PrintFont& font, std::string_view line) const override;
    [[nodiscard]] PrintableArea printableArea(const std::string& printer,
                                              PageOrientation orientation) const override;

  private:
    [[nodiscard]] QPaintDevice& device() const;

    const CodePage& codePage_;
    mutable std::unique_ptr<QPaintDevice> device_;  // made when something is first measured
};

}  // namespace velmora
