#include "platform/controls/EntryList.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "platform/controls/PlainToolTip.h"
#include "platform/qt/TestIds.h"
#include "platform/qt/Theme.h"

namespace velmora {
namespace {

constexpr int kMargin = 3;
constexpr int kTextInset = 9;
constexpr int kRowRadius = 4;
constexpr int kDragOffset = 12;
constexpr int kDragHeight = 26;
constexpr qreal kDragOpacity = 0.9;
constexpr int kTabGap = 12;  // least space before the text behind a tab
constexpr int kNoTabStop = -1;
constexpr int kEmptyTextTop = 20;  // from the upper edge of the paper

// 8 more than the height of a line of text, which is 2 more than that of the font.
int rowHeight(const QFontMetrics& metrics) {
    return metrics.height() + 10;
}

bool isJump(int key) {
    return key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

class LinePainter final : public QStyledItemDelegate {
  public:
    explicit LinePainter(int tabStop, QObject* parent)
        : QStyledItemDelegate(parent), tabStop_(tabStop) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {0, rowHeight(option.fontMetrics)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const Theme& theme = Theme::of(option.palette);
        const bool enabled = option.state.testFlag(QStyle::State_Enabled);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        if (selected) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(Qt::NoPen);
            painter->setBrush(enabled ? theme.accentfill : theme.hover);
            painter->drawRoundedRect(option.rect, kRowRadius, kRowRadius);
        }
        const QFont font = fontOf(option, index);
        const QFontMetrics metrics(font);
        painter->setFont(font);
        painter->setPen(textColour(theme, option.palette, enabled, selected));
        for (const Piece& piece : piecesOf(option.rect, metrics, index.data().toString()))
            if (piece.place.width() > 0)
                painter->drawText(
                    piece.place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                    metrics.elidedText(piece.text, Qt::ElideRight, piece.place.width()));
        painter->restore();
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip || !index.isValid())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        showPlainToolTip(*event, isCut(option, index) ? index.data().toString() : QString(),
                         *view->viewport(), option.rect);
        return true;
    }

  private:
    // A line's text, or what stands before and behind its tab.
    struct Piece {
        QRect place;
        QString text;
    };

    static QFont fontOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
        QFont font = option.font;
        if (index.data(EntryLines::kStrongRole).toBool())
            font.setWeight(QFont::DemiBold);
        return font;
    }

    std::vector<Piece> piecesOf(const QRect& row, const QFontMetrics& metrics, QString text) const {
        std::vector<Piece> pieces;
        QRect place = row.adjusted(kTextInset, 0, -kTextInset, 0);
        if (const qsizetype tab = text.indexOf(QLatin1Char('\t')); tabStop_ >= 0 && tab >= 0) {
            const QString before = text.left(tab);
            pieces.push_back({place, before});
            const int end = metrics.horizontalAdvance(before) + kTabGap;
            place.setLeft(place.left() + std::max(tabStop_, end));
            text.remove(0, tab + 1);
        }
        pieces.push_back({place, withoutPadding(text)});
        return pieces;
    }

    bool isCut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
        const QFontMetrics metrics(fontOf(option, index));
        const auto pieces = piecesOf(option.rect, metrics, index.data().toString());
        return std::any_of(pieces.begin(), pieces.end(), [&](const Piece& piece) {
            return metrics.horizontalAdvance(piece.text) > piece.place.width();
        });
    }

    // Blanks at the end never make "..." of a text that is in view.
    static QString withoutPadding(QString text) {
        while (text.endsWith(QLatin1Char(' ')))
            text.chop(1);
        return text;
    }

    static QColor textColour(const Theme& theme, const QPalette& palette, bool enabled,
                             bool selected) {
        if (selected)
            return enabled ? theme.onaccent : theme.ink2;
        return enabled ? palette.color(QPalette::Active, QPalette::Text) : theme.dis;
    }

    int tabStop_;
};

}  // namespace

EntryList::EntryList(const CodePage& codePage, EntryLines::Order order, QWidget* parent)
    : QListView(parent), lines_(new EntryLines(codePage, std::move(order), this)) {
    setModel(lines_);
    setItemDelegate(new LinePainter(kNoTabStop, this));
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(kMargin, kMargin, kMargin, kMargin);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setAccessibleName(QStringLiteral("Entries"));
}

EntryList::EntryList(const CodePage& codePage, QWidget* parent)
    : EntryList(
          codePage,
          [&codePage](std::string_view a, std::string_view b) {
              return codePage.compareIgnoringCase(a, b) < 0;
          },
          parent) {}

void EntryList::setTabStop(int pixels) {
    delete itemDelegate();
    setItemDelegate(new LinePainter(pixels, this));
}

void EntryList::setStrongLines(std::function<bool(std::string_view)> strong) {
    lines_->setStrong(std::move(strong));
    viewport()->update();
}

void EntryList::setEmptyText(const QString& text) {
    emptyText_ = text;
    tellEmptiness();
}

void EntryList::tellEmptiness() {
    describe(*this, lines().empty() ? emptyText_ : QString());
    viewport()->update();
}

void EntryList::setLines(std::vector<std::string> lines) {
    const bool selected = hasSelection();
    {
        const QScopedValueRollback<bool> guard(byProgram_, true);
        lines_->set(std::move(lines));
        scrollToTop();
    }
    tellEmptiness();
    if (selected)
        emit currentLineChanged();
}

