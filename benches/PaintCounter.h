#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <stdexcept>

#include "benches/Samples.h"

namespace velmora::bench {

// Counts how often a widget is painted.
class PaintCounter final : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }

    // Until the widget is on the screen.
    void awaitFirst() const {
        while (paints_ == 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    // Paints all of the widget now. Throws std::runtime_error when nothing was painted.
    void repaint() {
        const int before = paints_;
        widget_.repaint();
        if (paints_ == before)
            throw std::runtime_error("nothing was painted");
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            ++paints_;
        return QObject::eventFilter(watched, event);
    }

  private:
    QWidget& widget_;
    int paints_ = 0;
};

}  // namespace velmora::bench
