#include "exchange/ImportWizard.h"

#include <array>
#include <utility>

#include "exchange/ColumnGuess.h"
#include "exchange/TextSource.h"
#include "platform/FatalFailure.h"

namespace velmora {
namespace {

const FileQuestion kWhichFile{
    "Please select a file for import:", ".MDB",
    "Address Lists (*.mdb;*.accdb;*.txt;*.csv;*.prn)|*.mdb;*.accdb;*.txt;*.csv;*.prn|"
    "All Files (*.*)|*.*",
    ""};
constexpr const char* kWhichTable = "Import from which table?";
constexpr const char* kReading = "Reading the file to be imported...";

struct Answered {
    const char* label;
    ImportField field;
};
constexpr std::array kAnswers{
    Answered{"Title ", ImportField::Title},    Answered{"First ", ImportField::First},
    Answered{"Last ", ImportField::Last},      Answered{"Comp ", ImportField::Company},
    Answered{"A1 ", ImportField::Street},      Answered{"A2 ", ImportField::AdditionalAddress},
    Answered{"City ", ImportField::City},      Answered{"State ", ImportField::State},
    Answered{"Zip ", ImportField::Zip},        Answered{"Coun ", ImportField::Country},
    Answered{"Phone ", ImportField::Home},     Answered{"Work ", ImportField::Work},
    Answered{"Fax ", ImportField::Fax},        Answered{"Memo ", ImportField::Memo},
    Answered{"Sal ", ImportField::Salutation},
};

std::string lastPart(const std::string& path) {
    const std::size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool isTextName(const std::string& upperName) {
    for (const char* ending : {".TXT", ".CSV", ".PRN"})
        if (upperName.find(ending) != std::string::npos)
            return true;
    return false;
}

}  // namespace

ImportWizard::ImportWizard(Parts parts) : parts_(std::move(parts)), memory_(parts_.settings) {}

bool ImportWizard::begin() {
    if (parts_.jobs.refuses())
        return false;
    const auto path = parts_.messages.chooseFileToOpen(kWhichFile);
    if (!path || path->empty() || parts_.jobs.closing())
        return false;
    mapping_ = {};
    proposal_.reset();
    tables_.clear();
    source_.reset();
    report_ = {};
    field_ = kFirstImportField;
    const std::string upperName = parts_.store.codePage().upper(lastPart(*path));
    isText_ = isTextName(upperName);
    return isText_ ? beginText(*path, upperName) : beginTables(*path);
}

bool ImportWizard::refuse() {
    if (!parts_.jobs.closing())
        parts_.messages.warn("Error", "File not importable.");
    return false;
}

bool ImportWizard::beginText(const std::string& path, const std::string& upperName) {
    const bool commas = upperName.find(".CSV") != std::string::npos;
    const bool tabs = parts_.messages.ask(
        "Tab or Comma Delimited?",
        "Is this text file tab-delimited? Choosing No indicates that the file is comma-delimited "
        "(CSV).",
        commas ? Answer::No : Answer::Yes);
    if (parts_.jobs.closing())
        return false;
    auto source = std::make_unique<TextSource>(
        TextSource::File{parts_.openText, path, tabs ? '\t' : ','}, parts_.store.codePage());
    auto outcome = TextSource::Inspection::GivenUp;
    parts_.jobs.run([&](LongJob& job) {
        job.tell(kReading);
        try {
            outcome = source->inspect([&] { return job.goOn(); });
            job.tell(kApplicationTitle);
        } catch (const FatalFailure&) {
            throw;
        } catch (const Failure& failure) {
            outcome = TextSource::Inspection::NotImportable;
            job.tell(parts_.store.codePage().fromUtf8(failure.what()));
        }
    });
    if (outcome == TextSource::Inspection::NotImportable)
        return refuse();
    if (outcome == TextSource::Inspection::GivenUp)
        return false;
    source_ = std::move(source);
    listColumns();
    return true;
}

bool ImportWizard::beginTables(const std::string& path) {
    file_ = parts_.paths.nativePath(path);
    bool calledOff = true;
    parts_.jobs.run([&](LongJob& job) {
        job.tell(kReading);
        job_ = &job;
        try {
            tables_ = readTables(file_);
            job.tell(kApplicationTitle);
        } catch (const Failure& failure) {
            job.tell(parts_.store.codePage().fromUtf8(failure.what()));
        }
        job_ = nullptr;
        calledOff = job.cancelled();
    });
    if (calledOff)
        return false;
    if (tables_.empty())
        return refuse();
    stage_ = Stage::Table;
    lines_.clear();
    for (const AccessTable& table : tables_)
        lines_.push_back(parts_.store.codePage().fromUtf8(table.name));
    return true;
}

std::vector<AccessTable> ImportWizard::readTables(const NativePath& file) {
    const auto reader = parts_.makeAccessReader([this] {
        if (!job_->goOn())
            throw Failure("The tables are not wanted any more.");
    });
    return importableTables(reader->tables(file));
}

void ImportWizard::choose(std::size_t line) {
    if (line >= lines_.size() && stage_ != Stage::Ready)
        return;
    if (stage_ == Stage::Table)
        chooseTable(line);
    else if (stage_ == Stage::Question)
        storeChoice(line);
    else if (stage_ == Stage::Ready)
        showAnswers();
}

void ImportWizard::chooseTable(std::size_t line) {
    source_ = std::make_unique<TableSource>(
        file_, tables_[line], parts_.makeAccessReader, [this] { return job_ && job_->goOn(); },
        parts_.store.codePage());
    listColumns();
}

// Begins with the questions.
void ImportWizard::listColumns() {
    lines_ = source_->columns();
    lines_.push_back(kNoColumn);
    proposal_ = memory_.of(source_->columns());
    stage_ = Stage::Question;
    field_ = kFirstImportField;
}

void ImportWizard::storeChoice(std::size_t line) {
    mapping_[field_] = isNoColumn(lines_[line]) ? lines_[line] : source_->choiceOf(line);
    if (field_ == ImportField::Street) {
        const bool separate =
            proposal_
                ? proposal_->cityStateZipSeparate
                : ColumnGuess(source_->columns(), parts_.store.codePage()).cityStateZipSeparate();
        mapping_.cityStateZipSeparate = parts_.messages.ask(
            "Separate?",
            "Are the city, state, and zipcode elements of the address separate fields?",
            separate ? Answer::Yes : Answer::No);
    }
    askFor(fieldBehind(field_, mapping_.cityStateZipSeparate));
}

void ImportWizard::askFor(std::optional<ImportField> field) {
    if (field) {
        field_ = *field;
        return;
    }
    stage_ = Stage::Ready;
    if (!parts_.jobs.closing())
        parts_.messages.tell(kApplicationTitle, "Press the Import Button to begin importing.");
}

void ImportWizard::showAnswers() {
    for (const Answered& answer : kAnswers) {
        if (parts_.jobs.closing())
            return;
        parts_.messages.tell(kApplicationTitle, answer.label + mapping_[answer.field]);
    }
}

std::string ImportWizard::question() const {
    return stage_ == Stage::Table ? kWhichTable : std::string(questionFor(field_));
}

int ImportWizard::step() const {
    if (stage_ == Stage::Table)
        return 0;
    return stage_ == Stage::Question ? importStepOf(field_) : kImportSteps;
}

std::size_t ImportWizard::proposedLine() const {
    if (stage_ != Stage::Question)
        return 0;
    const std::size_t none = lines_.size() - 1;
    if (!proposal_) {
        const auto column =
            ColumnGuess(source_->columns(), parts_.store.codePage()).columnFor(field_);
        return column.value_or(none);
    }
    for (std::size_t column = 0; column < none; ++column)
        if (source_->choiceOf(column) == (*proposal_)[field_])
            return column;
    return none;
}

std::string ImportWizard::sampleOf(std::size_t line) const {
    std::string sample;
    if (stage_ != Stage::Question)
        return sample;
    for (const auto& row : source_->firstRows()) {
        if (line >= row.size() || row[line].empty())
            continue;
        if (!sample.empty())
            sample += "  |  ";
        sample += row[line];
    }
    return sample;
}

std::string ImportWizard::remark() const {
    return source_ && stage_ == Stage::Question ? source_->remark() : std::string();
}

bool ImportWizard::import(const std::string& bookFile,
                          const std::function<void(const ImportRun::State&)>& tell) {
    if (stage_ != Stage::Ready || parts_.jobs.refuses())
        return false;
    memory_.remember(source_->columns(), mapping_);
    struct Running {
        ImportWizard& wizard;
        ~Running() {
            wizard.job_ = nullptr;
            wizard.stage_ = Stage::Finished;
        }
    };
    parts_.jobs.run([&](LongJob& job) {
        const Running running{*this};
        stage_ = Stage::Running;
        job_ = &job;
        ImportRun run({parts_.store, parts_.copies});
        report_ = run.run(job, *source_, mapping_, bookFile, tell);
    });
    parts_.bookChanged();
    return true;
}

void ImportWizard::cancel() {
    if (stage_ == Stage::Running)
        parts_.jobs.cancel();
}

std::string ImportWizard::reportText() const {
    return textOf(report_, parts_.store.codePage());
}

}  // namespace velmora
