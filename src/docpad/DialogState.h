#pragma once

#include <string>

#include "platform/Messages.h"

namespace velmora {

// The main form's file dialog, `CMDialog1`. Its file name and file title outlive the dialog: they
// are the name and title of DocPad's document, and nothing else remembers them. Only DocPad's own
// commands and the viewer of the phone log may use it.
class DialogState {
  public:
    explicit DialogState(Messages& messages) : messages_(messages) {}

    // Full path of the document, or nothing.
    [[nodiscard]] const std::string& fileName() const { return fileName_; }

    // Name without folder of the file chosen last in a dialog, or nothing.
    [[nodiscard]] const std::string& fileTitle() const { return fileTitle_; }

    // The title stays as it is: only a dialog changes it.
    void setFileName(const std::string& path) { fileName_ = path; }

    // Both show the dialog and return whether a file was chosen. Name and title are then those of
    // the file; a cancelled dialog leaves them as they were.
    bool showOpen();
    bool showSave();

  private:
    [[nodiscard]] FileQuestion question(const char* title) const;
    bool take(const std::optional<std::string>& path);

    Messages& messages_;
    std::string fileName_;
    std::string fileTitle_;
};

}  // namespace velmora
