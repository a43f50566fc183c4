#include <unistd.h>

#include <QApplication>
#include <QDBusConnection>
#include <QTimer>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <variant>
#include <vector>

#include "app/CommandLine.h"
#include "app/FleetMode.h"
#include "app/PrintMode.h"
#include "app/RecordMode.h"
#include "app/ReplayBar.h"
#include "app/ReplayRunLoop.h"
#include "app/ReplayedBeats.h"
#include "app/WindowMode.h"
#include "app/appDelegate.h"
#include "consolidator/Feeders.h"
#include "consolidator/PSHeaders.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "platform/desktop/ClassicProcessManager.h"
#include "platform/desktop/DBusEventBus.h"
#include "platform/desktop/DesktopAlerts.h"
#include "platform/desktop/DesktopHotKeys.h"
#include "platform/desktop/DesktopIconServices.h"
#include "platform/desktop/DesktopNotifications.h"
#include "platform/desktop/DesktopProcessManager.h"
#include "platform/desktop/DesktopScreen.h"
#include "platform/desktop/DisplayAccess.h"
#include "platform/desktop/QtRunLoop.h"
#include "platform/desktop/RunningInstance.h"
#include "platform/linux/LinuxCostlyFigures.h"
#include "platform/linux/LinuxMachine.h"
#include "platform/linux/OwnFolders.h"
#include "platform/linux/ProcFiles.h"
#include "recording/RecordedProcessTable.h"
#include "recording/RecordedRunLoop.h"
#include "recording/RecordedServices.h"
#include "recording/RecordingTime.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// The user's settings for a run that stores none: what is set counts until its end.
class UnstoredPreferences final : public PreferenceDomain {
 public:
  const PreferenceValue* Value(std::string_view key) override { return mStored.Value(key); }
  void SetValue(std::string_view key, PreferenceValue value) override {
    mStored.SetValue(key, std::move(value));
  }
  void RemoveValue(std::string_view key) override { mStored.RemoveValue(key); }
  bool Synchronize() override { return true; }
  std::string TakeComplaint() override { return mStored.TakeComplaint(); }

 private:
  PropertyListDomain mStored;
};

std::unique_ptr<PreferenceDomain> PreferencesFor(bool isKept) {
  if (isKept) return std::make_unique<PropertyListDomain>();
  return std::make_unique<UnstoredPreferences>();
}

/// This machine with its desktop. Main thread; a QApplication exists.
class DesktopMachine {
 public:
  enum class Use {
    kBySomebody,
    /// A picture is taken without any question, or leaving anything behind.
    kForPicture,
  };

  DesktopMachine(Use use, const std::string& busAddress)
      : mUse(use), eventBus({busAddress, RunningInstance::ConnectionName(), {}}) {}

 private:
  bool MayAsk() const { return mUse == Use::kBySomebody; }

  Use mUse;

 public:
  LinuxClock clock;
  QtRunLoop runLoop{clock};
  std::unique_ptr<PreferenceDomain> preferences = PreferencesFor(MayAsk());
  PreferenceDomain& preferenceDomain = *preferences;
  LinuxProcessTable processTable;
  DesktopProcessManager processManager{DesktopSettings::FromEnvironment()};
  DesktopIconServices iconServices{processManager};
  LinuxHostStatistics hostStatistics;
  LinuxTools tools;
  LinuxSignals signals;
  LinuxNamedPipes namedPipes;
  LinuxBundle bundle;
  PolkitAuthorization authorization{bundle, MayAsk() ? PolkitAuthorization::Consent::kMayAsk
                                                     : PolkitAuthorization::Consent::kOnlyIfGiven};
  DesktopAlerts desktopAlerts;
  TerminalAlerts terminalAlerts;
  Alerts& alerts = MayAsk() ? static_cast<Alerts&>(desktopAlerts) : terminalAlerts;
  LinuxLogFiles logFiles;
  DesktopHotKeys hotKeys{DesktopSettings::FromEnvironment()};
  DesktopScreen screen{DesktopSettings::FromEnvironment()};
  DBusEventBus eventBus;
  LinuxCostlyFigures costlyFigures;
  LinuxProcessDetails processDetails;
  LinuxScheduler scheduler;
  DesktopNotifications notifications{eventBus.Connection()};
  ClassicProcessManager applications{processManager, eventBus, eventBus.Connection()};

  Machine services{
      clock,          runLoop,   preferenceDomain, processTable, applications,  iconServices,
      hostStatistics, tools,     signals,          namedPipes,   authorization, bundle,
      alerts,         logFiles,  hotKeys,          screen,       eventBus,      costlyFigures,
      processDetails, scheduler, notifications};
};

