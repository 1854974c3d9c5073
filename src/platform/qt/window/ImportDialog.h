// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "app/ReportImport.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace nascor::qt {

/// Shows what reports hold beside what the patient has, and lets the user decide. OK stores; the dialog stays open where
/// something is yet to be decided.
class ImportDialog final : public QDialog {
 public:
  /// `import` outlives it.
  ImportDialog(app::ReportImport& import, QWidget* parent);

  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  class Model;

  void addPatient(QVBoxLayout& layout);
  void addFetuses(QVBoxLayout& layout);
  void addTable(QVBoxLayout& layout);
  QComboBox* choiceOf(std::size_t fetus);
  /// Shows the import as it stands now.
  void refresh();
  void makeRoom();

  app::ReportImport& import_;
  Model* model_ = nullptr;
  QTableView* table_ = nullptr;
  QLabel* obstacle_;
  QPushButton* ok_ = nullptr;
};

}  // namespace nascor::qt
