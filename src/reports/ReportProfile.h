#pragma once

#include <vector>

#include "phonebook/PhonebookRecord.h"

namespace velmora {

enum class ReportKind {
    Listing,   // names and numbers
    Complete,  // every field of an entry
};

// Of the planner page that a report is cut to.
enum class ReportSize { Normal, Pocket, Mini };

// Lengths are inches, sizes are points.

// One text of an entry on paper.
struct ReportCell {
    enum class Shows { Name, Field, Custom1, Custom2 };

    double x = 0;  // of a person
    Shows shows = Shows::Field;
    Field field = Field::Last;  // of a cell that shows a field
    const char* label = "";
    bool personOnly = false;  // left out where the entry is just a company
    double companyX = x;
};

// Cells that share a line. A row without cells is a gap.
struct ReportRow {
    std::vector<ReportCell> cells;
    double gap = 0;
};

// The one line above each page, apart from the page numbers at its end.
struct ReportHead {
    const char* beginning;  // before the count
    const char* behindCount;
    const char* beforeDate;  // behind the title of the book
    float size;
    float x;
    float y;
};

// What one of the six reports has of its own.
struct ReportProfile {
    ReportKind kind;

    bool inEditorFace;     // of DocPad; else that of the entry list
    bool needsBook;        // a book that is not there is not made, and nothing is printed
    bool shrinksEditor;    // a large font of DocPad becomes small when a company is printed
    bool sizeAtEachEntry;  // else below each head only
    float entrySize;       // 0: that of DocPad, within bounds

    ReportHead firstHead;
    ReportHead laterHead;
    float bodyTop;

    // The estimate of pages: by height, or by so many entries to a page.
    double linesOfEntry;
    double besidesLines;
    double pageDepth;
    int entriesOnPage = 0;  // 0: by height

    std::vector<ReportRow> rows;
    float ruleEnd;        // right end of the line below an entry; 0 for none
    double afterEntry;    // room below it
    double fullWithMore;  // a new page from this height on, when entries follow,
    double fullAtLast;    // and when none does
};

[[nodiscard]] const ReportProfile& profileOf(ReportKind kind, ReportSize size);

// What is printed of an entry apart from its name.
[[nodiscard]] std::vector<Field> fieldsOf(const ReportProfile& profile);

// "Telecommunications Listing" or "Complete Report".
[[nodiscard]] const char* nameOf(ReportKind kind);

}  // namespace velmora
