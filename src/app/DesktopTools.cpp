#include "app/DesktopTools.h"

#include <QDir>
#include <chrono>
#include <utility>

namespace velmora {
namespace {

constexpr std::chrono::seconds kPatience(15);

// Of the desktops that are in use; the first that is there is the one of this desktop, as a rule.
constexpr const char* kSettingsPrograms[] = {
    "gnome-control-center", "systemsettings",      "systemsettings5", "xfce4-settings-manager",
    "cinnamon-settings",    "mate-control-center", "lxqt-config",     "lxqt-config-appearance"};

}  // namespace

DesktopTools::DesktopTools(ProgramStarter& starter, const CodePage& codePage)
    : starter_(starter), codePage_(codePage) {
    for (QTimer* timer : {&patience_, &finished_})
        timer->setSingleShot(true);
    QObject::connect(&patience_, &QTimer::timeout, &patience_, [this] { finish(false); });
    QObject::connect(&finished_, &QTimer::timeout, &finished_, [this] { answer(); });
}

void DesktopTools::openFileManager() {
    starter_.start("xdg-open", {codePage_.fromUtf8(QDir::homePath().toStdString())});
}

bool DesktopTools::openSettings() {
    for (const char* program : kSettingsPrograms)
        if (starter_.finds(program))
            return starter_.start(program, {});
    return false;
}

void DesktopTools::logOff(std::function<void(bool taken)> answered) {
    answered_ = std::move(answered);
    finished_.stop();
    request_ = std::make_unique<Request>([this](bool taken) { finish(taken); });
    patience_.start(kPatience);
}

// It is the request that tells, from within its work on the bus.
void DesktopTools::finish(bool taken) {
    patience_.stop();
    taken_ = taken;
    finished_.start(0);
}

void DesktopTools::answer() {
    request_.reset();
    if (const auto answered = std::exchange(answered_, nullptr))
        answered(taken_);
}

}  // namespace velmora
