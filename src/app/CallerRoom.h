#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "app/World.h"
#include "core/forms/Calendar.h"
#include "phonebook/EntryCommands.h"
#include "phonebook/PhonebookStore.h"
#include "platform/CallService.h"
#include "platform/Notices.h"

namespace velmora {

// Makes the telephone services that are listened to.
using CallServices = std::function<std::vector<std::unique_ptr<CallService>>()>;

// Connects the telephone services of the desktop with the report of who is calling, and that with
// the phonebook.
class CallerRoom {
  public:
    // All references must outlive the room.
    CallerRoom(World& world, Calendar& calendar, const PhonebookStore& store,
               EntryCommands& entries, Notices& notices, CallServices services);
    ~CallerRoom();

    // Begins to listen, if the settings say so; nothing is made, and no service asked, before. To
    // be called once the window has been painted.
    void listen();

    // Brings the report before all other windows, with the keys; nothing while it is closed.
    void bringReportToFront();

  private:
    class Desk;

    void makeEntry(const std::string& number);

    World& world_;
    Calendar& calendar_;
    const PhonebookStore& store_;
    EntryCommands& entries_;
    Notices& notices_;
    CallServices services_;
    std::unique_ptr<Desk> desk_;
    QObject connections_;  // ends them all before what they call is gone
};

}  // namespace velmora
