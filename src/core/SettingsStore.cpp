#include "core/SettingsStore.h"

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {

void SettingsStore::Delete(std::string_view key) {
    ignoringErrors([&] { medium_.remove(key); });
}

std::string SettingsStore::readSwitch(std::string_view key) const {
    const std::string value = Read(key);
    return CodePage::western().upper(trimBlanks(value));
}

}  // namespace velmora
