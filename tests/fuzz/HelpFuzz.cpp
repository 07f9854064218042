// Reads any text as the index of the help, and looks for any other in it.

#include <algorithm>
#include <optional>
#include <set>
#include <string>

#include "core/HelpIndex.h"
#include "fuzz/Fuzzing.h"

namespace velmora {
namespace {

using fuzz::require;

void checkPages(const HelpIndex& index) {
    std::set<std::string> topics;
    for (const HelpPage& page : index.pages()) {
        require(!page.topic.empty() && !page.title.empty(), "a page has topic and title");
        require(topics.insert(page.topic).second, "a topic comes once");
        require(index.page(page.topic) == &page, "a page is found by its topic");
    }
}

void checkHits(const HelpIndex& index, std::string_view typed) {
    std::set<std::string> topics;
    for (const HelpHit& hit : index.matching(typed)) {
        const HelpPage* page = index.page(hit.topic);
        require(page != nullptr, "a hit is a page");
        require(topics.insert(hit.topic).second, "a page is a hit once");
        require(hit.line.starts_with(page->title), "a hit begins with its title");
    }
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, std::min<std::size_t>(size, 4000));
    const std::string_view typed = input.line();
    std::optional<HelpIndex> index;
    if (!fuzz::succeeds([&] { index.emplace(input.rest(), CodePage::western()); }))
        return 0;
    checkPages(*index);
    checkHits(*index, typed);
    require(index->matching("").size() == index->pages().size(), "nothing typed shows all");
    for (const HelpPage& page : index->pages()) {
        const auto hits = index->matching(page.title);
        require(std::any_of(hits.begin(), hits.end(),
                            [&](const HelpHit& hit) { return hit.topic == page.topic; }),
                "a page is found by its title");
    }
    return 0;
}
