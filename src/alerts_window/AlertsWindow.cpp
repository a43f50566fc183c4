#include "alerts_window/AlertsWindow.h"

#include <QCheckBox>
#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "alerts_window/AlertEditor.h"
#include "alerts_window/AlertTexts.h"
#include "consolidator/ProcessQueries.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr char kAlertsFrameKey[] = "ALERTS_WINDOW_FRAME";
constexpr char kAlertsOpenKey[] = "DEFAULT_SHOW_ALERTS_WINDOW";
constexpr char kNotifiesKey[] = "ALERT_NOTIFICATIONS";
constexpr QSize kFirstAlertsSize(860, 560);
constexpr QSize kLeastAlertsSize(480, 320);

enum RuleColumn { kRuleText, kRuleState, kRuleLast, kRuleColumns };
enum OccurrenceColumn {
  kBeganColumn,
  kSubjectColumn,
  kLastedColumn,
  kFiguresColumn,
  kOfRuleColumn,
  kOccurrenceColumns
};

QPointer<AlertsWindow> sAlertsWindow;

QString CalendarText(TimeValue time) {
  const auto moment = QDateTime::fromSecsSinceEpoch(time.seconds);
  const bool isToday = moment.date() == QDate::currentDate();
  return isToday ? LocalTimeText(moment.time()) : LocalDateTimeText(moment);
}

void SetUp(QTableWidget& table, const char* name) {
  table.setAccessibleName(LocalizedString(name));
  table.setEditTriggers(QTableWidget::NoEditTriggers);
  table.setSelectionBehavior(QTableWidget::SelectRows);
  table.setSelectionMode(QTableWidget::SingleSelection);
  table.setTabKeyNavigation(false);
  table.setShowGrid(false);
  table.setWordWrap(false);
  table.setAlternatingRowColors(true);
  table.setTextElideMode(Qt::ElideRight);
  table.verticalHeader()->hide();
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 8);
  table.horizontalHeader()->setHighlightSections(false);
  table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table.horizontalHeader()->setStretchLastSection(true);
}

void SetCell(QTableWidget& table, int row, int column, const QString& text) {
  auto* item = table.item(row, column);
  if (item == nullptr) table.setItem(row, column, item = new QTableWidgetItem);
  if (item->text() == text) return;
  item->setText(text);
  item->setToolTip(text);
}

QLabel* Heading(const char* text) {
  auto* label = new QLabel(LocalizedString(text));
  auto bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

}  // namespace

AlertsWindow& AlertsWindow::Open(AlertCentre& centre, AlertsWindowCommands commands) {
  if (sAlertsWindow == nullptr) sAlertsWindow = new AlertsWindow(centre, std::move(commands));
  BringToFront(*sAlertsWindow);
  StoreInt(kAlertsOpenKey, 1);
  return *sAlertsWindow;
}

AlertsWindow* AlertsWindow::IfOpen() {
  return sAlertsWindow;
}

bool AlertsWindow::WasOpen() {
  return ReadSwitch(kAlertsOpenKey);
}

AlertsWindow::AlertsWindow(AlertCentre& centre, AlertsWindowCommands commands)
    : mCentre(centre), mCommands(std::move(commands)) {
  setWindowTitle(LocalizedString("alerts_title"));
  WatchWindowOrder(*this);
  BuildRules();
  BuildOccurrences();
  auto* halves = new QSplitter(Qt::Vertical);
  halves->setChildrenCollapsible(false);
  halves->addWidget(BuildRulesPart());
  halves->addWidget(BuildOccurrencesPart());
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(halves, 1);
  mNotes = new QLabel;
  mNotes->setWordWrap(true);
  mNotes->setTextFormat(Qt::PlainText);
  mNotes->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(mNotes);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, mAdd, &QPushButton::click);
  AddHelpKey(*this, HelpSection::kAlerts);
  setMinimumSize(kLeastAlertsSize);
  RestoreFrame(kAlertsFrameKey, kFirstAlertsSize);
  mCentre.AddListener(this);
  ShowRules();
  ShowOccurrences();
  ShowNotes();
}

AlertsWindow::~AlertsWindow() {
  mCentre.RemoveListener(this);
}

// ---- Building

void AlertsWindow::BuildRules() {
  mRules = new QTableWidget(0, kRuleColumns);
  SetUp(*mRules, "alerts_rules");
  mRules->setHorizontalHeaderLabels({LocalizedString("alerts_column_rule"),
                                     LocalizedString("alerts_column_state"),
                                     LocalizedString("alerts_column_last")});
  mRules->setColumnWidth(kRuleText, 370);
  mRules->setColumnWidth(kRuleState, 290);
  mRules->installEventFilter(this);
  connect(mRules, &QTableWidget::itemChanged, this, &AlertsWindow::TakeSwitch);
  connect(mRules, &QTableWidget::cellDoubleClicked, this, &AlertsWindow::ChangeRule);
  connect(mRules, &QTableWidget::itemSelectionChanged, this, &AlertsWindow::ShowWhatCanBeDone);
}

