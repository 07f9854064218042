#include "docpad/RecoveryFile.h"

#include <limits>

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr int kSlots = 9;
constexpr std::string_view kHead = "Velmora DocPad recovery 1\n";

// Cuts the first line off `rest` and returns it without its LF; nothing when there is no LF.
std::optional<std::string> takeLine(std::string_view& rest) {
    const std::size_t end = rest.find('\n');
    if (end == std::string_view::npos)
        return std::nullopt;
    std::string line(rest.substr(0, end));
    rest.remove_prefix(end + 1);
    return line;
}

}  // namespace

void RecoveryFile::keep(const std::string& text, const std::string& documentName) {
    const std::string path = ownPath_.empty() ? freeSlot() : ownPath_;
    std::string bytes(kHead);
    bytes += programs_.ownMark() + "\n" + documentName + "\n" + text;
    files_.writeWhole(path, bytes);
    ownPath_ = path;
}

void RecoveryFile::discard() {
    if (ownPath_.empty())
        return;
    files_.remove(ownPath_);
    ownPath_.clear();
}

std::optional<RecoveryFile::Kept> RecoveryFile::abandoned(const std::string& present) {
    for (int number = 1; number <= kSlots; ++number) {
        auto kept = readAbandoned(slot(number));
        if (kept && kept->text == present)
            ignoringErrors([&] { forget(*kept); });
        else if (kept)
            return kept;
    }
    return std::nullopt;
}

void RecoveryFile::forget(const Kept& kept) {
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

std::optional<RecoveryFile::Kept> RecoveryFile::readAbandoned(const std::string& path) const {
    std::optional<Kept> result;
    ignoringErrors([&] {
        if (!files_.exists(path))
            return;
        const auto bytes = files_.readWhole(path, std::numeric_limits<std::int64_t>::max());
        if (!bytes || !bytes->starts_with(kHead))
            return;
        std::string_view rest = *bytes;
        rest.remove_prefix(kHead.size());
        const auto mark = takeLine(rest);
        const auto name = mark ? takeLine(rest) : std::nullopt;
        if (name && !programs_.runs(*mark))
            result = Kept{std::string(rest), *name, path};
    });
    return result;
}

}  // namespace velmora
