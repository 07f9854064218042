#include "core/HelpIndex.h"

#include <algorithm>
#include <optional>

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

// How well a text fits; the lower the better.
enum class Fit { Begins, KeywordBegins, WordBegins, Holds, HoldsEachWord };

struct RankedHit {
    Fit fit;
    HelpHit hit;
};

// The parts of `text` between separators, trimmed; empty ones are left out.
std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (const auto part = trimBlanks(text.substr(0, end)); !part.empty())
            parts.emplace_back(part);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

bool holds(const std::string& text, const std::string& what) {
    return text.find(what) != std::string::npos;
}

// How `what` lies in `text`, both in capitals.
std::optional<Fit> fitOf(const std::string& text, const std::string& what) {
    if (text.compare(0, what.size(), what) == 0)
        return Fit::Begins;
    if (holds(text, " " + what))
        return Fit::WordBegins;
    if (holds(text, what))
        return Fit::Holds;
    return std::nullopt;
}

std::optional<RankedHit> fitOfPage(const HelpPage& page, const std::string& what,
                                   const CodePage& codePage) {
    std::optional<RankedHit> best;
    if (const auto fit = fitOf(codePage.upper(page.title), what))
        best = RankedHit{*fit, {page.topic, page.title}};
    std::string all = codePage.upper(page.title);
    for (const std::string& keyword : page.keywords) {
        const std::string upper = codePage.upper(keyword);
        all += " " + upper;
        auto fit = fitOf(upper, what);
        if (fit == Fit::Begins)
            fit = Fit::KeywordBegins;
        if (fit && (!best || *fit < best->fit))
            best = RankedHit{*fit, {page.topic, page.title + " (" + keyword + ")"}};
    }
    if (best)
        return best;
    const auto words = split(what, ' ');
    if (std::all_of(words.begin(), words.end(),
                    [&all](const std::string& word) { return holds(all, word); }))
        return RankedHit{Fit::HoldsEachWord, {page.topic, page.title}};
    return std::nullopt;
}

HelpPage readPage(std::string_view line) {
    const std::size_t first = line.find('|');
    const std::size_t second =
        first == std::string_view::npos ? std::string_view::npos : line.find('|', first + 1);
    if (second == std::string_view::npos)
        throw Failure("The index of the help is damaged: " + std::string(line));
    HelpPage page{std::string(trimBlanks(line.substr(0, first))),
                  std::string(trimBlanks(line.substr(first + 1, second - first - 1))),
                  split(line.substr(second + 1), ',')};
    if (page.topic.empty() || page.title.empty())
        throw Failure("The index of the help is damaged: " + std::string(line));
    return page;
}

}  // namespace

HelpIndex::HelpIndex(std::string_view text, const CodePage& codePage) : codePage_(codePage) {
    for (const std::string& line : split(withLf(text), '\n')) {
        if (line.front() == '#')
            continue;
        HelpPage next = readPage(line);
        if (page(next.topic))
            throw Failure("The index of the help has a topic twice: " + next.topic);
        pages_.push_back(std::move(next));
    }
}

const HelpPage* HelpIndex::page(std::string_view topic) const {
    const auto found = std::find_if(pages_.begin(), pages_.end(),
                                    [topic](const HelpPage& page) { return page.topic == topic; });
    return found == pages_.end() ? nullptr : &*found;
}

std::vector<HelpHit> HelpIndex::matching(std::string_view typed) const {
    const std::string what = codePage_.upper(trimBlanks(typed));
    std::vector<RankedHit> ranked;
    std::vector<HelpHit> hits;
    if (what.empty()) {
        for (const HelpPage& page : pages_)
            hits.push_back({page.topic, page.title});
        return hits;
    }
    for (const HelpPage& page : pages_)
        if (auto hit = fitOfPage(page, what, codePage_))
            ranked.push_back(std::move(*hit));
    std::stable_sort(ranked.begin(), ranked.end(), [this](const auto& a, const auto& b) {
        if (a.fit != b.fit)
            return a.fit < b.fit;
        return codePage_.compareIgnoringCase(a.hit.line, b.hit.line) < 0;
    });
    for (RankedHit& hit : ranked)
        hits.push_back(std::move(hit.hit));
    return hits;
}

}  // namespace velmora
