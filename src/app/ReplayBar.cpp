#include "app/ReplayBar.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QStatusBar>
#include <algorithm>
#include <variant>

#include "consolidator/PI_Consolidator.h"
#include "recording/RecordingTime.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr int kSpeeds[] = {1, 10, 60};
/// More pictures a second than that are not seen.
constexpr int kShortestPause = 20;
constexpr int kMessageTime = 15'000;

}  // namespace

ReplayBar::ReplayBar(RecordingPlayer& player, ReplayRunLoop& runLoop, MainWindow& window)
    : QToolBar(&window), mPlayer(player), mRunLoop(runLoop), mWindow(window) {
  setWindowTitle(LocalizedString("replay_bar"));
  setObjectName(QStringLiteral("replay"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  AddControls();
  window.addToolBarBreak();
  window.addToolBar(this);
  mNext.setSingleShot(true);
  mNext.setTimerType(Qt::PreciseTimer);
  mNext.callOnTimeout([this] { Advance(); });
  ShowMoment();
}

// The style's own pictures are not seen on a dark window.
QAction* ReplayBar::AddButton(const char* text, const QKeySequence& keys) {
  auto* action = addAction(NamedImage(text), LocalizedString(text));
  action->setShortcut(keys);
  action->setToolTip(LocalizedString(text) + QLatin1String(" (") +
                     keys.toString(QKeySequence::NativeText) + QLatin1Char(')'));
  return action;
}

void ReplayBar::AddControls() {
  auto* back = AddButton("replay_back", Qt::Key_F6);
  connect(back, &QAction::triggered, this, [this] { Step(-1); });
  mPlay = AddButton("replay_play", Qt::Key_F7);
  mPlay->setCheckable(true);
  connect(mPlay, &QAction::toggled, this, &ReplayBar::Play);
  auto* forth = AddButton("replay_forth", Qt::Key_F8);
  connect(forth, &QAction::triggered, this, [this] { Step(1); });
  auto* peak = AddButton("replay_peak", Qt::Key_F9);
  connect(peak, &QAction::triggered, this, &ReplayBar::NextPeak);
  mSpeed = new QComboBox(this);
  mSpeed->setAccessibleName(LocalizedString("replay_speed"));
  mSpeed->setToolTip(LocalizedString("replay_speed"));
  for (const int speed : kSpeeds) mSpeed->addItem(QString::number(speed) + QChar(0xD7), speed);
  addWidget(mSpeed);
  mLine = new QSlider(Qt::Horizontal, this);
  mLine->setAccessibleName(LocalizedString("replay_bar"));
  mLine->setRange(0, PlaceOf(Last()));
  mLine->setPageStep(std::max(mLine->maximum() / 20, 1));
  connect(mLine, &QSlider::valueChanged, this,
          [this](int place) { GoTo(First() + static_cast<std::uint64_t>(place)); });
  addWidget(mLine);
  AddMoment();
}

void ReplayBar::AddMoment() {
  mMoment = new QLineEdit(this);
  mMoment->setAccessibleName(LocalizedString("replay_moment"));
  auto* edit = new QAction(LocalizedString("replay_moment"), this);
  edit->setShortcut(Qt::CTRL | Qt::Key_T);
  mWindow.addAction(edit);
  mMoment->setToolTip(LocalizedString("replay_moment_tip")
                          .arg(edit->shortcut().toString(QKeySequence::NativeText)));
  const auto widest = QString::fromStdString(RecordedMomentText(0));
  mMoment->setFixedWidth(mMoment->fontMetrics().horizontalAdvance(widest) +
                         mMoment->fontMetrics().averageCharWidth() * 4);
  connect(edit, &QAction::triggered, this, [this] {
    mMoment->setFocus(Qt::ShortcutFocusReason);
    mMoment->selectAll();
  });
  connect(mMoment, &QLineEdit::textEdited, this, [this] { Play(false); });
  connect(mMoment, &QLineEdit::returnPressed, this, [this] { GoToMoment(mMoment->text()); });
  connect(mMoment, &QLineEdit::editingFinished, this, [this] {
    mMoment->setModified(false);
    ShowMoment();
  });
  addWidget(mMoment);
}

void ReplayBar::Say(const std::string& words) {
  mWindow.statusBar()->showMessage(PlainText(words), kMessageTime);
}

void ReplayBar::GoToMoment(const QString& text) {
  auto& source = mPlayer.Source();
  const auto now = mPlayer.Header().sequence;
  const auto moment = ReadMoment(text.trimmed().toStdString(), source.Minutes().back().lastWall);
  auto words = std::holds_alternative<std::string>(moment)
                   ? std::get<std::string>(moment)
                   : source.GoToTime(std::get<std::int64_t>(moment));
  mMoment->setModified(false);
  if (words.empty()) return GoTo(source.Header().sequence);
  Say(words);
  // The recording may stand nowhere now.
  mPlayer.GoTo(now);
  ShowMoment();
}

int ReplayBar::PlaceOf(std::uint64_t sequence) const {
  constexpr std::uint64_t kMost = 1 << 30;
  return static_cast<int>(std::min(sequence - First(), kMost));
}

void ReplayBar::GoTo(std::uint64_t sequence) {
  sequence = std::clamp(sequence, First(), Last());
  if (sequence == mPlayer.Header().sequence) return ShowMoment();
  const bool isNext = sequence == mPlayer.Header().sequence + 1;
  // By way of the beat before, so that rates are those of the time.
  if (!isNext && sequence > First() && mPlayer.GoTo(sequence - 1).empty()) Update();
  if (const auto words = mPlayer.GoTo(sequence); !words.empty()) Say(words);
  Update();
  ShowMoment();
}

void ReplayBar::Step(int beats) {
  const auto now = mPlayer.Header().sequence;
  const auto step = static_cast<std::uint64_t>(std::abs(beats));
  GoTo(beats < 0 ? now - std::min(step, now) : now + step);
}

void ReplayBar::NextPeak() {
  if (const auto peak = mPlayer.Source().NextPeak(mPlayer.Header().sequence)) return GoTo(*peak);
  mWindow.statusBar()->showMessage(LocalizedString("replay_no_peak"), kMessageTime);
}

void ReplayBar::Play(bool plays) {
  mPlay->setChecked(plays);
  mPlay->setIcon(NamedImage(plays ? "replay_pause" : "replay_play"));
  if (!plays) return mNext.stop();
  if (mPlayer.Header().sequence >= Last()) GoTo(First());
  Advance();
}

void ReplayBar::Advance() {
  if (!mPlayer.Next()) return mPlay->setChecked(false);
  Update();
  ShowMoment();
  const auto interval = mPlayer.Source().IntervalOf(mPlayer.Source().Session());
  const auto pause = interval / std::max(mSpeed->currentData().toInt(), 1);
  mNext.start(static_cast<int>(std::clamp<std::int64_t>(pause, kShortestPause, 60'000)));
}

void ReplayBar::Update() {
  RequestUpdate(mWindow.controller().synchronizer());
  mRunLoop.ServeDue();
}

void ReplayBar::ShowMoment() {
  const QSignalBlocker blocker(mLine);
  mLine->setValue(PlaceOf(mPlayer.Header().sequence));
  const auto moment = QString::fromStdString(RecordedMomentText(mPlayer.Header().wall));
  if (!mMoment->isModified()) mMoment->setText(moment);
  const auto file = QFileInfo(QFile::decodeName(mPlayer.Source().Path().c_str())).fileName();
  mWindow.setWindowTitle(LocalizedString("replay_title").arg(file, moment));
}

}  // namespace lurkwell
