#pragma once

#include <QFontMetricsF>
#include <QObject>
#include <memory>
#include <vector>

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
    struct KnownFont {
        PrintFont name;
        QFontMetricsF metrics;
        double lineHeight;  // inches
    };

    [[nodiscard]] QPaintDevice& device() const;
    [[nodiscard]] const KnownFont& known(const PrintFont& font) const;

    const CodePage& codePage_;
    PrintService& service_;
    mutable std::unique_ptr<QPaintDevice> device_;  // made when something is first measured
    mutable std::vector<KnownFont> fonts_;          // a few, since looking one up takes long
    QObject connections_;
};

}  // namespace velmora
