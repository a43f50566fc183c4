#include "main_window/CommandTable.h"

#include <algorithm>

#include "windows/OverlayKey.h"

namespace lurkwell {
namespace {

using Menu = CommandMenu;
using Scope = const CommandScope&;

template <void (ProcessCommands::*Function)()>
void Processes(Scope scope) {
  (scope.processes.*Function)();
}

template <void (WindowCommands::*Function)()>
void Window(Scope scope) {
  (scope.window.*Function)();
}

template <void (ApplicationCommands::*Function)()>
void Application(Scope scope) {
  (scope.application.*Function)();
}

/// Moves the sort column by so many places, or makes it so many points wider.
template <int places, int points>
void SortColumn(Scope scope) {
  scope.window.changeSortColumn(places, points);
}

template <TableShape kShape>
void SetShape(Scope scope) {
  scope.window.setShape(kShape);
}
template <TableShape kShape>
bool IsShape(Scope scope) {
  return scope.window.shape() == kShape;
}
template <TableScope kScope>
void SetScope(Scope scope) {
  scope.window.setScope(kScope);
}
template <TableScope kScope>
bool IsScope(Scope scope) {
  return scope.window.scope() == kScope;
}
template <int place>
void ShowColumnSet(Scope scope) {
  scope.window.showColumnSet(place);
}
template <int place>
bool IsColumnSet(Scope scope) {
  return scope.window.shownColumnSet() == place;
}
template <bool folded>
void FoldAll(Scope scope) {
  scope.window.foldAll(folded);
}

void TogglePause(Scope scope) {
  scope.window.setPaused(!scope.window.isPaused());
}
bool IsPaused(Scope scope) {
  return scope.window.isPaused();
}
void ToggleFollowing(Scope scope) {
  scope.window.setFollowsSelection(!scope.window.followsSelection());
}
bool FollowsSelection(Scope scope) {
  return scope.window.followsSelection();
}

template <TableShape kShape>
constexpr Command ShapeCommand(const char* text, Qt::Key key, bool beginsGroup = false) {
  return {.text = text,
          .menu = Menu::kView,
          .beginsGroup = beginsGroup,
          .keys = {.keys = Qt::ALT | key},
          .run = SetShape<kShape>,
          .isChecked = IsShape<kShape>};
}
template <TableScope kScope>
constexpr Command ScopeCommand(const char* text) {
  return {
      .text = text, .menu = Menu::kScope, .run = SetScope<kScope>, .isChecked = IsScope<kScope>};
}

/// The key is the place's, counted from 1.
template <int place>
constexpr Command ColumnSetCommand(const char* text) {
  return {.text = text,
          .menu = Menu::kColumnSet,
          .keys = {.keys = Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + place)},
          .run = ShowColumnSet<place>,
          .isChecked = IsColumnSet<place>};
}

constexpr CommandKeys Keys(QKeyCombination keys) {
  return {.keys = keys};
}
constexpr CommandKeys Keys(Qt::Key key) {
  return {.keys = QKeyCombination(key)};
}
constexpr CommandKeys Standard(QKeySequence::StandardKey key) {
  return {.standard = key};
}

constexpr Command kCommands[] = {
    {.text = "menu_application_about",
     .menu = Menu::kApplication,
     .run = Application<&ApplicationCommands::doAboutPanel>},
    {.text = "menu_application_preferences",
     .menu = Menu::kApplication,
     .keys = Keys(Qt::CTRL | Qt::Key_Comma),
     .run = Window<&WindowCommands::doThePreferences>,
     .button = {"vqToolbarShowPreferences", "toolbar_prefs", "show_preferences", 80}},
    {.text = "menu_application_quit",
     .menu = Menu::kApplication,
     .beginsGroup = true,
     .keys = {.keys = Qt::CTRL | Qt::Key_Q, .standard = QKeySequence::Quit},
     .run = Application<&ApplicationCommands::doQuit>},

    {.text = "menu_file_new_cpu_history",
     .menu = Menu::kFile,
     .isInContextMenu = true,
     .keys = Keys(Qt::CTRL | Qt::Key_N),
     .needs = Need::kSelection,
     .run = Processes<&ProcessCommands::newCPUHistoryWindow>,
     .button = {"vqToolbarOpenCPUHistoryWindow", "toolbar_usage_history", "cpu_hist", 10}},
    {.text = "menu_file_new_logging",
     .menu = Menu::kFile,
     .isInContextMenu = true,
     .keys = Keys(Qt::CTRL | Qt::Key_L),
     .needs = Need::kSelection,
     .run = Processes<&ProcessCommands::newLoggingWindow>,
     .button = {"vqToolbarOpenLoggingWindow", "toolbar_log", "logging", 11}},
    {.text = "menu_file_details",
     .menu = Menu::kFile,
     .isInContextMenu = true,
     .keys = Keys(Qt::CTRL | Qt::Key_I),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::ShowDetails>},
    {.text = "menu_file_record",
     .menu = Menu::kFile,
     .beginsGroup = true,
     .run = Application<&ApplicationCommands::doRecord>,
     .isChecked = [](Scope scope) { return !scope.application.recordingStatus().isEmpty(); }},
    {.text = "menu_file_open_recording",
     .menu = Menu::kFile,
     .keys = Standard(QKeySequence::Open),
     .run = Application<&ApplicationCommands::doOpenRecording>},
    {.text = "menu_file_open_fleet",
     .menu = Menu::kFile,
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
     .run = Application<&ApplicationCommands::doOpenFleet>},
    {.text = "menu_file_close_window",
     .menu = Menu::kFile,
     .beginsGroup = true,
     .keys = Keys(Qt::CTRL | Qt::Key_W),
     .run = Window<&WindowCommands::closeWindow>},

    {.text = "menu_edit_copy",
     .menu = Menu::kEdit,
     .keys = Standard(QKeySequence::Copy),
     .needs = Need::kSelection,
     .run = Window<&WindowCommands::copySelection>},
    {.text = "menu_edit_copy_csv",
     .menu = Menu::kEdit,
     .needs = Need::kSelection,
     .run = Window<&WindowCommands::copyAsCsv>},
    {.text = "menu_edit_copy_json",
     .menu = Menu::kEdit,
     .needs = Need::kSelection,
     .run = Window<&WindowCommands::copyAsJson>},
    {.text = "menu_edit_select_all",
     .menu = Menu::kEdit,
     .keys = Standard(QKeySequence::SelectAll),
     .run = Window<&WindowCommands::selectAll>},
    {.text = "menu_edit_select_children",
     .menu = Menu::kEdit,
     .isInContextMenu = true,
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
     .needs = Need::kSelection,
     .run = Processes<&ProcessCommands::SelectChildren>,
     .button = {"vqToolbarSelectChildren", "toolbar_select_children", "select_children", 21}},
    {.text = "menu_edit_filter",
     .menu = Menu::kEdit,
     .keys = Standard(QKeySequence::Find),
     .run = Window<&WindowCommands::showFilter>},
    {.text = "menu_process_by_id",
     .menu = Menu::kEdit,
     .keys = Keys(Qt::CTRL | Qt::Key_G),
     .run = Window<&WindowCommands::findByPid>},

    {.text = "menu_view_update_now",
     .menu = Menu::kView,
     .keys = Keys(Qt::Key_F5),
     .run = Window<&WindowCommands::updateNow>},
    {.text = "menu_view_pause",
     .menu = Menu::kView,
     .keys = Keys(Qt::CTRL | Qt::Key_Space),
     .run = TogglePause,
     .isChecked = IsPaused},
    {.text = "menu_view_follow",
     .menu = Menu::kView,
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_F),
     .run = ToggleFollowing,
     .isChecked = FollowsSelection},
    {.text = "menu_view_overlay",
     .menu = Menu::kView,
     .keys = {.isOverlayKey = true},
     .run = Application<&ApplicationCommands::doToggleQuintessentialViewFullScreen>},
    ShapeCommand<TableShape::kList>("menu_view_shape_list", Qt::Key_1, true),
    ShapeCommand<TableShape::kTree>("menu_view_shape_tree", Qt::Key_2),
    ShapeCommand<TableShape::kApplications>("menu_view_shape_applications", Qt::Key_3),
    {.text = "menu_view_unfold_all",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::Key_4),
     .needs = Need::kTree,
     .run = FoldAll<false>},
    {.text = "menu_view_fold_all",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::Key_5),
     .needs = Need::kTree,
     .run = FoldAll<true>},
    ScopeCommand<TableScope::kAll>("menu_scope_all"),
    ScopeCommand<TableScope::kMine>("menu_scope_mine"),
    ScopeCommand<TableScope::kOthers>("menu_scope_others"),
    ScopeCommand<TableScope::kApplications>("menu_scope_applications"),
    ScopeCommand<TableScope::kWithoutKernel>("menu_scope_without_kernel"),
    ScopeCommand<TableScope::kBusy>("menu_scope_busy"),
    {.text = "menu_view_show_toolbar",
     .menu = Menu::kView,
     .beginsGroup = true,
     .run = Window<&WindowCommands::toggleToolbar>},
    {.text = "menu_view_customise_toolbar",
     .menu = Menu::kView,
     .run = Window<&WindowCommands::customiseToolbar>},
    {.text = "menu_view_column_left",
     .menu = Menu::kView,
     .beginsGroup = true,
     .keys = Keys(Qt::ALT | Qt::SHIFT | Qt::Key_Left),
     .run = SortColumn<-1, 0>},
    {.text = "menu_view_column_right",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::SHIFT | Qt::Key_Right),
     .run = SortColumn<1, 0>},
    {.text = "menu_view_column_wider",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::SHIFT | Qt::Key_Up),
     .run = SortColumn<0, 20>},
    {.text = "menu_view_column_narrower",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::SHIFT | Qt::Key_Down),
     .run = SortColumn<0, -20>},
    {.text = "menu_view_column_fit",
     .menu = Menu::kView,
     .keys = Keys(Qt::ALT | Qt::SHIFT | Qt::Key_Return),
     .run = Window<&WindowCommands::fitSortColumn>},

    ColumnSetCommand<0>("menu_set_standard"),
    ColumnSetCommand<1>("menu_set_cpu"),
    ColumnSetCommand<2>("menu_set_memory"),
    ColumnSetCommand<3>("menu_set_disk_network"),
    ColumnSetCommand<4>("menu_set_commands"),
    ColumnSetCommand<5>("menu_set_containers"),
    ColumnSetCommand<6>("menu_set_security"),
    {.text = "menu_set_save_as",
     .menu = Menu::kColumnSet,
     .beginsGroup = true,
     .run = Window<&WindowCommands::saveColumnSetAs>},
    {.text = "menu_set_rename",
     .menu = Menu::kColumnSet,
     .needs = Need::kOwnSet,
     .run = Window<&WindowCommands::renameColumnSet>},
    {.text = "menu_set_delete",
     .menu = Menu::kColumnSet,
     .needs = Need::kOwnSet,
     .run = Window<&WindowCommands::deleteColumnSet>},
    {.text = "menu_set_restore",
     .menu = Menu::kColumnSet,
     .needs = Need::kBuiltInSet,
     .run = Window<&WindowCommands::restoreColumnSet>},

    {.text = "menu_process_quit_or_kill",
     .keys = Keys(Qt::Key_Delete),
     .needs = Need::kSelection,
     .run = Processes<&ProcessCommands::processKillMenuItem>,
     .button = {"vqToolbarKill", "toolbar_kill", "kill", 13}},
    {.text = "menu_process_kill_with_children",
     .keys = Keys(Qt::SHIFT | Qt::Key_Delete),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::KillWithChildren>},
    {.text = "menu_process_signal",
     .keys = Keys(Qt::CTRL | Qt::Key_K),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::SendAnySignal>},
    {.text = "menu_process_halt",
     .beginsGroup = true,
     .keys = Keys(Qt::CTRL | Qt::Key_H),
     .needs = Need::kGoing,
     .run = Processes<&ProcessCommands::processHaltMenuItem>,
     .button = {"vqToolbarProcessHalt", "toolbar_halt", "processhalt", 19}},
    {.text = "menu_process_continue",
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_H),
     .needs = Need::kHalted,
     .run = Processes<&ProcessCommands::processContMenuItem>,
     // A halted application without a kernel pid can be continued from the menu alone.
     .button = {"vqToolbarProcessContinue", "toolbar_cont", "processcont", 20, Need::kKernelPid}},
    {.text = "menu_process_high_priority",
     .beginsGroup = true,
     .keys = Keys(Qt::CTRL | Qt::Key_Plus),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::processHighPriorityMenuItem>,
     .button = {"vqToolbarHighPriority", "toolbar_high", "high_priority", 16}},
    {.text = "menu_process_normal_priority",
     .keys = Keys(Qt::CTRL | Qt::Key_0),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::processNormalPriorityMenuItem>,
     .button = {"vqToolbarMediumPriority", "toolbar_medium", "medium_priority", 17}},
    {.text = "menu_process_low_priority",
     .keys = Keys(Qt::CTRL | Qt::Key_Minus),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::processLowPriorityMenuItem>,
     .button = {"vqToolbarLowPriority", "toolbar_low", "low_priority", 18}},
    {.text = "menu_process_scheduling",
     .keys = Keys(Qt::CTRL | Qt::Key_P),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::ChangeScheduling>},
    {.text = "menu_process_bring_to_front",
     .beginsGroup = true,
     .keys = Keys(Qt::CTRL | Qt::Key_B),
     .needs = Need::kApplication,
     .run = Processes<&ProcessCommands::processBringToFrontMenuItem>,
     .button = {"vqToolbarBringToFront", "toolbar_bring_to_front", "bring_to_front", 12}},
    {.text = "menu_process_hide",
     .keys = Keys(Qt::CTRL | Qt::Key_J),
     .needs = Need::kApplication,
     .run = Processes<&ProcessCommands::processHideMenuItem>,
     .button = {"vqToolbarHideProcess", "toolbar_hide_process", "hide_process", 14}},
    {.text = "menu_process_reveal",
     .keys = Keys(Qt::CTRL | Qt::Key_R),
     .needs = Need::kApplication,
     .run = Processes<&ProcessCommands::processRevealInFinderMenuItem>,
     .button = {"vqToolbarRevealInFinder", "toolbar_reveal", "reveal_in_finder", 15}},
    {.text = "menu_process_show_executable",
     .keys = Keys(Qt::CTRL | Qt::Key_E),
     .needs = Need::kKernelPid,
     .run = Processes<&ProcessCommands::ShowExecutable>},
    {.text = "menu_process_alert",
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_L),
     .needs = Need::kKernelPid,
     .run = [](Scope scope) { scope.application.doAlertAbout(scope.processes.FirstSelected()); }},
    {.text = "menu_process_search_web",
     .needs = Need::kSelection,
     .run = Processes<&ProcessCommands::SearchWeb>},

    {.text = "menu_window_show_main",
     .menu = Menu::kWindow,
     .run = Application<&ApplicationCommands::doShowMainWindow>},
    {.text = "menu_window_show_animated_view",
     .menu = Menu::kWindow,
     .run = Application<&ApplicationCommands::doShowQuintessentialView>},
    {.text = "menu_window_show_machine",
     .menu = Menu::kWindow,
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_M),
     .run = Application<&ApplicationCommands::doShowMachineWindow>},
    {.text = "menu_window_show_alerts",
     .menu = Menu::kWindow,
     .keys = Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_A),
     .run = Application<&ApplicationCommands::doShowAlerts>},
    {.text = "menu_window_remembered",
     .menu = Menu::kWindow,
     .beginsGroup = true,
     .run = Window<&WindowCommands::showRememberedWindows>},
    {.text = "menu_window_close_all",
     .menu = Menu::kWindow,
     .run = Window<&WindowCommands::closeFollowingWindows>},

    {.text = "menu_help_help",
     .menu = Menu::kHelp,
     .keys = Keys(Qt::Key_F1),
     .run = Window<&WindowCommands::showHelp>},
};

}  // namespace

