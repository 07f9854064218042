#pragma once

#include "docpad/PadPrinter.h"
#include "platform/Messages.h"

namespace velmora {

// Stands in while there is no way to a printer: says so and prints nothing.
class NoPadPrinter final : public PadPrinter {
  public:
    explicit NoPadPrinter(Messages& messages) : messages_(messages) {}

    [[nodiscard]] bool print() override {
        messages_.tell(kApplicationTitle,
                       "DocPad can not print yet. The text stays as it is; save it to a file.");
        return false;
    }

  private:
    Messages& messages_;
};

}  // namespace velmora
