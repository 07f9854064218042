#pragma once

#include "platform/CodePage.h"
#include "platform/Messages.h"

class QMessageBox;
class QString;

namespace velmora {

// Message boxes and file dialogs over the window that is in front.
class QtMessages final : public Messages {
  public:
    explicit QtMessages(const CodePage& codePage) : codePage_(codePage) {}

    void warn(const std::string& title, const std::string& text) override;
    void tell(const std::string& title, const std::string& text) override;
    [[nodiscard]] bool ask(const std::string& title, const std::string& text,
                           Answer preselected) override;
    [[nodiscard]] bool confirm(const std::string& title, const std::string& text) override;
    [[nodiscard]] std::optional<std::string> askText(const std::string& title,
                                                     const std::string& prompt,
                                                     const std::string& answer) override;
    [[nodiscard]] std::optional<std::string> chooseFileToOpen(
        const FileQuestion& question) override;
    [[nodiscard]] std::optional<std::string> chooseFileToSave(
        const FileQuestion& question) override;
    void standardError(const std::string& utf8Text) override;

  private:
    enum class FileDialogKind { Open, Save };

    std::optional<std::string> chooseFile(FileDialogKind kind, const FileQuestion& question);
    [[nodiscard]] QString toQt(const std::string& text) const;

    const CodePage& codePage_;
};

// "Text (*.txt)|*.txt|All Files (*.*)|*.*" as the file dialog wants it.
[[nodiscard]] QString toQtFilter(const QString& filter);

}  // namespace velmora
