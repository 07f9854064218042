#pragma once

#include <QProxyStyle>

namespace velmora {

// Fusion with the desk's own check boxes, radio buttons, combo boxes and spin boxes, with the
// margins of our dialogs in those of the toolkit, and without a box of its own around what has the
// focus.
class DeskStyle final : public QProxyStyle {
    Q_OBJECT

  public:
    DeskStyle();

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override;
    // Check boxes and radio buttons are wider at the left than the layouts know, so that the ring
    // of the focus has its place and the boxes still line up with what stands above.
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
};

}  // namespace velmora
