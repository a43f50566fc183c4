#pragma once

#include <QPoint>
#include <cstdint>
#include <functional>

namespace lurkwell {

/// What a window of the animated view asks of the application as a whole.
struct ViewCommands {
  std::function<void()> doShowQuintessentialView;
  std::function<void()> doToggleQuintessentialViewFullScreen;
  std::function<void()> doShowMainWindow;
  std::function<void()> doQuit;
  /// The user has closed the view; nothing else of the program may be left to see.
  std::function<void()> viewWasClosed;
  /// Whether a window of the program other than the view's is there.
  std::function<bool()> isSomethingElseThere;
  /// Selects a process in the list of processes, where that is shown, and opens its context menu if
  /// `wantsMenu`. `place` is one of the whole desktop.
  std::function<void(std::int32_t pid, const QPoint& place, bool wantsMenu)> choose;
};

}  // namespace lurkwell
