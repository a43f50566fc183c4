#include "fleet_window/FleetWindow.h"

#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QComboBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "fleet_window/RecentFleets.h"
#include "fleet_window/RemoteShell.h"
#include "fleet_window/SignInDialog.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/CheckedButtons.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/QueryErrorWords.h"

namespace lurkwell {
namespace {

constexpr char kFrameKey[] = "FLEET_WINDOW_FRAME";
constexpr char kSecondsKey[] = "FLEET_WINDOW_SECONDS";
constexpr QSize kFirstSize(1180, 760);
constexpr QSize kLeastSize(560, 420);
constexpr int kPatienceInMilliseconds = 500;
constexpr int kNameCharacters = 30;
constexpr int kBarCharacters = 12;
constexpr int kSeenCharacters = 14;
constexpr int kFigureCharacters = 9;
constexpr int kMostStepsBack = 50;

QList<QPointer<FleetWindow>>& OpenOnes() {
  static QList<QPointer<FleetWindow>> windows;
  windows.removeIf([](const QPointer<FleetWindow>& window) { return window.isNull(); });
  return windows;
}

}  // namespace

FleetWindow& FleetWindow::Open(const QUrl& address, const FleetCredentials& credentials) {
  RememberFleet(address);
  for (const auto& window : OpenOnes()) {
    if (window->mSession.Address() != address) continue;
    BringToFront(*window);
    return *window;
  }
  auto* window = new FleetWindow(address);
  OpenOnes().append(window);
  window->mSession.SetCredentials(credentials);
  BringToFront(*window);
  window->Ask();
  return *window;
}

void FleetWindow::CloseAll() {
  for (const auto& window : OpenOnes()) {
    if (window->isVisible()) window->Remember();
    delete window;
  }
}

FleetWindow::FleetWindow(const QUrl& address) : mSession(address) {
  setWindowTitle(LocalizedString("fleet_title").arg(address.authority()));
  WatchWindowOrder(*this);
  AddHelpKey(*this, HelpSection::kFleet);
  mPatience.setSingleShot(true);
  mPatience.setInterval(kPatienceInMilliseconds);
  connect(&mPatience, &QTimer::timeout, this, &FleetWindow::Ask);
  BuildTable();
  BuildMenu();
  mHistory = new FleetHistoryPane;
  mHistory->SetSession(&mSession);
  auto* splitter = new QSplitter(Qt::Vertical);
  splitter->addWidget(mTable);
  splitter->addWidget(mHistory);
  splitter->setStretchFactor(0, 3);
  splitter->setStretchFactor(1, 1);
  splitter->setCollapsible(0, false);
  mStatus = new QLabel;
  mStatus->setTextFormat(Qt::PlainText);
  mStatus->setWordWrap(true);
  mStatus->setContentsMargins(8, 3, 8, 3);
  mStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(BuildTop());
  layout->addWidget(BuildError());
  layout->addWidget(splitter, 1);
  layout->addWidget(mStatus);
  BuildKeys();
  setMinimumSize(kLeastSize);
  RestoreFrame(kFrameKey, kFirstSize);
  connect(&mSession, &FleetSession::changed, this, &FleetWindow::Look);
  const int seconds = StoredInt(kSecondsKey).value_or(30);
  SetSeconds(std::ranges::find(kSecondsToChoose, seconds) != std::end(kSecondsToChoose) ? seconds
                                                                                        : 30);
  mModel.Clear(mView.level);
  ShowColumns();
  ShowWhatIsLookedAt();
  mTable->setFocus();
}

FleetWindow::~FleetWindow() {
  mHistory->SetSession(nullptr);
  mSession.disconnect(this);
  // The view looks at it while it goes.
  delete mTable;
}

// ---- What is looked at --------------------------------------------------------------------------

void FleetWindow::ShowKind(int number) {
  FleetView view = mView;
  if (number == kMachinesButton) {
    view.level = FleetLevel::kMachines;
    view.machine.clear();
  } else {
    view.kind = QString::fromLatin1(kFleetKinds[static_cast<std::size_t>(number - 1)]);
    view.level = view.machine.isEmpty() ? FleetLevel::kGroups : FleetLevel::kGroupsOfMachine;
  }
  view.group.clear();
  GoTo(view);
}

void FleetWindow::OpenRow(int row) {
  if (row < 0 || row >= mModel.rowCount()) return;
  const auto& name = mModel.RowAt(row).name;
  FleetView view = mView;
  if (RowsAreMachines(mView.level)) {
    view.level = FleetLevel::kGroupsOfMachine;
    view.machine = name;
    view.group.clear();
  } else {
    view.level = FleetLevel::kMachinesOfGroup;
    view.group = name;
    view.machine.clear();
  }
  GoTo(view);
}

void FleetWindow::GoTo(const FleetView& view) {
  if (view == mView) return ShowWhatIsLookedAt();
  mBefore.push_back(mView);
  if (mBefore.size() > kMostStepsBack) mBefore.erase(mBefore.begin());
  mView = view;
  // Not every figure is known everywhere.
  const auto columns = ColumnsOf(mView.level);
  if (std::ranges::find(columns, mView.sortedBy) == columns.end()) {
    mView.sortedBy = FleetFigure::kCpu;
    mView.isAscending = false;
  }
  // A filter was about other rows.
  const QSignalBlocker blocker(mFilter);
  mFilter->clear();
  Ask();
}

void FleetWindow::GoBack() {
  if (mBefore.empty()) return;
  mView = mBefore.back();
  mBefore.pop_back();
  const QSignalBlocker blocker(mFilter);
  mFilter->clear();
  Ask();
}

bool FleetWindow::Ask() {
  mPatience.stop();
  const auto read = ReadFleetFilter(mFilter->text(), mView.level);
  QString words;
  if (const auto* error = std::get_if<QueryError>(&read)) words = QueryErrorWords(*error);
  if (const auto* error = std::get_if<FleetFilterError>(&read)) words = error->text;
  mFilterWords->setText(words);
  mFilter->setAccessibleDescription(words);
  if (!words.isEmpty()) return false;
  const auto& filter = std::get<FleetFilter>(read);
  if (!filter.kind.isEmpty() && !RowsAreMachines(mView.level)) mView.kind = filter.kind;
  const auto& shown = mSession.View();
  const bool isOther = shown.level != mView.level || shown.kind != mView.kind ||
                       shown.machine != mView.machine || shown.group != mView.group;
  if (isOther) {
    mModel.Clear(mView.level);
    ShowColumns();
  }
  mSession.Show(mView, filter);
  if (isOther) mHistory->ShowRow({}, {});
  ShowWhatIsLookedAt();
  return true;
}

void FleetWindow::ShowWhatIsLookedAt() {
  const bool areMachines = RowsAreMachines(mView.level);
  const auto kind = std::ranges::find(kFleetKinds, mView.kind.toStdString());
  const int number =
      areMachines ? kMachinesButton : static_cast<int>(kind - kFleetKinds.begin()) + 1;
  if (auto* button = mKinds->button(number)) button->setChecked(true);
  MarkChecked(*mKinds);
  QString scope;
  if (mView.level == FleetLevel::kGroupsOfMachine)
    scope = LocalizedString("fleet_on").arg(OneLine(mView.machine, 60));
  if (mView.level == FleetLevel::kMachinesOfGroup)
    scope = LocalizedString("fleet_with").arg(OneLine(mView.group, 60));
  mScope->setText(scope);
  mScope->setVisible(!scope.isEmpty());
  mBack->setEnabled(!mBefore.empty());
  mOpenAction->setText(LocalizedString(areMachines ? "fleet_open_machine" : "fleet_open_group"));
}

void FleetWindow::SetSeconds(int seconds) {
  mSeconds->setCurrentIndex(mSeconds->findData(seconds));
  mSession.SetInterval(seconds * 1000);
}

// ---- Showing ------------------------------------------------------------------------------------

void FleetWindow::ShowColumns() {
  auto& header = mTable->header();
  const int character = std::max(fontMetrics().averageCharWidth(), 1);
  // Digits are wider than the average.
  const int widestFigure = mTable->fontMetrics().horizontalAdvance(QStringLiteral("1023.9 M/s")) +
                           TextCell::kWidthBesideText;
  for (int column = 0; column < mModel.columnCount(); ++column) {
    const auto figure = mModel.FigureOf(column);
    const bool isBar = figure == FleetFigure::kCpu && mView.level == FleetLevel::kMachines;
    mTable->setItemDelegateForColumn(
        column, isBar ? static_cast<QAbstractItemDelegate*>(&mCpuCell) : nullptr);
    const int characters = !figure                        ? kNameCharacters
                           : isBar                        ? kBarCharacters
                           : figure == FleetFigure::kSeen ? kSeenCharacters
                                                          : kFigureCharacters;
    header.resizeSection(column, std::max({characters * character, widestFigure,
                                           header.widthForTitle(mModel.TitleOf(column)) + 6}));
  }
  // Names have what is left.
  int others = 0;
  for (int column = 1; column < mModel.columnCount(); ++column)
    others += header.sectionSize(column);
  header.resizeSection(FleetModel::kNameColumn,
                       std::clamp(mTable->viewport()->width() - others, kNameCharacters * character,
                                  2 * kNameCharacters * character));
  int column = mModel.ColumnOf(mView.sortedBy);
  if (column < 0) column = FleetModel::kNameColumn;
  const auto order = mView.isAscending ? Qt::AscendingOrder : Qt::DescendingOrder;
  mModel.Sort(column, order);
  header.setSortIndicatorShown(true);
  header.setSortIndicator(column, order);
}

void FleetWindow::SortBy(int column) {
  const auto figure = mModel.FigureOf(column);
  const bool isSame = column == mModel.SortColumn();
  // Figures begin with the largest.
  auto order = figure ? Qt::DescendingOrder : Qt::AscendingOrder;
  if (isSame)
    order = mModel.SortOrder() == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
  mTable->header().setSortIndicator(column, order);
  mModel.Sort(column, order);
  // By names no server chooses; those that are there change places.
  if (!figure) return ShowStatus();
  mView.sortedBy = *figure;
  const bool isSpan = RowOf(*figure).unit == FleetUnit::kMoment;
  mView.isAscending = (order == Qt::AscendingOrder) != isSpan;
  Ask();
}

void FleetWindow::Look() {
  const auto& table = mSession.Table();
  const bool isCurrent = mSession.IsCurrent();
  if (isCurrent && !mSession.IsAsking()) {
    const auto current = mTable->currentIndex();
    mModel.SetTable(*table);
    // Rows change places beneath a view that looks at one of them.
    if (current.isValid() && !mTable->currentIndex().isValid()) RowIsCurrent();
    if (!mTable->currentIndex().isValid() && mModel.rowCount() > 0) mTable->SelectAlone(0);
    mHistory->TableHasCome();
  }
  mModel.SetOld(!isCurrent);
  ShowError();
  ShowStatus();
}

void FleetWindow::ShowError() {
  const auto& error = mSession.Error();
  const bool hasOld = error && mModel.rowCount() > 0 && mSession.Table();
  auto words = error ? error->Text() : QString();
  if (hasOld) {
    const auto time = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(mSession.Table()->time));
    words +=
        QLatin1Char(' ') + LocalizedString("fleet_old_figures").arg(LocalTimeText(time.time()));
  }
  mErrorWords->setText(words);
  mErrorWords->setAccessibleName(words);
  mSignIn->setVisible(error && error->kind == FleetError::Kind::kCredentials);
  mErrorFrame->setVisible(error.has_value());
}

