#pragma once

#include <utility>
#include <vector>

#include "process_details/DetailsPage.h"
#include "windows/FigureHistory.h"
#include "windows/TimeGraph.h"

namespace lurkwell {

/// What is known of a process as a whole: graphs of what it used since the window was opened, and a
/// list of figures. Its figures come from the consolidator. Main thread only.
class OverviewPage final : public DetailsPage {
  Q_OBJECT

 public:
  OverviewPage(ProcessIdentity process, QWidget* parent);

  QString Title() const override;
  DetailsTable& Table() override { return *mTable; }
  void SetSeen(bool isSeen) override;
  void SetEnded() override { mHasEnded = true; }

  /// What has to be read for it: the graphs go on while it is not seen.
  std::vector<const char*> Needs() const;
  /// The figures are those of now.
  void Update();

 private:
  struct Graph {
    TimeGraph* widget = nullptr;
    std::vector<const char*> properties;
  };

  void AddGraph(const char* title, GraphUnit unit,
                const std::vector<std::pair<const char*, const char*>>& series, double leastTop);
  void AddMoment();
  void FillTable();

  ProcessIdentity mProcess;
  FigureHistory mHistory;
  std::vector<const char*> mSampled;
  std::vector<Graph> mGraphs;
  DetailsTable* mTable;
  bool mIsSeen = false;
  bool mHasEnded = false;
};

}  // namespace lurkwell
