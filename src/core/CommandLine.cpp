#include "core/CommandLine.h"

#include "platform/Text.h"

namespace velmora {

std::vector<std::string> splitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    std::string argument;
    bool quoted = false, begun = false;
    for (const char c : text) {
        if (c == ' ' && !quoted) {
            if (begun)
                arguments.push_back(argument);
            argument.clear();
            begun = false;
            continue;
        }
        begun = true;
        if (c == '"')
            quoted = !quoted;
        else
            argument += c;
    }
    if (begun)
        arguments.push_back(argument);
    return arguments;
}

CommandLine readCommandLine(std::string_view setting, const Files& files,
                            const ProgramStarter& starter) {
    const std::string_view text = trimBlanks(setting);
    if (text.starts_with('"')) {
        const std::size_t close = text.find('"', 1);
        const std::string_view rest =
            close == std::string_view::npos ? std::string_view() : text.substr(close + 1);
        return {std::string(text.substr(1, close - 1)), splitArguments(rest)};
    }
    if (files.exists(std::string(text)))
        return {std::string(text), {}};
    for (std::size_t blank = text.find(' '); blank != std::string_view::npos;
         blank = text.find(' ', blank + 1))
        if (starter.finds(std::string(text.substr(0, blank))))
            return {std::string(text.substr(0, blank)), splitArguments(text.substr(blank + 1))};
    return {std::string(text), {}};
}

}  // namespace velmora
