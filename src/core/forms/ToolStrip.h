#pragma once

#include <QWidget>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "core/CommandTable.h"

class QSpacerItem;
class QToolButton;

namespace velmora {

// A row of toolbar keys made from a table. Each key's object name is the strip's name, "_" and the
// key: "MainToolbar_Save".
class ToolStrip final : public QWidget {
    Q_OBJECT

  public:
    ToolStrip(const QString& name, std::span<const ToolRow> rows, QWidget* parent = nullptr);

    // nullptr for a key that is not in the table.
    [[nodiscard]] QToolButton* button(std::string_view key) const;

    void setKeyEnabled(const std::function<bool(std::string_view command)>& enabled);

    // The width of a key, and of a separator with the room beside it.
    void setMeasures(int keyWidth, int separatorWidth);

  signals:
    void chosen(const velmora::ToolRow& row);

    // The pointer has come over the key.
    void hovered(const velmora::ToolRow& row);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QToolButton* makeButton(const ToolRow& row);
    void addSpace();

    std::span<const ToolRow> rows_;
    std::map<std::string_view, QToolButton*> buttons_;
    std::vector<QSpacerItem*> spaces_;  // beside the separators; of the layout
};

}  // namespace velmora
