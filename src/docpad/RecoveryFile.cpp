#include "docpad/RecoveryFile.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr int kSlots = 9;
constexpr std::string_view kHead = "Velmora DocPad recovery 2\n";
// Without the line of the moment.
constexpr std::string_view kEarlierHead = "Velmora DocPad recovery 1\n";

// Cuts the first line off `rest` and returns it without its LF; nothing when there is no LF.
std::optional<std::string> takeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    std::string line(rest.substr(0, end));
    rest.remove_prefix(end + 1);
    return line;
}

std::optional<long long> momentOf(const std::string& line) {
    long long seconds = 0;
    const char* end = line.data() + line.size();
    const auto [stop, error] = std::from_chars(line.data(), end, seconds);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return seconds;
}

// What a recovery file holds, but for its path; nothing when the bytes are none of ours.
std::optional<RecoveryFile::Kept> parse(std::string_view bytes) {
    const bool earlier = bytes.starts_with(kEarlierHead);
    if (!earlier && !bytes.starts_with(kHead))
        return std::nullopt;
    bytes.remove_prefix(kHead.size());
    const auto mark = takeLine(bytes);
    std::optional<long long> moment = 0;
    if (mark && !earlier) {
        const auto line = takeLine(bytes);
        moment = line ? momentOf(*line) : std::nullopt;
    }
    const auto name = mark && moment ? takeLine(bytes) : std::nullopt;
    if (!name)
        return std::nullopt;
    return RecoveryFile::Kept{std::string(bytes), *name, {}, *mark, *moment};
}

}  // namespace

void RecoveryFile::keep(const std::string& text, const std::string& documentName) {
    if (sealed_)
        return;
    ignoringErrors([&] { settle(); });
    const std::string path = ownPath_.empty() ? freeSlot() : ownPath_;
    files_.writePrivately(path, contents(text, documentName));
    ownPath_ = path;
}

void RecoveryFile::keepInBackground(const std::string& text, const std::string& documentName) {
    settle();
    if (sealed_)
        return;
    if (ownPath_.empty())
        ownPath_ = freeSlot();
    writing_ = std::async(std::launch::async,
                          [&files = files_, path = ownPath_, bytes = contents(text, documentName)] {
                              files.writePrivately(path, bytes);
                          });
}

bool RecoveryFile::busy() const {
    return writing_.valid() &&
           writing_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void RecoveryFile::settle() {
    if (writing_.valid())
        writing_.get();
}

void RecoveryFile::discard() {
    ignoringErrors([&] { settle(); });
    if (sealed_ || ownPath_.empty())
        return;
    if (files_.exists(ownPath_))
        files_.remove(ownPath_);
    ownPath_.clear();
}

std::vector<RecoveryFile::Kept> RecoveryFile::abandoned(const std::string& present) {
    std::vector<Kept> found;
    for (int number = 1; number <= kSlots; ++number) {
        auto kept = readAbandoned(slot(number));
        if (kept && (kept->text.empty() || kept->text == present))
            ignoringErrors([&] { forget(*kept); });
        else if (kept)
            found.push_back(std::move(*kept));
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Kept& a, const Kept& b) { return a.moment > b.moment; });
    return found;
}

void RecoveryFile::take(const Kept& kept) {
    ignoringErrors([&] { settle(); });
    if (!stillAbandoned(kept)) {
        keep(kept.text, kept.documentName);
        return;
    }
    const std::string before = ownPath_;
    files_.writePrivately(kept.path, contents(kept.text, kept.documentName));
    ownPath_ = kept.path;
    if (!before.empty() && before != kept.path)
        ignoringErrors([&] { files_.remove(before); });
}

void RecoveryFile::forget(const Kept& kept) {
    // Another copy may have taken it meanwhile.
    if (!sealed_ && stillAbandoned(kept))
        files_.remove(kept.path);
}

std::string RecoveryFile::slot(int number) const {
    return folder_ + "\\docpad.recovery" + std::to_string(number);
}

std::string RecoveryFile::freeSlot() const {
    for (int number = 1; number <= kSlots; ++number)
        if (!files_.exists(slot(number)))
            return slot(number);
    throw Failure("DocPad's text can not be kept for recovery: all places for it are taken.");
}

std::string RecoveryFile::contents(const std::string& text, const std::string& documentName) const {
    std::string bytes(kHead);
    bytes += programs_.ownMark() + "\n" + std::to_string(clock_.now().time_since_epoch().count()) +
             "\n" + documentName + "\n";
    bytes += text;
    return bytes;
}

std::optional<RecoveryFile::Kept> RecoveryFile::readAbandoned(const std::string& path) const {
    std::optional<Kept> result;
    ignoringErrors([&] {
        if (!files_.exists(path))
            return;
        const auto bytes = files_.readWhole(path, std::numeric_limits<std::int64_t>::max());
        auto kept = bytes ? parse(*bytes) : std::nullopt;
        if (!kept || programs_.runs(kept->mark))
            return;
        kept->path = path;
        result = std::move(kept);
    });
    return result;
}

bool RecoveryFile::stillAbandoned(const Kept& kept) const {
    const auto now = readAbandoned(kept.path);
    return now && now->mark == kept.mark && now->text == kept.text;
}

}  // namespace velmora
