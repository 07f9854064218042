#pragma once

namespace velmora {

// Prints DocPad's text.
class PadPrinter {
  public:
    virtual ~PadPrinter() = default;

    // Prints the text as it stands now; events run meanwhile. False when it could not be printed
    // and the user has been told; the text must then stay.
    [[nodiscard]] virtual bool print() = 0;
};

}  // namespace velmora
