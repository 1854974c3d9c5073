// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <vector>

#include "app/NCDocument.h"
#include "foundation/Services.h"
#include "foundation/Signal.h"
#include "window/Actions.h"

class QLabel;

namespace Ui {
class MyDocument;
}

namespace nascor::qt {

class FieldBinding;
class FieldEdit;

/// The fields on the left of a document's window: shows what the document holds, hands over what the user types, and says
/// in the status line what a field permits and what the document tells of it.
class PatientPanel final : public QObject {
 public:
  /// Binds the fields of `ui`, the form of `window`, to which the panel belongs. `document` outlives the panel, or
  /// `release` is called before it goes; the others outlive it.
  PatientPanel(QWidget& window, Ui::MyDocument& ui, QLabel& status, app::NCDocument& document,
               const foundation::Services& services, Actions& actions);

  /// Lets go of the document: the fields stay as they are.
  void release();
  /// Takes in further fields of the document, those of a dialog, which live as long as the window.
  void add(const std::vector<FieldBinding*>& bindings);
  /// Gives the focus to the field in edit.
  void focusFieldInEdit();
  /// Shows the dates in words.
  void showLongDates();

 private:
  void bindFields();
  void bindNote();
  void bindAssessment();
  void describeFields();
  void showEditing();
  /// Shows which values are improbable: a sign beside each, and a sentence under them all.
  void showRemarks();
  /// The remark on the value in `edit`; mostly empty.
  QString remarkOn(const FieldEdit& edit) const;

  QWidget& window_;
  Ui::MyDocument& ui_;
  QLabel& status_;
  app::NCDocument* document_;  ///< null once it is closed
  foundation::Services services_;
  Actions& actions_;
  std::vector<FieldBinding*> bindings_;
  std::vector<foundation::Subscription> subscriptions_;
};

}  // namespace nascor::qt
