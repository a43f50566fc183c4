#include "platform/desktop/DesktopHotKeys.h"

#include <QGuiApplication>
#include <cstdio>
#include <string>
#include <utility>

#include "platform/desktop/GlobalShortcutsPortal.h"
#include "platform/desktop/KeyCodes.h"
#include "platform/desktop/XKeyGrabs.h"

namespace lurkwell {
namespace {

constexpr std::uint32_t kF1Symbol = 0xffbe;
constexpr std::uint32_t kF20Symbol = 0xffd1;

bool IsOnWayland() {
  return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// As people and portals write it: "F7", "a".
std::string NameOf(std::uint32_t symbol) {
  if (symbol >= kF1Symbol && symbol <= kF20Symbol)
    return "F" + std::to_string(symbol - kF1Symbol + 1);
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

void Complain(const std::string& key, const std::string& reason) {
  std::fprintf(stderr, "lurkwell: no hot key %s: %s\n", key.c_str(), reason.c_str());
}

}  // namespace

DesktopHotKeys::DesktopHotKeys(DesktopSettings settings)
    : DesktopHotKeys(std::move(settings), IsOnWayland() ? Source::kPortal : Source::kXServer) {}

DesktopHotKeys::DesktopHotKeys(DesktopSettings settings, Source source)
    : mSettings(std::move(settings)), mSource(source) {}

DesktopHotKeys::~DesktopHotKeys() = default;

bool DesktopHotKeys::RegisterEventHotKey(std::uint32_t virtualKeyCode, std::uint32_t modifiers,
                                         std::function<void()> pressed) {
  const auto symbol = KeySymbolOf(virtualKeyCode);
  const bool isKnown = modifiers == kNoModifiers || modifiers == kCommandModifier;
  if (!symbol || !isKnown) {
    Complain("number " + std::to_string(virtualKeyCode), "no such key is known");
    return false;
  }
  const bool withSuper = modifiers == kCommandModifier;
  return mSource == Source::kPortal ? AskPortal(*symbol, withSuper, std::move(pressed))
                                    : TakeFromServer(*symbol, withSuper, std::move(pressed));
}

bool DesktopHotKeys::TakeFromServer(std::uint32_t symbol, bool withSuper,
                                    std::function<void()> pressed) {
  const std::string name = (withSuper ? "Super+" : "") + NameOf(symbol);
  if (!std::exchange(mHasTriedServer, true) && !mSettings.display.empty())
    mGrabs = XKeyGrabs::Open(mSettings.display);
  if (mGrabs == nullptr) {
    Complain(name, "there is no X server");
    return false;
  }
  if (mGrabs->Add(symbol, withSuper, std::move(pressed))) return true;
  Complain(name, "another program has it, or the keyboard has no such key");
  return false;
}

bool DesktopHotKeys::AskPortal(std::uint32_t symbol, bool withSuper,
                               std::function<void()> pressed) {
  const std::string name = (withSuper ? "LOGO+" : "") + NameOf(symbol);
  if (mPortal == nullptr)
    mPortal = std::make_unique<GlobalShortcutsPortal>(
        mSettings.sessionBusAddress, [](const QString& reason) {
          Complain("through the desktop's portal", reason.toStdString());
        });
  const QString trigger = QString::fromStdString(name);
  const QString id = QStringLiteral("overlay-") + trigger.toLower().replace('+', '-');
  if (mPortal->Add(id, trigger, std::move(pressed))) return true;
  Complain(name, "there is no session bus");
  return false;
}

}  // namespace lurkwell
