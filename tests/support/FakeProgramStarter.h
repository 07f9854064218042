#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/ProgramStarter.h"

namespace velmora::test {

// Records what would be started as "program|argument|argument".
class FakeProgramStarter final : public ProgramStarter {
  public:
    bool start(const std::string& program, const std::vector<std::string>& arguments) override {
        std::string line = program;
        for (const std::string& argument : arguments)
            line += "|" + argument;
        started.push_back(line);
        return finds(program);
    }
    bool startMinimised(const std::string& program,
                        const std::vector<std::string>& arguments) override {
        const bool done = start(program, arguments);
        started.back() += " minimised";
        return done;
    }
    [[nodiscard]] bool finds(const std::string& program) const override {
        return known.contains(program);
    }

    std::vector<std::string> started;
    std::set<std::string> known;
};

// Records what would be opened.
class FakeSystemOpener final : public SystemOpener {
  public:
    void open(const std::string& target) override { opened.push_back(target); }

    std::vector<std::string> opened;
};

// Records keys as "keys" or "keys, waited for".
class FakeKeystrokeSender final : public KeystrokeSender {
  public:
    void send(const std::string& keys, bool wait) override {
        sent.push_back(wait ? keys + ", waited for" : keys);
    }

    std::vector<std::string> sent;
};

}  // namespace velmora::test
