#include "platform/desktop/DisplayAccess.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QMessageLogContext>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/Diagnostics.h"

namespace lurkwell {
namespace {

/// What the toolkit chooses a display by.
constexpr const char* kDisplayVariables[] = {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"};

constexpr char kKeepsPlaces[] = "QT_WAYLAND_DISABLE_FIXED_POSITIONS";

char** gArguments = nullptr;
QtMessageHandler gOtherHandler = nullptr;
/// Said before it is known whether they matter.
std::vector<std::pair<QtMsgType, QString>> gHeldBack;

std::string EnvironmentText(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

bool AnswersAt(const std::string& path) {
  sockaddr_un address{};
  if (path.size() >= sizeof address.sun_path) return false;
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  // A compositor that is busy has a queue; one whose queue is full is no use either.
  const int file = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (file < 0) return false;
  const bool answers =
      ::connect(file, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(file);
  return answers;
}

bool IsCompositorReachable() {
  // One that was handed over already has no address.
  if (!EnvironmentText("WAYLAND_SOCKET").empty()) return true;
  const auto name = EnvironmentText("WAYLAND_DISPLAY");
  if (name.empty()) return false;
  return AnswersAt(name.front() == '/' ? name : EnvironmentText("XDG_RUNTIME_DIR") + '/' + name);
}

bool IsXServerReachable() {
  if (EnvironmentText("DISPLAY").empty()) return false;
  auto* connection = ::xcb_connect(nullptr, nullptr);
  const bool reachable = ::xcb_connection_has_error(connection) == 0;
  ::xcb_disconnect(connection);
  return reachable;
}

/// The toolkit's part for Wayland is a package of its own, which other programs may not have
/// wanted.
bool CanSpeakWayland() {
  const auto folders =
      QCoreApplication::libraryPaths() + QStringList(QLibraryInfo::path(QLibraryInfo::PluginsPath));
  return std::ranges::any_of(folders, [](const QString& folder) {
    const QDir plugins(folder + QStringLiteral("/platforms"));
    return !plugins.entryList({QStringLiteral("libqwayland*")}).isEmpty();
  });
}

void SayHeldBack(const QMessageLogContext& context) {
  for (const auto& [type, text] : std::exchange(gHeldBack, {}))
    if (gOtherHandler != nullptr) gOtherHandler(type, context, text);
}

void StartAgainOnFailure(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) {
    gHeldBack.emplace_back(type, text);
    return;
  }
  if (IsCompositorReachable() && !CanSpeakWayland())
    Diagnose(
        "this desktop speaks Wayland, and what Qt needs for that is not installed: it is in "
        "the package qt6-wayland");
  // Pictures are drawn by this one where there is no display; there is nothing below it.
  bool hadAny = false;
  const bool isLast = EnvironmentText("QT_QPA_PLATFORM") == "offscreen";
  for (const char* name : kDisplayVariables) {
    hadAny = hadAny || !EnvironmentText(name).empty();
    ::unsetenv(name);
  }
  if (hadAny && !isLast) ::execv("/proc/self/exe", gArguments);
  SayHeldBack(context);
  if (gOtherHandler != nullptr) gOtherHandler(type, context, text);
}

}  // namespace

bool IsDisplayReachable() {
  return IsCompositorReachable() || IsXServerReachable();
}

PlacesAreKept::PlacesAreKept() : mIsOurs(EnvironmentText(kKeepsPlaces).empty()) {
  if (mIsOurs) ::setenv(kKeepsPlaces, "1", 1);
}

PlacesAreKept::~PlacesAreKept() {
  // Not for programs that this one starts.
  if (mIsOurs) ::unsetenv(kKeepsPlaces);
}

WithoutDisplayInstead::WithoutDisplayInstead(char** argv) {
  gArguments = argv;
  gOtherHandler = qInstallMessageHandler(&StartAgainOnFailure);
}

WithoutDisplayInstead::~WithoutDisplayInstead() {
  qInstallMessageHandler(gOtherHandler);
  SayHeldBack({});
}

}  // namespace lurkwell
