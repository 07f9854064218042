#include "core/Preferences.h"

#include <algorithm>

#include "core/ProgramQuestion.h"
#include "platform/Failure.h"

namespace velmora {

int endOfHours(int start, int end) {
    const int latest = rangeOf(preferenceRows()[preferenceRowOf(keys::PlannerEnd.name)]).most;
    return end < start ? std::min(start + 1, latest) : end;
}

PreferenceValues Preferences::shown() const {
    PreferenceValues values;
    for (const PreferenceRow& row : preferenceRows())
        values.push_back(shownValue(row, parts_.settings, parts_.systemFolder));
    return values;
}

bool Preferences::apply(PreferenceValues values) {
    auto& end = values.at(preferenceRowOf(keys::PlannerEnd.name));
    end = endOfHours(std::get<int>(values.at(preferenceRowOf(keys::PlannerStart.name))),
                     std::get<int>(end));
    const auto rows = preferenceRows();
    try {
        parts_.patiently([&] {
            parts_.settings.batch([&] {
                for (std::size_t i = 0; i < rows.size(); ++i)
                    storeValue(rows[i], values.at(i), parts_.settings);
            });
        });
    } catch (const Failure& failure) {
        parts_.messages.warn(kApplicationTitle,
                             "The preferences could not be stored, and all of them are as they "
                             "were. " +
                                 parts_.codePage.fromUtf8(failure.what()));
        return false;
    }
    parts_.effects.movePlanner(
        std::get<std::string>(values.at(preferenceRowOf(keys::Calendar.name))));
    parts_.effects.setDayLimits();
    return true;
}

void Preferences::playNow(const std::string& path) {
    if (parts_.files.exists(path))
        parts_.sound.play(path);
    else
        parts_.status.show("There is no such sound file, so an alarm will beep.");
}

std::optional<std::string> Preferences::chooseSound() {
    return parts_.messages.chooseFileToOpen(
        {.title = "Select Sound File",
         .defaultExtension = ".wav",
         .filter = "Wave Files (*.wav)|*.wav|All Files (*.*)|*.*",
         .fileName = {}});
}

std::optional<std::string> Preferences::chooseProgram() {
    return parts_.messages.chooseFileToOpen(programQuestion());
}

}  // namespace velmora
