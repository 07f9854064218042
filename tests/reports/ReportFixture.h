#pragma once

#include <string>
#include <vector>

#include "reports/BookReport.h"
#include "support/FakeClock.h"
#include "support/PhonebookFixture.h"
#include "support/PrintDesk.h"

namespace velmora::test {

struct FakeEditor final : EditorSize {
    [[nodiscard]] float editorSize() const override { return size; }
    void setEditorSize(float points) override { size = points; }
    float size = 9.75F;
};

// Books in memory, a printer that nobody needs, and what is asked of them.
struct ReportFixture : PhonebookFixture {
    PrintDesk desk;
    FakeClock clock;
    LocaleFormats locale;
    FakeEditor editor;
    ReportParts parts{desk.printing, store, settings, editor, clock, locale};

    BookReport::End print(ReportKind kind, ReportSize size, std::int16_t book = kYellowPages) {
        BookReport report(parts, kind, size);
        BookReport::End end = BookReport::End::Done;
        desk.printing.runSeries([&](PrintSeries& series) { end = report.print(series, book); });
        return end;
    }

    // The texts of the jobs that were sent, page by page.
    std::vector<std::vector<std::string>> pages() {
        std::vector<std::vector<std::string>> result;
        for (const PrintJob& job : desk.printer.takeJobs())
            for (const PrintPage& page : job.pages) {
                std::vector<std::string> texts;
                for (const auto& mark : page)
                    if (const auto* text = std::get_if<PrintedText>(&mark))
                        texts.push_back(text->text);
                result.push_back(texts);
            }
        return result;
    }

    // The texts of all pages that begin with `beginning`.
    std::vector<std::string> textsWith(const std::string& beginning) {
        std::vector<std::string> result;
        for (const auto& page : pages())
            for (const std::string& text : page)
                if (text.starts_with(beginning))
                    result.push_back(text);
        return result;
    }

    // "1 of 2" and so on, as the heads say.
    std::vector<std::string> heads() {
        std::vector<std::string> result;
        const std::string mark = "     Page # ";
        for (const auto& page : pages())
            for (const std::string& text : page)
                if (const auto at = text.find(mark); at != std::string::npos)
                    result.push_back(text.substr(at + mark.size()));
        return result;
    }
};

inline std::string numbered(const char* beginning, int number) {
    const std::string digits = std::to_string(number);
    return beginning + std::string(3 - std::min<std::size_t>(3, digits.size()), '0') + digits;
}

inline std::string people(int count) {
    std::string book;
    for (int i = 0; i < count; ++i)
        book += bytesOf(personRecord(numbered("Last", i), "First"));
    return book;
}

inline std::string companies(int count) {
    std::string book;
    for (int i = 0; i < count; ++i)
        book += bytesOf(companyRecord(numbered("Firm", i)));
    return book;
}

}  // namespace velmora::test
