#pragma once

#include <QString>
#include <QWidget>
#include <vector>

#include "fleet/FleetSession.h"
#include "windows/TimeGraph.h"

class QButtonGroup;
class QLabel;

namespace lurkwell {

/// Graphs of one row of a fleet's table over hours or days. It asks the session for what can be
/// seen, and again when there is something new. Main thread only.
class FleetHistoryPane final : public QWidget {
  Q_OBJECT

 public:
  explicit FleetHistoryPane(QWidget* parent = nullptr);

  /// The session is the caller's and outlives this or is taken back with null.
  void SetSession(FleetSession* session);
  /// Shows a row of the session's view; an empty name shows none. The title says what it is.
  void ShowRow(const QString& row, const QString& title);
  /// The table has been answered once more.
  void TableHasCome();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Graph {
    TimeGraph* graph;
    std::vector<FleetFigure> figures;
  };

  void BuildGraphs(FleetLevel level);
  void Ask();
  void ShowAnswer();
  void SetHours(int hours);

  FleetSession* mSession = nullptr;
  QString mRow;
  QString mTitleText;
  std::vector<Graph> mGraphs;
  QWidget* mGraphArea;
  QLabel* mTitle;
  QLabel* mNote;
  QButtonGroup* mSpans;
  QTimer mPatience;
  int mHours = 1;
  /// What the graphs show; theirs has to outlive the session's next answer.
  std::optional<FleetHistory> mShown;
  std::optional<FleetLevel> mLevel;
  qint64 mAskedAt = 0;
};

}  // namespace lurkwell
