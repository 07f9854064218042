#include "phonebook/EntryRecovery.h"

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr int kSlots = 9;
constexpr std::uint64_t kLongest = 1 << 20;  // bytes; far beyond any entry
constexpr std::string_view kHead = "Velmora entry recovery 1\n";

}  // namespace

void EntryRecovery::keep(const EntryDraft& draft) {
    if (sealed_)
        return;
    const std::string path = ownPath_.empty() ? freeSlot() : ownPath_;
    files_.writePrivately(path, std::string(kHead) + programs_.ownMark() + "\n" + bytesOf(draft));
    ownPath_ = path;
}

void EntryRecovery::discard() {
    if (sealed_ || ownPath_.empty())
        return;
    files_.remove(ownPath_);
    ownPath_.clear();
}

std::vector<EntryRecovery::Kept> EntryRecovery::abandoned() const {
    std::vector<Kept> all;
    for (int number = 1; number <= kSlots; ++number)
        if (auto draft = readAbandoned(slot(number)))
            all.push_back({std::move(*draft), slot(number)});
    return all;
}

void EntryRecovery::forget(const Kept& kept) {
    if (!sealed_)
        files_.remove(kept.path);
}

std::string EntryRecovery::slot(int number) const {
    return folder_ + "\\entry.recovery" + std::to_string(number);
}

std::string EntryRecovery::freeSlot() const {
    for (int number = 1; number <= kSlots; ++number)
        if (!files_.exists(slot(number)))
            return slot(number);
    throw Failure("The entry can not be kept for recovery: all places for it are taken.");
}

std::optional<EntryDraft> EntryRecovery::readAbandoned(const std::string& path) const {
    std::optional<EntryDraft> draft;
    ignoringErrors([&] {
        if (!files_.exists(path))
            return;
        const auto bytes = files_.readWhole(path, kLongest);
        if (!bytes || !bytes->starts_with(kHead))
            return;
        std::string_view rest = *bytes;
        rest.remove_prefix(kHead.size());
        const std::size_t end = rest.find('\n');
        if (end != std::string_view::npos && !programs_.runs(std::string(rest.substr(0, end))))
            draft = draftOf(rest.substr(end + 1));
    });
    return draft;
}

}  // namespace velmora
