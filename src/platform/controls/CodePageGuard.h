#pragma once

#include <QObject>

#include "platform/CodePage.h"
#include "platform/controls/DocumentBytes.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QTextDocument;

namespace velmora {

// Keeps a control's text storable while it is being edited: a character without a place in the code
// page becomes "?" at once, however it came in (typed, pasted, dropped, input method). The guard
// belongs to its control; `codePage` must outlive it.
class CodePageGuard final : public QObject {
    Q_OBJECT

  public:
    // Line breaks that are pasted become blanks. `mostBytes` is the longest text; what comes in
    // beyond it is dropped from the end of what came in. 0 is no limit.
    CodePageGuard(QLineEdit& edit, const CodePage& codePage, int mostBytes = 0);

    // The box must be editable.
    CodePageGuard(QComboBox& box, const CodePage& codePage);

    // As above; a line break counts the bytes that DocumentBytes gives it.
    CodePageGuard(QPlainTextEdit& edit, const CodePage& codePage, int mostBytes = 0);

  signals:
    // At least one character was replaced.
    void replaced();

    // At least one character came in beyond the longest text and was dropped.
    void cut();

  private:
    void keepLine(QLineEdit& edit);
    void breaksToBlanks(QLineEdit& edit);
    void keepText(QPlainTextEdit& edit, int mostBytes);
    bool replaceIn(QTextDocument& document);
    [[nodiscard]] bool cutBefore(QPlainTextEdit& edit, int mostBytes) const;

    DocumentBytes bytes_;
    int changedAt_ = 0;  // where the last change of the document put text, and how much
    int added_ = 0;
    bool busy_ = false;
};

}  // namespace velmora
