#include "monitor_windows/LoggingWindowUI.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QTextDocument>
#include <QUiLoader>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "consolidator/ProcessQueries.h"
#include "monitor_windows/LoggingPreferences.h"
#include "monitor_windows/ScreenPlacement.h"
#include "platform/ApplicationQuitting.h"
#include "platform/Clock.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "preferences/PreferenceBatch.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/PropertyText.h"
#include "windows/WindowFrame.h"

namespace lurkwell {

QPoint LoggingWindowUI::sLastLoggingWindowOriginForCascading;
std::set<LoggingWindowUI*> LoggingWindowUI::sOpenWindows;

namespace {

constexpr QSize kSmallest(40, 40);
constexpr int kBesideColumns = 16;
constexpr int kCellMargin = 16;
constexpr qsizetype kMostNotes = 4;

Qt::Alignment AlignmentOf(LoggingColumn column) {
  return (column == kTimeStampColumn ? kAlignTexts : kAlignFigures) | Qt::AlignVCenter;
}

/// A line in the table's words at its widest, for the columns' first widths.
const char* WidestText(LoggingColumn column) {
  switch (column) {
    case kTimeStampColumn:
      return "MMM 28 08:48:58";
    case kActiveColumn:
    case kDeltaActiveColumn:
      return "8888.888888";
    default:
      return "- 8888.8 M";
  }
}

const char* TitleId(LoggingColumn column) {
  constexpr const char* kIds[kLoggingColumns] = {
      "logging_column_time",          "logging_column_active",      "logging_column_active_change",
      "logging_column_real",          "logging_column_real_change", "logging_column_virtual",
      "logging_column_virtual_change"};
  return kIds[column];
}

}  // namespace

// ---- Opening ------------------------------------------------------------------------------------

LoggingWindowUI* LoggingWindowUI::CreateLoggingWindowWithInterval(
    LogFiles& logFiles, std::int32_t interval, std::int32_t thePid, const Uuid* theUuid,
    const WindowRect* windowSize, std::int32_t somePrefIndex, const std::vector<QRect>& others) {
  auto window = std::make_unique<ControlledWindow>();
  auto* controller = new LoggingWindowUI(*window);
  controller->initWithPrefIndex(somePrefIndex);
  auto& state = controller->mStateInfo;
  state.pid = thePid;
  controller->fName = FollowedName(thePid);
  interval = ReadLoggingInterval(somePrefIndex, interval);
  state.millisecondsInterval = interval;
  if (!controller->loadInterface()) {
    DiagnoseVerbatim("Failed to load LoggingUI.nib");
    return nullptr;
  }
  controller->awakeFromNib();
  if (state.logToFile) controller->openLogFile(logFiles);
  controller->setTitle();
  controller->placeWindow(windowSize, others);
  WatchWindowOrder(*window);
  AddHelpKey(*window, HelpSection::kLogs);
  // A window that comes back must not take the keyboard from another program.
  const bool isActive = QApplication::applicationState() == Qt::ApplicationActive;
  window->setAttribute(Qt::WA_ShowWithoutActivating, !isActive);
  window->show();
  window->raise();
  if (isActive) window->activateWindow();
  controller->mPIC = new LoggingWindowInformationClient2(theUuid, interval, *controller);
  controller->mRememberedPlace = controller->frame();
  if (theUuid == nullptr) controller->rememberAsNew(controller->mPIC->Identifier());
  state.startStamp = GetPidsStartStamp(thePid);
  AddProcessInformationClient(controller->mPIC);
  window->willClose = [controller] { controller->windowWillClose(); };
  // It deletes itself when it is closed.
  static_cast<void>(window.release());
  return controller;
}

LoggingWindowUI::LoggingWindowUI(QWidget& window) : vqTableController(&window) {
  fWindow = &window;
  sOpenWindows.insert(this);
}

LoggingWindowUI::~LoggingWindowUI() {
  sOpenWindows.erase(this);
  // A window that is deleted without having been closed.
  delete std::exchange(mPIC, nullptr);
}

void LoggingWindowUI::initWithPrefIndex(std::int32_t prefsIndex) {
  mStateInfo.prefsIndex = prefsIndex;
  static_cast<LoggingSwitches&>(mStateInfo) = ReadLoggingSwitches(prefsIndex);
  mStateInfo.logToFile = ReadLogToFile(prefsIndex);
  for (int number = 0; number < kLoggingColumns; ++number) {
    const auto column = static_cast<LoggingColumn>(number);
    if (IsShown(mStateInfo, column)) fColumns.push_back(column);
  }
}

bool LoggingWindowUI::loadInterface() {
  QFile form(QStringLiteral(":/forms/LoggingUI.ui"));
  auto* contents = form.open(QIODevice::ReadOnly) ? QUiLoader().load(&form, fWindow) : nullptr;
  if (contents == nullptr) return false;
  fTable = contents->findChild<QTableView*>(QStringLiteral("logTable"));
  fNote = contents->findChild<QLabel*>(QStringLiteral("noteLabel"));
  fIdentity = contents->findChild<QLabel*>(QStringLiteral("identityLabel"));
  fShowFile = contents->findChild<QPushButton*>(QStringLiteral("showFileButton"));
  fSave = contents->findChild<QPushButton*>(QStringLiteral("saveButton"));
  if (!fTable || !fNote || !fIdentity || !fShowFile || !fSave) return false;
  fWindow->resize(contents->size());
  auto* layout = new QVBoxLayout(fWindow);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(contents);
  return true;
}

void LoggingWindowUI::awakeFromNib() {
  fWindow->setWindowIcon(NamedImage("logging"));
  fNote->hide();
  fIdentity->installEventFilter(this);
  fTable->setModel(this);
  fTable->setAccessibleName(LocalizedString("logging_table"));
  fTable->verticalHeader()->hide();
  fTable->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  fTable->verticalHeader()->setDefaultSectionSize(fTable->fontMetrics().height() + 4);
  // Rows can be selected, columns not.
  fTable->horizontalHeader()->setSectionsClickable(false);
  fTable->horizontalHeader()->setHighlightSections(false);
  fTable->horizontalHeader()->setStretchLastSection(true);
  setColumnWidths();
  mScrollView = fTable->verticalScrollBar();
  connect(mScrollView, &QScrollBar::valueChanged, this, &LoggingWindowUI::scrollBarWasMoved);
  connect(mScrollView, &QScrollBar::rangeChanged, this, [this](int, int most) {
    if (fFollowsNewest) mScrollView->setValue(most);
  });
  addAction("logging_copy", QKeySequence::Copy, &LoggingWindowUI::copySelection);
  addAction("logging_select_all", QKeySequence::SelectAll, &LoggingWindowUI::selectAll);
  addAction("logging_save_as", QKeySequence::Save, &LoggingWindowUI::saveAs);
  addAction("logging_show_file", {}, &LoggingWindowUI::showFile);
  fTable->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(fSave, &QPushButton::clicked, this, &LoggingWindowUI::saveAs);
  connect(fShowFile, &QPushButton::clicked, this, &LoggingWindowUI::showFile);
}

void LoggingWindowUI::addAction(const char* id, const QKeySequence& key,
                                void (LoggingWindowUI::*does)()) {
  auto* action = new QAction(LocalizedString(id), fTable);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, does);
  fTable->addAction(action);
}

