#include "platform/controls/PadCaret.h"

#include <algorithm>

namespace velmora {

void PadCaret::set(const PadBuffer::Selection& selection) {
    selection_ = {page_.text().snapped(selection.anchor), page_.text().snapped(selection.caret)};
    atRowEnd_ = false;
    goal_.reset();
}

void PadCaret::put(const PadPage::Place& place, bool extend) {
    const std::size_t anchor = selection_.anchor;
    set(place.position);
    atRowEnd_ = place.atRowEnd;
    if (extend)
        selection_.anchor = anchor;
}

void PadCaret::move(Move move, bool extend, int pageRows) {
    const bool toRight = move == Move::NextCharacter;
    const bool toLeft = move == Move::PreviousCharacter;
    switch (move) {
        case Move::NextRow:
            moveRows(1, extend);
            return;
        case Move::PreviousRow:
            moveRows(-1, extend);
            return;
        case Move::NextPage:
            moveRows(pageRows, extend);
            return;
        case Move::PreviousPage:
            moveRows(-pageRows, extend);
            return;
        default:
            break;
    }
    // An arrow ends a selection at the side that it points to.
    if (!extend && (toRight || toLeft) && selection_.length() > 0) {
        const bool forward = toRight != page_.rightToLeft(selection_.caret);
        set(forward ? selection_.first() + selection_.length() : selection_.first());
        return;
    }
    put(target(move), extend);
}

PadPage::Place PadCaret::rowEnd() const {
    const std::size_t end = page_.rowEnd(row());
    return {end, page_.wraps(row())};
}

PadPage::Place PadCaret::target(Move move) const {
    const PadBuffer& text = page_.text();
    const PadLetters& letters = page_.letters();
    const std::size_t at = selection_.caret;
    const bool turned = page_.rightToLeft(at);
    switch (move) {
        case Move::NextCharacter:
            return {turned ? letters.previous(text, at) : letters.next(text, at)};
        case Move::PreviousCharacter:
            return {turned ? letters.next(text, at) : letters.previous(text, at)};
        case Move::NextWord:
            return {turned ? letters.previousWord(text, at) : letters.nextWord(text, at)};
        case Move::PreviousWord:
            return {turned ? letters.nextWord(text, at) : letters.previousWord(text, at)};
        case Move::RowBegin:
            return {page_.rows().begin(row())};
        case Move::RowEnd:
            return rowEnd();
        case Move::LineBegin:
            return {text.lineBegin(at)};
        case Move::LineEnd:
            return {text.lineEnd(at)};
        case Move::TextBegin:
            return {0};
        case Move::TextEnd:
            return {text.size()};
        default:
            return place();
    }
}

void PadCaret::moveRows(std::ptrdiff_t rows, bool extend) {
    const qreal x = goal_ ? *goal_ : page_.xOf(place());
    const auto last = static_cast<std::ptrdiff_t>(page_.rows().count()) - 1;
    const auto now = static_cast<std::ptrdiff_t>(row());
    const std::ptrdiff_t wanted = now + rows;
    if (wanted < 0 && now == 0)
        put({0}, extend);
    else if (wanted > last && now == last)
        put({page_.text().size()}, extend);
    else
        put(page_.placeAt(static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(wanted, 0, last)), x),
            extend);
    goal_ = x;
}

}  // namespace velmora
