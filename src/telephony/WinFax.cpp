#include "telephony/WinFax.h"

#include <algorithm>

#include "core/SettingKeys.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kFaxWindow = "Delrina WinFax PRO";
constexpr const char* kFaxProgram = "Faxmng32.EXE";
constexpr const char* kFaxDriver = "WINFAX";

std::string quoted(const std::string& text) {
    return "\"" + text + "\"";
}

[[noreturn]] void noConversation() {
    throw Failure("Programs of this system do not talk to each other so.");
}

}  // namespace

void NoDdeLink::setTopic(const std::string& /*topic*/) {
    noConversation();
}

void NoDdeLink::setItem(const std::string& /*item*/) {
    noConversation();
}

void NoDdeLink::open() {
    noConversation();
}

void NoDdeLink::execute(const std::string& /*command*/) {
    noConversation();
}

// A failure does not end a step's followers; some of them look whether there was one.
bool WinFax::attempt(const std::function<void()>& step) {
    try {
        step();
    } catch (const Failure&) {
        failed_ = true;
    }
    return !failed_;
}

void WinFax::SendFaxWinFax() {
    failed_ = false;
    parts_.status.show("Please Wait.");
    const std::string driver = parts_.drivers.current();
    const bool watched = parts_.watch.enabled();
    parts_.watch.enable(false);
    if (attempt([this] { callFaxProgram(); })) {
        handOver();
        parts_.status.show("Please Wait While Settings Are Reset.");
        if (!failed_) {
            parts_.link.reset();
            parts_.drivers.makeCurrent(driver);
        }
    }
    parts_.watch.enable(watched);
}

void WinFax::callFaxProgram() {
    if (!parts_.windows.activate(kFaxWindow))
        startFaxProgram();
}

void WinFax::handOver() {
    Recipient to;
    attempt([this] { chooseFaxDriver(); });
    attempt([&] { to = recipient(); });
    if (!attempt([this] { parts_.link.setTopic("FAXMNG|Transmit"); }) ||
        !attempt([this] { parts_.link.setItem("Sendfax"); }) ||
        !attempt([this] { parts_.link.open(); }))
        return;
    attempt([&] {
        parts_.link.execute("recipient(" + quoted(to.fax) + ",,," + quoted(to.name) + "," +
                            quoted(to.company) + "," + quoted("") + ")");
    });
    attempt([this] { parts_.link.execute("resolution(" + quoted("high") + ")"); });
    attempt([&] { sendText(to); });
}

void WinFax::startFaxProgram() {
    std::string folder(parts_.settings.read(keys::FaxProgramFolder));
    if (folder.ends_with('\0'))
        folder.pop_back();
    if (!parts_.programs.start(std::string(trimBlanks(folder)) + kFaxProgram, {}))
        throw Failure("The fax program can not be started.");
    (void)parts_.windows.activate(kApplicationTitle);
}

void WinFax::chooseFaxDriver() {
    for (const std::string& driver : parts_.drivers.names())
        if (parts_.codePage.upper(driver).find(kFaxDriver) != std::string::npos)
            return parts_.drivers.makeCurrent(driver);
}

WinFax::Recipient WinFax::recipient() const {
    const PhonebookRecord record = parts_.entry.read();
    const auto field = [&record](Field which) {
        return std::string(trimBlanks(RecordView(record).text(which)));
    };
    const std::string name =
        field(Field::Title) + " " + field(Field::First) + " " + field(Field::Last);
    return {.name = std::string(trimBlanks(name)),
            .company = field(Field::Company),
            .fax = field(Field::Fax)};
}

void WinFax::sendText(const Recipient& to) {
    switch (parts_.question.ask("Fax?",
                                "Fax DocPad's contents? If NO, you must specify attachments.")) {
        case FaxQuestion::Answer::Yes:
            (void)parts_.docPad.PrintDocPad();
            return;
        case FaxQuestion::Answer::No:
            parts_.link.execute("showsendscreen(" + quoted("1") + ")");
            parts_.printing.run({.title = "Fax"}, [&to](PrintRun& run) {
                run.printer.Print(to.name);
                run.printer.Print(to.company);
                run.printer.Print("Fax Number: " + to.fax);
            });
            return;
        case FaxQuestion::Answer::Cancel:
            return;
    }
}

}  // namespace velmora
