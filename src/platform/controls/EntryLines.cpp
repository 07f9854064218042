#include "platform/controls/EntryLines.h"

#include <QMimeData>
#include <algorithm>
#include <iterator>

#include "platform/controls/DragFormats.h"
#include "platform/qt/QtText.h"

namespace velmora {

EntryLines::EntryLines(const CodePage& codePage, Order order, QObject* parent)
    : QAbstractListModel(parent), codePage_(codePage), order_(std::move(order)) {}

void EntryLines::set(std::vector<std::string> lines) {
    if (order_)
        std::stable_sort(lines.begin(), lines.end(), order_);
    beginResetModel();
    lines_ = std::move(lines);
    endResetModel();
}

int EntryLines::add(std::vector<std::string> lines, int watchedRow) {
    if (order_)
        std::stable_sort(lines.begin(), lines.end(), order_);
    if (order_ && watchedRow >= 0) {
        const std::string& watched = lines_[static_cast<std::size_t>(watchedRow)];
        watchedRow += static_cast<int>(
            std::lower_bound(lines.begin(), lines.end(), watched, order_) - lines.begin());
    }
    beginResetModel();
    const auto middle = static_cast<std::ptrdiff_t>(lines_.size());
    std::move(lines.begin(), lines.end(), std::back_inserter(lines_));
    if (order_)
        std::inplace_merge(lines_.begin(), lines_.begin() + middle, lines_.end(), order_);
    endResetModel();
    return watchedRow;
}

int EntryLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant EntryLines::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const std::string& line = lines_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return toQt(line, codePage_);
    if (role == kStrongRole)
        return strong_ && strong_(line);
    return {};
}

Qt::ItemFlags EntryLines::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

QStringList EntryLines::mimeTypes() const {
    return {QLatin1String(dragFormat_)};
}

QMimeData* EntryLines::mimeData(const QModelIndexList& indexes) const {
    if (indexes.isEmpty())
        return nullptr;
    const std::string& line = lines_[static_cast<std::size_t>(indexes.first().row())];
    auto* data = new QMimeData;
    data->setData(QLatin1String(dragFormat_), QByteArray::fromStdString(line));
    return data;
}

Qt::DropActions EntryLines::supportedDragActions() const {
    return Qt::CopyAction;
}

}  // namespace velmora
