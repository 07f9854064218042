#pragma once

#include <QString>
#include <QWidget>

#include "platform/CodePage.h"
#include "reports/EnvelopeSketch.h"

namespace velmora {

// The picture of the sheet with the envelope on it, to scale: what will be printed where. What runs
// over the edge of what the printer can print on is red.
class EnvelopeSheet final : public QWidget {
    Q_OBJECT

  public:
    // `codePage` must outlive the widget.
    explicit EnvelopeSheet(const CodePage& codePage, QWidget* parent = nullptr);

    void show(const EnvelopeSketch& sketch, const EnvelopeFeed& feed,
              const EnvelopeSheetSize& sheet);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintTexts(QPainter& painter) const;
    [[nodiscard]] QRectF envelope() const;  // on the sheet, in inches

    const CodePage& codePage_;
    EnvelopeSketch sketch_;
    EnvelopeFeed feed_;
    EnvelopeSheetSize sheet_;
};

}  // namespace velmora
