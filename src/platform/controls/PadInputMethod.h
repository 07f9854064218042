#pragma once

#include <QVariant>
#include <optional>

#include "platform/controls/PadPage.h"

class QInputMethodEvent;

namespace velmora {

class PadEditor;

// An input method at work in a PadEditor: what it composes stands at the caret and is no part of
// the text yet, what it has done is typed.
class PadInputMethod {
  public:
    // `editor` must outlive this object.
    explicit PadInputMethod(PadEditor& editor) : editor_(editor) {}

    void obey(const QInputMethodEvent& event);

    // What is being composed; null for nothing.
    [[nodiscard]] const PadPage::Preedit* composed() const {
        return preedit_.text.isEmpty() ? nullptr : &preedit_;
    }

    // What it wants to know of caret, selection and the text around them; nothing for all else. It
    // is told no more than a stretch of a long line.
    [[nodiscard]] std::optional<QVariant> answer(Qt::InputMethodQuery query) const;

  private:
    PadEditor& editor_;
    PadPage::Preedit preedit_;
};

}  // namespace velmora
