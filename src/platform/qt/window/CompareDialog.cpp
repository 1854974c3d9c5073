// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "window/CompareDialog.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QClipboard>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTabWidget>
#include <QTableView>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>
#include <span>
#include <utility>

#include "base/Introduction.h"
#include "base/Text.h"
#include "painting/QtPrinter.h"
#include "window/FigureDelegate.h"
#include "window/TableLook.h"

namespace nascor::qt {

using compare::Table;

namespace {

constexpr int kNumberRole = Qt::UserRole;

/// Widens each column, where it must, so that nothing in it is cut. What the user has widened stays. Answers the width that
/// the view needs then to show all of them.
int makeRoom(QTableView& view) {
  QHeaderView& header = *view.horizontalHeader();
  int whole = 2 * view.frameWidth() + view.verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < header.count(); ++column) {
    const int wanted = std::max(header.sectionSizeHint(column),
                                static_cast<QAbstractItemView&>(view).sizeHintForColumn(column));
    if (header.sectionSize(column) < wanted) header.resizeSection(column, wanted);
    // One that is stretched is as wide as the view, whatever it needs.
    const bool isStretched = header.stretchLastSection() && column == header.count() - 1;
    whole += isStretched ? wanted : header.sectionSize(column);
  }
  return whole;
}

/// A table that takes Return for itself, which would close the dialog.
class Figures final : public QTableView {
 public:
  std::function<void()> onReturn;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
      return QTableView::keyPressEvent(event);
    onReturn();
    event->accept();
  }
};

}  // namespace

/// One table, for Qt's views.
class CompareDialog::Model final : public QAbstractTableModel {
 public:
  explicit Model(QObject* parent) : QAbstractTableModel(parent) {}

  const Table& table() const { return table_; }

  /// Keeps what is selected and sorted where the rows are as many as before.
  void setTable(Table table) {
    const bool isSameShape =
        table.rows.size() == table_.rows.size() && table.columns.size() == table_.columns.size();
    if (!isSameShape) beginResetModel();
    table_ = std::move(table);
    if (!isSameShape) {
      endResetModel();
    } else if (!table_.rows.empty()) {
      emit dataChanged(index(0, 0), index(rowCount({}) - 1, columnCount({}) - 1));
    }
  }

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const compare::Row& row = table_.rows.at(static_cast<std::size_t>(index.row()));
    const auto column = static_cast<std::size_t>(index.column());
    const compare::Cell& cell = row.cells.at(column);
    switch (role) {
      case Qt::DisplayRole: return fromUtf8(cell.text);
      case Qt::ToolTipRole:
      case Qt::AccessibleDescriptionRole: return row.remark.empty() ? QVariant() : fromUtf8(row.remark);
      case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (table_.columns.at(column).isNumber ? Qt::AlignRight : Qt::AlignLeft));
      case Qt::FontRole: return row.isChosen ? bold() : QVariant();
      case kNumberRole:
        if (!table_.columns.at(column).isNumber) return fromUtf8(cell.text);
        return cell.number ? QVariant(*cell.number) : QVariant();
      default: return {};
    }
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal) return {};
    const compare::Column& column = table_.columns.at(static_cast<std::size_t>(section));
    switch (role) {
      case Qt::DisplayRole: return fromUtf8(column.title);
      case Qt::ToolTipRole: return fromUtf8(column.explanation);
      case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (column.isNumber ? Qt::AlignRight : Qt::AlignLeft));
      default: return {};
    }
  }

 private:
  static QVariant bold() {
    QFont font;
    font.setBold(true);
    return font;
  }

  Table table_;
};

CompareDialog::CompareDialog(CompareEnvironment environment, QWidget* parent)
    : QDialog(parent),
      environment_(std::move(environment)),
      heading_(new QLabel),
      tabs_(new QTabWidget),
      figures_(new FigureDelegate(this)) {
  setObjectName(QStringLiteral("compareDialog"));
  setWindowTitle(said("Compare", "Compare"));
  heading_->setObjectName(QStringLiteral("compareHeading"));
  heading_->setTextFormat(Qt::PlainText);
  heading_->setWordWrap(true);
  tabs_->setObjectName(QStringLiteral("compareTabs"));
  tabs_->setDocumentMode(true);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  const auto add = [this, buttons](const char* name, const QString& text, void (CompareDialog::*what)()) {
    QPushButton* button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, what] { (this->*what)(); });
  };
  add("compareCopyButton", said("Compare", "&Copy"), &CompareDialog::copy);
  add("compareExportButton", said("Compare", "&Export CSV..."), &CompareDialog::exportCSV);
  add("comparePrintButton", said("Compare", "&Print..."), &CompareDialog::print);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  connect(tabs_, &QTabWidget::currentChanged, this, [this] { updatePageOnShow(); });

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading_);
  layout->addWidget(tabs_);
  layout->addWidget(buttons);
  const QFontMetrics metrics = fontMetrics();
  resize(metrics.averageCharWidth() * 140, metrics.lineSpacing() * 42);
}