void FleetWindow::ShowStatus() {
  const auto& table = mSession.Table();
  QStringList parts;
  const bool isOfView = table && table->view.level == mModel.Level() && mModel.rowCount() > 0;
  if (isOfView) {
    const bool areMachines = RowsAreMachines(mModel.Level());
    parts.append(LocalizedString(areMachines ? "fleet_count_machines" : "fleet_count_groups",
                                 qint64{table->all}));
    if (table->down > 0) parts.append(LocalizedString("fleet_count_down", qint64{table->down}));
    if (table->all > static_cast<std::int64_t>(table->rows.size()))
      parts.append(
          LocalizedString(table->view.isAscending ? "fleet_shown_least" : "fleet_shown_most",
                          static_cast<qint64>(table->rows.size()))
              .arg(LocalizedString(RowOf(table->view.sortedBy).title)));
    const auto time = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(table->time));
    parts.append(LocalizedString("fleet_as_of").arg(LocalTimeText(time.time())));
    if (table->leftOut > 0) parts.append(LocalizedString("fleet_left_out", qint64{table->leftOut}));
    for (const auto& warning : table->warnings) parts.append(warning);
  }
  if (mSession.IsAsking()) parts.append(LocalizedString("fleet_asking"));
  mStatus->setText(parts.join(QStringLiteral("  ·  ")));
  const char* empty = mSession.IsAsking()          ? "fleet_asking"
                      : mSession.Error()           ? "fleet_nothing_known"
                      : !mFilter->text().isEmpty() ? "fleet_nothing_fulfils"
                                                   : "fleet_nothing_there";
  mTable->setEmptyText(LocalizedString(empty));
}

