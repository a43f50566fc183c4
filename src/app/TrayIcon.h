#pragma once

#include <QImage>
#include <QMenu>
#include <QObject>
#include <QString>
#include <QSystemTrayIcon>
#include <QTimer>
#include <array>
#include <cstdint>
#include <functional>
#include <span>

#include "machine_window/BusiestHistory.h"
#include "windows/ApplicationCommands.h"

namespace lurkwell {

/// The icon's picture, of `size` by `size` pixels: a bar for each share from 0 to 1, the last one
/// on the right; what is missing (see FigureHistory) has none. Every edge is on a pixel's.
QImage TrayPicture(std::span<const float> shares, int size);

/// "CPU 12 %" and a line for each of the busiest three.
QString TrayTip(float share, std::span<const BusyProcess> busiest);

/// An icon in the desktop's tray, for those who want one: a small graph of the processors, the
/// busiest three processes in its tip and its menu, and the way to the windows. Shows what the
/// machine's recorder records, which it starts. Main thread.
class TrayIcon : public QObject {
 public:
  /// `showProcess` brings up the process of a pid. The commands outlive the icon.
  TrayIcon(ApplicationCommands& commands, std::function<void(std::int32_t)> showProcess);

  /// Whether the program can be reached by it.
  bool IsSeen() const;

 private:
  static constexpr std::size_t kMostBusiest = 3;

  void Look();
  void ShowBusiest(std::span<const BusyProcess> busiest);

  QSystemTrayIcon mIcon;
  QMenu mMenu;
  std::array<QAction*, kMostBusiest> mBusiest{};
  QTimer mTimer;
  /// The moment that is shown.
  std::int64_t mShown = -1;
};

}  // namespace lurkwell
