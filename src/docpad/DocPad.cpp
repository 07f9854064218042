#include "docpad/DocPad.h"

#include <limits>

#include "platform/Failure.h"
#include "platform/Text.h"

namespace velmora {
namespace {

constexpr const char* kPlainTitle = "DocPad";
constexpr const char* kUntitled = "DocPad - Untitled";
constexpr const char* kLoading = "DocPad: Loading";
constexpr const char* kSaving = "DocPad: Saving";
constexpr const char* kSaveTitle = "Save";
constexpr const char* kSaveQuestion = "Save your DocPad changes?";
constexpr const char* kNotKept =
    "DocPad's text is only in memory: it could not be kept for the case that Velmora is cut short.";

// The beginning of a text on one line, so that several that are offered can be told apart.
std::string beginningOf(const std::string& text) {
    constexpr std::size_t kMost = 60;
    std::string beginning;
    for (const char byte : text) {
        const bool printable = static_cast<unsigned char>(byte) >= ' ' && byte != '\x7F';
        if (beginning.size() == kMost)
            return beginning + "...";
        if (printable && (byte != ' ' || !beginning.empty()))
            beginning += byte;
        else if (!beginning.empty() && beginning.back() != ' ')
            beginning += ' ';
    }
    return beginning;
}

std::string recoveryQuestion(const RecoveryFile::Kept& kept) {
    std::string question =
        "Velmora ended without saving DocPad's text. Do you want it back?\n\nIt begins: " +
        beginningOf(kept.text);
    if (!kept.documentName.empty())
        question += "\nIts file: " + kept.documentName;
    return question;
}

}  // namespace

DocPad::DocPad(const Parts& parts) : parts_(parts) {
    parts_.text.onChange([this] {
        parts_.state.DocPadDirty = 1;
        keptBehind_ = true;
        givenUp_ = false;
    });
}

void DocPad::New() {
    if (printing_)
        return;
    if (changed()) {
        const bool printFirst = parts_.messages.ask(kSaveTitle, kSaveQuestion, Answer::Yes);
        if (parts_.loop.closing() || (printFirst && !print()))
            return;
        parts_.state.DocPadDirty = 0;
    }
    parts_.text.setBytes("");
    ignoringErrors([&] { parts_.recovery.discard(); });
    showCaption(kUntitled);
    parts_.settings.save(keys::Doc, "");
}

void DocPad::Open() {
    if (printing_ || (changed() && !mayReplaceText()))
        return;
    parts_.dialog.showOpen();
    if (parts_.loop.closing())
        return;
    const std::string name = parts_.dialog.fileName();
    if (!name.empty()) {
        try {
            if (!loadFile(name)) {
                parts_.messages.tell(kTooLongTitle, "The file you selected is too large.");
                parts_.view.setTitle(kPlainTitle);
                return;
            }
        } catch (const Failure& failure) {
            parts_.messages.standardError(failure.what());
            return;
        }
        showCaption("DocPad - " + parts_.dialog.fileTitle());
    }
    parts_.settings.save(keys::Doc, name);
}

bool DocPad::Save() {
    const bool chosen = parts_.dialog.showSave();
    if (parts_.loop.closing())
        return false;
    const std::string name = parts_.dialog.fileName();
    if (name.empty()) {
        parts_.state.DocPadDirty = 0;
        return true;
    }
    const std::string title = parts_.view.title();
    parts_.view.announce(kSaving);
    try {
        write(name, !chosen);
    } catch (const Failure& failure) {
        parts_.view.setTitle(title);
        parts_.state.DocPadDirty = 1;
        parts_.messages.standardError(failure.what());
        return false;
    }
    parts_.status.show("Saving ");
    parts_.state.DocPadDirty = 0;
    showCaption("DocPad - " + parts_.dialog.fileTitle());
    ignoringErrors([&] { parts_.recovery.discard(); });
    return true;
}

void DocPad::Print() {
    if (!printing_)
        static_cast<void>(print());  // the user knows already when it did not work
}

void DocPad::LoadAtStart() {
    if (!parts_.settings.read(keys::KeepDoc))
        return;
    if (changed() && !mayReplaceText())
        return;
    const std::string name = parts_.settings.read(keys::Doc);
    if (trimBlanks(name).empty() || !parts_.files.exists(name))
        return;
    ignoringErrors([&] {
        // A file that is not loaded must not lend its name: the next Save would empty it.
        if (!loadFile(name))
            return;
        parts_.dialog.setFileName(name);
        parts_.view.setTitle(kPlainTitle);
    });
}

void DocPad::offerRecovery() {
    for (const RecoveryFile::Kept& kept : parts_.recovery.abandoned(parts_.text.bytes())) {
        if (parts_.messages.ask("DocPad", recoveryQuestion(kept), Answer::Yes)) {
            takeBack(kept);
            return;
        }
        if (parts_.loop.closing())
            return;
        ignoringErrors([&] { parts_.recovery.forget(kept); });
    }
}

void DocPad::takeBack(const RecoveryFile::Kept& kept) {
    parts_.text.reload(kept.text);
    if (!kept.documentName.empty())
        parts_.dialog.setFileName(kept.documentName);
    tellingOfRecovery([&] { parts_.recovery.take(kept); });
}

void DocPad::keepForRecovery() {
    tellingOfRecovery([&] {
        if (worthKeeping())
            parts_.recovery.keep(parts_.text.bytes(), parts_.dialog.fileName());
        else
            parts_.recovery.discard();
        keptBehind_ = false;
    });
}

bool DocPad::keepInBackground() {
    if (parts_.recovery.busy())
        return true;
    bool again = false;
    tellingOfRecovery([&] {
        parts_.recovery.settle();
        if (!keptBehind_)
            return;
        if (worthKeeping()) {
            parts_.recovery.keepInBackground(parts_.text.bytes(), parts_.dialog.fileName());
            again = true;
        } else {
            parts_.recovery.discard();
        }
        keptBehind_ = false;
    });
    return again;
}

// A text that is saved, or that is none, is not lost when the session is cut short.
bool DocPad::worthKeeping() const {
    return changed() && !parts_.text.empty();
}

void DocPad::tellingOfRecovery(const std::function<void()>& work) {
    try {
        work();
    } catch (const Failure&) {
        parts_.status.show(kNotKept);
    }
}

bool DocPad::mayClose() {
    if (changed() && parts_.messages.ask(kSaveTitle, kSaveQuestion, Answer::Yes) && !Save())
        return false;
    if (parts_.loop.closing())
        return false;
    ignoringErrors([&] { parts_.recovery.discard(); });
    parts_.state.DocPadDirty = 0;
    parts_.view.setTitle(kUntitled);
    parts_.dialog.setFileName("");
    return true;
}

bool DocPad::mayEnd() {
    if (!changed())
        return true;
    if (parts_.messages.ask(kSaveTitle, kSaveQuestion, Answer::Yes))
        return Save();
    givenUp_ = !parts_.loop.closing();
    return givenUp_;
}

void DocPad::dropGivenUp() {
    if (!givenUp_)
        return;
    parts_.state.DocPadDirty = 0;
    ignoringErrors([&] { parts_.recovery.discard(); });
}

bool DocPad::loadFile(const std::string& path) {
    const auto bytes = parts_.files.readWhole(path, kLongestText);
    if (!bytes)
        return false;
    parts_.view.announce(kLoading);
    parts_.text.reload(*bytes);
    return true;
}

void DocPad::showCaption(const std::string& text) {
    parts_.view.setTitle(text);
    if (parts_.text.widthInTwips() >= kMaximisedWidth)
        parts_.view.setWindowCaption(text);
}

bool DocPad::print() {
    printing_ = true;
    bool printed = false;
    try {
        printed = parts_.printer.PrintDocPad();
    } catch (...) {
        printing_ = false;
        throw;
    }
    printing_ = false;
    return printed;
}

bool DocPad::mayReplaceText() {
    return parts_.messages.ask("Open File?",
                               "Are you sure you want to open a text file? Doing so will clear "
                               "DocPad's contents.",
                               Answer::No);
}

void DocPad::write(const std::string& path, bool keepOld) {
    // Read before the first write, so that a change made while the disk works counts as one.
    const std::string bytes = parts_.text.bytes() + "\r\n";
    if (keepOld && parts_.files.exists(path))
        keepOldContent(path);
    parts_.files.writeWhole(path, bytes);
}

void DocPad::keepOldContent(const std::string& path) {
    const auto old = parts_.files.readWhole(path, std::numeric_limits<std::int64_t>::max());
    if (old)
        parts_.files.writeWhole(path + "~", *old);
}

}  // namespace velmora
