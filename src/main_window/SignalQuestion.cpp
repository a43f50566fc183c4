#include "main_window/SignalQuestion.h"

#include <QHeaderView>
#include <QTableWidget>
#include <csignal>
#include <vector>

#include "main_window/ActionTexts.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr int kRowsInSight = 9;

std::vector<std::int32_t> AllSignals() {
  std::vector<std::int32_t> signals;
  // The numbers between the two kinds are the C library's own.
  for (std::int32_t signal = 1; signal <= SIGSYS; ++signal) signals.push_back(signal);
  for (std::int32_t signal = SIGRTMIN; signal <= SIGRTMAX; ++signal) signals.push_back(signal);
  return signals;
}

}  // namespace

SignalQuestion::SignalQuestion(const ActionPlan& plan, QWidget* parent)
    : ActionQuestion(plan, parent) {
  const auto signals = AllSignals();
  mList = new QTableWidget(static_cast<int>(signals.size()), 3, this);
  mList->setObjectName(QStringLiteral("signal_list"));
  mList->setAccessibleName(LocalizedString("signal_list"));
  mList->setHorizontalHeaderLabels({LocalizedString("signal_column_name"),
                                    LocalizedString("signal_column_number"),
                                    LocalizedString("signal_column_effect")});
  mList->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  mList->verticalHeader()->hide();
  mList->setEditTriggers(QAbstractItemView::NoEditTriggers);
  mList->setSelectionBehavior(QAbstractItemView::SelectRows);
  mList->setSelectionMode(QAbstractItemView::SingleSelection);
  mList->setTabKeyNavigation(false);
  mList->setWordWrap(false);
  mList->setShowGrid(false);
  for (int row = 0; row < mList->rowCount(); ++row) {
    const auto signal = signals[static_cast<std::size_t>(row)];
    auto* name = new QTableWidgetItem(SignalName(signal));
    name->setData(Qt::UserRole, signal);
    mList->setItem(row, 0, name);
    mList->setItem(row, 1, new QTableWidgetItem(QString::number(signal)));
    auto* effect = new QTableWidgetItem(SignalText(signal));
    effect->setToolTip(effect->text());
    mList->setItem(row, 2, effect);
    if (signal == SIGTERM) mList->setCurrentCell(row, 0);
  }
  mList->resizeColumnToContents(0);
  mList->resizeColumnToContents(1);
  mList->resizeRowsToContents();
  mList->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  mList->setMinimumHeight(mList->horizontalHeader()->sizeHint().height() +
                          kRowsInSight * mList->rowHeight(0) + 2 * mList->frameWidth());
  AddChoices(mList);
}

std::int32_t SignalQuestion::Signal() const {
  return mList->item(mList->currentRow(), 0)->data(Qt::UserRole).toInt();
}

}  // namespace lurkwell
