#include "platform/desktop/DesktopHotKeys.h"

#include <QGuiApplication>
#include <cctype>
#include <string>
#include <utility>

#include "platform/Diagnostics.h"
#include "platform/desktop/GlobalShortcutsPortal.h"
#include "platform/desktop/XKeyGrabs.h"

namespace lurkwell {
namespace {

constexpr std::uint32_t kFirstFunctionKey = 0xffbe;
constexpr std::uint32_t kLastFunctionKey = 0xffd1;
constexpr char kRefusedReason[] = "another program has it, or the keyboard has no such key";

/// What gives keys away for windows such as this program's: an X server that is there for others
/// would take them from its own programs.
DesktopHotKeys::Source KeysOfPlatform() {
  const QString platform = QGuiApplication::platformName();
  if (platform.startsWith(QLatin1String("wayland"))) return DesktopHotKeys::Source::kPortal;
  return platform == QLatin1String("xcb") ? DesktopHotKeys::Source::kXServer
                                          : DesktopHotKeys::Source::kNone;
}

/// As people and portals write it: "F7", "a".
std::string NameOf(std::uint32_t symbol) {
  if (symbol >= kFirstFunctionKey && symbol <= kLastFunctionKey)
    return "F" + std::to_string(symbol - kFirstFunctionKey + 1);
  switch (symbol) {
    case ' ':
      return "space";
    case 0xff0d:
      return "Return";
    case 0xff09:
      return "Tab";
    case 0xff1b:
      return "Escape";
    default:
      return {static_cast<char>(symbol)};
  }
}

std::string ServerNameOf(std::uint32_t symbol, bool withSuper) {
  return (withSuper ? "Super+" : "") + NameOf(symbol);
}

}  // namespace

void DesktopHotKeys::Complain(const std::string& key, const std::string& reason,
                              HotKeyStanding standing, bool isPlain) {
  Diagnose("no hot key %s: %s", key.c_str(), reason.c_str());
  if (isPlain) mState = {standing, {}};
}

DesktopHotKeys::DesktopHotKeys(DesktopSettings settings)
    : DesktopHotKeys(std::move(settings), KeysOfPlatform()) {}

DesktopHotKeys::DesktopHotKeys(DesktopSettings settings, Source source)
    : mSettings(std::move(settings)), mSource(source) {}

DesktopHotKeys::~DesktopHotKeys() = default;

bool DesktopHotKeys::RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                                         std::function<void()> pressed) {
  const auto symbol = KeySymbolOf(virtualKeyCode);
  const bool isKnown = modifiers == kNoModifiers || modifiers == kCommandModifier;
  if (!symbol || !isKnown) {
    Complain("number " + std::to_string(virtualKeyCode), "no such key is known",
             HotKeyStanding::kTaken);
    return false;
  }
  const bool withSuper = modifiers == kCommandModifier;
  switch (mSource) {
    case Source::kXServer:
      return TakeFromServer(*symbol, withSuper, std::move(pressed));
    case Source::kPortal:
      return AskPortal(*symbol, withSuper, std::move(pressed));
    case Source::kNone:
      break;
  }
  Complain(ServerNameOf(*symbol, withSuper), "the windows are on no desktop that gives keys",
           HotKeyStanding::kNoWay);
  return false;
}

std::string DesktopHotKeys::KeyName(std::uint32_t virtualKeyCode) const {
  const auto symbol = KeySymbolOf(virtualKeyCode);
  if (!symbol) return {};
  std::string name = NameOf(*symbol);
  name.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
  return name;
}

bool DesktopHotKeys::TakeFromServer(std::uint32_t symbol, bool withSuper,
                                    std::function<void()> pressed) {
  const std::string name = ServerNameOf(symbol, withSuper);
  if (mSettings.display.empty()) {
    Complain(name, "there is no X server", HotKeyStanding::kNoWay);
    return false;
  }
  if (mGrabs == nullptr)
    mGrabs =
        std::make_unique<XKeyGrabs>(mSettings.display, mSettings.retryInterval,
                                    [this](std::uint32_t refused, bool refusedSuper) {
                                      Complain(ServerNameOf(refused, refusedSuper), kRefusedReason,
                                               HotKeyStanding::kTaken, !refusedSuper);
                                    });
  const auto outcome = mGrabs->Add(symbol, withSuper, std::move(pressed));
  if (outcome == XKeyGrabs::Outcome::kTaken && !withSuper) mState = {HotKeyStanding::kGiven, {}};
  if (outcome == XKeyGrabs::Outcome::kRefused)
    Complain(name, kRefusedReason, HotKeyStanding::kTaken, !withSuper);
  if (outcome == XKeyGrabs::Outcome::kNoServer)
    Complain(name, "the X server does not answer; it is asked again later",
             HotKeyStanding::kAwaited, !withSuper);
  return outcome == XKeyGrabs::Outcome::kTaken;
}

bool DesktopHotKeys::AskPortal(std::uint32_t symbol, bool withSuper,
                               std::function<void()> pressed) {
  const std::string name = (withSuper ? "LOGO+" : "") + NameOf(symbol);
  if (mPortal == nullptr)
    mPortal = std::make_unique<GlobalShortcutsPortal>(
        mSettings.sessionBusAddress, [this](HotKeyStanding standing, const QString& reason,
                                            const QMap<QString, QString>& triggers) {
          if (standing != HotKeyStanding::kGiven)
            return Complain("through the desktop's portal", reason.toStdString(), standing);
          mState = {standing, triggers.value(mPortalId).toStdString()};
        });
  const QString trigger = QString::fromStdString(name);
  const QString id = QStringLiteral("overlay-") + trigger.toLower().replace('+', '-');
  if (!mPortal->Add(id, trigger, std::move(pressed))) {
    Complain(name, "there is no session bus", HotKeyStanding::kNoWay);
    return false;
  }
  if (!withSuper) {
    mPortalId = id;
    mState = {HotKeyStanding::kAwaited, {}};
  }
  return true;
}

}  // namespace lurkwell
