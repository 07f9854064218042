#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "docpad/Signature.h"
#include "platform/CodePage.h"
#include "platform/controls/Dialog.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace velmora {

// "Signature...": the conclusion of the letters of a merge.
class Form9 final : public Dialog {
    Q_OBJECT

  public:
    // `codePage` must outlive the form.
    explicit Form9(const CodePage& codePage, QWidget* parent = nullptr);

    // Line ends are CR LF outside.
    void setText(const std::string& text);
    [[nodiscard]] std::string text() const;

  private:
    const CodePage& codePage_;
    QLabel* Label1;         // what a signature is
    QPlainTextEdit* Text1;  // the signature
    QPushButton* Command1;  // "&Ok"
    QPushButton* Command2;  // "&Cancel"
};

// Asks with Form9, over the main window.
class Form9Question final : public SignatureQuestion {
  public:
    // Both must outlive it; `replaced` is called when a character was replaced.
    Form9Question(const CodePage& codePage, QWidget& window, std::function<void()> replaced)
        : codePage_(codePage), window_(window), replaced_(std::move(replaced)) {}

    [[nodiscard]] std::optional<std::string> ask(const std::string& text) override;

  private:
    const CodePage& codePage_;
    QWidget& window_;
    std::function<void()> replaced_;
};

}  // namespace velmora
