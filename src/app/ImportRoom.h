#pragma once

#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/LongJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "exchange/FileCopiesBeforeImport.h"
#include "exchange/ImportWizard.h"
#include "exchange/forms/DataImport.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "platform/files/PosixReplacement.h"

namespace velmora {

// Connects what brings entries into the phonebooks with the main window.
class ImportRoom {
  public:
    // All must outlive the room.
    struct Parts {
        World& world;
        const SharedState& state;
        Calendar& calendar;
        Books& books;
        const PhonebookStore& store;
        LetterView& letters;
        LongJobs& jobs;
    };

    explicit ImportRoom(const Parts& parts);

    void bindCommands(CommandSet& commands);

  private:
    void openWizard();
    [[nodiscard]] bool import(const std::string& bookFile,
                              const std::function<void(const ImportRun::State&)>& tell);
    void showLetterAnew();

    Parts parts_;
    PosixReplacements replacements_;
    FileCopiesBeforeImport copies_;
    ImportWizard wizard_;
    std::unique_ptr<DataImport> form_;  // made when it is wanted
};

}  // namespace velmora
