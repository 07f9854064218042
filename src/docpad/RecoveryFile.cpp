#include "docpad/RecoveryFile.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>

#include "platform/Failure.h"

namespace velmora {
namespace {

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
    if (slots_.sealed())
        return;
    ignoringErrors([&] { settle(); });
    slots_.keep(contents(text, documentName));
}

void RecoveryFile::keepInBackground(const std::string& text, const std::string& documentName) {
    settle();
    if (slots_.sealed())
        return;
    writing_ = std::async(std::launch::async, [&files = files_, path = slots_.claim(),
                                               bytes = contents(text, documentName)] {
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
    slots_.discard();
}

std::vector<RecoveryFile::Kept> RecoveryFile::abandoned(const std::string& present) {
    std::vector<Kept> found;
    for (const std::string& path : slots_.all()) {
        std::optional<Kept> kept;
        ignoringErrors([&] { kept = readAbandoned(path); });
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
    slots_.takeOver(kept.path, contents(kept.text, kept.documentName));
}

void RecoveryFile::forget(const Kept& kept) {
    // Another copy may have taken it meanwhile.
    if (!slots_.sealed() && stillAbandoned(kept))
        slots_.forget(kept.path);
}

std::string RecoveryFile::contents(const std::string& text, const std::string& documentName) const {
    std::string bytes(kHead);
    bytes += programs_.ownMark() + "\n" + std::to_string(clock_.now().time_since_epoch().count()) +
             "\n" + documentName + "\n";
    bytes += text;
    return bytes;
}

std::optional<RecoveryFile::Kept> RecoveryFile::readAbandoned(const std::string& path) const {
    if (!files_.exists(path))
        return std::nullopt;
    const auto bytes = files_.readWhole(path, std::numeric_limits<std::int64_t>::max());
    auto kept = bytes ? parse(*bytes) : std::nullopt;
    if (!kept || programs_.runs(kept->mark))
        return std::nullopt;
    kept->path = path;
    return kept;
}

bool RecoveryFile::stillAbandoned(const Kept& kept) const {
    const auto now = readAbandoned(kept.path);
    return now && now->mark == kept.mark && now->text == kept.text;
}

}  // namespace velmora