void CompareDialog::addPage(compare::TableKind kind, const Table& table) {
  auto* view = new Figures;
  auto* model = new Model(view);
  auto* sorted = new QSortFilterProxyModel(view);
  sorted->setSortRole(kNumberRole);
  sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
  sorted->setSourceModel(model);
  view->setModel(sorted);
  view->setItemDelegate(figures_);
  view->setObjectName(QStringLiteral("compare-") + fromUtf8(std::string(table.name)));
  view->setAccessibleName(fromUtf8(table.title));
  dressTable(*view);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->horizontalHeader()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 6);
  // Unsorted until a header is clicked.
  view->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  view->horizontalHeader()->setSortIndicatorClearable(true);
  view->setSortingEnabled(true);
  // Of the view: the window behind has the same keys for its fields.
  auto* keys = new QShortcut(QKeySequence::Copy, view);
  keys->setContext(Qt::WidgetShortcut);
  connect(keys, &QShortcut::activated, this, &CompareDialog::copy);
  auto* origin = new QAction(said("Compare", "Where This Comes From"), view);
  view->addAction(origin);
  view->setContextMenuPolicy(Qt::ActionsContextMenu);
  view->onReturn = [this] { showOrigin(); };
  connect(origin, &QAction::triggered, this, &CompareDialog::showOrigin);
  connect(view, &QTableView::doubleClicked, this, &CompareDialog::showOrigin);
  tabs_->addTab(view, fromUtf8(table.title));
  pages_.push_back({.kind = kind, .model = model, .sorted = sorted, .view = view});
}

void CompareDialog::refresh() {
  if (!isVisible() || isRefreshDue_) return;
  isRefreshDue_ = true;
  // One action of the user may tell of several changes.
  QMetaObject::invokeMethod(
      this, [this] { showComparison(); }, Qt::QueuedConnection);
}

void CompareDialog::showComparison() {
  isRefreshDue_ = false;
  heading_->setText(environment_.heading());
  if (pages_.empty()) addPages();
  for (Page& page : pages_) page.isStale = true;
  updatePageOnShow();
}

void CompareDialog::addPages() {
  for (const compare::TableKind kind : compare::kTableKinds) {
    if (const auto table = environment_.table(kind)) addPage(kind, *table);
  }
}

void CompareDialog::updatePageOnShow() {
  const auto shown = static_cast<std::size_t>(tabs_->currentIndex());
  if (shown >= pages_.size()) return tabs_->hide();
  Page& page = pages_[shown];
  if (!std::exchange(page.isStale, false)) return;
  auto table = environment_.table(page.kind);
  tabs_->setVisible(table.has_value());
  if (!table) return;
  page.model->setTable(std::move(*table));
  // Figures stay beside the others; a last column of words takes the room that is left.
  const auto& columns = page.model->table().columns;
  page.view->horizontalHeader()->setStretchLastSection(!columns.empty() && !columns.back().isNumber);
  widenTo(makeRoom(*page.view));
  tellRowsApart(*page.view);
}

void CompareDialog::widenTo(int tableWidth) {
  const QMargins margins = layout()->contentsMargins();
  const int wanted = tableWidth + margins.left() + margins.right();
  if (wanted > width()) resize(std::min(wanted, screen()->availableGeometry().width()), height());
}

ShownComparison CompareDialog::comparison() const {
  ShownComparison shown{.heading = environment_.heading(), .tables = {}};
  for (const compare::TableKind kind : compare::kTableKinds) {
    if (auto table = environment_.table(kind)) shown.tables.push_back(std::move(*table));
  }
  return shown;
}

void CompareDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  showComparison();
}

