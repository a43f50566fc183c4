#pragma once

#include <QString>
#include <QWidget>
#include <memory>

#include "platform/ProcessDetails.h"
#include "platform/RunLoop.h"
#include "process_details/DetailsLists.h"
#include "process_details/DetailsTable.h"

namespace lurkwell {

/// One page of a window about a process. Main thread only.
class DetailsPage : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  virtual QString Title() const = 0;
  virtual DetailsTable& Table() = 0;
  /// It can be seen from now on, or not any more. What is not seen is not read.
  virtual void SetSeen(bool isSeen) = 0;
  /// The process has ended: what stands there stays.
  virtual void SetEnded() = 0;
};

/// A list that is read in the background, again and again while it is seen: every other second,
/// and so seldom that readings take no more than a twentieth of the time.
class DetailsListPage final : public DetailsPage {
  Q_OBJECT

 public:
  DetailsListPage(ProcessIdentity process, DetailsKind kind, QWidget* parent);
  ~DetailsListPage() override;

  QString Title() const override;
  DetailsTable& Table() override { return *mTable; }
  void SetSeen(bool isSeen) override;
  void SetEnded() override;

 private:
  void Look();
  void LookIn(double seconds);
  void Show(const DetailsAnswer& answer);
  QString NoticeOf(const DetailsAnswer& answer) const;

  ProcessIdentity mProcess;
  DetailsKind mKind;
  DetailsTable* mTable;
  DetailsRows mRows;
  std::unique_ptr<RunLoopTimer> mTimer;
  std::unique_ptr<DetailsReading> mReading;
  /// When the question under way was asked.
  double mAskedAt = 0;
  bool mHasRows = false;
  bool mHasEnded = false;
};

}  // namespace lurkwell
