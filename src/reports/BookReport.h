#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "phonebook/NameIndex.h"
#include "phonebook/PhonebookStore.h"
#include "platform/Clock.h"
#include "platform/Format.h"
#include "reports/ReportPages.h"
#include "reports/ReportProfile.h"

namespace velmora {

// DocPad's text on the screen, as a listing sees it.
class EditorSize {
  public:
    virtual ~EditorSize() = default;

    [[nodiscard]] virtual float editorSize() const = 0;  // points
    virtual void setEditorSize(float points) = 0;
};

// What reports work with. All must outlive them.
struct ReportParts {
    PrintJobs& printing;
    const PhonebookStore& store;
    const SettingsStore& settings;
    EditorSize& editor;
    const Clock& clock;
    const LocaleFormats& locale;
};

// One book as a report or a listing: one job.
//
// All names are read and sorted first. Then each is looked up again, so that an entry prints what
// the book holds at that moment; one that was deleted or renamed meanwhile is left out. Two entries
// of one name stand in the list twice, and both are printed each time.
class BookReport {
  public:
    // The most names that a report takes.
    static constexpr std::size_t kMostNames = 30001;

    BookReport(const ReportParts& parts, ReportKind kind, ReportSize size)
        : parts_(parts), profile_(profileOf(kind, size)) {}

    enum class End {
        Done,          // also where it was called off, or failed and the user was told
        TooManyNames,  // nothing was printed
    };

    // Prints the book, 1 Yellow Pages or 2 White Pages, as a job of `series`.
    End print(PrintSeries& series, std::int16_t bookKind);

  private:
    void run(PrintRun& run);
    [[nodiscard]] bool readNames(PrintRun& run);
    [[nodiscard]] bool refreshIndex(PrintRun& run);
    [[nodiscard]] bool readBook(PrintRun& run, const std::function<void(RecordView)>& see);
    void printName(PrintRun& run, ReportPages& pages, const std::string& name);
    void shrinkEditor();
    [[nodiscard]] ReportPages::Look look() const;

    const ReportParts& parts_;
    const ReportProfile& profile_;
    std::string bookFile_;
    std::optional<OpenBook> book_;
    std::string version_;  // of the book, when it was indexed
    std::optional<NameIndex> index_;
    bool eventsRan_ = false;  // so that the book may be another one than when it was indexed
    bool tooManyNames_ = false;
};

}  // namespace velmora
