// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/QtFilePanels.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "base/Text.h"
#include "foundation/FileStore.h"
#include "foundation/UserDefaults.h"

namespace nascor::qt {

QString QtFilePanels::extension() const {
  return fromUtf8(services_.defaults.value(foundation::defaults_key::dataFileExtension).value_or("nascor"));
}

QString QtFilePanels::folder() const {
  if (!lastFolder_.isEmpty() && QFileInfo(lastFolder_).isDir()) return lastFolder_;
  const QString documents = QFile::decodeName(QByteArray::fromStdString(services_.files.documentsFolder()));
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString QtFilePanels::filters() const {
  return said("FilePanels", "Nascor documents (*.%1)").arg(extension()) + QStringLiteral(";;") +
         said("FilePanels", "All files (*)");
}

bool QtFilePanels::userReplaces(const QString& path) const {
  const QString question = said("FilePanels", "%1 already exists. Do you want to replace it?");
  return QMessageBox::warning(parent(), said("FilePanels", "Save As"),
                              question.arg(QFileInfo(path).fileName()), QMessageBox::Yes | QMessageBox::No,
                              QMessageBox::No) == QMessageBox::Yes;
}

std::vector<std::string> QtFilePanels::chooseFilesToOpen() {
  return chooseFiles(said("FilePanels", "Open"), filters());
}

std::vector<std::string> QtFilePanels::chooseReportsToImport() {
  // Machines give their files any name.
  return chooseFiles(said("FilePanels", "Import Report"), said("FilePanels", "All files (*)") +
                                                              QStringLiteral(";;") +
                                                              said("FilePanels", "Reports (*.dcm *.json)"));
}

std::vector<std::string> QtFilePanels::chooseFiles(const QString& title, const QString& filters) {
  std::vector<std::string> paths;
  for (const QString& path : QFileDialog::getOpenFileNames(parent(), title, folder(), filters)) {
    lastFolder_ = QFileInfo(path).absolutePath();
    paths.push_back(QFile::encodeName(path).toStdString());
  }
  return paths;
}

std::optional<std::string> QtFilePanels::chooseFileToSave(const std::string& suggestedName) {
  QFileDialog dialog(parent(), said("FilePanels", "Save As"), folder(), filters());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setDefaultSuffix(extension());
  dialog.selectFile(QDir(folder()).filePath(fromUtf8(suggestedName)));
  const QString ending = u'.' + extension();
  QString path;
  for (bool isChosen = false; !isChosen;) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    path = dialog.selectedFiles().constFirst();
    isChosen = true;
    if (path.endsWith(ending, Qt::CaseInsensitive)) continue;
    // A name with a dot in it: the dialog took what follows for an ending, and asked about a file of that name.
    path += ending;
    isChosen = !QFileInfo::exists(path) || userReplaces(path);
    if (!isChosen) dialog.selectFile(path);
  }
  lastFolder_ = QFileInfo(path).absolutePath();
  return QFile::encodeName(path).toStdString();
}

std::optional<std::string> QtFilePanels::chooseFolder() {
  const QString path =
      QFileDialog::getExistingDirectory(parent(), said("FilePanels", "Folder for Exported Pages"), folder());
  if (path.isEmpty()) return std::nullopt;
  return QFile::encodeName(path).toStdString();
}

}  // namespace nascor::qt
