#include "telephony/MailAndWeb.h"

#include <utility>
#include <vector>

#include "core/CommandLine.h"
#include "platform/Text.h"
#include "telephony/OpenTarget.h"

namespace velmora {
namespace {

constexpr std::size_t kShortestPath = 2;
constexpr const char* kMailScheme = "mailto:";

}  // namespace

void MailAndWeb::mailToEntry() {
    mailTo(parts_.entry.read().text(Field::EMail));
}

void MailAndWeb::goToEntrysPage() {
    goTo(parts_.entry.read().text(Field::WebPage));
}

void MailAndWeb::openEntrysFile() {
    const PhonebookRecord record = parts_.entry.read();
    const std::string target =
        attachmentTarget(record.text(Field::FileAttachment), parts_.programFolder);
    if (!target.empty())
        parts_.opener.open(target);
}

void MailAndWeb::runMailProgram() {
    if (usesDesktop())
        parts_.opener.open(kMailScheme);
    else
        runNamedProgram(keys::EMail);
}

void MailAndWeb::runBrowser() {
    if (usesDesktop())
        goToHomePage();
    else
        runNamedProgram(keys::Browser);
}

void MailAndWeb::mailToProduct() {
    if (!parts_.addresses.mail.empty())
        mailTo(parts_.addresses.mail);
}

void MailAndWeb::goToHomePage() {
    if (!parts_.addresses.homePage.empty())
        goTo(parts_.addresses.homePage);
}

bool MailAndWeb::usesDesktop() const {
    return parts_.settings.read(keys::IEEnhanced);
}

void MailAndWeb::mailTo(std::string_view address) {
    const std::string link = kMailScheme + std::string(trimBlanks(address));
    if (usesDesktop()) {
        parts_.opener.open(link);
        return;
    }
    const std::string path = setting(keys::EMail);
    CommandLine command = readCommandLine(path, parts_.files, parts_.starter);
    std::vector<std::string> arguments = splitArguments(setting(keys::EMailSettings));
    // Two kinds of programs are told by their path what to do, the second one whatever the first.
    const std::string lowerPath = parts_.codePage.lower(path);
    if (lowerPath.find("eudora") != std::string::npos)
        arguments = {link};
    if (lowerPath.find("exch") != std::string::npos)
        arguments = {"/n"};
    command.arguments.insert(command.arguments.end(), arguments.begin(), arguments.end());
    if (!command.program.empty())
        parts_.starter.start(command.program, command.arguments);
}

void MailAndWeb::goTo(std::string_view page) {
    if (usesDesktop()) {
        if (const std::string target = webTarget(page); !target.empty())
            parts_.opener.open(target);
        return;
    }
    CommandLine command = readCommandLine(setting(keys::Browser), parts_.files, parts_.starter);
    const std::string_view argument = trimBlanks(page);
    if (!argument.empty() && argument.front() != '-')
        command.arguments.emplace_back(argument);
    if (!command.program.empty())
        parts_.starter.start(command.program, command.arguments);
}

void MailAndWeb::runNamedProgram(const TextKey& key) {
    const std::string path = parts_.settings.read(key);
    if (path.size() < kShortestPath)
        parts_.messages.warn("Please Click Setup",
                             "In order to run this application, please specify it in Setup.");
    const CommandLine command = readCommandLine(path, parts_.files, parts_.starter);
    if (!command.program.empty())
        parts_.starter.start(command.program, command.arguments);
}

// A value that came from a system call may end in a NUL.
std::string MailAndWeb::setting(const TextKey& key) const {
    std::string value = parts_.settings.read(key);
    if (!value.empty() && value.back() == '\0')
        value.pop_back();
    return value;
}

}  // namespace velmora
