#pragma once

class QFileDialog;
class QString;

namespace velmora {

// Gives a file dialog filters ("Programs (*.exe)|*.exe|All Files (*.*)|*.*") under which "*.exe"
// lists all files that can be run, and "*.*" all files. It is no dialog of the desktop's then.
void listPrograms(QFileDialog& dialog, const QString& filters);

}  // namespace velmora
