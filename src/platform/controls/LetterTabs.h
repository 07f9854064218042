#pragma once

#include <QWidget>
#include <array>

#include "platform/controls/PaintedButton.h"

namespace velmora {

class LetterTabs;

// One of the 27 tabs.
class LetterTab final : public PaintedButton {
    Q_OBJECT

  public:
    LetterTab(const QString& letter, LetterTabs* tabs);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] int inset() const;

    const LetterTabs& tabs_;
};

// The rolodex: the tabs "A" to "Z" and "#" in one column, 34 px wide. The tab in use grows out of
// the card at its right. One stop of the Tab key; arrows, Home and End move the focus from tab to
// tab, a typed letter or "#" jumps, Space and Enter click.
class LetterTabs final : public QWidget {
    Q_OBJECT

  public:
    static constexpr int kCount = 27;

    // "A" to "Z" and "#".
    [[nodiscard]] static QString letterAt(int index);

    // Each tab's object name is `tabName`, "_" and its index: "Command23_0" to "Command23_26".
    explicit LetterTabs(const QString& tabName, QWidget* parent = nullptr);

    [[nodiscard]] int current() const { return current_; }

    // `index` from 0 to 26. Shows the letter in use; tells nobody.
    void setCurrent(int index);

    // The colour of the tab in use: that of the White Pages or that of the Yellow Pages.
    void setWhitePages(bool white);
    [[nodiscard]] bool whitePages() const { return white_; }

    // In a small window the tabs stand close together, from edge to edge of the column.
    void setSmall(bool small);
    [[nodiscard]] bool small() const { return small_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  signals:
    // A tab was clicked, by mouse or keyboard; the current one too. The receiver calls setCurrent.
    void clicked(int index);

    // The pointer has come over a tab.
    void hovered();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    friend class LetterTab;

    [[nodiscard]] bool isCurrent(const LetterTab* tab) const;
    bool moveByKey(int from, const QKeyEvent& event);
    void stopAt(int index);
    void placeTabs();

    std::array<LetterTab*, kCount> tabs_{};
    int current_ = 0;
    bool white_ = false;
    bool small_ = false;
};

}  // namespace velmora
