#include "docpad/DialogState.h"

namespace velmora {

bool DialogState::showOpen() {
    return take(messages_.chooseFileToOpen(question("Open")));
}

bool DialogState::showSave() {
    return take(messages_.chooseFileToSave(question("Save As")));
}

FileQuestion DialogState::question(const char* title) const {
    return {.title = title,
            .defaultExtension = "",
            .filter = "Text (*.txt)|*.txt|Documents (*.doc)|*.doc",
            .fileName = fileName_};
}

bool DialogState::take(const std::optional<std::string>& path) {
    if (!path)
        return false;
    fileName_ = *path;
    const std::size_t folder = path->find_last_of("/\\");
    fileTitle_ = folder == std::string::npos ? *path : path->substr(folder + 1);
    return true;
}

}  // namespace velmora
