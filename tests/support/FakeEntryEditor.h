#pragma once

#include <functional>
#include <string>
#include <vector>

#include "phonebook/EntryEditor.h"

namespace velmora::test {

// Gives prepared values and records what comes back.
class FakeEntryEditor final : public EntryEditor {
  public:
    EntryOrigin whence{"\\DATAY.QEL", std::nullopt};
    std::string captionText = "Add Entry";
    std::string applyText = "&Add Entry";
    std::string custom1Text = "Custom1:";
    std::string custom2Text = "Custom2";
    Entry toLoad;
    std::function<void()> onLoad;   // may throw
    std::function<void()> onApply;  // may throw
    Outcome outcome = Outcome::Written;

    std::vector<Entry> applied;
    int closedCount = 0;

    EntryOrigin origin() const override { return whence; }
    std::string caption() const override { return captionText; }
    std::string applyCaption() const override { return applyText; }
    std::string custom1Caption() const override { return custom1Text; }
    std::string custom2Caption() const override { return custom2Text; }

    Entry load() override {
        if (onLoad)
            onLoad();
        return toLoad;
    }

    Outcome apply(const Entry& values) override {
        applied.push_back(values);
        if (onApply)
            onApply();
        return outcome;
    }

    void closed() override { ++closedCount; }
};

}  // namespace velmora::test
