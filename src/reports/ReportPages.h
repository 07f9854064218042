#pragma once

#include <string>

#include "core/PrintJobs.h"
#include "phonebook/EntryTexts.h"
#include "reports/ReportProfile.h"
#include "reports/RowPrinter.h"

namespace velmora {

// The entry of a report or listing on paper: heads, rows and page turns of one job.
//
// The number of pages is estimated beforehand and stands in every head. Where it was too low, one
// page more begins with a head, and the entries behind it run on as the printer turns the pages.
class ReportPages {
  public:
    struct Look {
        std::string face;
        int colour = 0;
        float editorSize = 10;  // of DocPad, in points
        std::string custom1;    // captions of the two custom fields
        std::string custom2;
        std::string date;
    };

    // Both must outlive this object. The counts of `run.state` are those of the report.
    ReportPages(PrintRun& run, const ReportProfile& profile, Look look);

    // The first page with its head.
    void begin();

    // Prints an entry under a name as it stands in the list of names, and turns the page behind it
    // where the page is full. True when events ran meanwhile, as they do when a page is turned.
    bool print(const EntryTexts& entry, const std::string& name, bool isPerson);

  private:
    void estimatePages();
    void printHead(const ReportHead& head);
    void turnPage();
    void tellPage(bool withTotal);
    void printRow(const ReportRow& row, const EntryTexts& entry, const std::string& name,
                  bool isPerson);
    [[nodiscard]] std::string textOf(const ReportCell& cell, const EntryTexts& entry,
                                     const std::string& name) const;
    void endEntry();
    [[nodiscard]] float entrySize() const;

    PrintRun& run_;
    RowPrinter rows_;
    const ReportProfile& profile_;
    Look look_;
};

}  // namespace velmora
