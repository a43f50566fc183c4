#include "platform/desktop/ClassicProcessManager.h"

#include <unistd.h>

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include "platform/EventBus.h"
#include "platform/desktop/ClassicNames.h"
#include "platform/desktop/DBusEventBus.h"

namespace lurkwell {
namespace {

constexpr int kNubAnswers = 5000;
constexpr int kShortestPause = 100;
constexpr int kPauseAfterFailure = 2000;
constexpr qsizetype kLongestName = 255;
constexpr char kListSignature[] = "a(uussus)";

/// What starts in a boot's first second, in clock ticks: the kernel's threads and init, which have
/// numbers as small as guests have.
constexpr std::uint32_t kFirstSecond = 100;

/// A process with such a number may become an application of the desktop yet.
bool IsOfLiveProcess(ProcessSerialNumber psn) {
  if (psn.high < kFirstSecond) return false;
  const auto process = ProcFolder("/proc").Identify(static_cast<std::int32_t>(psn.low));
  return process && SerialNumberOf(*process) == psn;
}

}  // namespace

ClassicProcessManager::ClassicProcessManager(ProcessManager& desktop, EventBus& events,
                                             const QDBusConnection& bus)
    : mDesktop(desktop),
      mEvents(events),
      mBus(bus),
      mEnvironment(bus, classic::kEnvironmentService, [this] { EnvironmentHasChanged(); }) {
  mNextQuestion.setSingleShot(true);
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
  if (!mNextQuestion.isActive() || mNextQuestion.interval() != kShortestPause)
    mNextQuestion.start(kShortestPause);
}

void ClassicProcessManager::AskForGuests() {
  const QString owner = mEnvironment.Name();
  if (owner.isEmpty()) return;
  // One question at a time; what has changed meanwhile is asked for behind it.
  if (mIsAsking) return mNextQuestion.start(kShortestPause);
  mIsAsking = true;
  const auto question = QDBusMessage::createMethodCall(owner, classic::kEnvironmentPath,
                                                       classic::kEnvironmentInterface,
                                                       QStringLiteral("Applications"));
  auto* watcher = new QDBusPendingCallWatcher(mBus.asyncCall(question, kNubAnswers), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, owner] {
    watcher->deleteLater();
    mIsAsking = false;
    // Another environment's guests are none of this one's.
    if (owner == mEnvironment.Name()) HaveAnswer(watcher->reply());
  });
}

void ClassicProcessManager::HaveAnswer(const QDBusMessage& answer) {
  if (answer.signature() == QLatin1String(kListSignature))
    Take(answer.arguments().constFirst());
  else if (!mNextQuestion.isActive())
    mNextQuestion.start(kPauseAfterFailure);
}

void ClassicProcessManager::Take(const QVariant& list) {
  Clear();
  const auto argument = list.value<QDBusArgument>();
  argument.beginArray();
  for (std::size_t i = 0; i < kMostGuests && !argument.atEnd(); ++i) TakeGuest(argument);
  // Without it the list's reader is never given back.
  argument.endArray();
}

void ClassicProcessManager::TakeGuest(const QDBusArgument& list) {
  quint32 mode = 0;
  QString name;
  QString type;
  QString signature;
  Guest guest;
  list.beginStructure();
  list >> guest.psn.high >> guest.psn.low >> name >> type >> mode >> signature;
  list.endStructure();
  const auto typeCode = CodeFromText(type);
  const auto signatureCode = CodeFromText(signature);
  if (guest.psn.IsNone() || !typeCode || !signatureCode || IsOfLiveProcess(guest.psn)) return;
  guest.information = {name.left(kLongestName).toStdString(), *typeCode, *signatureCode, mode};
  if (mPlaces.emplace(guest.psn, mGuests.size()).second) mGuests.push_back(std::move(guest));
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

bool ClassicProcessManager::CanQuit(ProcessSerialNumber psn) {
  return Find(psn) != nullptr || mDesktop.CanQuit(psn);
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

void ClassicProcessManager::WhenRevealFails(std::function<void(const std::string& file)> tell) {
  mDesktop.WhenRevealFails(std::move(tell));
}

void ClassicProcessManager::ShowFile(const std::string& path, std::function<void()> failed) {
  mDesktop.ShowFile(path, std::move(failed));
}

void ClassicProcessManager::ShowAddress(const std::string& url, std::function<void()> failed) {
  mDesktop.ShowAddress(url, std::move(failed));
}

}  // namespace lurkwell
