// Any bytes in a pad, and any changes to them: the text is what a plain string makes of them,
// undoing leads back, rows that were changed are those that are wrapped anew, and a caret goes
// through all.

#include <algorithm>
#include <string>

#include "fuzz/Fuzzing.h"
#include "platform/controls/models/PadBuffer.h"
#include "platform/controls/models/PadLetters.h"
#include "platform/controls/models/PadRows.h"

namespace velmora {
namespace {

using fuzz::require;

constexpr std::int32_t kWidth = 64 * 40;

PadWidths widthsOf(const PadLetters& letters) {
    PadWidths widths;
    for (std::size_t i = 0; i < widths.of.size(); ++i)
        widths.of[i] = static_cast<std::int32_t>(64 * (1 + i % 9));
    widths.joins = letters.allThatJoin();
    return widths;
}

// A pad and, beside it, what it must hold.
class Pad {
  public:
    Pad() { rows_.wrap("", widths_, kWidth); }

    void replace(std::size_t position, std::size_t length, std::string_view with,
                 PadBuffer::Kind kind) {
        position = buffer_.snapped(position);
        const std::size_t end = buffer_.snapped(position + length);
        const std::string before = buffer_.bytes();
        const auto change = buffer_.replace(position, end - position, with, kind, {end, position});
        follow(before, change);
    }

    void append(std::string_view bytes) {
        const std::string before = buffer_.bytes();
        const auto change = buffer_.append(bytes, {0, 0});
        follow(before, change);
        require(buffer_.bytes() == before + std::string(bytes), "appended to the letter");
    }

    void undo() {
        const std::string before = buffer_.bytes();
        const bool can = buffer_.canUndo();
        require(can == follow(buffer_.undo()), "undoes what can be undone");
        if (!can)
            return;
        const std::string undone = buffer_.bytes();
        require(follow(buffer_.redo()) && buffer_.bytes() == before, "redone is as before");
        require(follow(buffer_.undo()) && buffer_.bytes() == undone, "and undone again");
    }

    void redo() {
        const bool can = buffer_.canRedo();
        require(can == follow(buffer_.redo()), "redoes what can be redone");
    }

    void endStep() { buffer_.endStep(); }

    void check() const {
        checkRows();
        checkCaret();
        checkLines();
    }

    void undoAll() {
        while (buffer_.canUndo())
            require(follow(buffer_.undo()), "can be undone");
        require(buffer_.bytes().empty(), "all undone is the beginning");
    }

  private:
    // The change turns `before` into what is there, and the rows follow it.
    void follow(const std::string& before, const PadBuffer::Change& change) {
        const std::string& now = buffer_.bytes();
        require(change.position + change.removed.size() <= before.size(), "removed what was there");
        require(before.substr(change.position, change.removed.size()) == change.removed,
                "removed what it says");
        require(now.size() == before.size() - change.removed.size() + change.inserted, "the size");
        require(now.compare(0, change.position, before, 0, change.position) == 0, "same in front");
        require(now.substr(change.position + change.inserted) ==
                    before.substr(change.position + change.removed.size()),
                "same behind");
        rows_.change(now, change.position, change.removed.size(), change.inserted);
    }
    bool follow(const std::optional<PadBuffer::Replay>& replay) {
        if (!replay)
            return false;
        const auto& [change, selection] = *replay;
        require(std::max(selection.anchor, selection.caret) <= buffer_.size(), "selection inside");
        rows_.change(buffer_.bytes(), change.position, change.removed.size(), change.inserted);
        return true;
    }

    void checkRows() const {
        PadRows anew;
        anew.wrap(buffer_.bytes(), widths_, kWidth);
        require(rows_.count() == anew.count() && rows_.count() > 0, "as many rows");
        for (std::size_t row = 0; row < rows_.count(); ++row) {
            require(rows_.begin(row) == anew.begin(row), "rows begin where they do");
            require(rows_.begin(row) <= rows_.begin(row + 1), "rows go forward");
            require(rows_.at(rows_.begin(row)) >= row, "a row is where it begins");
        }
    }

    void checkCaret() const {
        std::size_t position = 0;
        while (position < buffer_.size()) {
            const std::size_t next = letters_.next(buffer_, position);
            require(next > position && next <= buffer_.size(), "the caret goes on");
            require(buffer_.snapped(next) == next, "the caret stands where it may");
            require(letters_.previous(buffer_, next) < next, "and goes back");
            position = next;
        }
        const auto word = letters_.wordAt(buffer_, buffer_.size() / 2);
        require(word.first() + word.length() <= buffer_.size(), "a word lies inside");
    }

    void checkLines() const {
        for (std::size_t at = 0; at <= buffer_.size(); at = buffer_.lineEnd(at) + 1) {
            const std::size_t end = buffer_.lineEnd(at);
            require(buffer_.lineBegin(at) <= at && end >= at && end <= buffer_.size(), "a line");
        }
    }

    PadBuffer buffer_;
    PadLetters letters_{CodePage::western()};
    PadWidths widths_ = widthsOf(letters_);
    PadRows rows_;
};

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    constexpr int kMostSteps = 40;
    fuzz::Input input(data, std::min<std::size_t>(size, 4000));
    Pad pad;
    for (int step = 0; step < kMostSteps && !input.empty(); ++step) {
        const unsigned what = input.byte();
        const std::size_t position = input.byte();
        const std::size_t length = input.byte() % 16;
        switch (what % 8) {
            case 0:
                pad.append(input.line());
                break;
            case 1:
                pad.append("\r\n" + std::string(input.line()) + "\r");
                break;
            case 2:
                pad.replace(position, 0, "x", PadBuffer::Kind::Typing);
                break;
            case 3:
                pad.replace(position, length, "", PadBuffer::Kind::Erasing);
                break;
            case 4:
                pad.undo();
                break;
            case 5:
                pad.redo();
                break;
            case 6:
                pad.endStep();
                break;
            default:
                pad.replace(position, length, input.line(), PadBuffer::Kind::Other);
                break;
        }
        pad.check();
    }
    pad.undoAll();
    return 0;
}
