// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/ImportDialog.h"

#include <QAbstractTableModel>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "base/Text.h"
#include "foundation/Utf8.h"
#include "window/TableLook.h"

namespace nascor::qt {

using app::ReportImport;

namespace {

enum Column : int { examination, fetus, value, reported, standing, outcome, columns };

/// What a choice of fetus holds besides the places of the document's fetuses.
constexpr int kUndecided = -1;
constexpr int kLeftOut = -2;

/// No report of a pregnancy has as many; of others nothing can be stored.
constexpr std::size_t kMostChoices = 10;

/// Rows whose heights are measured one by one.
constexpr int kMostMeasuredRows = 300;

}  // namespace

class ImportDialog::Model final : public QAbstractTableModel {
 public:
  Model(ReportImport& import, QObject* parent) : QAbstractTableModel(parent), import_(import) {}

  std::function<void(int row, bool isChosen)> onChoice;

  /// The rows are as many as before; what they say is not.
  void refresh() {
    if (rowCount({}) > 0) emit dataChanged(index(0, 0), index(rowCount({}) - 1, columns - 1));
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(import_.rows().size());
  }
  int columnCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : columns; }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    if (role != Qt::DisplayRole) return {};
    switch (section) {
      case examination: return said("ImportDialog", "Examination");
      case fetus: return said("ImportDialog", "Fetus");
      case value: return said("ImportDialog", "Value");
      case reported: return said("ImportDialog", "Report");
      case standing: return said("ImportDialog", "Patient");
      default: return said("ImportDialog", "What becomes of it");
    }
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const ReportImport::Row& row = rowAt(index);
    switch (role) {
      case Qt::DisplayRole:
      case Qt::ToolTipRole: return fromUtf8(textOf(row, index.column()));
      case Qt::CheckStateRole:
        if (index.column() != value || !row.canBeChosen) return {};
        return row.isChosen ? Qt::Checked : Qt::Unchecked;
      case Qt::FontRole: {
        if (!row.isWarning || index.column() != outcome) return {};
        QFont bold;
        bold.setBold(true);
        return bold;
      }
      case Qt::AccessibleDescriptionRole: return fromUtf8(row.outcome);
      default: return {};
    }
  }

  Qt::ItemFlags flags(const QModelIndex& index) const override {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == value && rowAt(index).canBeChosen) flags |= Qt::ItemIsUserCheckable;
    return flags;
  }

  bool setData(const QModelIndex& index, const QVariant& data, int role) override {
    if (role != Qt::CheckStateRole || !rowAt(index).canBeChosen) return false;
    onChoice(index.row(), data.toInt() == Qt::Checked);
    return true;
  }

 private:
  const ReportImport::Row& rowAt(const QModelIndex& index) const {
    return import_.rows().at(static_cast<std::size_t>(index.row()));
  }
  static const std::string& textOf(const ReportImport::Row& row, int column) {
    switch (column) {
      case examination: return row.examination;
      case fetus: return row.fetus;
      case value: return row.what;
      case reported: return row.reported;
      case standing: return row.standing;
      default: return row.outcome;
    }
  }

  ReportImport& import_;
};

ImportDialog::ImportDialog(ReportImport& import, QWidget* parent)
    : QDialog(parent), import_(import), obstacle_(new QLabel) {
  setObjectName(QStringLiteral("importDialog"));
  setWindowTitle(said("ImportDialog", "Import Report"));
  auto* layout = new QVBoxLayout(this);
  addPatient(*layout);
  addFetuses(*layout);
  addTable(*layout);

  obstacle_->setObjectName(QStringLiteral("importObstacle"));
  obstacle_->setTextFormat(Qt::PlainText);
  obstacle_->setWordWrap(true);
  layout->addWidget(obstacle_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  refresh();
  const QFontMetrics metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 130, metrics.lineSpacing() * 34);
  makeRoom();
  table_->setFocus();
}

