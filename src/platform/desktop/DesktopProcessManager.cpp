#include "platform/desktop/DesktopProcessManager.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "platform/desktop/ApplicationScopes.h"
#include "platform/desktop/DesktopEntries.h"
#include "platform/desktop/FileManager.h"
#include "platform/desktop/KnownApplications.h"
#include "platform/desktop/ProcFolder.h"
#include "platform/desktop/WindowActions.h"
#include "platform/desktop/WindowList.h"

namespace lurkwell {
namespace {

FourCharCode SignatureFrom(const std::string& text) {
  FourCharCode code = {' ', ' ', ' ', ' '};
  for (std::size_t i = 0; i < code.size() && i < text.size(); ++i) {
    code[i] = text[i] >= ' ' && text[i] <= '~' ? text[i] : '?';
  }
  return code;
}

/// Changes with every window and every icon.
std::uint64_t IconRevision(const std::vector<const DesktopWindow*>& windows) {
  std::uint64_t revision = 0;
  for (const auto* window : windows) {
    revision = revision * 1099511628211U + window->id * 31ULL + window->iconChanges;
  }
  return revision;
}

}  // namespace

/// All there is, and how it is brought up to date.
class DesktopProcessManager::Desktop {
 public:
  explicit Desktop(DesktopSettings settings)
      : mProcesses(settings.procFolder),
        mEntries(std::move(settings.applicationFolders), settings.locale, settings.entriesInterval),
        mFileManager(std::move(settings.sessionBusAddress)) {
    if (!settings.display.empty()) {
      mX.emplace(settings.display, settings.hostName, settings.retryInterval);
    }
    if (settings.usesScopes) mScopes.emplace(mProcesses, settings.user);
  }

  void Refresh();
  KnownApplications& Applications() {
    if (!mHasLooked) Refresh();
    return mApplications;
  }
  /// For actions, which must not hit another process: null also when it has just ended.
  KnownApplication* FindRunning(ProcessSerialNumber psn);

  XConnection* Connection() const { return mX ? mX->Connection() : nullptr; }
  const WindowList* Windows() const { return mX ? mX->Windows() : nullptr; }
  bool Show(const KnownApplication& application);
  FileManager& Files() { return mFileManager; }

 private:
  using WindowsByProcess = std::unordered_map<std::int32_t, std::vector<const DesktopWindow*>>;

  void TakeWindows();
  void TakeWindowsOf(std::int32_t pid, const std::vector<const DesktopWindow*>& windows);
  void TakeScopes();
  void Describe(KnownApplication& application) const;
  DesktopEntries::Entry EntryOf(const KnownApplication& application) const;

