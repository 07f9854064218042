#include "phonebook/LetterView.h"

#include <string>
#include <utility>
#include <vector>

#include "phonebook/Buckets.h"
#include "phonebook/CardText.h"
#include "phonebook/ListLine.h"

namespace velmora {

void LetterView::LetterClick(int index) {
    const Bucket& bucket = bucketAt(index);
    pane_.showDetails("");
    pane_.clearList();
    state_.BucketName = bucket.name;
    state_.BucketCountKey = bucket.countKey;
    pane_.showLetter(index);
    LoadLetter();
}

void LetterView::LoadLetter() {
    const CodePage& codePage = store_.codePage();
    const OpenBook book = store_.Open(state_.BookFile);
    const BucketFilter filter(state_.BucketName, codePage);
    std::vector<std::string> lines;
    BookScan records = book.scan();
    while (records.next())
        if (filter.passes(records.record()))
            if (auto line = listLine(records.record(), codePage))
                lines.push_back(*std::move(line));
    pane_.addLines(std::move(lines));
}

void LetterView::ListClick() {
    pane_.showDetails("");
    const std::string line = pane_.selectedLine();
    if (line.empty())
        return;
    const OpenBook book = store_.Open(state_.BookFile);
    PhonebookRecord record;
    if (const auto number = book.FindByListLine(line))
        if (book.ReadAt(*number, record))
            pane_.showDetails(cardText(record));
}

void LetterView::SelectBook(std::int16_t kind) {
    const bool white = kind == kWhitePages;
    state_.BookKind = white ? kWhitePages : kYellowPages;
    pane_.showBookLabels(!white, white);
    pane_.showDetails("");
    pane_.clearList();
    state_.BookFile = white ? kWhitePagesFile : kYellowPagesFile;
    pane_.showBook(state_.BookKind);
    LoadLetter();
}

void LetterView::reload() {
    pane_.clearList();
    pane_.showDetails("");
    LoadLetter();
}

void LetterView::refresh() {
    const std::string line = pane_.selectedLine();
    pane_.clearList();
    LoadLetter();
    if (!line.empty() && !pane_.selectLine(line))
        pane_.showDetails("");
}

}  // namespace velmora
