#pragma once

#include <QAbstractListModel>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/CodePage.h"
#include "platform/controls/DragFormats.h"

namespace velmora {

// The lines of the entry list, code-page text, kept in order. A line is turned into a QString only
// when it is shown.
class EntryLines final : public QAbstractListModel {
    Q_OBJECT

  public:
    // True when the first line stands before the second. Equal lines keep the order in which they
    // were added; without an order all lines do.
    using Order = std::function<bool(std::string_view, std::string_view)>;

    // `codePage` must outlive the model.
    EntryLines(const CodePage& codePage, Order order, QObject* parent);

    void set(std::vector<std::string> lines);

    // Gives the new row of the line that was at `watchedRow`, or `watchedRow` when it is negative.
    int add(std::vector<std::string> lines, int watchedRow);

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

    // Lines for which this is true have data true for kStrongRole.
    void setStrong(std::function<bool(std::string_view)> strong) { strong_ = std::move(strong); }
    static constexpr int kStrongRole = Qt::UserRole;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

    // What a drag carries the bytes of one line as; kEntryFormat at first.
    void setDragFormat(const char* format) { dragFormat_ = format; }

    // A drag can not be dropped elsewhere.
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDragActions() const override;

  private:
    const CodePage& codePage_;
    Order order_;
    std::function<bool(std::string_view)> strong_;
    std::vector<std::string> lines_;
    const char* dragFormat_ = kEntryFormat;
};

}  // namespace velmora