  ProcFolder mProcesses;
  DesktopEntries mEntries;
  FileManager mFileManager;
  std::optional<XSession> mX;
  std::optional<ApplicationScopes> mScopes;
  KnownApplications mApplications;
  bool mHasLooked = false;
  /// A window's process could not be looked at.
  bool mTakesWindowsAgain = false;
};

void DesktopProcessManager::Desktop::Refresh() {
  mHasLooked = true;
  mApplications.DropEnded(mProcesses);
  const bool newEntries = mEntries.Refresh();
  if (mX && (mX->Refresh() || mTakesWindowsAgain)) TakeWindows();
  if (mScopes) TakeScopes();
  if (!newEntries) return;
  for (const auto& known : mApplications.All()) Describe(*known);
}

void DesktopProcessManager::Desktop::TakeWindows() {
  mTakesWindowsAgain = false;
  for (const auto& known : mApplications.All()) {
    known->windows.clear();
    known->iconified.clear();
  }
  if (Windows() == nullptr) return;
  WindowsByProcess byProcess;
  std::vector<std::int32_t> order;
  for (const auto* window : Windows()->All()) {
    if (window->pid <= 0 || !window->isOwnKind) continue;
    auto& windows = byProcess[window->pid];
    if (windows.empty()) order.push_back(window->pid);
    windows.push_back(window);
  }
  for (const std::int32_t pid : order) TakeWindowsOf(pid, byProcess[pid]);
}

void DesktopProcessManager::Desktop::TakeWindowsOf(
    std::int32_t pid, const std::vector<const DesktopWindow*>& windows) {
  auto* known = mApplications.FindPid(pid);
  const bool isNew = known == nullptr;
  const auto first = std::ranges::find_if(windows, [](auto* w) { return w->isOrdinary; });
  if (isNew) {
    if (first == windows.end()) return;
    const auto process = mProcesses.Identify(pid);
    mTakesWindowsAgain = mTakesWindowsAgain || !process;
    if (!process) return;
    known = &mApplications.Add(*process, mProcesses);
  }
  for (const auto* window : windows) {
    known->windows.push_back(window->id);
    if (window->isIconified) known->iconified.push_back(window->id);
  }
  std::erase_if(known->hidden, [&](xcb_window_t hidden) {
    return std::ranges::find(known->windows, hidden) == known->windows.end();
  });
  known->iconRevision = IconRevision(windows);
  if (first == windows.end()) return;
  const auto& window = **first;
  if (!isNew && std::tie(known->windowClass, known->instance, known->title) ==
                    std::tie(window.windowClass, window.instance, window.title)) {
    return;
  }
  known->windowClass = window.windowClass;
  known->instance = window.instance;
  known->title = window.title;
  Describe(*known);
}

/// A group one of whose processes has windows is not counted twice.
void DesktopProcessManager::Desktop::TakeScopes() {
  const auto& present = mScopes->Refresh();
  std::unordered_set<std::string> taken;
  for (const auto& known : mApplications.All()) {
    taken.insert(mScopes->PathOfScope(known->process.pid));
  }
  for (const auto& found : present) {
    if (taken.contains(found.scope.path) || mApplications.FindPid(found.process.pid) != nullptr)
      continue;
    if (!mProcesses.IsThere(found.process)) {
      mScopes->NoteEnd(found.process.pid);
      continue;
    }
    auto& added = mApplications.Add(found.process, mProcesses);
    added.scopeEntryId = found.scope.entryId;
    Describe(added);
  }
}

DesktopEntries::Entry DesktopProcessManager::Desktop::EntryOf(
    const KnownApplication& application) const {
  const auto pid = application.process.pid;
  if (auto entry = mEntries.WithId(application.scopeEntryId)) return entry;
  std::string program = mProcesses.Executable(pid);
  program = program.empty() ? mProcesses.CommandName(pid) : program.substr(program.rfind('/') + 1);
  return mEntries.Match(application.windowClass, application.instance, program);
}

void DesktopProcessManager::Desktop::Describe(KnownApplication& application) const {
  application.entry = EntryOf(application);
  auto& information = application.information;
  std::string id = application.entry ? application.entry->id : application.windowClass;
  std::string name = application.entry ? application.entry->name : application.windowClass;
  if (id.empty()) id = application.scopeEntryId;
  if (name.empty()) name = application.title;
  if (name.empty()) name = mProcesses.CommandName(application.process.pid);
  if (id.empty()) id = name;
  // What could not be read any more does not replace what was known.
  if (!name.empty()) information.name = std::move(name);
  const bool isFileManager = application.entry && application.entry->fileManager;
  information.type = SignatureFrom(isFileManager ? "FNDR" : "APPL");
  information.signature = SignatureFrom(isFileManager ? "MACS" : id);
}

KnownApplication* DesktopProcessManager::Desktop::FindRunning(ProcessSerialNumber psn) {
  auto* known = Applications().Find(psn);
  return known != nullptr && mProcesses.IsThere(known->process) ? known : nullptr;
}

bool DesktopProcessManager::Desktop::Show(const KnownApplication& application) {
  return mFileManager.Show(application.entry ? application.entry->path
                                             : mProcesses.Executable(application.process.pid));
}

DesktopProcessManager::DesktopProcessManager(DesktopSettings settings)
    : mDesktop(std::make_unique<Desktop>(std::move(settings))) {}

DesktopProcessManager::~DesktopProcessManager() = default;

std::optional<ProcessSerialNumber> DesktopProcessManager::GetNextProcess(
    ProcessSerialNumber previous) {
  if (previous.IsNone()) mDesktop->Refresh();
  const auto* next = mDesktop->Applications().After(previous);
  if (next == nullptr) return {};
  return next->psn;
}

std::optional<ApplicationInformation> DesktopProcessManager::GetProcessInformation(
    ProcessSerialNumber psn) {
  const auto* known = mDesktop->Applications().Find(psn);
  if (known == nullptr) return {};
  return known->information;
}

std::optional<std::int32_t> DesktopProcessManager::GetProcessPID(ProcessSerialNumber psn) {
  const auto* known = mDesktop->Applications().Find(psn);
  if (known == nullptr) return {};
  return known->process.pid;
}

std::optional<ProcessSerialNumber> DesktopProcessManager::GetProcessForPID(std::int32_t pid) {
  const auto* known = mDesktop->Applications().FindPid(pid);
  if (known == nullptr || mDesktop->FindRunning(known->psn) == nullptr) return {};
  return known->psn;
}

bool DesktopProcessManager::Quit(ProcessSerialNumber psn) {
  const auto* known = mDesktop->FindRunning(psn);
  auto* connection = mDesktop->Connection();
  if (known == nullptr || connection == nullptr) return false;
  return CloseWindows(*connection, *mDesktop->Windows(), known->windows);
}

bool DesktopProcessManager::CanQuit(ProcessSerialNumber psn) {
  const auto* known = mDesktop->FindRunning(psn);
  return known != nullptr && mDesktop->Connection() != nullptr && !known->windows.empty();
}

/// What was iconified by the user stays so, unless nothing else is there to be shown.
bool DesktopProcessManager::ShowHideProcess(ProcessSerialNumber psn, bool show) {
  auto* known = mDesktop->FindRunning(psn);
  auto* connection = mDesktop->Connection();
  if (known == nullptr || connection == nullptr) return false;
  if (show) {
    const auto hidden = std::exchange(known->hidden, {});
    return RestoreWindows(*connection, *mDesktop->Windows(),
                          hidden.empty() ? known->iconified : hidden) ||
           !known->windows.empty();
  }
  for (const xcb_window_t window : known->windows) {
    const auto isIn = [&](const auto& list) { return std::ranges::count(list, window) > 0; };
    if (!isIn(known->iconified) && !isIn(known->hidden)) known->hidden.push_back(window);
  }
  return IconifyWindows(*connection, known->windows);
}

bool DesktopProcessManager::SetFrontProcess(ProcessSerialNumber psn) {
  auto* known = mDesktop->FindRunning(psn);
  auto* connection = mDesktop->Connection();
  if (known == nullptr || connection == nullptr) return false;
  // If all its windows were hidden, all of them are wanted back.
  if (!known->hidden.empty()) ShowHideProcess(psn, true);
  return RaiseWindows(*connection, *mDesktop->Windows(), known->windows);
}

bool DesktopProcessManager::Reveal(ProcessSerialNumber psn) {
  const auto* known = mDesktop->FindRunning(psn);
  return known != nullptr && mDesktop->Show(*known);
}

void DesktopProcessManager::WhenRevealFails(std::function<void(const std::string& file)> tell) {
  mDesktop->Files().WhenShowingFails(std::move(tell));
}

void DesktopProcessManager::ShowFile(const std::string& path, std::function<void()> failed) {
  mDesktop->Files().ShowFileOrFolder(path, std::move(failed));
}

void DesktopProcessManager::ShowAddress(const std::string& url, std::function<void()> failed) {
  OpenByTheDesktop(QString::fromStdString(url), failed);
}

std::optional<DesktopProcessManager::IconSource> DesktopProcessManager::IconSourceOf(
    ProcessSerialNumber psn) {
  const auto* known = mDesktop->Applications().Find(psn);
  if (known == nullptr) return {};
  return IconSource{known->entry ? known->entry->icon : std::string(), known->iconRevision};
}

std::vector<std::uint32_t> DesktopProcessManager::WindowIconsOf(ProcessSerialNumber psn) {
  const auto* known = mDesktop->Applications().Find(psn);
  auto* connection = mDesktop->Connection();
  if (known == nullptr || connection == nullptr) return {};
  return ReadWindowIcons(*connection, known->windows);
}

}  // namespace lurkwell
