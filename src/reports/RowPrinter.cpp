#include "reports/RowPrinter.h"

namespace velmora {

void RowPrinter::cell(float x, const std::string& text) {
    const int page = printer_.Page();
    float top = printer_.CurrentY();
    lastCell(x, text);
    if (printer_.Page() != page)
        // The cell itself began the page; a text of many pages leaves the row on its last one.
        top = 0;
    printer_.SetCurrentY(top);
}

void RowPrinter::lastCell(float x, const std::string& text) {
    printer_.SetCurrentX(x);
    printer_.Print(text);
}

void RowPrinter::gap(double inches) {
    printer_.SetCurrentY(static_cast<float>(static_cast<double>(printer_.CurrentY()) + inches));
}

}  // namespace velmora
