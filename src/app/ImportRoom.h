#pragma once

#include <memory>

#include "app/World.h"
#include "core/CommandSet.h"
#include "core/LongJobs.h"
#include "core/PrintJobs.h"
#include "core/SharedState.h"
#include "core/forms/Calendar.h"
#include "exchange/EarlierPhonebooks.h"
#include "exchange/FileCopiesBeforeImport.h"
#include "exchange/ImportWizard.h"
#include "exchange/forms/DataImport.h"
#include "phonebook/LetterView.h"
#include "phonebook/PhonebookStore.h"
#include "planner/OldPlannerImport.h"
#include "planner/forms/Form2.h"
#include "platform/files/PosixReplacement.h"

namespace velmora {

class PlannerRoom;

// Connects what brings data from elsewhere into the phonebooks and the planner with the main
// window.
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
        ReportState& reports;
        PlannerRoom& planner;
    };

    explicit ImportRoom(const Parts& parts);

    void bindCommands(CommandSet& commands);

  private:
    void openWizard();
    [[nodiscard]] bool import(const std::string& bookFile,
                              const std::function<void(const ImportRun::State&)>& tell);
    void showLetterAnew();
    void openPlannerImporter();
    [[nodiscard]] std::string copyPlanner();

    Parts parts_;
    PosixReplacements replacements_;
    FileCopiesBeforeImport copies_;
    ImportWizard wizard_;
    EarlierPhonebooks earlierPhonebooks_;
    OldPlannerImport oldPlanner_;
    // Made when they are wanted.
    std::unique_ptr<DataImport> form_;
    std::unique_ptr<Form2> plannerForm_;
};

}  // namespace velmora
