#include "platform/qt/ProgramFilter.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>
#include <QStringList>

namespace velmora {
namespace {

// Shows folders, and of the files either all or those that can be run.
class ProgramsOnly final : public QSortFilterProxyModel {
  public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setOnlyPrograms(bool only) {
        only_ = only;
        invalidateFilter();
    }

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        if (!only_)
            return true;
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        const QFileInfo file(index.data(QFileSystemModel::FilePathRole).toString());
        return file.isDir() || file.isExecutable() ||
               file.suffix().compare(QLatin1String("exe"), Qt::CaseInsensitive) == 0;
    }

  private:
    bool only_ = true;
};

}  // namespace

void listPrograms(QFileDialog& dialog, const QString& filters) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    auto* programs = new ProgramsOnly(&dialog);
    dialog.setProxyModel(programs);
    // To the dialog each of them is a filter of all files; it shows the text before the last
    // bracket.
    const QStringList parts = filters.split(QLatin1Char('|'));
    QStringList names;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        names << parts[i] + QLatin1String(" (*)");
    dialog.setNameFilters(names);
    QObject::connect(
        &dialog, &QFileDialog::filterSelected, programs,
        [programs, first = names.value(0), shown = parts.value(0)](const QString& now) {
            programs->setOnlyPrograms(now == first || now == shown);
        });
}

}  // namespace velmora