int LoggingWindowUI::widthForColumn(LoggingColumn column) const {
  if (const auto remembered = ReadColumnWidth(mStateInfo.prefsIndex, column)) return *remembered;
  const auto title = LocalizedString(TitleId(column));
  const int text = fTable->fontMetrics().horizontalAdvance(QLatin1String(WidestText(column)));
  return std::max(text, fTable->horizontalHeader()->fontMetrics().horizontalAdvance(title)) +
         kCellMargin;
}

void LoggingWindowUI::setColumnWidths() {
  mStateInfo.desiredWidth = 0;
  for (std::size_t place = 0; place < fColumns.size(); ++place) {
    const int width = widthForColumn(fColumns[place]);
    fTable->setColumnWidth(static_cast<int>(place), width);
    mStateInfo.desiredWidth += width;
  }
}

QString LoggingWindowUI::shortTitle() const {
  return LocalizedString("logging_menu_title").arg(fName, QString::number(mStateInfo.pid));
}

void LoggingWindowUI::setTitle() {
  auto title = LocalizedString("logging_title").arg(fName, QString::number(mStateInfo.pid));
  if (mStateInfo.logFile != nullptr)
    title += QLatin1Char(' ') +
             LocalizedString("logging_title_file").arg(PlainText(mStateInfo.logFileName));
  fWindow->setWindowTitle(title);
  const auto process = DescribeFollowed(mStateInfo.pid);
  fIdentityText = LocalizedString("logging_identity").arg(process.ownerText, process.commandText);
  fIdentity->setToolTip(Qt::convertFromPlainText(fIdentityText));
  fIdentity->setAccessibleName(fIdentityText);
  fIdentity->setVisible(!process.owner.empty());
  showIdentity();
  const bool hasFile = mStateInfo.logFile != nullptr;
  fShowFile->setEnabled(hasFile);
  fShowFile->setToolTip(hasFile ? PlainText(mStateInfo.logFileName)
                                : LocalizedString("logging_show_file_none"));
}