void AlertsWindow::BuildOccurrences() {
  mOccurrences = new QTableWidget(0, kOccurrenceColumns);
  SetUp(*mOccurrences, "alerts_occurrences");
  mOccurrences->setHorizontalHeaderLabels(
      {LocalizedString("alerts_column_began"), LocalizedString("alerts_column_process"),
       LocalizedString("alerts_column_lasted"), LocalizedString("alerts_column_figures"),
       LocalizedString("alerts_column_rule")});
  mOccurrences->setColumnWidth(kBeganColumn, 110);
  mOccurrences->setColumnWidth(kSubjectColumn, 190);
  mOccurrences->setColumnWidth(kLastedColumn, 170);
  mOccurrences->setColumnWidth(kFiguresColumn, 200);
  mOccurrences->installEventFilter(this);
  connect(mOccurrences, &QTableWidget::cellDoubleClicked, this, &AlertsWindow::ShowChosenProcess);
  connect(mOccurrences, &QTableWidget::itemSelectionChanged, this,
          &AlertsWindow::ShowWhatCanBeDone);
}

QWidget* AlertsWindow::BuildRulesPart() {
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 6);
  layout->addWidget(Heading("alerts_rules"));
  mNone = new QLabel(LocalizedString("alerts_none"));
  mNone->setWordWrap(true);
  layout->addWidget(mNone);
  layout->addWidget(mRules, 1);
  auto* row = new QHBoxLayout;
  const auto button = [&](const char* text, void (AlertsWindow::*run)()) {
    auto* made = new QPushButton(LocalizedString(text));
    connect(made, &QPushButton::clicked, this, run);
    row->addWidget(made);
    return made;
  };
  mAdd = button("alerts_add", &AlertsWindow::AddRule);
  mChange = button("alerts_change", &AlertsWindow::ChangeRule);
  mRemove = button("alerts_remove", &AlertsWindow::RemoveRule);
  row->addStretch(1);
  mNotifies = new QCheckBox(LocalizedString("alerts_notifies"));
  mNotifies->setChecked(ReadSwitch(kNotifiesKey));
  connect(mNotifies, &QCheckBox::toggled, this,
          [](bool isOn) { StoreInt(kNotifiesKey, isOn ? 1 : 0); });
  row->addWidget(mNotifies);
  layout->addLayout(row);
  return part;
}

QWidget* AlertsWindow::BuildOccurrencesPart() {
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 6, 0, 0);
  layout->addWidget(Heading("alerts_occurrences"));
  layout->addWidget(mOccurrences, 1);
  auto* row = new QHBoxLayout;
  mShowProcess = new QPushButton(LocalizedString("alerts_show_process"));
  connect(mShowProcess, &QPushButton::clicked, this, &AlertsWindow::ShowChosenProcess);
  row->addWidget(mShowProcess);
  mShowLog = new QPushButton(LocalizedString("alerts_show_log"));
  connect(mShowLog, &QPushButton::clicked, this, &AlertsWindow::ShowLog);
  row->addWidget(mShowLog);
  row->addStretch(1);
  layout->addLayout(row);
  return part;
}

void AlertsWindow::Remember() {
  RememberFrame(kAlertsFrameKey);
  StoreInt(kAlertsOpenKey, 1);
}

void AlertsWindow::closeEvent(QCloseEvent* event) {
  Remember();
  StoreInt(kAlertsOpenKey, 0);
  ControlledWindow::closeEvent(event);
}

bool AlertsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return ControlledWindow::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (watched == mRules && (isReturn || key == Qt::Key_Delete)) {
    isReturn ? ChangeRule() : RemoveRule();
    return true;
  }
  if (watched == mRules && key == Qt::Key_Space && mRules->currentRow() >= 0) {
    auto* item = mRules->item(mRules->currentRow(), kRuleText);
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    return true;
  }
  if (watched == mOccurrences && isReturn) {
    ShowChosenProcess();
    return true;
  }
  return ControlledWindow::eventFilter(watched, event);
}

// ---- Showing

void AlertsWindow::AlertsHaveTurned() {
  if (!isVisible() || isMinimized()) return;
  for (int row = 0; row < mRules->rowCount(); ++row) ShowRule(row);
  ShowNews();
  const auto& occurrences = mCentre.Occurrences();
  for (std::size_t i = 0; i < occurrences.size(); ++i)
    if (occurrences[i].ending == AlertOccurrence::Ending::kNotYet)
      ShowOccurrence(static_cast<int>(i));
  ShowNotes();
}

