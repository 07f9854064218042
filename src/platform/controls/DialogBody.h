#pragma once

#include <QScrollArea>

class QLayout;

namespace velmora {

// What stands above the footer of a dialog. It asks for the room that its layout needs at least, so
// that lists and memos give way first; where the screen has less, it scrolls.
class DialogBody final : public QScrollArea {
    Q_OBJECT

  public:
    // Takes the layout, and all that stands in it, over.
    explicit DialogBody(QLayout* layout, QWidget* parent);
    ~DialogBody() override;

    // The most room that there is on the screen.
    void setRoom(const QSize& room);

    // What it would have with room enough: `wanted`, or more where its layout needs more.
    [[nodiscard]] QSize wholeSize(const QSize& wanted) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] int leastHeight(int width) const;
    void arrange();
    void bringIntoView(QWidget* widget);

    QWidget* content_;
    QMetaObject::Connection focus_;  // tells where the keyboard has gone
    QSize room_;
};

}  // namespace velmora
