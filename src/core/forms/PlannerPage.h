#pragma once

#include <QWidget>

class QLabel;

namespace velmora {

// The Planner pane: the date line and, below it, the day.
class PlannerPage final : public QWidget {
    Q_OBJECT

  public:
    // Takes `day` as its child.
    explicit PlannerPage(QWidget* day, QWidget* parent = nullptr);

    // The size for a small window.
    void setSmall(bool small);

    [[nodiscard]] QLabel* dateLine() const { return Label1; }

  private:
    QLabel* Label1;  // the date
};

}  // namespace velmora
