#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Messages.h"

namespace velmora::test {

// Answers questions from a list and records every box as "kind|title|text". A question without a
// prepared answer fails the test, and so does an answer that nobody asked for.
class FakeMessages final : public Messages {
  public:
    ~FakeMessages() override {
        EXPECT_TRUE(answers_.empty()) << "answers to questions that were not asked";
    }

    void willAnswer(bool yes) { answers_.push_back({yes, std::nullopt}); }
    void willAnswer(std::optional<std::string> text) {
        answers_.push_back({false, std::move(text)});
    }

    // Runs while each box is open, as another event would.
    void whileOpen(std::function<void()> hook) { hook_ = std::move(hook); }

    // The boxes since the last call.
    std::vector<std::string> takeShown() { return std::exchange(shown_, {}); }

    // The preselected answers of the questions since the last call.
    std::vector<Answer> takePreselected() { return std::exchange(preselected_, {}); }

    void warn(const std::string& title, const std::string& text) override {
        record("warn", title, text);
    }
    void tell(const std::string& title, const std::string& text) override {
        record("tell", title, text);
    }
    bool ask(const std::string& title, const std::string& text, Answer preselected) override {
        preselected_.push_back(preselected);
        record("ask", title, text);
        return next().yes;
    }
    bool confirm(const std::string& title, const std::string& text) override {
        record("confirm", title, text);
        return next().yes;
    }
    std::optional<std::string> askText(const std::string& title, const std::string& prompt,
                                       const std::string& answer) override {
        record("input", title, prompt + "|" + answer);
        return next().text;
    }
    std::optional<std::string> chooseFileToOpen(const FileQuestion& question) override {
        record("open", question.title, question.defaultExtension + "|" + question.filter);
        return next().text;
    }
    std::optional<std::string> chooseFileToSave(const FileQuestion& question) override {
        record("save", question.title, question.defaultExtension + "|" + question.filter);
        return next().text;
    }
    void standardError(const std::string& utf8Text) override {
        record("error", kApplicationTitle, utf8Text);
    }

  private:
    struct Prepared {
        bool yes = false;
        std::optional<std::string> text;
    };

    void record(const std::string& kind, const std::string& title, const std::string& text) {
        shown_.push_back(kind + "|" + title + "|" + text);
        if (hook_)
            hook_();
    }

    Prepared next() {
        if (answers_.empty()) {
            ADD_FAILURE() << "unexpected question: " << shown_.back();
            return {};
        }
        Prepared answer = std::move(answers_.front());
        answers_.pop_front();
        return answer;
    }

    std::deque<Prepared> answers_;
    std::vector<Answer> preselected_;
    std::vector<std::string> shown_;
    std::function<void()> hook_;
};

}  // namespace velmora::test
