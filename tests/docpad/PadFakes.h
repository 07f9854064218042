#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "docpad/DocPadView.h"
#include "docpad/PadPrinter.h"
#include "docpad/PadText.h"

namespace velmora::test {

// A text control in memory.
class FakePadText final : public PadText {
  public:
    [[nodiscard]] std::string bytes() const override { return text; }
    [[nodiscard]] bool empty() const override { return text.empty(); }
    void setBytes(const std::string& bytes) override {
        if (bytes == text)
            return;
        text = bytes;
        start = length = 0;
        changed();
    }
    void reload(const std::string& bytes) override {
        setBytes("");
        setBytes(bytes);
    }
    void append(const std::string& bytes) override {
        if (bytes.empty())
            return;
        text += bytes;
        changed();
    }
    [[nodiscard]] std::size_t selectionStart() const override { return start; }
    [[nodiscard]] std::size_t selectionLength() const override { return length; }
    void select(std::size_t newStart, std::size_t newLength) override {
        start = std::min(newStart, text.size());
        length = std::min(newLength, text.size() - start);
    }
    void replaceSelection(const std::string& bytes) override {
        text.replace(start, length, bytes);
        start += bytes.size();
        length = 0;
        changed();
    }
    [[nodiscard]] int widthInTwips() const override { return width; }
    void onChange(std::function<void()> listener) override { listener_ = std::move(listener); }

    std::string text;
    std::size_t start = 0;
    std::size_t length = 0;
    int width = 7800;

  private:
    void changed() {
        if (listener_)
            listener_();
    }

    std::function<void()> listener_;
};

// Records the titles that were shown, those that were in view at once as "now: ...", and the
// captions as "caption: ...".
class FakeDocPadView final : public DocPadView {
  public:
    void setTitle(const std::string& text) override {
        current = text;
        shown.push_back(text);
    }
    void announce(const std::string& text) override {
        current = text;
        shown.push_back("now: " + text);
    }
    [[nodiscard]] std::string title() const override { return current; }
    void setWindowCaption(const std::string& text) override { shown.push_back("caption: " + text); }

    [[nodiscard]] std::vector<std::string> takeShown() { return std::exchange(shown, {}); }

    std::string current = "DocPad";
    std::vector<std::string> shown;
};

// Records the text of each job; runs a hook while it prints.
class FakePadPrinter final : public PadPrinter {
  public:
    explicit FakePadPrinter(const PadText& text) : text_(text) {}

    [[nodiscard]] bool PrintDocPad() override {
        if (!works)
            return false;
        printed.push_back(text_.bytes());
        if (whilePrinting)
            whilePrinting();
        return true;
    }

    std::vector<std::string> printed;
    std::function<void()> whilePrinting;
    bool works = true;

  private:
    const PadText& text_;
};

}  // namespace velmora::test
