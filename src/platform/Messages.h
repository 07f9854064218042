#pragma once

#include <optional>
#include <string>

#include "platform/Text.h"

namespace velmora {

inline constexpr const char* kApplicationTitle = "Velmora";

// What a file dialog is asked for. All texts are code-page text.
struct FileQuestion {
    std::string title;
    std::string defaultExtension;  // with its point, ".txt"; put behind a name without one
    std::string filter;            // "Text (*.txt)|*.txt|All Files (*.*)|*.*"
    std::string fileName;          // chosen already when the dialog opens; may be empty

    // To save: the dialog itself asks whether a file that is there may be replaced.
    bool asksToReplace = true;
    bool programs = false;  // "*.exe" stands for all files that can be run
};

// The two answers to a question.
enum class Answer { Yes, No };

// Talks to the user in boxes that wait for the answer. The end of the program closes them all; what
// they return then is no answer, and EventLoop::closing() tells it. Texts are code-page text, shown
// as they are: no mark-up, no access keys.
class Messages {
  public:
    virtual ~Messages() = default;

    // A box with an exclamation mark and an OK button.
    virtual void warn(const std::string& title, const std::string& text) = 0;

    // A box with an information mark and an OK button.
    virtual void tell(const std::string& title, const std::string& text) = 0;

    // A box with a question mark, Yes and No, and nothing else that answers it: neither Escape nor
    // the frame's close button. Enter presses `preselected`, which should be the answer that loses
    // nothing. True for Yes; false for No, and when the program ends meanwhile.
    [[nodiscard]] virtual bool ask(const std::string& title, const std::string& text,
                                   Answer preselected) = 0;

    // A box with an information mark, OK and Cancel, which Escape presses. True for OK; false also
    // when the program ends meanwhile.
    [[nodiscard]] virtual bool confirm(const std::string& title, const std::string& text) = 0;

    // A one-line input; nothing when cancelled.
    [[nodiscard]] virtual std::optional<std::string> askText(const std::string& title,
                                                             const std::string& prompt,
                                                             const std::string& answer) = 0;

    // The full path of an existing file, or nothing when cancelled or when the path has
    // characters outside the code page (the user is told).
    [[nodiscard]] virtual std::optional<std::string> chooseFileToOpen(
        const FileQuestion& question) = 0;
    [[nodiscard]] virtual std::optional<std::string> chooseFileToSave(
        const FileQuestion& question) = 0;

    // The standard error box: the application's title and the failure's own text, in UTF-8.
    virtual void standardError(const std::string& utf8Text) = 0;
};

}  // namespace velmora
