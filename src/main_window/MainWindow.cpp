#include "main_window/MainWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QTextDocumentFragment>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "main_window/AskForPid.h"
#include "main_window/HelpWindow.h"
#include "main_window/MainToolbar.h"
#include "main_window/OneProcess.h"
#include "main_window/ProcessAddress.h"
#include "main_window/ToolbarCustomiseDialog.h"
#include "platform/Machine.h"
#include "platform/PreferenceDomain.h"
#include "platform/ProcessManager.h"
#include "preferences/PreferenceBatch.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/LinkLabel.h"
#include "windows/PropertyText.h"
#include "windows/UpdatedLabel.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr char kFrameKey[] = "MAIN_WINDOW_FRAME";
constexpr QSize kFirstSize(860, 560);
constexpr int kMessageMilliseconds = 15'000;

}  // namespace

MainWindow::MainWindow(ApplicationCommands& commands)
    : mCommands(commands), mController(std::make_unique<vqMainTableController>()) {
  setWindowTitle(LocalizedString("main_window_title"));
  setWindowIcon(NamedImage("lurkwell"));
  BuildContents();
  mController->awakeFromNib(*this, *mTable);
  mMenus = std::make_unique<MainMenus>(
      *this, *mController, CommandScope{mController->processCommands(), *this, commands});
  BuildSwitchers();
  ShowArrangement();
  connect(mController.get(), &vqMainTableController::arrangementChanged, this,
          &MainWindow::ShowArrangement);
  mTable->setContextMenu(&mMenus->ContextMenu());
  auto* header = mTable->horizontalHeader();
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint& point) {
    mMenus->HeaderMenu(header->logicalIndexAt(point)).popup(header->mapToGlobal(point));
  });
  connect(mTable, &StripedTableView::doubleAction, this,
          [this] { mController->processCommands().doubleClickAction(); });
  connect(mController.get(), &vqMainTableController::contentsChanged, this,
          &MainWindow::UpdateStatus);
  connect(mController.get(), &vqMainTableController::updated, this, &MainWindow::LookAtHelper);
  connect(mController.get(), &vqMainTableController::updated, this, &MainWindow::LookAtRecording);
  connect(mController.get(), &vqMainTableController::updated, this, &MainWindow::UpdateStatus);
  connect(mController.get(), &vqMainTableController::updated, this, [this] {
    const auto complaint = TheMachine().preferenceDomain.TakeComplaint();
    if (!complaint.empty())
      Report(LocalizedString("main_window_preferences").arg(PlainText(complaint)));
  });
  connect(mController.get(), &vqMainTableController::updated, this, &MainWindow::ShowAwaitedPid);
  connect(mController.get(), &vqMainTableController::reported, this, &MainWindow::Report);
  TheMachine().processManager.WhenRevealFails([this](const std::string& file) {
    Report(LocalizedString("main_window_not_revealed").arg(PlainText(file)));
  });
  RestoreFrame();
  mController->fillWidth(width());
  WatchWindowOrder(*this);
  SetHelp([this](HelpSection section) { ShowHelpSection(QLatin1String(AnchorOf(section))); });
}

MainWindow::~MainWindow() {
  SetHelp(nullptr);
  TheMachine().processManager.WhenRevealFails({});
  // It arranges the controller's toolbar.
  delete mCustomising;
  // The controller's last words go to the preferences, by way of the table.
  mMenus.reset();
  mController.reset();
}

void MainWindow::BuildContents() {
  auto* contents = new QWidget(this);
  auto* layout = new QVBoxLayout(contents);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  mFilterBar =
      new FilterBar([this](Query query) { mController->setFilter(std::move(query)); }, contents);
  mTable = new StripedTableView(contents);
  mTable->setAccessibleName(LocalizedString("main_window_title"));
  layout->addWidget(mHintBar = new HintBar(contents));
  layout->addWidget(mFilterBar);
  layout->addWidget(mTable);
  setCentralWidget(contents);
  mCounts = new UpdatedLabel(statusBar());
  statusBar()->addWidget(mCounts, 1);
  // Where the texts of the table's first column begin. A long text is no reason for a wider window.
  mCounts->setContentsMargins(TextCell::kWidthBesideText / 2, 0, 0, 0);
  mCounts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  // A message takes the place of the counts alone.
  mHelper = new LinkLabel(statusBar());
  statusBar()->addPermanentWidget(mHelper);
  mRecording = new UpdatedLabel(statusBar());
  statusBar()->addPermanentWidget(mRecording);
  connect(mHelper, &QLabel::linkActivated, this, &MainWindow::AskAboutHelper);
  for (auto* widget :
       {static_cast<QWidget*>(&mFilterBar->field()), static_cast<QWidget*>(mTable)}) {
    auto* escape = new QShortcut(Qt::Key_Escape, widget);
    escape->setContext(Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, mFilterBar, &FilterBar::end);
  }
  connect(mFilterBar, &FilterBar::left, mTable, [this] { mTable->setFocus(); });
  mTable->setFocus();
}

