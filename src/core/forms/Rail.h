#pragma once

#include <QWidget>
#include <array>

#include "core/Panes.h"

class QToolButton;

namespace velmora {

class PaneButton;
class TrashCan;

// The strip at the left edge: the three pane buttons, the icon that cancels a print job, the trash.
class Rail final : public QWidget {
    Q_OBJECT

  public:
    explicit Rail(QWidget* parent = nullptr);

    [[nodiscard]] PaneButton* paneButton(Pane pane) const {
        return Picture1[static_cast<std::size_t>(pane)];
    }
    [[nodiscard]] TrashCan* trash() const { return Image2; }

    void raiseButton(Pane pane) const;

    // The size for a small window.
    void setSmall(bool small);

    // The icon that cancels a print job.
    void showCancelIcon(bool shown);

  signals:
    void paneChosen(velmora::Pane pane);
    void paneHovered(velmora::Pane pane);
    void cancelChosen();
    void cancelHovered();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::array<PaneButton*, kPaneCount> Picture1{};  // "Planner", "Phonebook", "Dialer"
    QToolButton* Image8;                             // cancels a print job; hidden otherwise
    TrashCan* Image2;                                // the trash
};

}  // namespace velmora
