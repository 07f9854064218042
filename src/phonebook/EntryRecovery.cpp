#include "phonebook/EntryRecovery.h"

#include "platform/Failure.h"

namespace velmora {
namespace {

constexpr std::uint64_t kLongest = 1 << 20;  // bytes; far beyond any entry
constexpr std::string_view kHead = "Velmora entry recovery 1\n";

}  // namespace

void EntryRecovery::keep(const EntryDraft& draft) {
    slots_.keep(std::string(kHead) + programs_.ownMark() + "\n" + bytesOf(draft));
}

std::vector<EntryRecovery::Kept> EntryRecovery::abandoned() const {
    std::vector<Kept> all;
    for (const std::string& path : slots_.all())
        if (auto draft = readAbandoned(path))
            all.push_back({std::move(*draft), path});
    return all;
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
