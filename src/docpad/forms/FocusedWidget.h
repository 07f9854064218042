#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "docpad/FocusedText.h"
#include "platform/CodePage.h"

namespace velmora {

// The text of the widget that has the focus. A menu, menu bar or button that takes the focus for
// the moment of a click does not count: the widget before it does.
class FocusedWidget final : public QObject, public FocusedText {
    Q_OBJECT

  public:
    explicit FocusedWidget(const CodePage& codePage);

    [[nodiscard]] std::string selection() const override;
    void replaceSelection(const std::string& text) override;

  private:
    void notice(QWidget* widget);

    const CodePage& codePage_;
    QPointer<QWidget> widget_;
};

// The system's clipboard.
class SystemClipboard final : public QObject, public ClipboardText {
    Q_OBJECT

  public:
    explicit SystemClipboard(const CodePage& codePage) : codePage_(codePage) {}

    void clear() override;
    void set(const std::string& text) override;
    [[nodiscard]] std::string get() const override;

  signals:
    // get() has given "?" for a character that the code page lacks.
    void characterReplaced() const;

  private:
    const CodePage& codePage_;
};

}  // namespace velmora
