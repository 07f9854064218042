#include "platform/controls/SSDay.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <algorithm>

#include "platform/Text.h"
#include "platform/controls/CalendarAccessibility.h"
#include "platform/controls/DayEditor.h"
#include "platform/qt/QtText.h"

// The day view's editor, focus and parts. Keys and pointer: SSDayInput.cpp.
namespace velmora {

SSDay::SSDay(const CodePage& codePage, QWidget* parent) : DayCanvas(codePage, parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_InputMethodEnabled);
    setAccessibleName(QStringLiteral("Day"));
    connect(this, &DayCanvas::moved, this, &SSDay::placeEditor);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool elsewhere = now != nullptr && now != editor_ && now->window() == window();
        if (elsewhere && editor_ && editor_->isVisible())
            session().saveEdit();
    });
}

// The editor dies after this object's own members; nothing that it reports may come here.
SSDay::~SSDay() {
    disconnect(qApp, nullptr, this, nullptr);
    if (editor_)
        disconnect(editor_, nullptr, this, nullptr);
}

void SSDay::setSelectedIndex(int index) {
    session().select(index);
    if (SelectedIndex() >= 0)
        scroll().bringIntoView(session().blocks().at(SelectedIndex()).span, geometry());
    announceCaret();
}

void SSDay::setReadOnly(bool readOnly) {
    session().setReadOnly(readOnly);
    lookChanged();
}

void SSDay::copySelected() const {
    if (SelectedIndex() >= 0)
        QApplication::clipboard()->setText(
            toQt(withLf(Tasks().Item(SelectedIndex()).text), codePage()));
}

// --- The editor ---

void SSDay::openEditor(int index) {
    if (!editor_) {
        editor_ = new DayEditor(codePage(), this);
        connect(editor_, &DayEditor::saved, this, [this] { session().saveEdit(); });
        connect(editor_, &DayEditor::escaped, this, [this] { session().dropEdit(); });
        connect(editor_, &DayEditor::characterReplaced, this, &SSDay::characterReplaced);
        connect(editor_, &DayEditor::textChanged, this, &SSDay::placeEditor);
    }
    scroll().bringIntoView(session().blocks().at(index).place.drawn, geometry());
    editor_->setFont(measures().blockFont());
    editor_->setText(Tasks().Item(index).text);
    editor_->show();
    placeEditor();
    editor_->setFocus();
}

// Over its block, right of the accent's bar; as high as its text wants, within the view.
void SSDay::placeEditor() {
    const int index = session().edited();
    if (index < 0 || !editor_)
        return;
    const DayGeometry places = geometry();
    const DayBlock& block = session().blocks().at(index);
    QRect rect = places.blockRect(block.place).adjusted(4, 0, 0, 0);
    if (editor_->width() != rect.width())
        editor_->resize(rect.width(), editor_->height());  // the text wraps before it is measured
    const int wanted = std::max(rect.height(), editor_->wantedHeight());
    const int grown = std::min(wanted, places.paper.height());
    rect.setTop(
        std::min(rect.top(), std::max(places.paper.top(), places.paper.bottom() + 1 - grown)));
    rect.setHeight(grown);
    editor_->setGeometry(rect);
    editor_->setVisible(rect.intersects(places.paper) || editor_->hasFocus());
}

void SSDay::closeEditor() {
    if (!editor_)
        return;
    if (editor_->hasFocus())
        setFocus();
    editor_->hide();
    update();
}

std::optional<std::string> SSDay::editedText() const {
    if (!editor_ || !editor_->isChanged())
        return std::nullopt;
    return editor_->text();
}

// --- Events of the window ---

void SSDay::hideEvent(QHideEvent* event) {
    DayCanvas::hideEvent(event);
    if (!event->spontaneous())
        commitEditor();
}

void SSDay::changeEvent(QEvent* event) {
    DayCanvas::changeEvent(event);
    if (event->type() == QEvent::FontChange && editor_)
        editor_->setFont(measures().blockFont());
}

void SSDay::focusInEvent(QFocusEvent* event) {
    DayCanvas::focusInEvent(event);
    slotChanged(session().slot());
    announceCaret();
}

// What keys were moving is kept; what the pointer was is not.
void SSDay::focusOutEvent(QFocusEvent* event) {
    DayCanvas::focusOutEvent(event);
    slotChanged(session().slot());
    session().dropRange();
    held_ ? session().dropDrag() : session().finishDrag();
    held_.reset();
}

// --- For assistive tools ---

// Tells of the selected block or, without one, of the slot.
void SSDay::announceCaret() {
    if (hasFocus() && !session().isReadOnly())
        announceFocusedPart(*this, SelectedIndex() >= 0 ? SelectedIndex() : Tasks().Count());
}

int SSDay::partCount() const {
    return Tasks().Count() + (session().isReadOnly() ? 0 : 1);
}

// A block: "Lunch, 12:00 PM – 1:00 PM". The slot: "9:30 AM – 10:00 AM, 2 appointments".
AccessiblePart SSDay::part(int index) const {
    if (index >= Tasks().Count()) {
        const std::chrono::minutes slot = session().slot();
        const int here = session().blocks().countIn(slot);
        const QString what = here == 0   ? QStringLiteral("free")
                             : here == 1 ? QStringLiteral("1 appointment")
                                         : QStringLiteral("%1 appointments").arg(here);
        return {.name = shownTime(slot) + DayPainter::dash() + shownTime(slot + kSlot) +
                        QStringLiteral(", ") + what,
                .rect = slotRect(slot),
                .role = QAccessible::Cell,
                .focused = SelectedIndex() < 0};
    }
    const DayTask& task = Tasks().Item(index);
    QString name = toQt(withLf(task.text), codePage());
    if (const QString times = shownTimes(task, codePage()); !times.isEmpty())
        name += QStringLiteral(", ") + times;
    if (session().isUnstored(index))
        name += QStringLiteral(", not stored");
    const bool selected = index == SelectedIndex();
    return {.name = name, .rect = blockRect(index), .selected = selected, .focused = selected};
}

void SSDay::pressPart(int index) {
    setSelectedIndex(index);
}

}  // namespace velmora
