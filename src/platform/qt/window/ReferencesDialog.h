// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QString>

#include "calc/Equations.h"
#include "foundation/Localizer.h"

class QPushButton;
class QTextBrowser;

namespace nascor::qt {

/// The publications behind the growth standards and the formulas, as a text that can be selected, copied and spoken; and of
/// each its equations and the worked examples that it was checked with.
class ReferencesDialog final : public QDialog {
 public:
  ReferencesDialog(const foundation::Localizer& localizer, QWidget* parent);

  /// Shows all publications.
  void showAll();
  /// Shows what stands behind the figures of `method`.
  void showEvidence(const calc::Method& method);

 private:
  const foundation::Localizer& localizer_;
  QTextBrowser* text_;
  QPushButton* all_;
};

/// The publications, as HTML.
QString referencesText(const foundation::Localizer& localizer);

/// What stands behind the figures of `method`, as HTML.
QString evidenceText(const calc::Method& method, const foundation::Localizer& localizer);

}  // namespace nascor::qt
