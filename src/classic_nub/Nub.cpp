#include "classic_nub/Nub.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <limits>
#include <utility>

#include "platform/EventBus.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/ProcFolder.h"

namespace lurkwell {
namespace {

using std::chrono::milliseconds;

constexpr qsizetype kRecordSize = 396;
constexpr std::int64_t kTicksPerSecond = 60;
constexpr milliseconds kLongestUnwanted{60'000};
/// A receiver hears no more than twenty events a second.
constexpr milliseconds kShortestSleep{100};
constexpr milliseconds kLongestSleep{std::numeric_limits<std::int32_t>::max()};
constexpr int kAnswerTimeout = 5000;

milliseconds SleepOf(std::int32_t ticks) {
  return std::clamp(milliseconds(std::int64_t{ticks} * 1000 / kTicksPerSecond), kShortestSleep,
                    kLongestSleep);
}

QDBusMessage EnvironmentMethod(const QString& owner, const QString& method) {
  return QDBusMessage::createMethodCall(owner, classic::kEnvironmentPath,
                                        classic::kEnvironmentInterface, method);
}

}  // namespace

Nub::Nub(DBusEventBus& events, std::function<void()> quit)
    : mEvents(events),
      mQuit(std::move(quit)),
      mBus(events.Connection()),
      mEnvironment(mBus, classic::kEnvironmentService, [this] { Follow(); }) {
  mUnwanted.setSingleShot(true);
  connect(&mUnwanted, &QTimer::timeout, this, mQuit);
  mUnwanted.start(kLongestUnwanted);
  connect(&mNextReport, &QTimer::timeout, this, &Nub::Report);
  mEvents.InstallEventHandler(classic_events::kClass, classic_events::kControl,
                              [this](const Event& event) { Obey(event); });
  mEvents.InstallEventHandler(classic_events::kCoreEvents, classic_events::kQuit,
                              [this](const Event&) { mQuit(); });
}

/// A guest ends with its environment.
void Nub::Follow() {
  if (std::exchange(mHasHadEnvironment, true)) return mQuit();
  Register();
}

void Nub::Register() {
  auto message = EnvironmentMethod(mEnvironment.Name(), QStringLiteral("Register"));
  message << QStringLiteral("ClassicProcessInfoNub") << QStringLiteral("zrNv");
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(message, kAnswerTimeout), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    if (watcher->isError()) mQuit();
  });
}

void Nub::Obey(const Event& control) {
  const auto* served = control.Find<ProcessSerialNumber>(classic_events::kServedProcess);
  const auto* ticks = control.Find<std::int32_t>(classic_events::kSleepTicks);
  if (served == nullptr || ticks == nullptr) return;
  mServed = *served;
  mServedSender = control.sender;
  if (mServed.IsNone()) return Rest();
  mUnwanted.stop();
  WatchServedProcess();
  mNextReport.start(SleepOf(*ticks));
  Report();
}

void Nub::Rest() {
  mServedEnds.reset();
  mNextReport.stop();
  mUnwanted.start(kLongestUnwanted);
}

/// However long it sleeps, it hears of the end. Without pidfds it does with the next report.
void Nub::WatchServedProcess() {
  mServedEnds.reset();
  mServedHandle = OpenProcessHandle(static_cast<pid_t>(mServed.low));
  if (!mServedHandle.IsOpen()) return;
  mServedEnds = std::make_unique<QSocketNotifier>(mServedHandle.Get(), QSocketNotifier::Read);
  connect(mServedEnds.get(), &QSocketNotifier::activated, this, mQuit);
}

bool Nub::ServedProcessIsThere() const {
  const auto pid = static_cast<std::int32_t>(mServed.low);
  const auto process = ProcFolder("/proc").Identify(pid);
  return process && SerialNumberOf(*process) == mServed;
}

void Nub::Report() {
  if (!ServedProcessIsThere()) return mQuit();
  // An environment that is slow is not asked twice.
  if (mIsAsking || mEnvironment.Name().isEmpty()) return;
  mIsAsking = true;
  const auto question = EnvironmentMethod(mEnvironment.Name(), QStringLiteral("Records"));
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(question, kAnswerTimeout), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    mIsAsking = false;
    const QDBusPendingReply<QByteArray> reply = *watcher;
    if (reply.isValid() && !mServed.IsNone()) SendRecords(reply.value());
  });
}

void Nub::SendRecords(const QByteArray& records) {
  const auto largest = static_cast<qsizetype>(DBusEventBus::kLargestEvent);
  const auto size = std::min(records.size(), largest) / kRecordSize * kRecordSize;
  const auto* start = reinterpret_cast<const std::byte*>(records.constData());
  mEvents.Send(mServedSender,
               {classic_events::kClass,
                classic_events::kReport,
                {{classic_events::kRecords, std::vector<std::byte>(start, start + size)}},
                {}});
}

}  // namespace lurkwell
