#include "reports/ReportPages.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace velmora {
namespace {

constexpr double kAboveRule = 0.05;       // inches
constexpr float kLargestEditorSize = 11;  // points; this and more is printed as
constexpr float kInsteadOfLarge = 10;

}  // namespace

ReportPages::ReportPages(PrintRun& run, const ReportProfile& profile, Look look)
    : run_(run), rows_(run.printer), profile_(profile), look_(std::move(look)) {}

void ReportPages::begin() {
    PrintSurface& printer = run_.printer;
    run_.state.ReportPage = 1;
    run_.state.ReportFontName = look_.face;
    tellPage(false);
    printer.SetScaleMode(kInches);
    printer.SetFontName(look_.face);
    printer.SetForeColor(look_.colour);
    printer.SetFontSize(profile_.firstHead.size);
    estimatePages();
    printHead(profile_.firstHead);
    tellPage(true);
}

void ReportPages::estimatePages() {
    ReportState& state = run_.state;
    const int count = state.ReportCount;
    double pages = 0;
    if (profile_.entriesOnPage > 0) {
        pages = static_cast<double>(count) / profile_.entriesOnPage;
    } else {
        const auto heightOf = [&](const std::string& text) {
            return static_cast<double>(run_.printer.TextHeight(text));
        };
        const double row = heightOf("Sample") * profile_.linesOfEntry + profile_.besidesLines;
        const double head = heightOf(std::string(nameOf(profile_.kind)) + ": " +
                                     std::to_string(count) + "Total Entries  \r\n");
        pages = (head + row * count) / profile_.pageDepth;
    }
    state.ReportPages = static_cast<int>(std::ceil(pages));
}

void ReportPages::printHead(const ReportHead& head) {
    PrintSurface& printer = run_.printer;
    const ReportState& state = run_.state;
    printer.SetCurrentX(head.x);
    printer.SetCurrentY(head.y);
    printer.Print(head.beginning + std::to_string(state.ReportCount) + head.behindCount +
                  state.ReportBookTitle + head.beforeDate + look_.date + "     Page # " +
                  std::to_string(state.ReportPage) + " of " + std::to_string(state.ReportPages));
    printer.SetCurrentX(0);
    printer.SetCurrentY(profile_.bodyTop);
    printer.SetFontSize(entrySize());
}

void ReportPages::turnPage() {
    if (!run_.goOn() || run_.state.ReportPage > run_.state.ReportPages)
        return;
    PrintSurface& printer = run_.printer;
    printer.NewPage();
    printer.SetScaleMode(kInches);
    printer.SetFontName(look_.face);
    printer.SetFontSize(profile_.laterHead.size);
    ++run_.state.ReportPage;
    tellPage(true);
    printHead(profile_.laterHead);
}

void ReportPages::tellPage(bool withTotal) {
    const ReportState& state = run_.state;
    std::string text = std::string("Printing: ") + nameOf(profile_.kind) + "   Page " +
                       std::to_string(state.ReportPage);
    if (withTotal)
        text += " of " + std::to_string(state.ReportPages);
    run_.tell(text);
}

bool ReportPages::print(const EntryTexts& entry, const std::string& name, bool isPerson) {
    if (profile_.sizeAtEachEntry)
        run_.printer.SetFontSize(entrySize());
    for (const ReportRow& row : profile_.rows)
        printRow(row, entry, name, isPerson);
    endEntry();
    const bool moreFollow = run_.state.ReportIndex < run_.state.ReportCount - 1;
    const double full = moreFollow ? profile_.fullWithMore : profile_.fullAtLast;
    const bool isFull = static_cast<double>(run_.printer.CurrentY()) >= full;
    if (isFull)
        turnPage();
    return isFull;
}

void ReportPages::printRow(const ReportRow& row, const EntryTexts& entry, const std::string& name,
                           bool isPerson) {
    if (row.cells.empty()) {
        rows_.gap(row.gap);
        return;
    }
    const auto isPrinted = [&](const ReportCell& cell) { return isPerson || !cell.personOnly; };
    const auto last = std::find_if(row.cells.rbegin(), row.cells.rend(), isPrinted);
    if (last == row.cells.rend())
        return;
    for (const ReportCell& cell : row.cells) {
        if (!isPrinted(cell))
            continue;
        const auto x = static_cast<float>(isPerson ? cell.x : cell.companyX);
        if (&cell == &*last)
            rows_.lastCell(x, textOf(cell, entry, name));
        else
            rows_.cell(x, textOf(cell, entry, name));
    }
}

std::string ReportPages::textOf(const ReportCell& cell, const EntryTexts& entry,
                                const std::string& name) const {
    if (cell.shows == ReportCell::Shows::Name)
        return name;
    std::string text = cell.label;
    if (cell.shows == ReportCell::Shows::Custom1)
        text = look_.custom1 + ": ";
    if (cell.shows == ReportCell::Shows::Custom2)
        text = look_.custom2 + ": ";
    return text.append(entry.text(cell.field));
}

void ReportPages::endEntry() {
    PrintSurface& printer = run_.printer;
    if (profile_.ruleEnd > 0) {
        const auto height =
            static_cast<float>(static_cast<double>(printer.CurrentY()) + kAboveRule);
        printer.Line(0, height, profile_.ruleEnd, height, 0);
    }
    rows_.gap(profile_.afterEntry);
}

float ReportPages::entrySize() const {
    if (profile_.entrySize > 0)
        return profile_.entrySize;
    return look_.editorSize >= kLargestEditorSize ? kInsteadOfLarge : look_.editorSize;
}

}  // namespace velmora
