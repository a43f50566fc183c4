#include "machine_window/BusiestTable.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <algorithm>
#include <cmath>

#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyValues.h"
#include "resources/Resources.h"
#include "windows/GraphScale.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

enum Column { kName, kPid, kCPU, kMemory, kColumnCount };
constexpr int kPidRole = Qt::UserRole;
constexpr int kStartRole = Qt::UserRole + 1;
constexpr int kCellMargin = 14;

}  // namespace

BusiestTable::BusiestTable(QWidget* parent)
    : QTableWidget(static_cast<int>(BusiestHistory::kMostProcesses), kColumnCount, parent) {
  setHorizontalHeaderLabels({LocalizedString("machine_name"), LocalizedString("machine_pid"),
                             LocalizedString("machine_cpu"), LocalizedString("machine_memory")});
  setAccessibleName(LocalizedString("machine_busiest_now"));
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  auto& header = *horizontalHeader();
  header.setHighlightSections(false);
  header.setSectionsClickable(false);
  header.setSectionResizeMode(kName, QHeaderView::Stretch);
  const auto widen = [this](int column, const char* sample) {
    const int title = fontMetrics().horizontalAdvance(horizontalHeaderItem(column)->text());
    const int figure = fontMetrics().horizontalAdvance(QLatin1String(sample));
    setColumnWidth(column, std::max(title, figure) + kCellMargin);
  };
  widen(kPid, "8888888");
  widen(kCPU, "1600.0 %");
  widen(kMemory, "1023.9 M");
  for (int row = 0; row < rowCount(); ++row)
    for (int column = 0; column < kColumnCount; ++column) {
      auto* item = new QTableWidgetItem;
      item->setTextAlignment((column == kName ? kAlignTexts : kAlignFigures) | Qt::AlignVCenter);
      setItem(row, column, item);
    }
  for (int column = 0; column < kColumnCount; ++column)
    horizontalHeaderItem(column)->setTextAlignment((column == kName ? kAlignTexts : kAlignFigures) |
                                                   Qt::AlignVCenter);
  setMinimumHeight(header.sizeHint().height() +
                   rowCount() * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
  connect(this, &QTableWidget::cellClicked, this, &BusiestTable::Choose);
  // With one click on desktops that activate so: that is told already.
  connect(this, &QTableWidget::cellActivated, this, &BusiestTable::Choose);
}

void BusiestTable::Show(std::span<const BusyProcess> processes) {
  const auto* current = currentItem() != nullptr ? item(currentRow(), kName) : nullptr;
  const auto selected = current != nullptr ? current->data(kPidRole) : QVariant();
  const bool hasSelection = !selectedItems().isEmpty();
  for (int row = 0; row < rowCount(); ++row) {
    const bool isThere = static_cast<std::size_t>(row) < processes.size();
    const BusyProcess process = isThere ? processes[static_cast<std::size_t>(row)] : BusyProcess();
    const bool lives = isThere && GetPidsStartStamp(process.pid) == process.startStamp;
    const auto name = PlainText(process.name);
    const QString texts[] = {
        lives ? name : LocalizedString("machine_ended").arg(name), QString::number(process.pid),
        GraphFigureText(GraphUnit::kShare, static_cast<double>(process.share) / CPUShareDivisor()),
        GraphFigureText(GraphUnit::kBytes, static_cast<double>(process.memory))};
    for (int column = 0; column < kColumnCount; ++column) {
      auto& cell = *item(row, column);
      cell.setText(isThere ? texts[column] : QString());
      cell.setFlags(isThere ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
      const auto role = lives ? QPalette::Text : QPalette::PlaceholderText;
      cell.setForeground(palette().brush(role));
    }
    item(row, kName)->setData(kPidRole, isThere ? QVariant(process.pid) : QVariant());
    item(row, kName)->setData(kStartRole, quint64{process.startStamp});
    item(row, kName)->setToolTip(isThere ? texts[kName] : QString());
    if (hasSelection && isThere && selected == QVariant(process.pid)) selectRow(row);
  }
}

void BusiestTable::Choose(int row) {
  const auto* name = item(row, kName);
  if (name == nullptr || !name->data(kPidRole).isValid()) return;
  Q_EMIT processChosen(name->data(kPidRole).toInt(), name->data(kStartRole).toULongLong());
}

}  // namespace lurkwell
