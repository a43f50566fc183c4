#pragma once

#include <QKeySequence>
#include <span>
#include <string_view>

#include "main_window/ProcessCommands.h"
#include "main_window/WindowCommands.h"
#include "windows/ApplicationCommands.h"

namespace lurkwell {

/// The one table of commands: menus, the context menu, the toolbar, its dialog, what can be chosen
/// when, and the help page's keys follow from it. Main thread.

/// The menu of the bar that has a command; kScope is one within the view's, kColumnSet one within
/// the columns'.
enum class CommandMenu {
  kApplication,
  kFile,
  kEdit,
  kView,
  kScope,
  kColumnSet,
  kProcess,
  kWindow,
  kHelp
};

/// What has to be there for a command to be chosen.
enum class Need {
  kNothing,
  kSelection,    ///< a selected row
  kKernelPid,    ///< a selected process that the kernel knows
  kApplication,  ///< a selected application
  kGoing,        ///< a selected process that can be halted
  kHalted,       ///< a selected process that is halted
  kTree,         ///< rows that stand below others
  kOwnSet,       ///< one of the user's own sets of columns is shown
  kBuiltInSet,   ///< one that came with the program is shown
};

bool IsMet(Need need, const SelectionFacts& facts);

/// What a command is carried out on.
struct CommandScope {
  ProcessCommands& processes;
  WindowCommands& window;
  ApplicationCommands& application;
};

/// A command's keys; a standard one may be another on another desktop.
struct CommandKeys {
  QKeyCombination keys{Qt::Key_unknown};
  QKeySequence::StandardKey standard = QKeySequence::UnknownKey;
  /// The key of the preferences that changes between window and overlay.
  bool isOverlayKey = false;
};

/// A command's button, for those that have one: its text is that of `text`, its tooltip that of
/// `text`_tip.
struct CommandButton {
  const char* identifier = nullptr;
  const char* text = nullptr;
  const char* picture = nullptr;
  /// Buttons are offered in this order.
  int place = 0;
  /// Besides what the command needs.
  Need alsoNeeds = Need::kNothing;
};

struct Command {
  /// Of the text in the menu; of the action's name, too. A text under `text`_help, where there is
  /// one, stands on the help page instead.
  const char* text = nullptr;
  CommandMenu menu = CommandMenu::kProcess;
  /// A line separates it from those before it.
  bool beginsGroup = false;
  /// Stands in the context menu of processes, as all of the process menu do.
  bool isInContextMenu = false;
  CommandKeys keys{};
  Need needs = Need::kNothing;
  void (*run)(const CommandScope& scope) = nullptr;
  CommandButton button{};
  /// Whether it is what holds now; null for commands that are none of several possibilities.
  bool (*isChecked)(const CommandScope& scope) = nullptr;

  bool HasButton() const { return button.identifier != nullptr; }
  /// Empty for none.
  QKeySequence Shortcut() const;
};

/// In the order of the menus.
std::span<const Command> Commands();

/// Null for a text that no command has.
const Command* FindCommand(std::string_view text);

}  // namespace lurkwell
