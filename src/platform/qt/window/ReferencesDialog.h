#pragma once

#include <QDialog>
#include <QString>

#include "foundation/Localizer.h"

class QTextBrowser;

namespace nascor::qt {

/// The publications behind the growth standards and the formulas, as a text that can be selected, copied and spoken.
class ReferencesDialog final : public QDialog {
 public:
  ReferencesDialog(const foundation::Localizer& localizer, QWidget* parent);

 private:
  QTextBrowser* text_;
};

/// That text, as HTML.
QString referencesText(const foundation::Localizer& localizer);

}  // namespace nascor::qt