void LoggingWindowUI::showIdentity() {
  const int room = fIdentity->width() - 2 * fIdentity->margin();
  fIdentity->setText(fIdentity->fontMetrics().elidedText(fIdentityText, Qt::ElideRight, room));
}

bool LoggingWindowUI::eventFilter(QObject* watched, QEvent* event) {
  if (watched == fIdentity && event->type() == QEvent::Resize) showIdentity();
  return vqTableController::eventFilter(watched, event);
}

void LoggingWindowUI::placeWindow(const WindowRect* windowSize, const std::vector<QRect>& others) {
  fWindow->setMinimumSize(kSmallest);
  if (windowSize != nullptr) {
    const QRect place = PlaceOnScreen(*windowSize, kSmallest);
    fWindow->resize(place.size());
    fWindow->move(place.topLeft());
    return;
  }
  const QSize size =
      FitOnScreens(QSize(mStateInfo.desiredWidth + kBesideColumns, fWindow->height()));
  fWindow->resize(size);
  const auto place = CascadeTopLeftFromPoint(sLastLoggingWindowOriginForCascading, size);
  const auto apart = PlaceApart({place.x(), place.y(), place.x() + size.width() + kBorders.width(),
                                 place.y() + size.height() + kBorders.height()},
                                others, Overlap::kNone);
  fWindow->move(apart.left, apart.top);
}

std::vector<QRect> LoggingWindowUI::Places() {
  std::vector<QRect> places;
  places.reserve(sOpenWindows.size());
  for (const auto* log : sOpenWindows) places.push_back(log->fWindow->frameGeometry());
  return places;
}

WindowRect LoggingWindowUI::frame() const {
  const QPoint place = fWindow->pos();
  return {place.x(), place.y(), place.x() + fWindow->width(), place.y() + fWindow->height()};
}

LoggingWindowUI* LoggingWindowUI::Find(const Uuid& uuid) {
  const auto found = std::ranges::find_if(sOpenWindows, [&](const auto* log) {
    return log->mPIC != nullptr && log->mPIC->Identifier() == uuid;
  });
  return found != sOpenWindows.end() ? *found : nullptr;
}

