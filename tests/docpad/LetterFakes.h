#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "core/ControlFont.h"
#include "docpad/Signature.h"

namespace velmora::test {

struct FixedFont final : FontHolder {
    [[nodiscard]] ControlFont font() const override { return now; }
    void setFont(const ControlFont& font) override { now = font; }
    ControlFont now{"Georgia", 12, 255};
};

// Answers in turn; records what it was asked with.
struct FakeSignatureQuestion final : SignatureQuestion {
    std::optional<std::string> ask(const std::string& text) override {
        asked.push_back(text);
        if (answers.empty())
            return std::nullopt;
        auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::deque<std::optional<std::string>> answers;
    std::vector<std::string> asked;
};

}  // namespace velmora::test
