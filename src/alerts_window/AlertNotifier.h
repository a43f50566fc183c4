#pragma once

#include <QObject>
#include <QPointer>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "alerts/AlertCentre.h"
#include "platform/Clock.h"

namespace lurkwell {

/// Shows each alert that begins as a notification of the desktop, unless the user wants none. Where
/// a rule begins more than three in a minute, one notification counts the others, and becomes
/// another every ten seconds at most. Main thread.
class AlertNotifier final : public QObject, public AlertListener {
  Q_OBJECT

 public:
  /// Shows a process; or the window for alerts, for those of no process.
  using Show = std::function<void(const AlertOccurrence& occurrence)>;

  /// The centre outlives this.
  AlertNotifier(AlertCentre& centre, Show show);
  ~AlertNotifier() override;

  void AlertHasBegun(const AlertOccurrence& occurrence) override;
  void AlertsHaveTurned() override;

  /// Why the latest notification could not be shown; empty when it was.
  const std::string& Problem() const { return mProblem; }

 private:
  /// What a rule has begun lately.
  struct Recent {
    std::deque<TimeValue> times;
    /// Begun, and not yet told.
    std::size_t untold = 0;
    AlertOccurrence latest;
    TimeValue summedUpAt;
  };

  void ShowOne(const AlertOccurrence& occurrence);
  void SumUp(std::uint64_t ruleId, Recent& recent);
  void Send(const std::string& key, const QString& title, const QString& body, const char* button,
            const AlertOccurrence& occurrence);

  AlertCentre& mCentre;
  Show mShow;
  std::string mProblem;
  bool mHasSaid = false;
  std::unordered_map<std::uint64_t, Recent> mRecent;
};

}  // namespace lurkwell
