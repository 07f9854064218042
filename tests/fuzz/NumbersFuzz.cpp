// Reads any text as a caller's number, as a command line, as what an entry asks to be
// opened, and as a telephone link.

#include <algorithm>
#include <string>

#include "core/CommandLine.h"
#include "fuzz/Fuzzing.h"
#include "phonebook/PhonebookRecord.h"
#include "support/FakeProgramStarter.h"
#include "support/MemoryFiles.h"
#include "telephony/CallerNumber.h"
#include "telephony/NationalNumber.h"
#include "telephony/OpenTarget.h"
#include "telephony/TelephoneLink.h"

namespace velmora {
namespace {

using fuzz::require;

void checkCaller(const std::string& number) {
    const CallerNumber caller(number);
    require(caller.number() == number && caller.forms()[0] == number, "as it came");
    for (const std::string& form : caller.forms())
        require(form.size() <= number.size() + 4, "a form adds no more than its marks");
    for (const Field field : {Field::Phone, Field::WorkPhone, Field::Fax, Field::OtherPhone}) {
        PhonebookRecord record;
        record.assign(field, caller.forms()[2]);
        const bool whole = record.text(field) == caller.forms()[2];
        require(!whole || caller.isIn(record), "a form in an entry is found");
    }
    const PhonebookRecord none;
    require(!caller.isIn(none) || std::ranges::count(caller.forms(), "") > 0, "nobody calls so");
}

void checkNational(std::string_view received, std::string_view country) {
    const std::string national = nationalNumber(received, country);
    require(national == received ||
                std::ranges::all_of(national, [](char c) { return c >= '0' && c <= '9'; }),
            "another form has digits only");
    require(national.size() <= received.size() + 2, "no longer than its prefix");
    require(nationalNumber(received, "??") == received, "no country, no change");
}

void checkCommand(std::string_view text) {
    std::string line;
    for (const std::string& argument : splitArguments(text)) {
        require(argument.find('"') == std::string::npos, "quotes come off");
        line += "\"" + argument + "\" ";
    }
    require(splitArguments(line) == splitArguments(text), "arguments come back");
    test::MemoryFiles files;
    test::FakeProgramStarter starter;
    const std::string_view first = text.substr(0, text.find(' '));
    starter.known.insert(std::string(first));
    const CommandLine command = readCommandLine(text, files, starter);
    require(command.program.size() <= text.size(), "a program is part of the text");
    require(starter.started.empty(), "nothing is started by looking");
}

void checkTargets(const std::string& text) {
    const std::string page = webTarget(text);
    require(page.empty() || hasScheme(page), "a page has a scheme");
    require(page.size() <= text.size() + std::string_view("http://").size(), "a scheme, no more");
    const std::string lower = CodePage::western().lower(page);
    require(!lower.starts_with("file:"), "a page is no file of this machine");
    const std::string file = attachmentTarget(text, "/home/velmora");
    require(file.empty() || hasScheme(file) || file.front() == '/', "a file has its whole path");
}

void checkLink(const std::string& text) {
    for (const std::string& link : {text, "tel:" + text}) {
        const std::string number = numberOfLink(link);
        require(number.size() <= 40, "forty characters at most");
        require(number.find_first_not_of("0123456789*#,+") == std::string::npos, "keys only");
        require(number.rfind('+') == std::string::npos || number.rfind('+') == 0, "a leading plus");
        require(numberOfLink("tel:" + number) == number, "a number is its own link");
    }
}

}  // namespace
}  // namespace velmora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    fuzz::Input input(data, std::min<std::size_t>(size, 2000));
    const std::string_view country = input.line();
    checkCaller(std::string(input.rest()));
    checkNational(input.rest(), country);
    checkCommand(input.rest());
    checkTargets(std::string(input.rest()));
    checkLink(std::string(input.rest()));
    return 0;
}
