#include "main_window/ToolbarItems.h"

#include <algorithm>
#include <iterator>

#include "main_window/vqMainTableController.h"

namespace lurkwell {
namespace {

using Controller = vqMainTableController;
using Command = MenuCommand;
using Item = ToolbarItem;

constexpr char kHistory[] = "vqToolbarOpenCPUHistoryWindow";
constexpr char kLogging[] = "vqToolbarOpenLoggingWindow";
constexpr char kPreferences[] = "vqToolbarShowPreferences";

/// In the order of the palette.
constexpr Item kItems[] = {
    {kToolbarCPU, Item::kGauge, "toolbar_system_cpu", "headercpu"},
    {kToolbarMemory, Item::kGauge, "toolbar_system_ram", "headermemory"},
    {kToolbarPageouts, Item::kLight, "toolbar_vm_thrashing", "vm_green"},
    {kHistory, Item::kButton, "toolbar_usage_history", "cpu_hist", Command::kNewCPUHistoryWindow,
     &Controller::newCPUHistoryWindow},
    {kLogging, Item::kButton, "toolbar_log", "logging", Command::kNewLoggingWindow,
     &Controller::newLoggingWindow},
    {"vqToolbarBringToFront", Item::kButton, "toolbar_bring_to_front", "bring_to_front",
     Command::kBringToFront, &Controller::processBringToFrontMenuItem},
    {"vqToolbarKill", Item::kButton, "toolbar_kill", "kill", Command::kKill,
     &Controller::processKillMenuItem},
    {"vqToolbarHideProcess", Item::kButton, "toolbar_hide_process", "hide_process", Command::kHide,
     &Controller::processHideMenuItem},
    {"vqToolbarRevealInFinder", Item::kButton, "toolbar_reveal", "reveal_in_finder",
     Command::kReveal, &Controller::processRevealInFinderMenuItem},
    {"vqToolbarHighPriority", Item::kButton, "toolbar_high", "high_priority",
     Command::kHighPriority, &Controller::processHighPriorityMenuItem},
    {"vqToolbarMediumPriority", Item::kButton, "toolbar_medium", "medium_priority",
     Command::kNormalPriority, &Controller::processNormalPriorityMenuItem},
    {"vqToolbarLowPriority", Item::kButton, "toolbar_low", "low_priority", Command::kLowPriority,
     &Controller::processLowPriorityMenuItem},
    {"vqToolbarProcessHalt", Item::kButton, "toolbar_halt", "processhalt", Command::kHalt,
     &Controller::processHaltMenuItem},
    {"vqToolbarProcessContinue", Item::kButton, "toolbar_cont", "processcont", Command::kContinue,
     &Controller::processContMenuItem},
    {kPreferences, Item::kButton, "toolbar_prefs", "show_preferences", Command::kOther,
     &Controller::doThePreferences},
    {"NSToolbarSeparatorItemIdentifier", Item::kSeparator, "toolbar_separator",
     "toolbar_separator"},
    {"NSToolbarSpaceItemIdentifier", Item::kSpace, "toolbar_space", "toolbar_space"},
    {"NSToolbarFlexibleSpaceItemIdentifier", Item::kFlexibleSpace, "toolbar_flexible_space",
     "toolbar_flexible_space"},
    {kToolbarCustomize, Item::kCustomize, "toolbar_customise", "customise"},
};

}  // namespace

const ToolbarItem* FindToolbarItem(std::string_view identifier) {
  const auto* item = std::ranges::find(kItems, identifier, [](const Item& candidate) {
    return std::string_view(candidate.identifier);
  });
  return item != std::end(kItems) ? item : nullptr;
}

QStringList AllowedToolbarItems() {
  QStringList identifiers;
  for (const auto& item : kItems) identifiers.append(QLatin1String(item.identifier));
  return identifiers;
}

QStringList DefaultToolbarItems() {
  return {QLatin1String(kToolbarCPU),      QLatin1String(kToolbarMemory),
          QLatin1String(kToolbarPageouts), QLatin1String(kHistory),
          QLatin1String(kLogging),         QLatin1String(kPreferences),
          QLatin1String(kToolbarCustomize)};
}

}  // namespace lurkwell