Table CompareDialog::tableOnShow() const {
  const Page& page = pages_.at(static_cast<std::size_t>(tabs_->currentIndex()));
  const QSortFilterProxyModel& sorted = *page.sorted;
  const QItemSelectionModel& selection = *page.view->selectionModel();
  Table table = page.model->table();
  table.rows.clear();
  for (int row = 0; row < sorted.rowCount(); ++row) {
    if (selection.hasSelection() && !selection.isRowSelected(row)) continue;
    const int source = sorted.mapToSource(sorted.index(row, 0)).row();
    table.rows.push_back(page.model->table().rows.at(static_cast<std::size_t>(source)));
  }
  return table;
}

void CompareDialog::showOrigin() {
  if (pages_.empty()) return;
  const Page& page = pages_.at(static_cast<std::size_t>(tabs_->currentIndex()));
  const QModelIndex index = page.sorted->mapToSource(page.view->currentIndex());
  if (!index.isValid()) return;
  const auto& cells = page.model->table().rows.at(static_cast<std::size_t>(index.row())).cells;
  const auto& own = cells.at(static_cast<std::size_t>(index.column())).method;
  // Where a figure has none of its own the row has.
  if (const auto& method = own ? own : cells.front().method) environment_.showEvidence(*method);
}

void CompareDialog::copy() {
  if (pages_.empty()) return;
  const QString text = fromUtf8(compare::tabbedText(tableOnShow()));
  auto* table = new QMimeData;
  table->setText(text);
  table->setData(QStringLiteral("text/tab-separated-values"), text.toUtf8());
  QGuiApplication::clipboard()->setMimeData(table);
}

void CompareDialog::exportCSV() {
  if (pages_.empty()) return;
  const Table table = tableOnShow();
  QString name = environment_.suggestedName();
  name += QStringLiteral(" - %1.csv").arg(fromUtf8(table.title));
  QFileDialog dialog(this, said("Compare", "Export CSV"), QString(), said("Compare", "Tables (*.csv)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("csv"));
  dialog.setDirectory(
      QFile::decodeName(QByteArray::fromStdString(environment_.services.files.documentsFolder())));
  dialog.selectFile(name);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string path = QFile::encodeName(dialog.selectedFiles().constFirst()).toStdString();
  const std::string text = compare::csvText(table);
  if (const auto error = environment_.services.files.replaceContents(
          path, std::as_bytes(std::span(text.data(), text.size()))))
    environment_.alerts.tell(toUtf8(said("Compare", "The table cannot be exported.")),
                             foundation::sentenceAbout(path, *error));
}

void CompareDialog::print() {
  if (pages_.empty()) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(layoutOf(environment_.paper()));
  printer.setDocName(environment_.suggestedName());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument text;
  text.setHtml(comparisonText(comparison()));
  text.print(&printer);
}

QString comparisonText(const ShownComparison& comparison) {
  QString text = QStringLiteral("<p><b>%1</b></p>").arg(comparison.heading.toHtmlEscaped());
  for (const Table& table : comparison.tables) {
    text += QStringLiteral("<h3>%1</h3><table cellpadding=\"2\" width=\"100%\"><tr>")
                .arg(fromUtf8(table.title).toHtmlEscaped());
    const auto addCell = [&text](const QString& tag, bool isNumber, const std::string& cell) {
      text += QStringLiteral("<%1 align=\"%2\">%3</%1>")
                  .arg(tag, isNumber ? QStringLiteral("right") : QStringLiteral("left"),
                       fromUtf8(cell).toHtmlEscaped());
    };
    for (const compare::Column& column : table.columns)
      addCell(QStringLiteral("th"), column.isNumber, column.title);
    text += QStringLiteral("</tr>");
    for (const compare::Row& row : table.rows) {
      text += QStringLiteral("<tr>");
      const QString tag = row.isChosen ? QStringLiteral("th") : QStringLiteral("td");
      for (std::size_t i = 0; i < row.cells.size(); ++i)
        addCell(tag, table.columns[i].isNumber, row.cells[i].text);
      text += QStringLiteral("</tr>");
    }
    text += QStringLiteral("</table>");
  }
  text += QStringLiteral("<p>Nascor %1. %2</p>").arg(programVersion(), disclaimer().toHtmlEscaped());
  return text;
}

}  // namespace nascor::qt
