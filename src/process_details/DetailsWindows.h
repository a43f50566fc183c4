#pragma once

#include <QPointer>
#include <cstdint>
#include <utility>
#include <vector>

#include "process_details/DetailsWindow.h"
#include "windows/ProcessWindows.h"

namespace lurkwell {

/// The windows about single processes that are open. Main thread only; outlives none of them.
class DetailsWindows final : public ProcessWindows {
 public:
  explicit DetailsWindows(FillProcessMenu fillMenu) : mFillMenu(std::move(fillMenu)) {}
  ~DetailsWindows() override { CloseAll(); }
  DetailsWindows(const DetailsWindows&) = delete;
  DetailsWindows& operator=(const DetailsWindows&) = delete;

  bool ShowDetails(std::int32_t pid) override;
  std::vector<MonitorWindows::OpenWindow> OpenWindows() const override;
  /// Those that are open, the oldest first.
  std::vector<DetailsWindow*> Open() const;
  /// At once; they are not told that their processes have ended.
  void CloseAll();

 private:
  FillProcessMenu mFillMenu;
  std::vector<QPointer<DetailsWindow>> mWindows;
};

}  // namespace lurkwell
