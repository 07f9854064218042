#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/SettingsStore.h"
#include "core/SharedState.h"
#include "docpad/DialogState.h"
#include "docpad/DocPadView.h"
#include "docpad/PadPrinter.h"
#include "docpad/PadText.h"
#include "docpad/RecoveryFile.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "platform/Messages.h"
#include "platform/StatusLine.h"

namespace velmora {

// The longest text that is read from a file, in bytes. What is typed has no limit.
inline constexpr std::uint64_t kLongestText = 40000;

inline constexpr const char* kTooLongTitle = "File Exceeded Maximum Length.";

// From this width of `Text4` on, in twips, DocPad fills the main window and its title is the
// window's caption too.
inline constexpr int kMaximisedWidth = 8000;

// The commands of the text pad. The document has no object of its own: it is the text, the name in
// the dialog, the title of the pane and SharedState::DocPadDirty. The flag goes to 1 with every
// change of the text and back to 0 only in New, Save and at the end of the program.
//
// A file that can not be read, written or deleted brings the standard error box; the text is then
// as it was.
//
// A dialog or a question that the end of the program closes is not answered: the command ends
// there, and neither writes nor reads a file, nor changes text or settings.
class DocPad {
  public:
    // Everything that DocPad works on. All of it must outlive DocPad.
    struct Parts {
        PadText& text;
        DocPadView& view;
        DialogState& dialog;
        SharedState& state;
        Messages& messages;
        Files& files;
        SettingsStore& settings;
        StatusLine& status;
        PadPrinter& printer;
        RecoveryFile& recovery;
        const EventLoop& loop;
    };

    // Listens to the changes of the text from here on.
    explicit DocPad(const Parts& parts);
    DocPad(const DocPad&) = delete;
    DocPad& operator=(const DocPad&) = delete;

    // With unsaved changes it asks; Yes prints the text, No does not, and both clear it. A text
    // that could not be printed stays.
    void New();

    // Asks when there are unsaved changes. A cancelled dialog reads the present document again.
    void Open();

    // Always shows the dialog; a cancelled one writes to the present name, and then what the file
    // held is kept beside it under the name with "~" behind. The text is followed by CR LF in the
    // file. Returns false only when the file could not be written or the program ends meanwhile.
    bool Save();

    void Print();

    // Reads the document of the last session again if the user wants that.
    void LoadAtStart();

    // After LoadAtStart(): offers the texts of sessions that did not end well, the newest first,
    // until one is taken. Those that were not asked about are offered at the next start.
    void offerRecovery();

    // Keeps the text for the next start, where this session is about to end without a question.
    // It is on the disk when this returns. A failure is shown on the status line.
    void keepForRecovery();

    // The same while the user types on: to be called within seconds of each change, and again
    // soon as long as it returns true. Costs a copy of the text.
    [[nodiscard]] bool keepInBackground();

    // The question before the program ends. False when the text should have been saved and could
    // not: the program must go on; and when the program ends by itself meanwhile. Otherwise DocPad
    // is left without changes, title and name.
    [[nodiscard]] bool mayClose();

    // The same question where the end may still be called off: the text stays as it is, and a No
    // counts until the text changes. False when the program must go on.
    [[nodiscard]] bool mayEnd();

    // The end that mayEnd() asked about has come: a text that got a No is kept no more.
    void dropGivenUp();

    // Puts a file's text in place of the present one, for Open and the viewer of the phone log.
    // False when it is longer than kLongestText; nothing is changed then. Throws Failure.
    bool loadFile(const std::string& path);

    // Sets the title of the pane and, when DocPad fills the main window, its caption.
    void showCaption(const std::string& text);

    // The changed flag counts only when it is exactly 1.
    [[nodiscard]] bool changed() const { return parts_.state.DocPadDirty == 1; }

  private:
    void takeBack(const RecoveryFile::Kept& kept);
    [[nodiscard]] bool worthKeeping() const;
    void tellingOfRecovery(const std::function<void()>& work);
    [[nodiscard]] bool print();
    [[nodiscard]] bool mayReplaceText();
    void keepOldContent(const std::string& path);
    void write(const std::string& path, bool keepOld);

    Parts parts_;
    bool printing_ = false;    // events run meanwhile, and New would drop the text unprinted
    bool givenUp_ = false;     // the user does not want the present text saved
    bool keptBehind_ = false;  // what is kept for recovery is not the present text
};

}  // namespace velmora
