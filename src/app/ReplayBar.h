#pragma once

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QSlider>
#include <QTimer>
#include <QToolBar>
#include <cstdint>
#include <string>

#include "app/ReplayRunLoop.h"
#include "main_window/MainWindow.h"
#include "recording/RecordingPlayer.h"

namespace lurkwell {

/// The time line of a recording below the main window's toolbar: to drag, to play at several
/// speeds, to step, to jump to the next peak of processor use. The window's title tells file and
/// moment. Main thread.
class ReplayBar : public QToolBar {
  Q_OBJECT

 public:
  /// All outlive this; the window owns it.
  ReplayBar(RecordingPlayer& player, ReplayRunLoop& runLoop, MainWindow& window);

  /// Shows a beat; what cannot be read is said, and the one before stays.
  void GoTo(std::uint64_t sequence);
  void Step(int beats);
  void NextPeak();
  /// To a moment as people write it; see ReadMoment. What cannot be read, and a moment of which
  /// nothing was recorded, is said, and the one before stays.
  void GoToMoment(const QString& text);
  void Play(bool plays);

 private:
  void AddControls();
  void AddMoment();
  void Say(const std::string& words);
  QAction* AddButton(const char* text, const QKeySequence& keys);
  void Advance();
  /// The table shows where the player is, now.
  void Update();
  void ShowMoment();
  int PlaceOf(std::uint64_t sequence) const;
  std::uint64_t First() const { return mPlayer.Source().Minutes().front().firstSequence; }
  std::uint64_t Last() const { return mPlayer.Source().Minutes().back().lastSequence; }

  RecordingPlayer& mPlayer;
  ReplayRunLoop& mRunLoop;
  MainWindow& mWindow;
  QAction* mPlay = nullptr;
  QComboBox* mSpeed = nullptr;
  QSlider* mLine = nullptr;
  QLineEdit* mMoment = nullptr;
  QTimer mNext;
};

}  // namespace lurkwell
