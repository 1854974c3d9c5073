// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "foundation/Services.h"
#include "framework/FilePanels.h"

namespace nascor::qt {

/// Qt's file dialogs. They begin in the folder that was chosen last, at first in that of the user's documents.
class QtFilePanels final : public framework::FilePanels {
 public:
  explicit QtFilePanels(const foundation::Services& services) : services_(services) {}

  std::vector<std::string> chooseFilesToOpen() override;
  /// Under a name that is safe for a file, with the documents' extension behind whatever the user types.
  std::optional<std::string> chooseFileToSave(const std::string& suggestedName) override;

  std::optional<std::string> chooseFolder() override;

  std::vector<std::string> chooseReportsToImport();

  std::function<QWidget*()> frontWindow;  ///< set by the maker of windows; may return null

 private:
  QWidget* parent() const { return frontWindow ? frontWindow() : nullptr; }
  QString extension() const;
  QString folder() const;
  std::vector<std::string> chooseFiles(const QString& title, const QString& filters);
  QString filters() const;
  bool userReplaces(const QString& path) const;

  foundation::Services services_;
  QString lastFolder_;
};

}  // namespace nascor::qt
