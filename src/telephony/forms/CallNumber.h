#pragma once

#include <QLineEdit>

namespace velmora {

// The number of a caller in a line of its own: read, selected and copied, but not changed. Ctrl+C
// copies what is selected of it, else all.
class CallNumber final : public QLineEdit {
    Q_OBJECT

  public:
    explicit CallNumber(QWidget* parent = nullptr);

    // Shows the number from its beginning.
    void setNumber(const QString& number);

  public slots:
    void copyAll() const;

  signals:
    // A context menu of the number is wanted, at a place on the screen.
    void menuWanted(const QPoint& place);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
};

}  // namespace velmora
