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

    // The path of the selected folder, or of the place where none is selected; without a separator
    // at its end. Empty as long as the chooser has not been shown.
    [[nodiscard]] QString folder() const;

    // Makes a folder one of the places, and goes there; one that is not there leaves all as it is.
    void showFolder(const QString& folder);

    [[nodiscard]] QComboBox* places() const { return Drive1; }
    [[nodiscard]] QTreeView* tree() const { return Dir1; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void fill();
    void enterPlace();

    QComboBox* Drive1;                   // the places
    QTreeView* Dir1;                     // the folders
    QFileSystemModel* model_ = nullptr;  // made when it is first shown
};

}  // namespace velmora
