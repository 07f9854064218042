#pragma once

#include <QFont>
#include <QPageLayout>

#include "platform/CodePage.h"
#include "platform/PrintJob.h"

class QPagedPaintDevice;

namespace velmora {

[[nodiscard]] QFont toQt(const PrintFont& font, const CodePage& codePage);

// Of a file, and of what can not be asked: a Letter sheet with margins of a quarter inch.
[[nodiscard]] QPageLayout letterLayout(PageOrientation orientation);

// Gives a printer's layout the margins that it needs, a quarter inch where it says that it needs
// none: such printers stretch what is printed over the edges of the sheet.
[[nodiscard]] QPageLayout withNeededMargins(QPageLayout layout);

[[nodiscard]] QPageLayout::Orientation toQt(PageOrientation orientation);

// Paints the pages of a job. The device has its layout; what lies outside the printable area is
// cut. False when the device can not be painted on.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, const PrintJob& job,
                              const CodePage& codePage);

}  // namespace velmora
