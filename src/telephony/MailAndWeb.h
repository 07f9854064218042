#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/ProductAddresses.h"
#include "core/SettingsStore.h"
#include "phonebook/SelectedEntry.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/ProgramStarter.h"

namespace velmora {

// Hands the mail address, the web page and the attached file of the selected entry to programs
// outside: those that the settings name or, with `IEEnhanced`, those that the desktop has for it.
// What stands in an entry is one argument, never an option and never the name of a program. A
// program that can not be started shows nothing; a book that can not be read throws Failure.
class MailAndWeb {
  public:
    // All must outlive this object.
    struct Parts {
        const SettingsStore& settings;
        const SelectedEntry& entry;
        const Files& files;
        ProgramStarter& starter;
        SystemOpener& opener;
        Messages& messages;
        const CodePage& codePage;
        ProductAddresses addresses;
        std::string programFolder;  // without a separator at its end
    };
    explicit MailAndWeb(Parts parts) : parts_(std::move(parts)) {}

    // "&E-Mail", "&Web" and "Open &File".
    void mailToEntry();
    void goToEntrysPage();
    void openEntrysFile();

    // The mail program and the browser by themselves; the user is told when none is set.
    void runMailProgram();
    void runBrowser();

    // The links of the about box.
    void mailToProduct();
    void goToHomePage();

  private:
    [[nodiscard]] bool usesDesktop() const;
    void mailTo(std::string_view address);
    void goTo(std::string_view page);
    void runNamedProgram(const TextKey& key);
    [[nodiscard]] std::string setting(const TextKey& key) const;

    Parts parts_;
};

}  // namespace velmora
