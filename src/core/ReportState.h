#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

// What one run of a report, a merge, an export or a print of DocPad knows of itself. There is one;
// PrintJobs keeps it. The three pending flags and the book live from the command that sets them to
// the form that clears them; the rest begins anew with each job.
struct ReportState {
    std::int16_t ReportBook = 0;  // 1 Yellow Pages, 2 White Pages
    bool MergePending = false;    // what `Form6` was opened for
    bool ListingPending = false;
    bool ReportPending = false;

    std::string ReportBookTitle;           // "Yellow Pages" or "White Pages"
    std::string ReportFile;                // of the book, as a path tail
    std::vector<std::string> ReportNames;  // the sorted names of the run
    int ReportCount = 0;                   // how many there are
    int ReportIndex = 0;                   // the one in hand
    int ReportPage = 1;                    // the page in hand
    int ReportPages = 1;                   // estimated
    std::string ReportFontName;
    bool ReportCancel = false;  // the user has called the job off

    // The job begins, or is over: what belongs to one job is as at the start.
    void beginJob() {
        ReportState fresh;
        fresh.ReportBook = ReportBook;
        fresh.MergePending = MergePending;
        fresh.ListingPending = ListingPending;
        fresh.ReportPending = ReportPending;
        *this = std::move(fresh);
    }
};

}  // namespace velmora
