#include "platform/bus/ModemManagerCalls.h"

#include <optional>

#include "platform/bus/BusValues.h"

namespace velmora {
namespace {

constexpr const char* kService = "org.freedesktop.ModemManager1";
constexpr const char* kCallInterface = "org.freedesktop.ModemManager1.Call";
constexpr int kIncoming = 1;

std::optional<std::string> readPath(sd_bus_message& signal) {
    const char* path = nullptr;
    if (sd_bus_message_read_basic(&signal, SD_BUS_TYPE_OBJECT_PATH, &path) <= 0)
        return std::nullopt;
    return path;
}

}  // namespace

void ModemManagerCalls::join(sd_bus& connection) {
    open_.clear();
    ask<ModemManagerCalls, &ModemManagerCalls::onCallAdded>(
        connection,
        "type='signal',sender='org.freedesktop.ModemManager1',"
        "interface='org.freedesktop.ModemManager1.Modem.Voice',member='CallAdded'");
    ask<ModemManagerCalls, &ModemManagerCalls::onCallDeleted>(
        connection,
        "type='signal',sender='org.freedesktop.ModemManager1',"
        "interface='org.freedesktop.ModemManager1.Modem.Voice',member='CallDeleted'");
    ask<ModemManagerCalls, &ModemManagerCalls::onCallChanged>(
        connection,
        "type='signal',sender='org.freedesktop.ModemManager1',"
        "interface='org.freedesktop.DBus.Properties',member='PropertiesChanged',"
        "arg0='org.freedesktop.ModemManager1.Call'");
}

// A service that was started anew counts its calls from the first again.
void ModemManagerCalls::onCallAdded(sd_bus_message& signal) {
    const auto path = readPath(signal);
    if (!path)
        return;
    open_.erase(*path);
    Question& question = open_.try_emplace(*path, Question{*this, *path}).first->second;
    askAbout(question, *sd_bus_message_get_bus(&signal));
}

void ModemManagerCalls::onCallDeleted(sd_bus_message& signal) {
    if (const auto path = readPath(signal))
        open_.erase(*path);
}

void ModemManagerCalls::onCallChanged(sd_bus_message& signal) {
    const char* path = sd_bus_message_get_path(&signal);
    const auto found = path ? open_.find(path) : open_.end();
    if (found != open_.end())
        askAbout(found->second, *sd_bus_message_get_bus(&signal));
}

// An earlier question is given up: its answer would tell less.
void ModemManagerCalls::askAbout(Question& question, sd_bus& connection) {
    const auto call = [](sd_bus_message* answer, void* data, sd_bus_error*) noexcept {
        const auto& asked = *static_cast<const Question*>(data);
        asked.calls.onAnswer(std::string(asked.path), *answer);
        return 0;
    };
    sd_bus_slot* slot = nullptr;
    if (sd_bus_call_method_async(&connection, &slot, kService, question.path.c_str(),
                                 "org.freedesktop.DBus.Properties", "GetAll", call, &question, "s",
                                 kCallInterface) >= 0)
        question.answer.reset(slot);
}

void ModemManagerCalls::onAnswer(const std::string& path, sd_bus_message& answer) {
    if (sd_bus_message_is_method_error(&answer, nullptr) > 0)
        return;
    const BusValues call = readBusValues(answer);
    const std::string number = call.text("Number");
    if (call.number("Direction") != kIncoming || number.empty())
        return;
    report({.name = {}, .number = number});
    open_.erase(path);
}

}  // namespace velmora
