// Every other file that is written, with each call of the system that it makes failing once.

#include <gtest/gtest.h>

#include "docpad/DocPad.h"
#include "docpad/PadFakes.h"
#include "docpad/RecoveryFile.h"
#include "docpad/Signature.h"
#include "faults/Operation.h"
#include "phonebook/EntryRecovery.h"
#include "platform/Failure.h"
#include "platform/files/CaseTwins.h"
#include "platform/files/FileStampOf.h"
#include "platform/files/OverwriteFile.h"
#include "platform/files/PosixFiles.h"
#include "support/FakeClock.h"
#include "support/FakeEventLoop.h"
#include "support/FakeMessages.h"
#include "support/FakeRunningPrograms.h"
#include "support/FakeStatusLine.h"
#include "support/MemorySettings.h"
#include "telephony/PhoneLog.h"

namespace velmora {
namespace {

using test::Bears;
using test::Call;
using test::Operation;
using test::operation;
using test::TemporaryFolder;

// Larger than what is written at once.
const std::string kOld(50000, 'o');
const std::string kNew(200000, 'n');

// One file, "data".
class FileWorld {
  public:
    explicit FileWorld(const TemporaryFolder& in) : folder(in) { folder.write("data", kOld); }

    [[nodiscard]] std::string state() const {
        return folder.has("data") ? folder.read("data") : "none";
    }
    [[nodiscard]] std::string path() const { return folder.path() + "\\data"; }

    const TemporaryFolder& folder;
    PosixFiles files{NativePaths(CodePage::western())};
};

class NoFileWorld : public FileWorld {
  public:
    explicit NoFileWorld(const TemporaryFolder& in) : FileWorld(in) { files.remove(path()); }
};

// DocPad with a letter that was opened and changed.
class DocPadWorld : public FileWorld {
  public:
    explicit DocPadWorld(const TemporaryFolder& in) : FileWorld(in) {
        messages.willAnswer(std::optional<std::string>(folder.file("data")));
        pad.Open();
        text.select(0, text.text.size());
        text.replaceSelection(kNew);
        pad.keepForRecovery();
    }

    // `name`: what is answered to the question for one; none for a question that is called off.
    void save(std::optional<std::string> name) {
        (void)messages.takeShown();
        messages.willAnswer(std::move(name));
        if (!pad.Save())
            throw Failure(messages.takeShown().back());
    }

    test::MemorySettings medium;
    SettingsStore settings{medium};
    SharedState shared;
    test::FakeMessages messages;
    test::FakeStatusLine status;
    test::FakePadText text;
    test::FakeDocPadView view;
    test::FakePadPrinter printer{text};
    DialogState dialog{messages};
    test::FakeRunningPrograms programs;
    test::FakeClock clock;
    RecoveryFile recovery{folder.path(), files, programs, clock};
    test::FakeEventLoop loop;
    DocPad pad{
        {text, view, dialog, shared, messages, files, settings, status, printer, recovery, loop}};
};

// What is kept for the next start: one thing by this run, one by a run that has ended.
struct Keeping {
    explicit Keeping(const TemporaryFolder& in) : folder(in.path()) {}

    std::string folder;
    PosixFiles files{NativePaths(CodePage::western())};
    test::FakeClock clock;
    test::FakeRunningPrograms programs;
    test::FakeRunningPrograms earlierRun = run("earlier run", {"earlier run"});
    test::FakeRunningPrograms nextRun = run("next run", {});

    static test::FakeRunningPrograms run(const std::string& own, std::vector<std::string> running) {
        test::FakeRunningPrograms programs;
        programs.own = own;
        programs.running = std::move(running);
        return programs;
    }
};

std::string joined(const std::multiset<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines)
        all += line + "\n";
    return all;
}

// Texts of DocPad.
class TextsWorld {
  public:
    explicit TextsWorld(const TemporaryFolder& folder) : with_(folder) {
        RecoveryFile(with_.folder, with_.files, with_.earlierRun, with_.clock).keep("left", "");
        recovery.keep("old", "name");
        left_ = recovery.abandoned("").at(0);
    }

