#pragma once

#include <utility>

#include "phonebook/EntryEditor.h"

namespace velmora {

// An editor whose form begins with values that were typed before.
class ResumedEditor final : public EntryEditor {
  public:
    // `editor` must outlive this object.
    ResumedEditor(EntryEditor& editor, Entry typed) : editor_(editor), typed_(std::move(typed)) {}

    [[nodiscard]] EntryOrigin origin() const override { return editor_.origin(); }
    [[nodiscard]] std::string caption() const override { return editor_.caption(); }
    [[nodiscard]] std::string applyCaption() const override { return editor_.applyCaption(); }
    [[nodiscard]] std::string custom1Caption() const override { return editor_.custom1Caption(); }
    [[nodiscard]] std::string custom2Caption() const override { return editor_.custom2Caption(); }
    [[nodiscard]] Entry load() override {
        static_cast<void>(editor_.load());  // it may want to know what it will overwrite
        return typed_;
    }
    Outcome apply(const Entry& values) override { return editor_.apply(values); }
    void closed() override { editor_.closed(); }

  private:
    EntryEditor& editor_;
    Entry typed_;
};

}  // namespace velmora
