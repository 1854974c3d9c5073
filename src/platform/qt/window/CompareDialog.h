// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <functional>
#include <optional>
#include <vector>

#include "compare/Tables.h"
#include "foundation/Services.h"
#include "framework/Alerts.h"
#include "framework/Printer.h"

class QLabel;
class QSortFilterProxyModel;
class QTabWidget;
class QTableView;

namespace nascor::qt {

class FigureDelegate;

/// What the dialog shows: what is compared, in words, and its tables.
struct ShownComparison {
  QString heading;
  std::vector<compare::Table> tables;  ///< none while there is no examination
};

/// What the dialog asks of its window.
struct CompareEnvironment {
  foundation::Services services;
  framework::Alerts& alerts;
  std::function<QString()> heading;  ///< of the examination and the fetus on show; likewise `table`
  std::function<std::optional<compare::Table>(compare::TableKind)> table;  ///< nothing for no examination
  std::function<framework::PrintInfo()> paper;                             ///< that of the document
  std::function<QString()> suggestedName;                 ///< for a file, without its extension
  std::function<void(const calc::Method&)> showEvidence;  ///< what stands behind a figure
};

/// Each number of the fetus on show beside its peers. It stays open beside the window and follows what that shows; its
/// tables can be sorted, copied, printed and exported.
class CompareDialog final : public QDialog {
 public:
  CompareDialog(CompareEnvironment environment, QWidget* parent);

  /// Shows what is on show when the action of the user has ended. Costs nothing while the dialog is hidden.
  void refresh();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  class Model;
  struct Page {
    compare::TableKind kind;
    Model* model;
    QSortFilterProxyModel* sorted;
    QTableView* view;
    bool isStale = true;  ///< its table is that of before: it is not on show
  };
  void addPage(compare::TableKind kind, const compare::Table& table);
  void addPages();
  void showComparison();
  /// Brings the table on show up to date. The others wait until they are.
  void updatePageOnShow();
  /// Widens the window, where it must, for a table of that width, as far as the screen goes.
  void widenTo(int tableWidth);
  ShownComparison comparison() const;
  /// The table on show as it is sorted now; its selected rows alone where some are.
  compare::Table tableOnShow() const;
  /// What stands behind the figure that the keys or the mouse have reached; nothing for what was measured.
  void showOrigin();
  void copy();
  void exportCSV();
  void print();

  CompareEnvironment environment_;
  QLabel* heading_;
  QTabWidget* tabs_;
  FigureDelegate* figures_;
  std::vector<Page> pages_;
  bool isRefreshDue_ = false;
};

/// The comparison as HTML, for paper.
QString comparisonText(const ShownComparison& comparison);

}  // namespace nascor::qt
