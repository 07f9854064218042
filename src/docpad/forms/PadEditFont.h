#pragma once

#include "core/ControlFont.h"
#include "platform/CodePage.h"

namespace velmora {

class PadEdit;

// The font and colour of `Text4`.
class PadEditFont final : public FontHolder {
  public:
    PadEditFont(PadEdit& edit, const CodePage& codePage) : edit_(edit), codePage_(codePage) {}

    [[nodiscard]] ControlFont font() const override;
    void setFont(const ControlFont& font) override;

  private:
    PadEdit& edit_;
    const CodePage& codePage_;
};

}  // namespace velmora
