#include "qt/QtFilePanels.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include "foundation/FileStore.h"
#include "foundation/UserDefaults.h"
#include "qt/Text.h"

namespace nascor::qt {
namespace {

QString said(const char* sentence) { return QCoreApplication::translate("FilePanels", sentence); }

}  // namespace

QString QtFilePanels::extension() const {
  return fromUtf8(services_.defaults.value(foundation::defaults_key::dataFileExtension).value_or("nascor"));
}

QString QtFilePanels::folder() const {
  if (!lastFolder_.isEmpty() && QFileInfo(lastFolder_).isDir()) return lastFolder_;
  const QString documents = QFile::decodeName(QByteArray::fromStdString(services_.files.documentsFolder()));
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString QtFilePanels::filters() const {
  return said("Nascor documents (*.%1)").arg(extension()) + QStringLiteral(";;") + said("All files (*)");
}

std::vector<std::string> QtFilePanels::chooseFilesToOpen() {
  std::vector<std::string> paths;
  for (const QString& path : QFileDialog::getOpenFileNames(parent(), said("Open"), folder(), filters())) {
    lastFolder_ = QFileInfo(path).absolutePath();
    paths.push_back(QFile::encodeName(path).toStdString());
  }
  return paths;
}

std::optional<std::string> QtFilePanels::chooseFileToSave(const std::string& suggestedName) {
  QFileDialog dialog(parent(), said("Save As"), folder(), filters());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(extension());
  dialog.selectFile(QDir(folder()).filePath(fromUtf8(suggestedName)));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const QString path = dialog.selectedFiles().constFirst();
  lastFolder_ = QFileInfo(path).absolutePath();
  return QFile::encodeName(path).toStdString();
}

std::optional<std::string> QtFilePanels::chooseFolder() {
  const QString path =
      QFileDialog::getExistingDirectory(parent(), said("Folder for Exported Pages"), folder());
  if (path.isEmpty()) return std::nullopt;
  return QFile::encodeName(path).toStdString();
}

}  // namespace nascor::qt
