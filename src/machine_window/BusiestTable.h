#pragma once

#include <QTableWidget>
#include <cstdint>
#include <span>

#include "machine_window/BusiestHistory.h"

namespace lurkwell {

/// The busiest processes of a moment: name, pid, CPU share, memory. A process that has ended since
/// stands in a fainter colour and says so. A click or Return on one chooses it. Main thread only.
class BusiestTable final : public QTableWidget {
  Q_OBJECT

 public:
  explicit BusiestTable(QWidget* parent = nullptr);

  /// What is selected stays, if the process is still among them.
  void Show(std::span<const BusyProcess> processes);

 Q_SIGNALS:
  /// A process that was there when it was shown; `startStamp` says which one of that pid.
  void processChosen(int pid, quint64 startStamp);

 private:
  void Choose(int row);
};

}  // namespace lurkwell