// ---- Commands -----------------------------------------------------------------------------------

namespace {

void Copy(const QString& text) {
  // Processes may have ended in sight; what was copied before is worth more than nothing.
  if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

}  // namespace

void MainWindow::copySelection() {
  Copy(mController->selectionAsText());
}

void MainWindow::copyAsCsv() {
  Copy(mController->selectionAs(ListingForm::kCsv));
}

void MainWindow::copyAsJson() {
  Copy(mController->selectionAs(ListingForm::kJson));
}

void MainWindow::showFilter() {
  mFilterBar->begin();
}

void MainWindow::selectAll() {
  mTable->selectAll();
}

void MainWindow::updateNow() {
  mController->updateNow();
}

void MainWindow::changeSortColumn(int places, int points) {
  mController->changeSortColumn(places, points);
}

void MainWindow::showRememberedWindows() {
  if (auto* windows = mController->processCommands().GetMonitorWindows())
    windows->ShowRememberedWindows(this);
}

void MainWindow::closeFollowingWindows() {
  const PreferenceBatch batch;
  for (const auto& window : mController->processCommands().OpenWindows()) window.close();
}

void MainWindow::showHelp() {
  ShowHelpSection({});
}

void MainWindow::ShowHelpSection(const QString& section) {
  const auto page = HelpPage();
  if (!ShowHelp(page, section, *this))
    Report(LocalizedString("main_window_help_missing").arg(page));
}

void MainWindow::toggleToolbar() {
  auto& toolbar = *mController->toolbar();
  toolbar.SetShown(toolbar.isHidden());
}

// ---- The toolbar --------------------------------------------------------------------------------

void MainWindow::customiseToolbar() {
  auto& toolbar = *mController->toolbar();
  toolbar.SetShown(true);
  if (mCustomising == nullptr) {
    mCustomising = new ToolbarCustomiseDialog(toolbar, this);
    // Below the toolbar, which items are to be dropped on.
    const auto below = toolbar.mapToGlobal(QPoint(toolbar.width() / 2, toolbar.height()));
    const int lowest =
        screen()->availableGeometry().bottom() - mCustomising->height() - kBorders.height();
    mCustomising->move(below.x() - mCustomising->width() / 2, std::min(below.y(), lowest));
  }
  BringToFront(*mCustomising);
}

void MainWindow::FillProcessMenu(QMenu& menu, ProcessIdentity process,
                                 const std::function<void(const QString&)>& report) {
  FillMenuOfOne(menu, process, {mController->processCommands(), *this, mCommands}, report);
}

QMenu* MainWindow::createPopupMenu() {
  return mMenus->MakeToolbarMenu(this);
}

// ---- What is said -------------------------------------------------------------------------------

void MainWindow::LookAtHelper() {
  const auto& status = GetDaemonStatus();
  if (status.rights == mShownRights) return;
  mShownRights = status.rights;
  const char* text = status.rights == DaemonRights::kNone  ? "main_window_helper_absent"
                     : status.rights == DaemonRights::kOwn ? "main_window_helper_unprivileged"
                                                           : "";
  mHelperRemark = *text != 0 ? LocalizedString(text) : QString();
  mHelper->Show(mHelperRemark);
  mHelper->setToolTip(QTextDocumentFragment::fromHtml(mHelperRemark).toPlainText());
}

void MainWindow::FitHelperRemark() {
  const int needed = fontMetrics().horizontalAdvance(mCounts->text() + mHelper->toolTip()) +
                     2 * TextCell::kWidthBesideText;
  const auto link = mHelperRemark.indexOf(QLatin1String("<a "));
  // The two share what the others leave, however it is divided.
  const bool fits = link < 0 || needed <= mCounts->width() + mHelper->width();
  mHelper->Show(fits ? mHelperRemark : mHelperRemark.mid(link));
}

void MainWindow::LookAtRecording() {
  const auto text = mCommands.recordingStatus();
  mRecording->Show(text);
  mRecording->setVisible(!text.isEmpty());
}

void MainWindow::Report(const QString& text) {
  if (text.isEmpty()) return;
  statusBar()->showMessage(text, kMessageMilliseconds);
  // What does not fit can be read all the same.
  statusBar()->setToolTip(text);
}

void MainWindow::AskAboutHelper() {
  const auto& status = GetDaemonStatus();
  const auto textOf = [](const char* key) { return LocalizedString(key).toStdString(); };
  const auto reason = status.reason.empty() ? std::string() : status.reason + ".\n\n";
  AlertText text;
  text.title = textOf("main_window_rights_title");
  text.message = reason + textOf(status.mayAsk ? "main_window_rights_may_ask"
                                               : "main_window_rights_may_not_ask");
  if (status.mayAsk) text.defaultButton = textOf("main_window_rights_ask");
  text.otherButton = textOf("main_window_rights_close");
  mAboutHelper = TheMachine().alerts.Ask(text, [](AlertAnswer answer) {
    if (answer == AlertAnswer::kDefault) AskForDaemonRights();
  });
}

void MainWindow::findByPid() {
  const auto pid = AskForPid(
      this, [this](std::int32_t asked) { return mController->rows().Find(asked) != nullptr; });
  if (pid != kInvalidPID) ShowPid(pid);
}

void MainWindow::ShowPid(std::int32_t pid) {
  mFilterBar->end();
  // It may have ended while it was being asked for.
  const auto* row = mController->rows().Find(pid);
  if (row != nullptr && row->shownIndex < 0) mController->setScope(TableScope::kAll);
  if (!VQTarvMainWindowInfoSynch::SelectPID(pid))
    Report(LocalizedString("main_window_by_id_not_found").arg(pid));
}

void MainWindow::ShowAddress(const QString& address) {
  constexpr int kMostShown = 80;
  const auto pid = PidOfAddress(address.toStdString());
  if (!pid)
    return Report(LocalizedString("main_window_no_address")
                      .arg(PlainText(address.left(kMostShown).toStdString())));
  mAwaitedPid = *pid;
  if (mController->rowCount() > 0) ShowAwaitedPid();
}

void MainWindow::ShowAwaitedPid() {
  const auto pid = std::exchange(mAwaitedPid, kInvalidPID);
  if (pid != kInvalidPID) ShowPid(pid);
}

/// Which processes the scope and the filter leave: "mine, filter"; empty for all.
QString MainWindow::WhatIsShown() const {
  static constexpr const char* kScopes[kScopeCount] = {
      nullptr,     "scope_mine", "scope_others", "scope_applications", "scope_without_kernel",
      "scope_busy"};
  QStringList words;
  if (const char* text = kScopes[static_cast<std::size_t>(mController->scope())]; text != nullptr)
    words.append(LocalizedString(text));
  if (mController->isFiltered()) words.append(LocalizedString("scope_filter"));
  return words.join(QLatin1String(", "));
}

/// Ends where the counts begin; empty for a table that goes on by itself.
QString MainWindow::HowItIsHeld() const {
  QString text;
  if (mController->isPaused())
    text += LocalizedString("main_window_status_paused")
                .arg(LocalNumber(static_cast<qint64>(mController->rows().CountEnded())),
                     LocalNumber(static_cast<qint64>(mController->rows().CountWaiting()))) +
            QLatin1Char(' ');
  if (mController->followsSelection())
    text += LocalizedString("main_window_status_follows") + QLatin1Char(' ');
  return text;
}

void MainWindow::UpdateStatus() {
  const auto selected = static_cast<qint64>(mController->selectedPids().size());
  const auto processes = static_cast<qint64>(mController->pidEntries().size());
  const auto matches = static_cast<qint64>(mController->countOfMatches());
  const auto what = WhatIsShown();
  auto text = HowItIsHeld();
  if (what.isEmpty())
    text += LocalizedString("main_window_status_counts", processes)
                .arg(LocalNumber(matches), LocalNumber(selected));
  else
    text += LocalizedString("main_window_status_some", processes)
                .arg(LocalNumber(matches), what, LocalNumber(selected));
  if (selected > 0) {
    const auto totals = mController->selectionTotals();
    text += LocalizedString("main_window_status_totals")
                .arg(LocalNumber(NumberOf(totals.share) * 100.0, 'f', 1),
                     DisplayText(kPropertyTypeMemory, totals.memory, 0, 0));
  }
  mCounts->Show(text);
  FitHelperRemark();
  const auto notAllowed = mController->filterGaps().notAllowed;
  mFilterBar->setRemark(notAllowed > 0 ? LocalizedString("filter_not_allowed").arg(notAllowed)
                                       : QString());
  mTable->setEmptyText(processes > 0 && mController->rowCount() == 0 ? WhyNothingIsShown()
                                                                     : QString());
}

QString MainWindow::WhyNothingIsShown() const {
  const auto gaps = mController->filterGaps();
  if (!mController->isFiltered())
    return LocalizedString("main_window_scope_hides_all").arg(WhatIsShown());
  if (gaps.notYetKnown > 0)
    return LocalizedString("filter_looks", static_cast<qint64>(gaps.notYetKnown));
  if (gaps.notAllowed > 0)
    return LocalizedString("filter_hides_all_not_allowed").arg(gaps.notAllowed);
  return LocalizedString("main_window_filter_hides_all");
}

// ---- Life ---------------------------------------------------------------------------------------

void MainWindow::RestoreFrame() {
  const auto [frame, isMaximised, isPlaced] = ReadWindowFrame(kFrameKey);
  mWantedSize = frame.isValid() ? frame.size() : kFirstSize;
  if (!frame.isValid()) return resize(FitOnScreens(kFirstSize));
  mNormalFrame = FitOnScreens(frame);
  resize(mNormalFrame.size());
  if (isMaximised) setWindowState(Qt::WindowMaximized);
  if (isPlaced) move(mNormalFrame.topLeft());
}

void MainWindow::SaveFrame() {
  const bool fills = isMaximized() || isFullScreen();
  // A maximised window comes back maximised, and at its former place when it is made smaller.
  if (!fills) mNormalFrame = {pos(), size()};
  WriteWindowFrame(kFrameKey, mNormalFrame, fills);
}

bool MainWindow::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  const bool isPlaced = event->type() == QEvent::Move || event->type() == QEvent::Resize;
  if (isPlaced && isVisible() && !isMaximized() && !isFullScreen()) mNormalFrame = {pos(), size()};
  if (event->type() == QEvent::Show) mController->windowDidUpdate();
  // The system tells its own window, and not this one, what of it can be seen.
  if (event->type() == QEvent::Show && windowHandle() != nullptr)
    windowHandle()->installEventFilter(this);
  if (event->type() == QEvent::WindowStateChange) LookWhetherSeen();
  if (event->type() == QEvent::WindowActivate) {
    mController->windowDidBecomeKey();
    mMenus->ValidateAll();
  }
  return handled;
}

