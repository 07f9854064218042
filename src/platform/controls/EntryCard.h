#pragma once

#include <QWidget>
#include <string>

#include "platform/CodePage.h"
#include "platform/controls/CardLayout.h"
#include "platform/controls/FocusRing.h"

class QPainter;
class QScrollBar;

namespace velmora {

// The card that shows the selected entry. It keeps the plain text as it was given and only lays it
// out: name large, labels of numbers quiet. It scrolls when the text is longer than the card;
// Ctrl+C copies the plain text.
class EntryCard final : public QWidget {
    Q_OBJECT

  public:
    // `codePage` must outlive the card.
    explicit EntryCard(const CodePage& codePage, QWidget* parent = nullptr);

    // Code-page text, lines ended by CR LF. Shows its top.
    void setText(const std::string& text);
    [[nodiscard]] const std::string& text() const { return text_; }

    // The edge at the left: amber for the Yellow Pages, grey for the White Pages.
    void setWhitePages(bool white);
    [[nodiscard]] bool whitePages() const { return white_; }

    // Leaves no space between the groups of lines.
    void setEven();

    // The closer lines of a small window, with `foot` px left free for a strip at the lower edge.
    void setSmall(bool small, int foot = 0);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  public slots:
    void copy() const;

  signals:
    // A context menu of the entry is wanted, at a place on the screen; never while none is shown.
    void menuWanted(const QPoint& place);

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void textChanged();
    void readText();
    void layOut();
    [[nodiscard]] CardLayout::Lines spacing() const;
    [[nodiscard]] QPoint textCorner() const;
    [[nodiscard]] int textRoom() const;
    void paintFoot(QPainter& painter) const;
    bool scrollByKey(int key);

    const CodePage& codePage_;
    std::string text_;
    CardLayout layout_;
    QScrollBar* bar_;
    KeyboardFocus focus_;
    bool white_ = false;
    bool small_ = false;
    bool even_ = false;
    int foot_ = 0;
    bool stale_ = true;  // the text has not been laid out as it would look now
};

}  // namespace velmora
