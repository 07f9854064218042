#include "app/ImportRoom.h"

#include <utility>

#include "core/forms/StatusBar.h"
#include "platform/access/ChildAccessReader.h"
#include "platform/files/FileBytes.h"

namespace velmora {

ImportRoom::ImportRoom(const Parts& parts)
    : parts_(parts),
      copies_({parts.books, replacements_, parts.world.locations, parts.world.files,
               parts.world.clock, parts.world.codePage}),
      wizard_({parts.jobs, parts.world.messages, parts.store, parts.world.settings, copies_,
               parts.world.files,
               [&world = parts.world](const std::string& path) {
                   return std::make_unique<FileBytes>(world.files.nativePath(path));
               },
               [](std::function<void()> whileWaiting) {
                   return std::make_unique<access::ChildAccessReader>(std::move(whileWaiting));
               },
               [this] { showLetterAnew(); }}) {}

void ImportRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::Importmnu, [this] { openWizard(); });
}

void ImportRoom::openWizard() {
    if (form_ && form_->isVisible())
        return form_->present();
    if (!wizard_.begin())
        return;
    if (!form_)
        form_ = std::make_unique<DataImport>(
            wizard_,
            [this](const std::string& bookFile,
                   const std::function<void(const ImportRun::State&)>& tell) {
                return import(bookFile, tell);
            },
            parts_.world.codePage, &parts_.calendar);
    form_->presentFor(parts_.state.BookKind == kYellowPages);
}

// The form may be closed by the time the import is over.
bool ImportRoom::import(const std::string& bookFile,
                        const std::function<void(const ImportRun::State&)>& tell) {
    if (!wizard_.import(bookFile, tell))
        return false;
    parts_.calendar.status().show(wizard_.reportText());
    return true;
}

void ImportRoom::showLetterAnew() {
    if (!parts_.world.loop.closing())
        ignoringErrors([this] { parts_.letters.refresh(); });
}

}  // namespace velmora