bool IsMet(Need need, const SelectionFacts& facts) {
  switch (need) {
    case Need::kNothing:
      return true;
    case Need::kSelection:
      return facts.any;
    case Need::kKernelPid:
      return facts.anyPIDs;
    case Need::kApplication:
      return facts.anyPSNs;
    case Need::kGoing:
      return facts.anyGoing;
    case Need::kHalted:
      return facts.anyHalted;
    case Need::kTree:
      return facts.isTree;
    case Need::kOwnSet:
      return facts.isOwnColumnSet;
    case Need::kBuiltInSet:
      return !facts.isOwnColumnSet;
  }
  return true;
}

QKeySequence Command::Shortcut() const {
  if (keys.isOverlayKey) return OverlayKey();
  // Not every desktop has all of the standard ones.
  const QKeySequence standard(keys.standard);
  if (!standard.isEmpty()) return standard;
  return keys.keys.key() != Qt::Key_unknown ? QKeySequence(keys.keys) : QKeySequence();
}

std::span<const Command> Commands() {
  return kCommands;
}

const Command* FindCommand(std::string_view text) {
  const auto* found = std::ranges::find(
      kCommands, text, [](const Command& command) { return std::string_view(command.text); });
  return found != std::end(kCommands) ? found : nullptr;
}

}  // namespace lurkwell
