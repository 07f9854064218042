#include "platform/controls/FolderChooser.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QStorageInfo>
#include <QTreeView>
#include <QVBoxLayout>

#include "platform/controls/ListFrame.h"

namespace velmora {
namespace {

constexpr int kGap = 8;
constexpr int kLeastHeight = 96;
constexpr int kNames = 0;  // the column of the model

// The whole machine, the user's own folder, and the volumes that are no part of the system itself.
QStringList usualPlaces() {
    QStringList places{QDir::homePath(), QDir::rootPath()};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const QString path = volume.rootPath();
        const bool ofUsers = path.startsWith(QLatin1String("/media/")) ||
                             path.startsWith(QLatin1String("/mnt")) ||
                             path.startsWith(QLatin1String("/run/media/"));
        if (ofUsers && !places.contains(path))
            places << path;
    }
    return places;
}

}  // namespace

FolderChooser::FolderChooser(QWidget* parent)
    : QWidget(parent), Drive1(new QComboBox(this)), Dir1(new QTreeView(this)) {
    Drive1->setObjectName(QStringLiteral("Drive1"));
    Drive1->setAccessibleName(tr("Places"));
    Dir1->setObjectName(QStringLiteral("Dir1"));
    Dir1->setAccessibleName(tr("Folders"));
    Dir1->setHeaderHidden(true);
    Dir1->setMinimumHeight(kLeastHeight);
    Dir1->setTabKeyNavigation(false);
    Dir1->setFrameShape(QFrame::NoFrame);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(kGap);
    column->addWidget(Drive1);
    column->addWidget(makeListFrame(Dir1, this), 1);
    setFocusProxy(Drive1);
}

void FolderChooser::showEvent(QShowEvent* event) {
    if (!model_)
        fill();
    QWidget::showEvent(event);
}

void FolderChooser::fill() {
    model_ = new QFileSystemModel(this);
    model_->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    model_->setRootPath(QDir::rootPath());
    Dir1->setModel(model_);
    for (int column = 0; column < model_->columnCount(); ++column)
        Dir1->setColumnHidden(column, column != kNames);
    Drive1->addItems(usualPlaces());
    connect(Drive1, &QComboBox::currentIndexChanged, this, &FolderChooser::enterPlace);
    enterPlace();
}

// Its folders are below it; it is itself the chosen one until one of them is.
void FolderChooser::enterPlace() {
    Dir1->setCurrentIndex({});
    Dir1->setRootIndex(model_->index(Drive1->currentText()));
}

void FolderChooser::showFolder(const QString& folder) {
    if (!model_ || !QFileInfo(folder).isDir())
        return;
    if (Drive1->findText(folder) < 0)
        Drive1->addItem(folder);
    Drive1->setCurrentIndex(Drive1->findText(folder));
}

QString FolderChooser::folder() const {
    if (!model_)
        return {};
    const QModelIndex chosen = Dir1->currentIndex();
    return chosen.isValid() ? model_->filePath(chosen) : Drive1->currentText();
}

}  // namespace velmora