int RunInTerminal(const CommandLine& commandLine) {
  LinuxMachine machine;
  const MachineInstallation installation(machine.services);
  const bool records = commandLine.action == CommandLine::Action::kRecord;
  return records ? RunRecordMode(commandLine) : RunPrintMode(commandLine);
}

/// What every recorded machine has. What is missing is the user's side: how time passes, what is
/// remembered, what is started, how a question is asked.
class RecordedMachine {
 public:
  explicit RecordedMachine(std::unique_ptr<Recording> recording) : player(std::move(recording)) {}

  RecordingPlayer player;

 protected:
  Machine With(RunLoop& runLoop, PreferenceDomain& preferences, Tools& tools, Alerts& alerts,
               Screen& screen) {
    return {player.Clock(), runLoop,   preferences,  processTable, processManager, iconServices,
            hostStatistics, tools,     signals,      namedPipes,   authorization,  bundle,
            alerts,         logFiles,  hotKeys,      screen,       eventBus,       costlyFigures,
            processDetails, scheduler, notifications};
  }

 private:
  RecordedProcessTable processTable{player};
  NoProcessManager processManager;
  NoIconServices iconServices;
  RecordedHostStatistics hostStatistics{player};
  NoSignals signals;
  LinuxNamedPipes namedPipes;
  LinuxBundle bundle;
  PolkitAuthorization authorization{bundle, PolkitAuthorization::Consent::kOnlyIfGiven};
  LinuxLogFiles logFiles;
  NoHotKeys hotKeys;
  NoEventBus eventBus;
  UnrecordedFigures costlyFigures;
  UnrecordedDetails processDetails;
  NoScheduler scheduler;
  NoNotifications notifications;
};

/// A recording as a program in a terminal sees it.
class RecordedTerminalMachine : public RecordedMachine {
 public:
  RecordedTerminalMachine(std::unique_ptr<Recording> recording, std::int64_t millisecondsBetween)
      : RecordedMachine(std::move(recording)), beats(player, millisecondsBetween) {}

  ReplayedBeats beats;

 private:
  RecordedRunLoop runLoop{player, [this] { return beats.GoOn(); }};
  PropertyListDomain stored;
  RecordedMachinePreferences preferences{stored};
  NoTools tools;
  TerminalAlerts alerts;
  NoScreen screen;

 public:
  Machine services = With(runLoop, preferences, tools, alerts, screen);
};

/// A recording and the moment that is asked for.
struct Replay {
  std::unique_ptr<Recording> recording;
  /// Microseconds since the epoch.
  std::int64_t moment = 0;
};

/// Says why there is none, and sets the exit status.
std::optional<Replay> OpenReplay(const CommandLine& commandLine, int& status) {
  auto opened = Recording::Open(commandLine.replay);
  if (const auto* words = std::get_if<std::string>(&opened)) {
    Diagnose("%s", words->c_str());
    status = kExitFailure;
    return std::nullopt;
  }
  auto recording = std::move(std::get<std::unique_ptr<Recording>>(opened));
  const std::int64_t end = recording->Minutes().back().lastWall;
  std::variant<std::int64_t, std::string> moment = end;
  if (!commandLine.at.empty()) moment = ReadMoment(commandLine.at, end);
  if (const auto* words = std::get_if<std::string>(&moment)) {
    Diagnose("--at: %s", words->c_str());
    status = kExitUsage;
    return std::nullopt;
  }
  return Replay{std::move(recording), std::get<std::int64_t>(moment)};
}

int PrintRecording(CommandLine commandLine) {
  int status = kExitSuccess;
  auto replay = OpenReplay(commandLine, status);
  if (!replay) return status;
  RecordedTerminalMachine machine(std::move(replay->recording),
                                  commandLine.intervalInMilliseconds.value_or(0));
  if (const auto words = machine.beats.Begin(replay->moment); !words.empty()) {
    Diagnose("%s", words.c_str());
    return kExitFailure;
  }
  Diagnose("as of %s", RecordedMomentText(machine.beats.BeginsAt()).c_str());
  if (!commandLine.count) commandLine.count = 1;
  const MachineInstallation installation(machine.services);
  return RunPrintMode(commandLine, [&machine] { return machine.beats.IsShown(); });
}

/// A recording with the desktop's windows. What is set counts until the end.
class RecordedDesktopMachine : public RecordedMachine {
 public:
  explicit RecordedDesktopMachine(std::unique_ptr<Recording> recording)
      : RecordedMachine(std::move(recording)) {
    screen.FollowMotionWish(QDBusConnection(QStringLiteral("lurkwell-no-bus")));
  }

 private:
  LinuxClock clock;
  QtRunLoop real{clock};

