#include "alerts_window/AlertNotifier.h"

#include <utility>

#include "alerts_window/AlertTexts.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/Notifications.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr std::size_t kMostInAMinute = 3;
constexpr std::int64_t kMinute = 60'000;
constexpr std::int64_t kBetweenSums = 10'000;

}  // namespace

AlertNotifier::AlertNotifier(AlertCentre& centre, Show show)
    : mCentre(centre), mShow(std::move(show)) {
  mCentre.AddListener(this);
  TheMachine().notifications.WhenOneFails([this](const std::string& reason) {
    // The window has it from then on; one line is enough.
    if (!std::exchange(mHasSaid, true)) Diagnose("cannot show a notification: %s", reason.c_str());
    mProblem = reason;
  });
}

AlertNotifier::~AlertNotifier() {
  TheMachine().notifications.WhenOneFails({});
  mCentre.RemoveListener(this);
}

void AlertNotifier::AlertHasBegun(const AlertOccurrence& occurrence) {
  if (!ReadSwitch("ALERT_NOTIFICATIONS")) return;
  const auto now = TheMachine().clock.Now();
  auto& recent = mRecent[occurrence.ruleId];
  while (!recent.times.empty() && MillisecondsBetween(recent.times.front(), now) > kMinute)
    recent.times.pop_front();
  if (recent.untold == 0 && recent.times.size() < kMostInAMinute) {
    recent.times.push_back(now);
    return ShowOne(occurrence);
  }
  ++recent.untold;
  recent.latest = occurrence;
}

void AlertNotifier::AlertsHaveTurned() {
  const auto now = TheMachine().clock.Now();
  for (auto& [ruleId, recent] : mRecent)
    if (recent.untold > 0 && MillisecondsBetween(recent.summedUpAt, now) >= kBetweenSums)
      SumUp(ruleId, recent);
  std::erase_if(mRecent, [&](const auto& entry) {
    const auto& recent = entry.second;
    return recent.untold == 0 && MillisecondsBetween(recent.summedUpAt, now) > kMinute &&
           (recent.times.empty() || MillisecondsBetween(recent.times.back(), now) > kMinute);
  });
}

void AlertNotifier::ShowOne(const AlertOccurrence& occurrence) {
  const bool isOfProcess = occurrence.subject.process.pid != kInvalidPID;
  auto body = AlertFiguresText(occurrence.subject);
  if (!body.isEmpty()) body += QLatin1Char('\n');
  body += PlainText(occurrence.rule);
  Send("alert-" + std::to_string(occurrence.number), AlertSubjectText(occurrence), body,
       isOfProcess ? "alerts_show_process" : "alerts_show_window", occurrence);
}

void AlertNotifier::SumUp(std::uint64_t ruleId, Recent& recent) {
  recent.summedUpAt = TheMachine().clock.Now();
  const auto body = LocalizedString("alerts_more_latest")
                        .arg(AlertSubjectText(recent.latest), PlainText(recent.latest.rule));
  auto none = recent.latest;
  none.subject.process = {};
  Send("rule-" + std::to_string(ruleId),
       LocalizedString("alerts_more", static_cast<qint64>(recent.untold)), body,
       "alerts_show_window", none);
  recent.untold = 0;
}

void AlertNotifier::Send(const std::string& key, const QString& title, const QString& body,
                         const char* button, const AlertOccurrence& occurrence) {
  mProblem.clear();
  TheMachine().notifications.Show(
      key, {title.toStdString(), body.toStdString(), LocalizedString(button).toStdString()},
      [notifier = QPointer<AlertNotifier>(this), occurrence] {
        if (notifier != nullptr) notifier->mShow(occurrence);
      });
}

}  // namespace lurkwell