void AlertsWindow::AlertRulesHaveChanged() {
  ShowRules();
  ShowNews();
}

void AlertsWindow::ShowNews() {
  if (std::exchange(mHasNews, false)) ShowOccurrences();
}

void AlertsWindow::ShowRules() {
  mIsShowing = true;
  mRules->setRowCount(static_cast<int>(mCentre.Rules().size()));
  mIsShowing = false;
  for (int row = 0; row < mRules->rowCount(); ++row) ShowRule(row);
  mNone->setVisible(mCentre.Rules().empty());
  ShowWhatCanBeDone();
  ShowNotes();
}

void AlertsWindow::ShowRule(int row) {
  const auto& rules = mCentre.Rules();
  if (static_cast<std::size_t>(row) >= rules.size()) return;
  const auto& rule = rules[static_cast<std::size_t>(row)];
  const bool wasShowing = std::exchange(mIsShowing, true);
  SetCell(*mRules, row, kRuleText, PlainText(rule.setting.rule));
  SetCell(*mRules, row, kRuleState, AlertStateText(rule));
  SetCell(*mRules, row, kRuleLast,
          rule.lastBegan ? CalendarText(*rule.lastBegan) : LocalizedString("alerts_never"));
  mRules->item(row, kRuleText)->setCheckState(rule.setting.isOn ? Qt::Checked : Qt::Unchecked);
  const bool isFiring = rule.watch != nullptr && rule.watch->Firing() > 0;
  auto font = mRules->font();
  font.setBold(isFiring);
  mRules->item(row, kRuleState)->setFont(font);
  mIsShowing = wasShowing;
}

void AlertsWindow::ShowOccurrences() {
  const auto& occurrences = mCentre.Occurrences();
  const auto numberIn = [this](int row) {
    const auto* item = mOccurrences->item(row, kBeganColumn);
    return item != nullptr ? item->data(Qt::UserRole).toULongLong() : 0;
  };
  const auto selected = numberIn(mOccurrences->currentRow());
  mOccurrences->setRowCount(static_cast<int>(occurrences.size()));
  for (int row = 0; row < mOccurrences->rowCount(); ++row) ShowOccurrence(row);
  for (int row = 0; selected != 0 && row < mOccurrences->rowCount(); ++row)
    if (numberIn(row) == selected && row != mOccurrences->currentRow())
      mOccurrences->setCurrentCell(row, kBeganColumn);
  ShowWhatCanBeDone();
  ShowNotes();
}

void AlertsWindow::ShowOccurrence(int row) {
  const auto& occurrences = mCentre.Occurrences();
  if (static_cast<std::size_t>(row) >= occurrences.size()) return;
  const auto& occurrence = occurrences[static_cast<std::size_t>(row)];
  SetCell(*mOccurrences, row, kBeganColumn, CalendarText(occurrence.began));
  SetCell(*mOccurrences, row, kSubjectColumn, AlertSubjectText(occurrence));
  SetCell(*mOccurrences, row, kLastedColumn, AlertLastedText(occurrence));
  SetCell(*mOccurrences, row, kFiguresColumn, AlertFiguresText(occurrence.subject));
  SetCell(*mOccurrences, row, kOfRuleColumn, PlainText(occurrence.rule));
  mOccurrences->item(row, kBeganColumn)->setData(Qt::UserRole, qulonglong{occurrence.number});
}

void AlertsWindow::ShowNotes() {
  QStringList notes;
  if (!mSaid.isEmpty()) notes += mSaid;
  if (mCentre.CountLeftOut() > 0)
    notes += LocalizedString("alerts_left_out", static_cast<qint64>(mCentre.CountLeftOut()))
                 .arg(LocalNumber(static_cast<qint64>(kMostAlertRules)));
  if (const auto& problem = mCentre.LogProblem(); !problem.empty())
    notes += LocalizedString("alerts_log_problem").arg(QString::fromStdString(problem));
  if (const auto problem = mCommands.notificationProblem(); !problem.isEmpty())
    notes += LocalizedString("alerts_notification_problem").arg(problem);
  mNotes->setText(notes.join(QLatin1Char('\n')));
  mNotes->setVisible(!notes.isEmpty());
}

