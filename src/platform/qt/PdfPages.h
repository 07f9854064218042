#pragma once

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <optional>

#include "platform/CodePage.h"
#include "platform/PrintJob.h"
#include "platform/PrintWatch.h"
#include "platform/qt/PrintPages.h"

namespace velmora {

// A PDF file in the making, in memory: the pages of one job, or of several one after the other.
class PdfPages {
  public:
    // `title` is code-page text; `codePage` must outlive the pages.
    PdfPages(const std::string& title, const CodePage& codePage);
    ~PdfPages();
    PdfPages(const PdfPages&) = delete;
    PdfPages& operator=(const PdfPages&) = delete;

    // Plays the pages of a job behind those that are there; what lies outside the printable area is
    // cut. `watch`, if there is one, is asked before each page; what was played of the job is freed
    // as it goes. False when the watch said no: the file can not be used then. Throws Failure when
    // the pages can not be made.
    [[nodiscard]] bool play(PrintJob& job, const QPageLayout& layout, PrintWatch* watch);

    [[nodiscard]] bool empty() const { return pages_ == 0; }

    // The file. Nothing can be played behind that. Throws Failure as play() does.
    [[nodiscard]] QByteArray finish();

  private:
    void beginPage(const QPageLayout& layout);

    QBuffer bytes_;
    QPdfWriter writer_{&bytes_};
    QPainter painter_;
    PagePainter pagePainter_;
    std::optional<QPageLayout> layout_;  // of the last page
    int pages_ = 0;
};

}  // namespace velmora
