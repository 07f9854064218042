#pragma once

#include <array>
#include <cstddef>

namespace velmora {

// The commands of the menu `Chmenu`: each makes an appointment with the selected entry.
enum class ScheduleCommand {
    Schedule,
    Meeting,
    Call,
    Lunch,
    Dinner,
    Appointment,
    Visit,
    Go,
    Other
};

struct ScheduleCommandInfo {
    ScheduleCommand command;
    const char* menu;       // name of the menu item
    const char* caption;    // with its access key
    const char* beginning;  // what stands before the name; nullptr: the user is asked
    bool emptiesTexts;      // whether the times are emptied at the end
};

inline constexpr std::array<ScheduleCommandInfo, 9> kScheduleCommands{{
    {ScheduleCommand::Schedule, "schedmnu", "&Schedule Meeting", "Schedule meeting with ", true},
    {ScheduleCommand::Meeting, "meetmnu", "&Meeting", "Meeting with ", true},
    {ScheduleCommand::Call, "Callmnu", "&Call", "Call ", true},
    {ScheduleCommand::Lunch, "lunchmnu", "&Lunch With", "Lunch with ", true},
    {ScheduleCommand::Dinner, "dinmnu", "&Dinner With", "Dinner with ", false},
    {ScheduleCommand::Appointment, "aptmnu", "&Appointment With", "Appointment with ", true},
    {ScheduleCommand::Visit, "vismnu", "&Visit", "Visit with ", true},
    {ScheduleCommand::Go, "gomnu", "&Go With", "Go with ", true},
    {ScheduleCommand::Other, "othmnu", "&Other (you specify)", nullptr, true},
}};

[[nodiscard]] constexpr const ScheduleCommandInfo& infoOf(ScheduleCommand command) {
    return kScheduleCommands[static_cast<std::size_t>(command)];
}

}  // namespace velmora
