#include "docpad/forms/FocusedWidget.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "platform/Text.h"
#include "platform/controls/PadEdit.h"
#include "platform/qt/QtText.h"

namespace velmora {
namespace {

bool takesFocusInPassing(const QWidget* widget) {
    return qobject_cast<const QMenu*>(widget) || qobject_cast<const QMenuBar*>(widget) ||
           qobject_cast<const QAbstractButton*>(widget);
}

QString selectedText(const QPlainTextEdit& edit) {
    QString text = edit.textCursor().selectedText();
    return text.replace(QChar::ParagraphSeparator, u'\n');
}

}  // namespace

FocusedWidget::FocusedWidget(const CodePage& codePage) : codePage_(codePage) {
    notice(QApplication::focusWidget());
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { notice(now); });
}

void FocusedWidget::notice(QWidget* widget) {
    if (widget && !takesFocusInPassing(widget))
        widget_ = widget;
}

std::string FocusedWidget::selection() const {
    if (const auto* pad = qobject_cast<const PadEdit*>(widget_.data()))
        return pad->selectedBytes();
    if (const auto* box = qobject_cast<const QPlainTextEdit*>(widget_.data()))
        return withCrLf(fromQt(selectedText(*box), codePage_));
    if (const auto* line = qobject_cast<const QLineEdit*>(widget_.data());
        line && line->echoMode() == QLineEdit::Normal)
        return fromQt(line->selectedText(), codePage_);
    return {};
}

void FocusedWidget::replaceSelection(const std::string& text) {
    if (auto* pad = qobject_cast<PadEdit*>(widget_.data()))
        pad->replaceSelection(withCrLf(text));
    else if (auto* box = qobject_cast<QPlainTextEdit*>(widget_.data()); box && !box->isReadOnly())
        box->insertPlainText(toQt(withLf(text), codePage_));
    else if (auto* line = qobject_cast<QLineEdit*>(widget_.data()); line && !line->isReadOnly())
        line->insert(toQt(text, codePage_));
}

void SystemClipboard::clear() {
    QApplication::clipboard()->clear();
}

void SystemClipboard::set(const std::string& text) {
    QApplication::clipboard()->setText(toQt(withLf(text), codePage_));
}

std::string SystemClipboard::get() const {
    const QString text = QApplication::clipboard()->text();
    if (keepToCodePage(text, codePage_) != text)
        emit characterReplaced();
    return fromQt(text, codePage_);
}

}  // namespace velmora
