#pragma once

#include <QFont>
#include <map>

#include "core/TextFonts.h"
#include "platform/CodePage.h"

class QColor;
class QWidget;

namespace velmora {

class EntryList;
class PadEdit;
class SSDay;

// The fonts and colours of the main window's texts.
class CalendarTextFonts final : public TextFonts {
  public:
    // The widgets of the three targets.
    struct Texts {
        PadEdit& docPad;
        SSDay& day;
        EntryList& list;
    };

    // All must outlive this object.
    CalendarTextFonts(const CodePage& codePage, const Texts& texts)
        : codePage_(codePage), texts_(texts) {}

    void setFont(FontTarget target, const FontChoice& choice) override;

    [[nodiscard]] QFont fontOf(FontTarget target) const;

    // Red + 256 * green + 65536 * blue, as it was set last; -1 before that. Negative is the
    // theme's.
    [[nodiscard]] int colourOf(FontTarget target) const;

  private:
    [[nodiscard]] QWidget& textOf(FontTarget target) const;
    void setColour(FontTarget target, const QColor& colour);

    const CodePage& codePage_;
    Texts texts_;
    std::map<FontTarget, int> colours_;
};

}  // namespace velmora
