#pragma once

#include <string>

#include "platform/PrintSurface.h"

namespace velmora {

// Prints rows of cells: the cells of a row begin on the same line, each at a place of its own.
class RowPrinter {
  public:
    // `printer` must outlive this object.
    explicit RowPrinter(PrintSurface& printer) : printer_(printer) {}

    // A cell with others behind it: the position is then on the line where the cell began, on the
    // next page if the printer went over to one.
    void cell(float x, const std::string& text);

    // The last cell of a row, or the only one: the position is then below it.
    void lastCell(float x, const std::string& text);

    // Moves the position down.
    void gap(double inches);

  private:
    PrintSurface& printer_;
};

}  // namespace velmora
