#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "phonebook/NamedEntries.h"
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
// It prints the entries in the order and the state in which NamedEntries gives them.
class BookReport {
  public:
    // The most names that a report takes.
    static constexpr std::size_t kMostNames = NamedEntries::kMostNames;

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
    void printName(PrintRun& run, ReportPages& pages, const std::string& name);
    void shrinkEditor();
    [[nodiscard]] ReportPages::Look look() const;

    const ReportParts& parts_;
    const ReportProfile& profile_;
    std::string bookFile_;
    std::optional<NamedEntries> entries_;
    bool tooManyNames_ = false;
};

}  // namespace velmora