bool MainWindow::eventFilter(QObject* object, QEvent* event) {
  if (object == windowHandle() && event->type() == QEvent::Expose) LookWhetherSeen();
  return QMainWindow::eventFilter(object, event);
}

void MainWindow::LookWhetherSeen() {
  mController->windowIsSeen(!isMinimized() && windowHandle() != nullptr &&
                            windowHandle()->isExposed());
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  // The first one only tells of a window that was not shown yet.
  if (event->oldSize().isValid())
    mController->followWidth(event->oldSize().width(), event->size().width());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  SaveFrame();
  event->accept();
  // Without its toolbar it has nothing to do.
  if (mCustomising != nullptr) mCustomising->close();
  // On this desktop nothing but windows leads back to the program.
  if (mCommands.isLastWindow(*this)) return mCommands.doQuit();
  mController->windowWillClose();
}

void MainWindow::ChooseProcess(std::int32_t pid, const QPoint& place, bool wantsMenu) {
  auto* table = mTable;
  if (gNSMainWindow == nullptr || table == nullptr) return;
  if (StoredInt(kShowProcessListKey).value_or(0) == 0) return;
  if (!VQTarvMainWindowInfoSynch::SelectPID(pid)) return;
  table->showTheSpecialContextMenu(table->viewport()->mapFromGlobal(place), wantsMenu, false,
                                   false);
}

}  // namespace lurkwell
