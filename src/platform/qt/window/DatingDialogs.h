// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include "foundation/Services.h"
#include "window/Actions.h"
#include "window/PanelDialog.h"

namespace Ui {
class EDDFromCRL;
class EDDFromLMP;
class EDDFromMeasurements;
}  // namespace Ui

namespace nascor::qt {

class FieldBinding;
class FieldEdit;

/// A dialog whose OK sets the EDD. Where none comes of it the dialog stays, and what stands in the way is outlined until
/// something changes.
class DatingDialog : public PanelDialog {
 public:
  /// The bindings of its fields; they live as long as the dialog.
  const std::vector<FieldBinding*>& bindings() const { return bindings_; }
  void accept() override;

 protected:
  DatingDialog(app::NCDocument& document, const foundation::Services& services, Actions& actions,
               Perform perform, QWidget* parent);

  const foundation::Services& services() const { return services_; }
  /// Lets the user type into `edit`.
  void bindField(FieldEdit& edit);
  /// The same for a date: under it stands, in `form`, how a date is written, behind it how this one is read.
  void bindDate(FieldEdit& edit, QLabel& form, QLabel& longForm);
  /// Shows `text`, which the document says beside its fields, in `label`, with room for `lines` of it.
  void bindText(QLabel& label, framework::TextField& text, int lines = 1);
  /// The same for what OK would set. When the text changes as OK ends an edit in the window, OK only shows it.
  void bindProposal(QLabel& label, framework::TextField& text);
  /// Outlines nothing any more.
  void forgetObstacles();

  virtual void setEDD(app::NCDocument& document) = 0;
  virtual app::ProposedEDD proposal(const app::NCDocument& document) const = 0;
  /// Where `obstacle`, a field of the document, is shown.
  virtual FieldEdit* editFor(const framework::TextField& obstacle) const;

 private:
  void outline(const std::vector<const framework::TextField*>& obstacles);

  foundation::Services services_;
  Actions& actions_;
  const framework::TextField* proposalShown_ = nullptr;
  std::vector<FieldBinding*> bindings_;
};

/// From a crown-rump length at a scan.
class EDDFromCRLDialog final : public DatingDialog {
 public:
  EDDFromCRLDialog(app::NCDocument& document, const foundation::Services& services, Actions& actions,
                   Perform perform, QWidget* parent);
  ~EDDFromCRLDialog() override;

 private:
  void refresh() override;
  void focusFirst() override;
  void setEDD(app::NCDocument& document) override;
  app::ProposedEDD proposal(const app::NCDocument& document) const override;

  std::unique_ptr<Ui::EDDFromCRL> ui_;
};

/// From the last menstrual period.
class EDDFromLMPDialog final : public DatingDialog {
 public:
  EDDFromLMPDialog(app::NCDocument& document, const foundation::Services& services, Actions& actions,
                   Perform perform, QWidget* parent);
  ~EDDFromLMPDialog() override;

 private:
  void refresh() override;
  void focusFirst() override;
  void setEDD(app::NCDocument& document) override;
  app::ProposedEDD proposal(const app::NCDocument& document) const override;

  std::unique_ptr<Ui::EDDFromLMP> ui_;
};

/// From the measurements of the examination and the fetus on show.
class EDDFromMeasurementsDialog final : public DatingDialog {
 public:
  EDDFromMeasurementsDialog(app::NCDocument& document, const foundation::Services& services, Actions& actions,
                            Perform perform, QWidget* parent);
  ~EDDFromMeasurementsDialog() override;

 private:
  struct Row;

  std::vector<Row> rows() const;
  void refresh() override;
  void focusFirst() override;
  void setEDD(app::NCDocument& document) override;
  app::ProposedEDD proposal(const app::NCDocument& document) const override;
  FieldEdit* editFor(const framework::TextField& obstacle) const override;

  std::unique_ptr<Ui::EDDFromMeasurements> ui_;
};

}  // namespace nascor::qt