void LoggingWindowUI::RememberPlaces() {
  for (auto* log : sOpenWindows) {
    const auto place = log->frame();
    const bool isMoved = std::exchange(log->mRememberedPlace, place) != place;
    if (isMoved && log->mPIC != nullptr && !log->mStateInfo.pidWentAway)
      SetPersistentClientInfo(kLoggingWindowKind, nullptr, nullptr, &place,
                              &log->mPIC->Identifier());
  }
}

void LoggingWindowUI::rememberAsNew(const Uuid& uuid) const {
  char name[kRememberedTextSize];
  char kind[kRememberedTextSize];
  const auto read = [this](const char* property, char* text) {
    return GetPIDPropertyValue(mStateInfo.pid, property, text, kRememberedTextSize, nullptr);
  };
  if (!read("meta_name", name) || !read("meta_kind", kind)) return;
  const auto place = frame();
  const auto index = SetPersistentClientInfo(kLoggingWindowKind, name, kind, &place, &uuid);
  RememberProcess(kLoggingWindowKind, index, mStateInfo.pid);
}

// ---- Logging ------------------------------------------------------------------------------------

void LoggingWindowUI::processesHaveBeenUpdated(const LoggingFigures& figures) {
  auto row = LogFigures(mStateInfo, figures, mStateInfo.lastInfoSample);
  if (!row) return;
  if (mStateInfo.logFile != nullptr) appendToFile(row->line);
  appendRow(std::move(*row));
}

void LoggingWindowUI::appendRow(LoggedRow row) {
  const bool followed = fFollowsNewest;
  auto& rows = mStateInfo.logTableData;
  if (numberOfRowsInTableView() >= kMostRows) {
    // The oldest row may be the current one, whose successor the view would scroll to.
    fTable->setAutoScroll(false);
    beginRemoveRows({}, 0, 0);
    rows.pop_front();
    endRemoveRows();
    fTable->setAutoScroll(true);
    // A user who reads older rows goes on reading the same ones.
    if (!followed) mScrollView->setValue(mScrollView->value() - 1);
  }
  const int place = numberOfRowsInTableView();
  beginInsertRows({}, place, place);
  rows.push_back(std::move(row));
  endInsertRows();
  fFollowsNewest = followed;
  triggerReload();
}

void LoggingWindowUI::triggerReload() {
  if (fTable != nullptr && fFollowsNewest) fTable->scrollToBottom();
}

void LoggingWindowUI::scrollBarWasMoved(int value) {
  fFollowsNewest = value >= mScrollView->maximum();
}

void LoggingWindowUI::say(const QString& text) {
  if (fNote == nullptr) return;
  auto lines = fNote->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  lines.removeAll(text);
  lines.append(text);
  fNote->setText(
      lines.mid(std::max(qsizetype{0}, lines.size() - kMostNotes)).join(QLatin1Char('\n')));
  fNote->show();
}

// ---- The end ------------------------------------------------------------------------------------

void LoggingWindowUI::ProcessHasEnded(std::int32_t pid) {
  for (auto* log : sOpenWindows)
    if (log->logs(pid) && log->mPIC != nullptr &&
        log->mStateInfo.startStamp != GetPidsStartStamp(pid))
      log->processHasEnded();
}

void LoggingWindowUI::processHasEnded() {
  const PreferenceBatch batch;
  mStateInfo.pidWentAway = true;
  const auto place = frame();
  const auto index =
      SetPersistentClientInfo(kLoggingWindowKind, nullptr, nullptr, &place, &mPIC->Identifier());
  say(LocalizedString(index < 0 ? "logging_note_ended" : "logging_note_ended_remembered"));
  if (index < 0) return;
  mStateInfo.prefsIndex = index;
  std::vector<LoggingColumnWidth> widths;
  for (std::size_t column = 0; column < fColumns.size(); ++column)
    widths.push_back({fColumns[column], fTable->columnWidth(static_cast<int>(column))});
  SaveLoggingSettings(index, mStateInfo, mStateInfo.logToFile,
                      static_cast<std::int32_t>(mStateInfo.millisecondsInterval), widths);
}

