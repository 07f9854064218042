#include "app/ImportRoom.h"

#include <utility>

#include "app/PlannerRoom.h"
#include "core/forms/StatusBar.h"
#include "platform/access/ChildAccessReader.h"
#include "platform/files/FileBytes.h"
#include "platform/files/FileSteps.h"

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
               [this] { showLetterAnew(); }}),
      earlierPhonebooks_({parts.jobs, parts.world.messages, parts.store, parts.world.locations,
                          parts.world.files, copies_, parts.reports, [this] { showLetterAnew(); }}),
      oldPlanner_({parts.jobs, parts.world.messages, parts.planner.store(), parts.world.files,
                   parts.world.clock, parts.world.codePage, [this] { return copyPlanner(); },
                   [&planner = parts.planner] { planner.showAnew(); }}) {}

void ImportRoom::bindCommands(CommandSet& commands) {
    commands.bind(Commands::Importmnu, [this] { openWizard(); });
    commands.bind(Commands::importoldmnu, [this] { earlierPhonebooks_.import(); });
    commands.bind(Commands::importplanner, [this] { openPlannerImporter(); });
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

void ImportRoom::openPlannerImporter() {
    if (!plannerForm_)
        plannerForm_ = std::make_unique<Form2>([this] { return oldPlanner_.import(); },
                                               [this] { parts_.jobs.cancel(); }, &parts_.calendar);
    plannerForm_->present();
}

// Beside the planner, as the books are.
std::string ImportRoom::copyPlanner() {
    const CodePage& codePage = parts_.world.codePage;
    const std::string planner = parts_.planner.store().path();
    const NativePath file = parts_.world.files.nativePath(planner);
    const NativePath target = nameBeforeImport(file, parts_.world.clock.now(), isNameTaken);
    parts_.planner.places().copy(planner, codePage.fromUtf8(target.utf8()));
    clearOldCopiesBeforeImport(file);
    return codePage.fromUtf8(target.utf8());
}

void ImportRoom::showLetterAnew() {
    if (!parts_.world.loop.closing())
        ignoringErrors([this] { parts_.letters.refresh(); });
}

}  // namespace velmora
