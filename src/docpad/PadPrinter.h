#pragma once

namespace velmora {

// Prints DocPad's text.
class PadPrinter {
  public:
    virtual ~PadPrinter() = default;

    // Prints the text as it stands now; events run meanwhile. False when it was not printed, which
    // the user knows: the job failed, was called off, or there was another one. The text must then
    // stay.
    [[nodiscard]] virtual bool PrintDocPad() = 0;
};

}  // namespace velmora
