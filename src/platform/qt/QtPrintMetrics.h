#pragma once

#include <memory>

#include "platform/CodePage.h"
#include "platform/PrintDevice.h"
#include "platform/qt/PrintService.h"

class QPaintDevice;

namespace velmora {

// Measures with the fonts of this machine at the resolution of printers. Fonts need no printer;
// only the printable area asks for one, once for each printer that was not asked for before.
class QtPrintMetrics final : public PrintMetrics {
  public:
    // Both must outlive the metrics.
    QtPrintMetrics(const CodePage& codePage, PrintService& service);
    ~QtPrintMetrics() override;

    [[nodiscard]] double lineHeight(const PrintFont& font) const override;
    [[nodiscard]] double textWidth(const PrintFont& font, std::string_view line) const override;
    [[nodiscard]] PrintableArea printableArea(const std::string& printer,
                                              PageOrientation orientation) const override;

  private:
    [[nodiscard]] QPaintDevice& device() const;

    const CodePage& codePage_;
    PrintService& service_;
    mutable std::unique_ptr<QPaintDevice> device_;  // made when something is first measured
};

}  // namespace velmora
