#pragma once

#include <QObject>
#include <QPoint>
#include <optional>

class QLabel;

namespace velmora {

// Makes DocPad's icon `Image7` a source of drags that carry the document as a whole, to the trash.
class DocumentDrag final : public QObject {
    Q_OBJECT

  public:
    // The drag belongs to its icon.
    explicit DocumentDrag(QLabel& icon);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void drag();

    QLabel& icon_;
    std::optional<QPoint> pressedAt_;
};

}  // namespace velmora