void LoggingWindowUI::follow(LogFiles& logFiles, std::int32_t pid) {
  const auto before = std::exchange(mStateInfo.pid, pid);
  mStateInfo.startStamp = GetPidsStartStamp(pid);
  mStateInfo.pidWentAway = false;
  fName = FollowedName(pid);
  mStateInfo.lastInfoSample = {};
  // A client that is new hears nothing of what happened to the pid before it came.
  const auto uuid = mPIC->Identifier();
  const auto interval = static_cast<std::int32_t>(mStateInfo.millisecondsInterval);
  delete std::exchange(mPIC, new LoggingWindowInformationClient2(&uuid, interval, *this));
  AddProcessInformationClient(mPIC);
  fNote->clear();
  say(LocalizedString("logging_note_follows").arg(before).arg(pid));
  LoggedRow mark;
  if (!fColumns.empty())
    mark.cells[fColumns.front()] = LocalizedString("logging_row_of").arg(pid).toStdString();
  mark.line = "# pid " + std::to_string(pid);
  appendRow(std::move(mark));
  mStateInfo.logFile.reset();
  if (mStateInfo.logToFile) openLogFile(logFiles);
  setTitle();
}

void LoggingWindowUI::windowWillClose() {
  if (mPIC == nullptr) return;
  if (!mStateInfo.pidWentAway && !gApplicationQuitting)
    RemovePersistentClientInfo(kLoggingWindowKind, &mPIC->Identifier());
  mStateInfo.logFile.reset();
  delete std::exchange(mPIC, nullptr);
}

void LoggingWindowUI::clientIsGone(const LoggingWindowInformationClient2& client) {
  if (mPIC != &client) return;
  mPIC = nullptr;
  delete fWindow.data();
}

// ---- The table ----------------------------------------------------------------------------------

QString LoggingWindowUI::objectValueForTableColumn(LoggingColumn column, int row) const {
  return QString::fromUtf8(
      mStateInfo.logTableData[static_cast<std::size_t>(row)].cells[column].c_str());
}

RowComparison LoggingWindowUI::sortSelectorForColumn(std::string_view) const {
  return stringCompare;
}

int LoggingWindowUI::columnIndexOf(KeyId key) const {
  for (std::size_t place = 0; place < fColumns.size(); ++place)
    if (InternKey(LoggingColumnIdentifier(fColumns[place])) == key) return static_cast<int>(place);
  return -1;
}

int LoggingWindowUI::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : numberOfRowsInTableView();
}

int LoggingWindowUI::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(fColumns.size());
}

QVariant LoggingWindowUI::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const auto column = fColumns[static_cast<std::size_t>(index.column())];
  if (role == Qt::DisplayRole) return objectValueForTableColumn(column, index.row());
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(column));
  return {};
}

QVariant LoggingWindowUI::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || section < 0 || section >= columnCount())
    return vqTableController::headerData(section, orientation, role);
  const auto column = fColumns[static_cast<std::size_t>(section)];
  if (role == Qt::DisplayRole) return LocalizedString(TitleId(column));
  if (role == Qt::ToolTipRole)
    return LocalizedString((std::string(TitleId(column)) + "_tip").c_str());
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(AlignmentOf(column));
  return {};
}

QString LoggingWindowUI::selectionAsText() const {
  QString text;
  if (fTable == nullptr) return text;
  auto rows = fTable->selectionModel()->selectedRows();
  std::sort(rows.begin(), rows.end());
  for (const auto& row : rows) {
    QStringList cells;
    for (const auto column : fColumns)
      cells.append(objectValueForTableColumn(column, row.row()).trimmed());
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

void LoggingWindowUI::copySelection() {
  const auto text = selectionAsText();
  if (!text.isEmpty()) QGuiApplication::clipboard()->setText(text);
}

void LoggingWindowUI::selectAll() {
  fTable->selectAll();
}

}  // namespace lurkwell