QString FleetWindow::StatusText() const {
  return mStatus->text();
}
QString FleetWindow::ErrorText() const {
  return mErrorFrame->isHidden() ? QString() : mErrorWords->text();
}
QString FleetWindow::FilterText() const {
  return mFilterWords->text();
}

void FleetWindow::RowIsCurrent() {
  const auto current = mTable->currentIndex();
  if (!current.isValid() || current.row() >= mModel.rowCount()) return mHistory->ShowRow({}, {});
  const auto& name = mModel.RowAt(current.row()).name;
  auto title = OneLine(name, 60);
  if (!mScope->text().isEmpty()) title += QLatin1Char(' ') + mScope->text();
  mHistory->ShowRow(name, title);
  const bool isMachine = RowsAreMachines(mModel.Level());
  mShellAction->setEnabled(isMachine || !mView.machine.isEmpty());
}

// ---- What is done -------------------------------------------------------------------------------

void FleetWindow::CopySelection() const {
  auto rows = mTable->selectionModel()->selectedRows();
  std::ranges::sort(rows, {}, &QModelIndex::row);
  QString text;
  for (const auto& row : rows) {
    for (int column = 0; column < mModel.columnCount(); ++column)
      text += (column > 0 ? QStringLiteral("\t") : QString()) +
              mModel.index(row.row(), column).data(Qt::DisplayRole).toString();
    text += QLatin1Char('\n');
  }
  if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

void FleetWindow::OpenShell() {
  const auto current = mTable->currentIndex();
  const bool isMachine = RowsAreMachines(mModel.Level());
  if (isMachine && !current.isValid()) return;
  const auto machine = isMachine ? mModel.RowAt(current.row()).name : mView.machine;
  if (machine.isEmpty()) return;
  if (const auto words = OpenRemoteShell(machine); !words.isEmpty()) mStatus->setText(words);
}

void FleetWindow::SignIn() {
  auto* dialog = new SignInDialog(mSession.Address(), this);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    mSession.SetCredentials(dialog->Credentials());
    Ask();
  });
  dialog->open();
}

// ---- The window ---------------------------------------------------------------------------------

void FleetWindow::Remember() {
  RememberFrame(kFrameKey);
}

void FleetWindow::closeEvent(QCloseEvent* event) {
  Remember();
  ControlledWindow::closeEvent(event);
}

void FleetWindow::changeEvent(QEvent* event) {
  ControlledWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && mKinds != nullptr) MarkChecked(*mKinds);
  if (event->type() == QEvent::FontChange && mTable != nullptr && mKinds != nullptr) ShowColumns();
}

}  // namespace lurkwell
