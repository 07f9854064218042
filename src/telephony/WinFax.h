#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/PrintJobs.h"
#include "core/SettingsStore.h"
#include "docpad/PadPrinter.h"
#include "phonebook/SelectedEntry.h"
#include "platform/ProgramStarter.h"
#include "platform/StatusLine.h"
#include "telephony/CallerModem.h"

namespace velmora {

// A conversation with another program. All but reset() throw Failure when they do not work.
class DdeLink {
  public:
    virtual ~DdeLink() = default;
    virtual void setTopic(const std::string& topic) = 0;
    virtual void setItem(const std::string& item) = 0;
    virtual void open() = 0;
    virtual void execute(const std::string& command) = 0;
    virtual void reset() = 0;  // no longer open, without a topic
};

// There is no such conversation on this system: it fails at once.
class NoDdeLink final : public DdeLink {
  public:
    void setTopic(const std::string& topic) override;
    void setItem(const std::string& item) override;
    void open() override;
    void execute(const std::string& command) override;
    void reset() override {}
};

// Brings windows of other programs forward by their title.
class WindowActivator {
  public:
    virtual ~WindowActivator() = default;
    virtual bool activate(const std::string& title) = 0;  // false: there is none
};

// The printers by their drivers.
class PrinterDrivers {
  public:
    virtual ~PrinterDrivers() = default;
    [[nodiscard]] virtual std::string current() const = 0;
    [[nodiscard]] virtual std::vector<std::string> names() const = 0;
    virtual void makeCurrent(const std::string& driver) = 0;
};

// The watcher of the modem, which is not to disturb.
class CallerWatch : public CallerTimer {
  public:
    [[nodiscard]] virtual bool enabled() const = 0;
};

// What is asked before DocPad's text is faxed.
class FaxQuestion {
  public:
    enum class Answer { Yes, No, Cancel };
    virtual ~FaxQuestion() = default;
    [[nodiscard]] virtual Answer ask(const std::string& title, const std::string& text) = 0;
};

// The hand-off to an outside fax program. No command calls it.
class WinFax {
  public:
    // All must outlive this object.
    struct Parts {
        StatusLine& status;
        PrinterDrivers& drivers;
        CallerWatch& watch;
        WindowActivator& windows;
        const SettingsStore& settings;
        ProgramStarter& programs;
        const SelectedEntry& entry;
        DdeLink& link;
        FaxQuestion& question;
        PadPrinter& docPad;
        PrintJobs& printing;
        const CodePage& codePage;
    };
    explicit WinFax(const Parts& parts) : parts_(parts) {}

    // Faxes to the selected entry. No failure leaves this function; the watcher runs afterwards if
    // it ran before.
    void SendFaxWinFax();

  private:
    struct Recipient {
        std::string name, company, fax;
    };

    bool attempt(const std::function<void()>& step);
    void callFaxProgram();
    void startFaxProgram();
    void handOver();
    void chooseFaxDriver();
    [[nodiscard]] Recipient recipient() const;
    void sendText(const Recipient& to);

    Parts parts_;
    bool failed_ = false;  // a step of the hand-off under way
};

}  // namespace velmora
