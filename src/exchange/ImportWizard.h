#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/LongJobs.h"
#include "core/SettingsStore.h"
#include "exchange/ImportQuestions.h"
#include "exchange/ImportRun.h"
#include "exchange/ImportSource.h"
#include "exchange/MappingMemory.h"
#include "exchange/TableSource.h"
#include "phonebook/PhonebookStore.h"
#include "platform/AccessTableReader.h"
#include "platform/ByteSource.h"
#include "platform/Messages.h"
#include "platform/SystemPaths.h"

namespace velmora {

// The Import Wizard without its window: asks one question after the other for the columns of a
// source, and then copies its rows into a book.
class ImportWizard {
  public:
    // All must outlive the wizard.
    struct Parts {
        LongJobs& jobs;
        Messages& messages;
        const PhonebookStore& store;
        SettingsStore& settings;
        CopiesBeforeImport& copies;
        const SystemPaths& paths;
        OpenByteSource openText;
        MakeAccessReader makeAccessReader;
        std::function<void()> bookChanged;  // the book may have other entries now
    };

    explicit ImportWizard(Parts parts);

    // Lets the user choose a file and begins with its questions. False when there is nothing to
    // ask: none was chosen, another job runs, or the file is no source, as the user was told.
    [[nodiscard]] bool begin();

    enum class Stage { Table, Question, Ready, Running, Finished };
    [[nodiscard]] Stage stage() const { return stage_; }

    [[nodiscard]] bool isText() const { return isText_; }
    [[nodiscard]] std::string question() const;

    // How far the questions have come, of kImportSteps.
    [[nodiscard]] int step() const;

    // What the user may choose from, and the line that most likely is meant.
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
    [[nodiscard]] std::size_t proposedLine() const;

    // What the column of a line holds in the first rows; empty for none.
    [[nodiscard]] std::string sampleOf(std::size_t line) const;

    // What the user has to know before the first question, or nothing.
    [[nodiscard]] std::string remark() const;

    // The user has chosen a line. Behind the last question the answers are shown in boxes.
    void choose(std::size_t line);

    // Imports into kYellowPagesFile or kWhitePagesFile; events run meanwhile, and `tell` hears of
    // the progress. False when another job runs: nothing has happened then. Throws FatalFailure for
    // a row of more columns than are held.
    bool import(const std::string& bookFile,
                const std::function<void(const ImportRun::State&)>& tell);

    // The import that runs ends behind the row in hand.
    void cancel();

    // Of the last import.
    [[nodiscard]] const ImportReport& report() const { return report_; }
    [[nodiscard]] std::string reportText() const;

  private:
    [[nodiscard]] bool beginText(const std::string& path, const std::string& upperName);
    [[nodiscard]] bool beginTables(const std::string& path);
    [[nodiscard]] bool refuse();
    [[nodiscard]] std::vector<AccessTable> readTables(const NativePath& file);
    void chooseTable(std::size_t line);
    void listColumns();
    void storeChoice(std::size_t line);
    void askFor(std::optional<ImportField> field);
    void showAnswers();

    Parts parts_;
    MappingMemory memory_;
    bool isText_ = false;
    NativePath file_;
    std::vector<AccessTable> tables_;
    std::unique_ptr<ImportSource> source_;
    std::vector<std::string> lines_;
    Stage stage_ = Stage::Finished;
    ImportField field_ = kFirstImportField;
    ImportMapping mapping_;
    std::optional<ImportMapping> proposal_;
    ImportReport report_;
    LongJob* job_ = nullptr;  // while one runs
};

}  // namespace velmora
