#include "docpad/forms/PadEditFont.h"

#include <QFont>

#include "platform/controls/PadEdit.h"
#include "platform/qt/QtText.h"

namespace velmora {

ControlFont PadEditFont::font() const {
    const QFont font = edit_.font();
    const auto ink = edit_.ink();
    return {.name = fromQt(font.family(), codePage_),
            .size = font.pointSizeF(),
            .colour = ink ? ink->red() + 256 * ink->green() + 65536 * ink->blue() : -1};
}

void PadEditFont::setFont(const ControlFont& font) {
    QFont changed = edit_.font();
    changed.setFamilies({toQt(font.name, codePage_)});
    changed.setPointSizeF(font.size);
    edit_.setFont(changed);
    const auto colour = static_cast<unsigned>(font.colour);
    if (font.colour < 0)
        edit_.setInk(std::nullopt);
    else
        edit_.setInk(QColor(static_cast<int>(colour & 255), static_cast<int>(colour >> 8 & 255),
                            static_cast<int>(colour >> 16 & 255)));
}

}  // namespace velmora