    // As the next start would find them.
    [[nodiscard]] std::string state() const {
        PosixFiles files{NativePaths(CodePage::western())};
        RecoveryFile next(with_.folder, files, with_.nextRun, with_.clock);
        std::multiset<std::string> texts;
        for (const RecoveryFile::Kept& kept : next.abandoned(""))
            texts.insert(kept.mark + ": " + kept.text);
        return joined(texts);
    }

    void takeBack() { recovery.take(left_); }
    // What can not be read is not offered, and is offered again at the next start.
    void forget() {
        const auto offered = recovery.abandoned("");
        if (offered.empty())
            throw Failure("nothing was offered");
        recovery.forget(offered.front());
    }

  private:
    Keeping with_;
    RecoveryFile::Kept left_;

  public:
    RecoveryFile recovery{with_.folder, with_.files, with_.programs, with_.clock};
};

// A start: nothing is kept by this run yet.
class StartWorld : public TextsWorld {
  public:
    explicit StartWorld(const TemporaryFolder& folder) : TextsWorld(folder) { recovery.discard(); }
};

EntryDraft draftNamed(const std::string& name) {
    EntryDraft draft;
    draft.origin = {kYellowPagesFile, std::nullopt};
    for (std::string& field : draft.values.fields)
        field = name;
    return draft;
}

// What stands in an entry form.
class DraftsWorld {
  public:
    explicit DraftsWorld(const TemporaryFolder& folder) : with_(folder) {
        EntryRecovery(with_.folder, with_.files, with_.earlierRun).keep(draftNamed("left"));
        recovery.keep(draftNamed("old"));
    }

    [[nodiscard]] std::string state() const {
        PosixFiles files{NativePaths(CodePage::western())};
        std::multiset<std::string> names;
        for (const auto& kept : EntryRecovery(with_.folder, files, with_.nextRun).abandoned())
            names.insert(bytesOf(kept.draft));
        return joined(names);
    }

  private:
    Keeping with_;

  public:
    EntryRecovery recovery{with_.folder, with_.files, with_.programs};
};

// The conclusion of letters, and the log of calls.
class ProgramFolderWorld {
  public:
    explicit ProgramFolderWorld(const TemporaryFolder& in) : folder(in) {
        folder.write("sig.txt", kOld);
        folder.write("phonelog.txt", "the first\r\n");
        (void)signature.load();
        (void)messages.takeShown();
    }

    [[nodiscard]] std::string state() const {
        return folder.read("sig.txt") + folder.read("phonelog.txt");
    }

    void keepSignature() {
        signature.keep("new");
        const auto shown = messages.takeShown();
        if (!shown.empty())
            throw Failure(shown.back());
    }

    const TemporaryFolder& folder;
    PosixFiles files{NativePaths(CodePage::western())};
    test::FakeClock clock;
    LocaleFormats formats;
    test::FakeMessages messages;
    Signature signature{folder.path(), files, messages};
    PhoneLog log{folder.path(), files, clock, formats};
};

// A folder in which a file lies twice, in names that differ in case only.
class TwinsWorld {
  public:
    explicit TwinsWorld(const TemporaryFolder& in) : folder(in) {
        folder.write("DATAY.QEL", "earlier");
        do
            folder.write("datay.qel", "later");
        while (changeOf("datay.qel") == changeOf("DATAY.QEL"));
    }

    [[nodiscard]] std::string state() const {
        return folder.has("DATAY.QEL") && folder.has("datay.qel") ? "two" : "one";
    }

    void open() {
        ignoringErrors([&] { (void)files.openOrCreate(folder.path() + "\\DATAY.QEL"); });
        if (state() == "two")
            throw Failure("still two");
    }

    [[nodiscard]] std::int64_t changeOf(const char* name) const {
        return fileStampOf(NativePath(folder.file(name))).changed;
    }

