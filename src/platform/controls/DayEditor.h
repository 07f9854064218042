#pragma once

#include <QPlainTextEdit>
#include <string>

#include "platform/CodePage.h"

namespace velmora {

// The text field that a day view opens in a block. Enter saves, Escape drops; Shift or Ctrl with
// Enter begins a new line.
class DayEditor final : public QPlainTextEdit {
    Q_OBJECT

  public:
    DayEditor(const CodePage& codePage, QWidget* parent);

    // Code-page text with CR LF at line ends.
    void setText(const std::string& text);
    [[nodiscard]] std::string text() const;

    // Whether the text is another than the one set.
    [[nodiscard]] bool isChanged() const { return document()->isModified(); }

    // The height that shows all lines.
    [[nodiscard]] int wantedHeight() const;

  signals:
    void saved();
    void escaped();
    // A character without a place in the code page was typed or pasted; "?" stands in its place.
    void characterReplaced();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void keepToPage();

    CodePage codePage_;
    bool keeping_ = false;
};

}  // namespace velmora