void ImportDialog::addPatient(QVBoxLayout& layout) {
  const auto idText = [](const std::string& id) {
    return id.empty() ? said("ImportDialog", "none") : fromUtf8(foundation::shownLine(id));
  };
  auto* patient = new QLabel(said("ImportDialog", "Reference ID of the report: %1. Of the document: %2.")
                                 .arg(idText(import_.reportedID()), idText(import_.documentID())));
  patient->setObjectName(QStringLiteral("importPatient"));
  patient->setTextFormat(Qt::PlainText);
  patient->setWordWrap(true);
  layout.addWidget(patient);
  if (import_.patientDoubt().empty()) return;

  auto* doubt = new QLabel(fromUtf8(import_.patientDoubt()));
  doubt->setObjectName(QStringLiteral("importDoubt"));
  doubt->setTextFormat(Qt::PlainText);
  doubt->setWordWrap(true);
  QFont bold = doubt->font();
  bold.setBold(true);
  doubt->setFont(bold);
  layout.addWidget(doubt);
  auto* same = new QCheckBox(said("ImportDialog", "The report is of &this patient"));
  same->setObjectName(QStringLiteral("importPatientCheck"));
  connect(same, &QCheckBox::toggled, this, [this](bool isChecked) {
    import_.confirmPatient(isChecked);
    refresh();
  });
  layout.addWidget(same);
}

void ImportDialog::addFetuses(QVBoxLayout& layout) {
  const auto& fetuses = import_.fetuses();
  // With one on both sides there is nothing to choose.
  const bool isPlain = fetuses.size() == 1 && fetuses[0].place && import_.placeNames().size() == 1;
  if (isPlain || fetuses.size() > kMostChoices) return;
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  for (std::size_t i = 0; i < fetuses.size(); ++i) {
    auto* label = new QLabel(said("ImportDialog", "%1 of the report is:").arg(fromUtf8(fetuses[i].name)));
    label->setTextFormat(Qt::PlainText);
    QComboBox* choice = choiceOf(i);
    label->setBuddy(choice);
    choice->setAccessibleName(label->text());
    form->addRow(label, choice);
  }
  layout.addLayout(form);
}

QComboBox* ImportDialog::choiceOf(std::size_t fetus) {
  auto* choice = new QComboBox;
  choice->setObjectName(QStringLiteral("importFetus%1").arg(fetus + 1));
  choice->addItem(said("ImportDialog", "Please choose"), kUndecided);
  int place = 0;
  for (const std::string& name : import_.placeNames()) choice->addItem(fromUtf8(name), place++);
  choice->addItem(said("ImportDialog", "Leave out"), kLeftOut);
  const auto& known = import_.fetuses()[fetus].place;
  choice->setCurrentIndex(choice->findData(known ? static_cast<int>(*known) : kUndecided));
  connect(choice, &QComboBox::currentIndexChanged, this, [this, choice, fetus] {
    const int chosen = choice->currentData().toInt();
    if (chosen == kLeftOut) {
      import_.leaveOut(fetus);
    } else {
      import_.setPlace(fetus, chosen == kUndecided ? std::nullopt : std::optional<std::int64_t>(chosen));
    }
    refresh();
  });
  return choice;
}

void ImportDialog::addTable(QVBoxLayout& layout) {
  table_ = new QTableView;
  table_->setObjectName(QStringLiteral("importTable"));
  table_->setAccessibleName(said("ImportDialog", "Values of the report"));
  model_ = new Model(import_, table_);
  model_->onChoice = [this](int row, bool isChosen) {
    import_.choose(static_cast<std::size_t>(row), isChosen);
    refresh();
  };
  table_->setModel(model_);
  dressTable(*table_);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  // Space decides of a row wherever the cursor stands in it.
  if (model_->rowCount({}) > 0) table_->setCurrentIndex(model_->index(0, value));
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, table_,
          [this](const QModelIndex& current) {
            if (current.isValid() && current.column() != value)
              table_->setCurrentIndex(current.siblingAtColumn(value));
          });
  layout.addWidget(table_, 1);
}

void ImportDialog::makeRoom() {
  const auto& rows = import_.rows();
  const bool isOneDay = std::ranges::all_of(
      rows, [&](const ReportImport::Row& row) { return row.examination == rows.front().examination; });
  if (isOneDay && !rows.empty() && !rows.front().examination.empty()) {
    table_->hideColumn(examination);
    setWindowTitle(said("ImportDialog", "Import Report of %1").arg(fromUtf8(rows.front().examination)));
  }
  for (int column = 0; column < outcome; ++column) table_->resizeColumnToContents(column);
  if (model_->rowCount({}) > kMostMeasuredRows) return;
  // Sentences that are longer than the table is wide take several lines.
  table_->setWordWrap(true);
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void ImportDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  tellRowsApart(*table_);
}

void ImportDialog::refresh() {
  model_->refresh();
  obstacle_->setText(fromUtf8(import_.obstacle()));
  ok_->setEnabled(import_.obstacle().empty());
}

void ImportDialog::accept() {
  if (import_.store()) {
    QDialog::accept();
  } else {
    refresh();
  }
}

}  // namespace nascor::qt
