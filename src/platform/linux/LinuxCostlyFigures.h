#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/CostlyFigures.h"

namespace lurkwell {

/// Reads them on a thread of its own, which begins with the first wish and sleeps while there is
/// none. Processes in sight come first, then those that were never read, then the others in the
/// order of their last readings.
///
/// The thread takes 20 ms of processor time in 2 s at most, a hundredth of a processor, and for
/// what was never read, so that a new column fills soon, 100 ms in 2 s beside it; a single reading
/// that takes longer is made up for by waiting.
///
/// Memory that is locked or hangs on a file system that does not answer: see ReplaceableThread.
class LinuxCostlyFigures final : public CostlyFigures {
 public:
  /// Folders like /proc, that of the control groups (empty: where this machine has it) and that of
  /// the graphics devices.
  explicit LinuxCostlyFigures(std::string proc = "/proc", std::string units = {},
                              std::string devices = "/dev/dri");
  /// Waits for no reading that hangs.
  ~LinuxCostlyFigures() override;
  LinuxCostlyFigures(const LinuxCostlyFigures&) = delete;
  LinuxCostlyFigures& operator=(const LinuxCostlyFigures&) = delete;

  void Ask(std::vector<CostlyWish> wishes) override;
  std::vector<CostlyReading> Collect() override;

 private:
  struct Shared;

  std::shared_ptr<Shared> mShared;
};

}  // namespace lurkwell