    const TemporaryFolder& folder;
    test::FakeClock clock;
    CaseTwins twins{CodePage::western(), clock, {"DATAY.QEL"}};
    PosixFiles files{NativePaths(CodePage::western()), &twins};
};

const std::set<Call> kBeside{Call::Open, Call::Write, Call::HalfWrite, Call::Sync, Call::Rename};

std::vector<Operation> operations() {
    std::set<Call> replacing = kBeside;
    replacing.insert(Call::Belong);
    return {
        operation<NoFileWorld>("AFileIsMade", kBeside,
                               [](auto& world) { world.files.writeWhole(world.path(), kNew); }),
        operation<NoFileWorld>("AFileIsMadeForItsOwnerOnly", kBeside,
                               [](auto& world) { world.files.writePrivately(world.path(), kNew); }),
        operation<FileWorld>(
            "AFileIsReplaced", replacing,
            [](auto& world) { world.files.writeWhole(world.path(), kNew); }, Bears::Lasting),
        operation<FileWorld>(
            "AFileIsOverwritten",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync, Call::Cut},
            [](auto& world) { overwriteFile(NativePath(world.folder.file("data")), kNew); },
            Bears::Lasting),
        operation<FileWorld>(
            "AFileIsOverwrittenByAShorterOne",
            {Call::Open, Call::Read, Call::Write, Call::HalfWrite, Call::Sync, Call::Cut},
            [](auto& world) { overwriteFile(NativePath(world.folder.file("data")), "short"); },
            Bears::Lasting),
        operation<FileWorld>("AFileIsRemoved", {Call::Remove},
                             [](auto& world) { world.files.remove(world.path()); }),
        operation<DocPadWorld>(
            "ALetterIsSaved",
            {Call::Open, Call::Write, Call::Sync, Call::Rename, Call::Belong, Call::Remove},
            [](auto& world) { world.save(world.folder.file("data")); }, Bears::Lasting),
        operation<DocPadWorld>(
            "ALetterIsSavedUnderItsOldName", replacing,
            [](auto& world) { world.save(std::nullopt); }, Bears::Lasting),
        operation<TextsWorld>(
            "ATextIsKeptForTheNextStart", replacing,
            [](auto& world) { world.recovery.keep(kNew, "name"); }, Bears::Lasting),
        operation<TextsWorld>(
            "ATextIsKeptInTheBackground", replacing,
            [](auto& world) {
                world.recovery.keepInBackground(kNew, "name");
                world.recovery.settle();
            },
            Bears::Lasting),
        operation<TextsWorld>("ATextIsNotKeptAnyMore", {Call::Remove},
                              [](auto& world) { world.recovery.discard(); }),
        operation<StartWorld>(
            "ATextIsTakenBack", replacing, [](auto& world) { world.takeBack(); }, Bears::Lasting),
        operation<StartWorld>("ATextIsForgotten", {Call::Open, Call::Read, Call::Remove},
                              [](auto& world) { world.forget(); }),
        operation<DraftsWorld>(
            "ADraftIsKeptForTheNextStart", replacing,
            [](auto& world) { world.recovery.keep(draftNamed("new")); }, Bears::Lasting),
        operation<DraftsWorld>("ADraftIsNotKeptAnyMore", {Call::Remove},
                               [](auto& world) { world.recovery.discard(); }),
        operation<ProgramFolderWorld>(
            "ASignatureIsKept", replacing, [](auto& world) { world.keepSignature(); },
            Bears::Lasting),
        operation<ProgramFolderWorld>(
            "ACallIsLogged", {Call::Open, Call::Write, Call::HalfWrite},
            [](auto& world) { world.log.append(PhoneLog::Direction::Outgoing, "555"); },
            Bears::Lasting),
        operation<TwinsWorld>("OneOfTwoTwinsIsPutAside", {Call::Open, Call::Rename},
                              [](auto& world) { world.open(); }),
    };
}

class FileFaults : public testing::TestWithParam<Operation> {};

TEST_P(FileFaults, LeaveTheOldOrTheNewAndAreTold) {
    test::expectToBearFaults(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, FileFaults, testing::ValuesIn(operations()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace velmora
