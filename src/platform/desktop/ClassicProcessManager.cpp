#include "platform/desktop/ClassicProcessManager.h"

#include <unistd.h>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "platform/ClassicEvents.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/EventMessage.h"

namespace lurkwell {
namespace {

constexpr int kAnswerTimeout = 5000;
constexpr int kShortestPause = 100;
constexpr qsizetype kLongestName = 255;
constexpr char kListSignature[] = "a(uussus)";

}  // namespace

ClassicProcessManager::ClassicProcessManager(ProcessManager& desktop, EventBus& events,
                                             const QDBusConnection& bus)
    : mDesktop(desktop),
      mEvents(events),
      mBus(bus),
      mUsers(bus),
      mEnvironment(bus, classic::kEnvironmentService, [this] { EnvironmentHasChanged(); }) {
  mNextQuestion.setSingleShot(true);
  mNextQuestion.setInterval(kShortestPause);
  connect(&mNextQuestion, &QTimer::timeout, this, &ClassicProcessManager::AskForGuests);
  if (!mBus.isConnected()) return;
  mBus.connect(classic::kEnvironmentService, classic::kEnvironmentPath,
               classic::kEnvironmentInterface, QStringLiteral("ApplicationsChanged"), this,
               SLOT(GuestsHaveChanged()));
}

void ClassicProcessManager::EnvironmentHasChanged() {
  Clear();
  if (!mEnvironment.Name().isEmpty()) GuestsHaveChanged();
}

void ClassicProcessManager::GuestsHaveChanged() {
  if (!mNextQuestion.isActive()) mNextQuestion.start();
}

void ClassicProcessManager::AskForGuests() {
  const QString owner = mEnvironment.Name();
  if (owner.isEmpty()) return;
  // One question at a time; what has changed meanwhile is asked for behind it.
  if (mIsAsking) return mNextQuestion.start();
  mUsers.Ask(owner, [this, owner](bool isOurs) {
    if (!isOurs || mIsAsking) return;
    mIsAsking = true;
    const auto question = QDBusMessage::createMethodCall(owner, classic::kEnvironmentPath,
                                                         classic::kEnvironmentInterface,
                                                         QStringLiteral("Applications"));
    auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(question, kAnswerTimeout), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, owner] {
      watcher->deleteLater();
      mIsAsking = false;
      const QDBusMessage answer = watcher->reply();
      // Another environment's guests are none of this one's.
      if (owner != mEnvironment.Name() || answer.signature() != QLatin1String(kListSignature))
        return;
      Take(answer.arguments().constFirst());
    });
  });
}

void ClassicProcessManager::Take(const QVariant& list) {
  Clear();
  const auto argument = list.value<QDBusArgument>();
  argument.beginArray();
  while (!argument.atEnd() && mGuests.size() < kMostGuests) {
    quint32 mode = 0;
    QString name;
    QString type;
    QString signature;
    Guest guest;
    argument.beginStructure();
    argument >> guest.psn.high >> guest.psn.low >> name >> type >> mode >> signature;
    argument.endStructure();
    const auto typeCode = CodeFromText(type);
    const auto signatureCode = CodeFromText(signature);
    if (guest.psn.IsNone() || !typeCode || !signatureCode) continue;
    guest.information = {name.left(kLongestName).toStdString(), *typeCode, *signatureCode, mode};
    if (mPlaces.emplace(guest.psn, mGuests.size()).second) mGuests.push_back(std::move(guest));
  }
  // Without it the list's reader is never given back.
  argument.endArray();
}

void ClassicProcessManager::Clear() {
  mGuests.clear();
  mPlaces.clear();
}

/// A guest that claims an application's number is not listed.
const ClassicProcessManager::Guest* ClassicProcessManager::Find(ProcessSerialNumber psn) const {
  const auto place = mPlaces.find(psn);
  if (place == mPlaces.end() || mDesktop.GetProcessPID(psn)) return nullptr;
  return &mGuests[place->second];
}

std::optional<ProcessSerialNumber> ClassicProcessManager::GuestFrom(std::size_t place) const {
  for (; place < mGuests.size(); ++place)
    if (!mDesktop.GetProcessPID(mGuests[place].psn)) return mGuests[place].psn;
  return {};
}

std::optional<ProcessSerialNumber> ClassicProcessManager::GetNextProcess(
    ProcessSerialNumber previous) {
  if (const auto* guest = Find(previous))
    return GuestFrom(static_cast<std::size_t>(guest - mGuests.data()) + 1);
  if (const auto next = mDesktop.GetNextProcess(previous)) return next;
  return GuestFrom(0);
}

std::optional<ApplicationInformation> ClassicProcessManager::GetProcessInformation(
    ProcessSerialNumber psn) {
  if (const auto* guest = Find(psn)) return guest->information;
  return mDesktop.GetProcessInformation(psn);
}

std::optional<std::int32_t> ClassicProcessManager::GetProcessPID(ProcessSerialNumber psn) {
  return mDesktop.GetProcessPID(psn);
}

std::optional<ProcessSerialNumber> ClassicProcessManager::GetProcessForPID(std::int32_t pid) {
  return mDesktop.GetProcessForPID(pid);
}

ProcessSerialNumber ClassicProcessManager::GetCurrentProcess() {
  return SerialNumberOf(ProcFolder("/proc").Identify(::getpid()).value_or(ProcessIdentity{}));
}

bool ClassicProcessManager::Quit(ProcessSerialNumber psn) {
  if (Find(psn) == nullptr) return mDesktop.Quit(psn);
  return mEvents.Send(psn, {classic_events::kCoreEvents, classic_events::kQuit, {}, {}}) ==
         EventBus::kNoError;
}

// Guests have no windows of their own on this desktop, nor files that could be shown.

bool ClassicProcessManager::ShowHideProcess(ProcessSerialNumber psn, bool show) {
  return Find(psn) == nullptr && mDesktop.ShowHideProcess(psn, show);
}

bool ClassicProcessManager::SetFrontProcess(ProcessSerialNumber psn) {
  return Find(psn) == nullptr && mDesktop.SetFrontProcess(psn);
}

bool ClassicProcessManager::Reveal(ProcessSerialNumber psn) {
  return Find(psn) == nullptr && mDesktop.Reveal(psn);
}

}  // namespace lurkwell
