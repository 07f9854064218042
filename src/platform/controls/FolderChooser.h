#pragma once

#include <QString>
#include <QWidget>

class QComboBox;
class QFileSystemModel;
class QTreeView;

namespace velmora {

// Chooses a folder of this machine: the places to begin at, and the folders below the one that is
// chosen. The folders are read when it is first shown.
class FolderChooser final : public QWidget {
    Q_OBJECT

  public:
    explicit FolderChooser(QWidget* parent = nullptr);

    // The path of the selected folder, without a separator at its end; empty before there is one.
    [[nodiscard]] QString folder() const;

    // Shows and selects a folder; one that is not there leaves all as it is.
    void showFolder(const QString& folder);

    [[nodiscard]] QComboBox* places() const { return Drive1; }
    [[nodiscard]] QTreeView* folders() const { return Dir1; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void fill();
    void enterPlace();

    QComboBox* Drive1;                  // the places
    QTreeView* Dir1;                    // the folders
    QFileSystemModel* model_ = nullptr;  // made when it is first shown
};

}  // namespace velmora
