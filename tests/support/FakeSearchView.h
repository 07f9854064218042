#pragma once

#include <string>
#include <utility>
#include <vector>

#include "phonebook/SearchView.h"

namespace velmora::test {

// Keeps what would be in view, and the order of what happened in `log`.
class FakeSearchView final : public SearchView {
  public:
    void showLight(SearchLight newLight) override {
        light = newLight;
        log.emplace_back(light == SearchLight::Searching ? "red" : "green");
    }
    void showHitList(bool shown) override {
        listShown = shown;
        log.emplace_back(shown ? "show" : "hide");
    }
    void setHits(std::vector<std::string> lines) override {
        hits = std::move(lines);
        log.push_back("hits " + std::to_string(hits.size()));
    }

    std::vector<std::string> takeLog() { return std::exchange(log, {}); }

    SearchLight light = SearchLight::Done;
    bool listShown = true;
    std::vector<std::string> hits;
    std::vector<std::string> log;
};

}  // namespace velmora::test
