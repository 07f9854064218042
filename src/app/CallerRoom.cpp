#include "app/CallerRoom.h"

#include <QApplication>
#include <QLocale>
#include <utility>

#include "core/forms/StatusBar.h"
#include "telephony/AnnouncedCaller.h"
#include "telephony/CallerId.h"
#include "telephony/PhoneLog.h"
#include "telephony/ServiceLine.h"
#include "telephony/forms/CallID.h"

namespace velmora {
namespace {

// The country whose numbers are dialed here, in two letters; empty where the locale names none.
std::string homeCountry() {
    const QString chosen = qEnvironmentVariable("VELMORA_COUNTRY");
    return (chosen.isEmpty() ? QLocale::system().name().section(QLatin1Char('_'), 1) : chosen)
        .toStdString();
}

std::vector<CallService*> pointersTo(const std::vector<std::unique_ptr<CallService>>& services) {
    std::vector<CallService*> pointers;
    pointers.reserve(services.size());
    for (const auto& service : services)
        pointers.push_back(service.get());
    return pointers;
}

}  // namespace

// What there is only where callers are to be told.
class CallerRoom::Desk {
  public:
    Desk(World& world, Calendar& calendar, const PhonebookStore& store, Notices& notices,
         std::vector<std::unique_ptr<CallService>> services)
        : log_(world.locations.programFolder(), world.files, world.clock, world.locale),
          form_(world.codePage),
          announced_(form_, notices, world.codePage),
          callerId_({world.settings, store, log_, announced_, calendar.status(), world.loop}),
          services_(std::move(services)),
          line_({pointersTo(services_), homeCountry(), world.codePage, world.loop,
                 [] { return std::chrono::steady_clock::now(); }}) {}

    [[nodiscard]] CallID& form() { return form_; }
    [[nodiscard]] AnnouncedCaller& announced() { return announced_; }
    [[nodiscard]] CallerId& callerId() { return callerId_; }
    void listen() { callerId_.listenTo(line_); }

  private:
    PhoneLog log_;
    CallID form_;
    AnnouncedCaller announced_;
    CallerId callerId_;
    std::vector<std::unique_ptr<CallService>> services_;
    ServiceLine line_;
};

CallerRoom::CallerRoom(World& world, Calendar& calendar, const PhonebookStore& store,
                       EntryCommands& entries, Notices& notices, CallServices services)
    : world_(world),
      calendar_(calendar),
      store_(store),
      entries_(entries),
      notices_(notices),
      services_(std::move(services)) {}

CallerRoom::~CallerRoom() = default;

void CallerRoom::listen() {
    if (desk_ || !CallerId::isSwitchedOn(world_.settings))
        return;
    desk_ = std::make_unique<Desk>(world_, calendar_, store_, notices_, services_());
    CallID* form = &desk_->form();
    QObject::connect(form, &CallID::lineChosen, &connections_,
                     [this](const std::string& line) { desk_->callerId().showEntry(line); });
    QObject::connect(form, &CallID::newEntryWanted, &connections_,
                     [this](const std::string& number) { makeEntry(number); });
    QObject::connect(form, &QDialog::finished, &connections_,
                     [this] { desk_->announced().closed(); });
    QObject::connect(&calendar_, &Calendar::closing, form, &QWidget::hide);
    desk_->listen();
}

void CallerRoom::bringReportToFront() {
    if (!desk_ || !desk_->form().isVisible())
        return;
    desk_->form().present();
    desk_->form().activateWindow();
}

// The report answers while a dialog of the main window is open; a second one can not open then.
void CallerRoom::makeEntry(const std::string& number) {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        calendar_.status().show("Answer the open dialog first, then make the new entry.");
        modal->raise();
        modal->activateWindow();
        return;
    }
    calendar_.place().bringToFront();
    Entry values;
    values[Field::Phone] = number;
    entries_.newEntryWith(values);
    if (desk_->form().isVisible())
        desk_->form().present();  // the main window has come before it
}

}  // namespace velmora
