#pragma once

#include <QObject>

#include "platform/CodePage.h"

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
    // Line breaks that are pasted become blanks.
    CodePageGuard(QLineEdit& edit, const CodePage& codePage);

    // The box must be editable.
    CodePageGuard(QComboBox& box, const CodePage& codePage);

    // `mostBytes` is the longest text, line breaks counting 2; what comes in beyond it is dropped
    // from the end of what came in. 0 is no limit.
    CodePageGuard(QPlainTextEdit& edit, const CodePage& codePage, int mostBytes = 0);

  signals:
    // At least one character was replaced.
    void replaced();

  private:
    void keepLine(QLineEdit& edit);
    void breaksToBlanks(QLineEdit& edit);
    void keepText(QPlainTextEdit& edit, int mostBytes);
    bool replaceIn(QTextDocument& document);
    void cutBefore(QPlainTextEdit& edit, int mostBytes) const;

    const CodePage& codePage_;
    int changedAt_ = 0;  // where the last change of the document put text, and how much
    int added_ = 0;
    bool busy_ = false;
};

}  // namespace velmora