void AlertsWindow::ShowWhatCanBeDone() {
  const bool isRuleChosen = mRules->currentRow() >= 0 && !mRules->selectedItems().isEmpty();
  mAdd->setEnabled(mCentre.MayAdd());
  mChange->setEnabled(isRuleChosen);
  mRemove->setEnabled(isRuleChosen);
  const int row = mOccurrences->selectedItems().isEmpty() ? -1 : mOccurrences->currentRow();
  const auto& occurrences = mCentre.Occurrences();
  const bool isOfProcess =
      row >= 0 && static_cast<std::size_t>(row) < occurrences.size() &&
      occurrences[static_cast<std::size_t>(row)].subject.process.pid != kInvalidPID;
  mShowProcess->setEnabled(isOfProcess);
  mShowLog->setEnabled(!mCentre.LogPath().empty());
  mShowLog->setToolTip(QString::fromStdString(mCentre.LogPath()));
}

void AlertsWindow::Say(const QString& text) {
  mSaid = text;
  ShowNotes();
}

// ---- Doing

void AlertsWindow::AskForRule(const QString& first) {
  if (!mCentre.MayAdd()) return Say(LocalizedString("alerts_too_many"));
  auto* editor =
      new AlertEditor(LocalizedString("alerts_add_title"), {first.toStdString(), {}}, this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  connect(editor, &QDialog::accepted, this, [this, editor] {
    if (!mCentre.MayAdd()) return;
    mCentre.Add(editor->Setting());
    mRules->selectRow(mRules->rowCount() - 1);
  });
  editor->open();
}

void AlertsWindow::ChangeRule() {
  const int row = mRules->currentRow();
  if (row < 0) return;
  const auto& rule = mCentre.Rules()[static_cast<std::size_t>(row)];
  auto* editor = new AlertEditor(LocalizedString("alerts_change_title"), rule.setting, this);
  editor->setAttribute(Qt::WA_DeleteOnClose);
  connect(editor, &QDialog::accepted, this, [this, editor, id = rule.id] {
    const auto rules = mCentre.Rules();
    const auto place = std::ranges::find(rules, id, &AlertCentre::Rule::id) - rules.begin();
    if (static_cast<std::size_t>(place) < rules.size())
      mCentre.Change(static_cast<std::size_t>(place), editor->Setting());
  });
  editor->open();
}

void AlertsWindow::RemoveRule() {
  const int row = mRules->currentRow();
  if (row < 0 || mRules->selectedItems().isEmpty()) return;
  const auto id = mCentre.Rules()[static_cast<std::size_t>(row)].id;
  const auto text = PlainText(mCentre.Rules()[static_cast<std::size_t>(row)].setting.rule);
  auto* question =
      new QMessageBox(QMessageBox::Question, LocalizedString("alerts_title"),
                      LocalizedString("alerts_remove_question"), QMessageBox::Cancel, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);
  question->setInformativeText(text);
  auto* remove =
      question->addButton(LocalizedString("alerts_remove"), QMessageBox::DestructiveRole);
  question->setDefaultButton(QMessageBox::Cancel);
  connect(question, &QMessageBox::finished, this, [this, question, remove, id] {
    if (question->clickedButton() != remove) return;
    const auto rules = mCentre.Rules();
    const auto place = std::ranges::find(rules, id, &AlertCentre::Rule::id) - rules.begin();
    if (static_cast<std::size_t>(place) < rules.size())
      mCentre.Remove(static_cast<std::size_t>(place));
  });
  question->open();
}

void AlertsWindow::TakeSwitch(QTableWidgetItem* item) {
  if (mIsShowing || item->column() != kRuleText) return;
  const auto place = static_cast<std::size_t>(item->row());
  auto setting = mCentre.Rules()[place].setting;
  // Storing it would replace what cannot be read.
  if (setting.isDamaged) return ShowRule(item->row());
  setting.isOn = item->checkState() == Qt::Checked;
  mCentre.Change(place, setting);
}

void AlertsWindow::ShowChosenProcess() {
  const int row = mOccurrences->currentRow();
  const auto& occurrences = mCentre.Occurrences();
  if (row >= 0 && static_cast<std::size_t>(row) < occurrences.size())
    ShowProcessOf(occurrences[static_cast<std::size_t>(row)]);
}

void AlertsWindow::ShowProcessOf(const AlertOccurrence& occurrence) {
  const auto& process = occurrence.subject.process;
  if (process.pid == kInvalidPID) return;
  const auto text = AlertSubjectText(occurrence);
  if (GetPidsStartStamp(process.pid) != process.startStamp) {
    Say(LocalizedString("alerts_has_ended").arg(text));
  } else if (mCommands.showProcess(process.pid)) {
    Say({});
  } else {
    Say(LocalizedString("alerts_not_in_table").arg(text));
  }
}

void AlertsWindow::ShowLog() {
  TheMachine().processManager.ShowFile(mCentre.LogPath(), [window = QPointer<AlertsWindow>(this)] {
    if (window != nullptr)
      window->Say(LocalizedString("alerts_log_not_shown")
                      .arg(QString::fromStdString(window->mCentre.LogPath())));
  });
}

}  // namespace lurkwell
