#include "accessories/RunProgram.h"

#include <vector>

#include "core/CommandLine.h"
#include "core/ProgramQuestion.h"
#include "platform/Text.h"

namespace velmora {

void RunProgram::Run(const std::string& commandLine, bool minimised) {
    const std::string text(trimBlanks(commandLine));
    std::vector<std::string> words =
        starter_.finds(text) ? std::vector{text} : splitArguments(text);
    if (words.empty())
        return;
    const std::string program = words.front();
    words.erase(words.begin());
    if (minimised)
        starter_.startMinimised(program, words);
    else
        starter_.start(program, words);
}

std::optional<std::string> RunProgram::Browse() {
    return messages_.chooseFileToOpen(programQuestion());
}

}  // namespace velmora