 public:
  ReplayRunLoop runLoop{real, player};

 private:
  UnstoredPreferences stored;
  RecordedMachinePreferences preferences{stored};
  /// The start looks whether the system's are there; ps is left out.
  LinuxTools tools;
  DesktopAlerts alerts;
  DesktopScreen screen{DesktopSettings::FromEnvironment()};

 public:
  Machine services = With(runLoop, preferences, tools, alerts, screen);
};

/// A QApplication exists.
int ShowRecording(const CommandLine& commandLine, Replay replay, EndingSignals& signals) {
  RecordedDesktopMachine machine(std::move(replay.recording));
  ReplayedBeats beats(machine.player, 0);
  if (const auto words = beats.Begin(replay.moment); !words.empty()) {
    Diagnose("%s", words.c_str());
    return kExitFailure;
  }
  LeavePSOut(true);
  const MachineInstallation installation(machine.services);
  signals.Watch([&machine] { machine.runLoop.Stop(); });
  return RunWindowMode(commandLine, [&](MainWindow& window) {
    auto* bar = new ReplayBar(machine.player, machine.runLoop, window);
    QTimer::singleShot(0, bar, [bar, first = beats.First()] { bar->GoTo(first); });
  });
}

std::string BusAddress() {
  return DesktopSettings::FromEnvironment().sessionBusAddress;
}

/// Where there is no session bus, Qt would have one started, which would outlive this program.
void HaveNoBusStarted() {
  if (BusAddress().empty()) ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
}

int ToggleOverlay(int& argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (RunningInstance(BusAddress()).ToggleOverlay() == RunningInstance::Answer::kDone)
    return kExitSuccess;
  Diagnose("no running instance answers, so there is no overlay to toggle");
  return kExitFailure;
}

/// Has an instance that is running come to the front; says so when it does not answer.
RunningInstance::Answer AskTheInstance(RunningInstance& instance, const std::string& address) {
  const auto answer = address.empty() ? instance.BringToFront() : instance.ShowAddress(address);
  if (answer == RunningInstance::Answer::kSilent)
    Diagnose("an instance that is running does not answer; starting another");
  return answer;
}

/// Has others find this instance; false when one that is running has come to the front instead.
bool BecomeTheInstance(RunningInstance& instance, const std::string& address) {
  using Answer = RunningInstance::Answer;
  const auto answer = AskTheInstance(instance, address);
  if (answer == Answer::kDone) return false;
  const bool isTheInstance = instance.Become(
      [] {
        if (gAppDelegate != nullptr && gAppDelegate->isRunning()) gAppDelegate->doShowMainWindow();
      },
      [] {
        if (gAppDelegate != nullptr && gAppDelegate->isRunning())
          gAppDelegate->doToggleQuintessentialViewFullScreen();
      },
      [](const QString& asked) {
        if (gAppDelegate != nullptr && gAppDelegate->isRunning())
          gAppDelegate->doShowAddress(asked);
      });
  if (isTheInstance) return true;
  // No instance was there, and now one is: both started at the same time.
  if (answer == Answer::kNobody && AskTheInstance(instance, address) == Answer::kDone) return false;
  instance.WaitInLine();
  return true;
}

/// A QApplication exists.
int ShowFleet(const CommandLine& commandLine, EndingSignals& signals) {
  using Use = DesktopMachine::Use;
  InstallResources(*qApp);
  const auto choice = ReadFleetChoice(commandLine);
  if (!choice) return kExitUsage;
  DesktopMachine machine(commandLine.screenshot ? Use::kForPicture : Use::kBySomebody, "");
  const MachineInstallation installation(machine.services);
  signals.Watch([&machine] { machine.runLoop.Stop(); });
  return RunFleetMode(commandLine, *choice);
}

