#pragma once

#include <QDBusArgument>
#include <QDBusMessage>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/EventBus.h"
#include "platform/ProcessManager.h"
#include "platform/desktop/ProcFolder.h"
#include "platform/desktop/SessionBus.h"

namespace lurkwell {

/// A desktop and, behind its applications, the guests of the Classic environment, which have serial
/// numbers and no processes. The guests are what the environment said last; it is asked whenever it
/// says that they have changed, at most ten times a second, again when it has not answered, and
/// never waited for. Of the first 4,096 those with well-formed codes and with numbers of their own
/// are listed. Nothing happens while there is no environment. Main thread only.
class ClassicProcessManager final : public QObject, public ProcessManager {
  Q_OBJECT

 public:
  static constexpr std::size_t kMostGuests = 4096;

  /// All outlive this.
  ClassicProcessManager(ProcessManager& desktop, EventBus& events, const QDBusConnection& bus);

  std::optional<ProcessSerialNumber> GetNextProcess(ProcessSerialNumber previous) override;
  std::optional<ApplicationInformation> GetProcessInformation(ProcessSerialNumber psn) override;
  std::optional<std::int32_t> GetProcessPID(ProcessSerialNumber psn) override;
  std::optional<ProcessSerialNumber> GetProcessForPID(std::int32_t pid) override;
  ProcessSerialNumber GetCurrentProcess() override;
  bool Quit(ProcessSerialNumber psn) override;
  bool CanQuit(ProcessSerialNumber psn) override;
  bool ShowHideProcess(ProcessSerialNumber psn, bool show) override;
  bool SetFrontProcess(ProcessSerialNumber psn) override;
  bool Reveal(ProcessSerialNumber psn) override;
  void WhenRevealFails(std::function<void(const std::string& file)> tell) override;
  void ShowFile(const std::string& path, std::function<void()> failed) override;
  void ShowAddress(const std::string& url, std::function<void()> failed) override;

 private Q_SLOTS:
  void GuestsHaveChanged();

 private:
  struct Guest {
    ProcessSerialNumber psn;
    ApplicationInformation information;
  };

  struct Hash {
    std::size_t operator()(ProcessSerialNumber psn) const {
      return std::hash<std::uint64_t>{}(std::uint64_t{psn.high} << 32 | psn.low);
    }
  };

  void EnvironmentHasChanged();
  void AskForGuests();
  void HaveAnswer(const QDBusMessage& answer);
  void Take(const QVariant& list);
  void TakeGuest(const QDBusArgument& list);
  void Clear();
  const Guest* Find(ProcessSerialNumber psn) const;
  std::optional<ProcessSerialNumber> GuestFrom(std::size_t place) const;

  ProcessManager& mDesktop;
  EventBus& mEvents;
  QDBusConnection mBus;
  ServiceOwner mEnvironment;
  QTimer mNextQuestion;
  bool mIsAsking = false;
  std::vector<Guest> mGuests;
  std::unordered_map<ProcessSerialNumber, std::size_t, Hash> mPlaces;
};

}  // namespace lurkwell