void EntryList::addLines(std::vector<std::string> lines) {
    const QScopedValueRollback<bool> guard(byProgram_, true);
    const QSignalBlocker quiet(this);
    const int row = lines_->add(std::move(lines), selectedRow());
    if (row >= 0)
        selectRow(row);
    tellEmptiness();
}

std::string EntryList::selectedLine() const {
    const int row = selectedRow();
    return row < 0 ? std::string() : lines()[static_cast<std::size_t>(row)];
}

bool EntryList::selectLine(const std::string& line) {
    const QScopedValueRollback<bool> guard(byProgram_, true);
    const auto found = std::find(lines().begin(), lines().end(), line);
    if (found == lines().end()) {
        clearLineSelection();
        return false;
    }
    selectRow(static_cast<int>(found - lines().begin()));
    return true;
}

void EntryList::clearLineSelection() {
    const QScopedValueRollback<bool> guard(byProgram_, true);
    selectionModel()->clear();
}

int EntryList::selectedRow() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void EntryList::selectRow(int row) {
    const QModelIndex index = lines_->index(row);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

void EntryList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    viewport()->update();  // the ring goes from the list to a line
    emit currentLineChanged();
    if (byProgram_ || selected.isEmpty())
        return;
    ++choices_;
    emit lineClicked();
}

void EntryList::mousePressEvent(QMouseEvent* event) {
    focus_ = {};
    viewport()->update();
    const int choicesBefore = choices_;
    const bool onLine = indexAt(event->position().toPoint()).isValid();
    QListView::mousePressEvent(event);
    if (onLine && hasSelection() && choices_ == choicesBefore)
        emit lineClicked();
}

void EntryList::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    // Told when the button comes up: who clicks a line and drags it at once drags it.
    const bool onLine = indexAt(event->position().toPoint()).isValid();
    clickedTwice_ = event->button() == Qt::LeftButton && onLine && hasSelection();
}

void EntryList::mouseReleaseEvent(QMouseEvent* event) {
    QListView::mouseReleaseEvent(event);
    if (std::exchange(clickedTwice_, false) && event->button() == Qt::LeftButton)
        emit lineActivated();
}

void EntryList::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (byKey)
        selectFocused();
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid() || !hasSelection())
        return;
    if (byKey)
        scrollTo(index);
    emit menuWanted(byKey ? viewport()->mapToGlobal(visualRect(index).center())
                          : event->globalPos());
}

// Without a selection the first key selects the line that the focus fell on.
void EntryList::selectFocused() {
    if (!hasSelection() && currentIndex().isValid())
        selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    focus_.keyUsed();
    const bool step = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!step || hasSelection() || !currentIndex().isValid())
        QListView::keyPressEvent(event);
    if (step || isJump(event->key()))
        selectFocused();
    actByKey(*event);
}

// A listener may open a dialog, so this comes last.
void EntryList::actByKey(const QKeyEvent& event) {
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) {
        selectFocused();
        if (hasSelection())
            emit lineActivated();
    } else if (plain && event.key() == Qt::Key_Delete && hasSelection()) {
        emit removeWanted();
    } else if (event.matches(QKeySequence::Copy) && hasSelection()) {
        emit copyWanted();
    }
}

void EntryList::focusInEvent(QFocusEvent* event) {
    focus_.focusIn(*event);
    QListView::focusInEvent(event);
}

void EntryList::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    const Theme& theme = Theme::of(*this);
    QPainter painter(viewport());
    if (lines().empty() && !emptyText_.isEmpty()) {
        painter.setPen(isEnabled() ? theme.ink2 : theme.dis);
        painter.drawText(viewport()->rect().adjusted(0, kEmptyTextTop - kMargin, 0, 0),
                         Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, emptyText_);
    }
    if (!focus_.shown(hasFocus()))
        return;
    const QModelIndex index = currentIndex();
    if (!index.isValid())
        drawFocusRing(painter, viewport()->rect(), kRowRadius, theme.accent);
    else
        drawFocusRing(painter, visualRect(index), kRowRadius,
                      hasSelection() ? theme.ink : theme.accent);
}

void EntryList::setDragFormat(const char* format) {
    lines_->setDragFormat(format);
    setDragEnabled(true);
}

void EntryList::startDrag(Qt::DropActions actions) {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (selected.isEmpty())
        return;
    clickedTwice_ = false;
    emit dragBegins();
    auto* drag = new QDrag(this);
    drag->setMimeData(lines_->mimeData(selected));
    drag->setPixmap(dragPixmap(selected.first().data().toString()));
    drag->setHotSpot({-kDragOffset, -kDragOffset});
    drag->exec(actions, Qt::CopyAction);
}

QPixmap EntryList::dragPixmap(const QString& line) const {
    const Theme& theme = Theme::of(*this);
    const QFontMetrics metrics(font());
    const QString text = metrics.elidedText(line, Qt::ElideRight, viewport()->width());
    const QSize size(metrics.horizontalAdvance(text) + 2 * kTextInset + 2,
                     std::max(kDragHeight, rowHeight(metrics)));
    QPixmap card(size * devicePixelRatioF());
    card.setDevicePixelRatio(devicePixelRatioF());
    card.fill(Qt::transparent);
    QPixmap seeThrough = card;
    QPainter painter(&card);
    drawPanel(painter, QRectF(QPointF(), size), 6, theme.surface, theme.accent);
    painter.setFont(font());
    painter.setPen(theme.ink);
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter | Qt::TextSingleLine, text);
    painter.end();
    painter.begin(&seeThrough);
    painter.setOpacity(kDragOpacity);
    painter.drawPixmap(0, 0, card);
    return seeThrough;
}

}  // namespace velmora