int RunOnDesktop(const CommandLine& commandLine, int& argc, char** argv,
                 std::optional<Replay> replay) {
  if (!commandLine.printingOption.empty()) {
    Diagnose("%s needs --print\nTry 'lurkwell --help'.", commandLine.printingOption.c_str());
    return kExitUsage;
  }
  // Qt takes away what it knows of the others.
  std::vector<char*> arguments(argv, argv + argc + 1);
  EndingSignals signals;
  HaveNoBusStarted();
  QApplication::setApplicationName(QStringLiteral("lurkwell"));
  QApplication::setDesktopFileName(QStringLiteral("com.velquarin.lurkwell"));
  auto withoutDisplay = std::make_unique<WithoutDisplayInstead>(arguments.data());
  auto placesAreKept = std::make_unique<PlacesAreKept>();
  QApplication application(argc, argv);
  placesAreKept.reset();
  withoutDisplay.reset();
  // Qt takes the user's language for texts; numbers are read and written with a point.
  std::setlocale(LC_NUMERIC, "C");
  const bool isOfFleet = !commandLine.fleet.empty();
  const bool isOnItsOwn = commandLine.newInstance || commandLine.screenshot || replay || isOfFleet;
  if (commandLine.screenshot || replay) {
    NeverRestartWithSession(application);
  } else {
    RestartWithSession(application);
  }
  RunningInstance instance(isOnItsOwn ? "" : BusAddress());
  if (!isOnItsOwn && !BecomeTheInstance(instance, commandLine.address)) return kExitSuccess;
  if (isOfFleet) return ShowFleet(commandLine, signals);
  if (replay) return ShowRecording(commandLine, std::move(*replay), signals);
  using Use = DesktopMachine::Use;
  DesktopMachine machine(commandLine.screenshot ? Use::kForPicture : Use::kBySomebody,
                         commandLine.screenshot ? "" : BusAddress());
  machine.screen.FollowMotionWish(machine.eventBus.Connection());
  const MachineInstallation installation(machine.services);
  signals.Watch([&machine] { machine.runLoop.Stop(); });
  return RunWindowMode(commandLine);
}

/// Texts that are asked for have to arrive.
int Say(const char* text) {
  errno = 0;
  if (std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0) return kExitSuccess;
  Diagnose("cannot write: %s", std::strerror(errno));
  return kExitFailure;
}

/// The exporter is a program of its own, beside this one or on the path; comes back only when it
/// cannot be started.
int BecomeTheExporter(const CommandLine& commandLine) {
  std::string name = "lurkwell-export";
  std::vector<char*> arguments{name.data()};
  auto words = commandLine.exportArguments;
  for (auto& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  std::error_code ignored;
  const auto beside =
      std::filesystem::read_symlink("/proc/self/exe", ignored).replace_filename(name);
  ::execv(beside.c_str(), arguments.data());
  if (errno == ENOENT) ::execvp(name.c_str(), arguments.data());
  if (errno == ENOENT) {
    Diagnose("--export needs lurkwell-export, which is not installed: it is a package of its own");
  } else {
    Diagnose("lurkwell-export cannot be started: %s", std::strerror(errno));
  }
  return kExitFailure;
}

int Run(const CommandLine& commandLine, int& argc, char** argv) {
  using enum CommandLine::Action;
  if (commandLine.action == kPrint && !commandLine.replay.empty())
    return PrintRecording(commandLine);
  if (commandLine.action == kPrint || commandLine.action == kRecord)
    return RunInTerminal(commandLine);
  if (commandLine.toggleOverlay) return ToggleOverlay(argc, argv);
  const char* platform = std::getenv("QT_QPA_PLATFORM");
  const bool platformIsChosen = platform != nullptr && *platform != '\0';
  if (!platformIsChosen && !IsDisplayReachable()) {
    if (!commandLine.screenshot && !commandLine.fleet.empty()) {
      Diagnose("no display to show the fleet on");
      return kExitFailure;
    }
    if (!commandLine.screenshot) {
      Diagnose(
          "no display; printing the processes. Start it in a graphical session, or "
          "with DISPLAY set, to see the window.");
      return commandLine.replay.empty() ? RunInTerminal(commandLine) : PrintRecording(commandLine);
    }
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  }
  std::optional<Replay> replay;
  int status = kExitSuccess;
  if (!commandLine.replay.empty() && !(replay = OpenReplay(commandLine, status))) return status;
  return RunOnDesktop(commandLine, argc, argv, std::move(replay));
}

}  // namespace
}  // namespace lurkwell

int main(int argc, char** argv) {
  using namespace lurkwell;
  const auto commandLine = ReadCommandLine(
      {const_cast<const char* const*>(argv), static_cast<std::size_t>(argc)}, std::cerr);
  if (!commandLine) return kExitUsage;
  if (commandLine->action == CommandLine::Action::kHelp) return Say(HelpText());
  if (commandLine->action == CommandLine::Action::kVersion)
    return Say("lurkwell " LURKWELL_VERSION "\n");
  if (commandLine->action == CommandLine::Action::kExport) return BecomeTheExporter(*commandLine);
  // The helper's end of a pipe may go at any time; writing to it then is an error, not the end.
  std::signal(SIGPIPE, SIG_IGN);
  // A file that must not grow is a failed write.
  std::signal(SIGXFSZ, SIG_IGN);
  RaiseDescriptorLimit();
  if (const auto words = KeepToOwnFolders(); !words.empty()) Diagnose("%s", words.c_str());
  return Run(*commandLine, argc, argv);
}
