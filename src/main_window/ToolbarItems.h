#pragma once

#include <QStringList>
#include <string_view>

#include "main_window/MenuCommands.h"

namespace lurkwell {

class vqMainTableController;

inline constexpr char kToolbarCPU[] = "vqToolbarShowTopHeaderStuffCPU";
inline constexpr char kToolbarMemory[] = "vqToolbarShowTopHeaderStuffMemory";
inline constexpr char kToolbarPageouts[] = "vqToolbarShowTopHeaderStuffPageouts";
inline constexpr char kToolbarCustomize[] = "NSToolbarCustomizeToolbarItemIdentifier";

/// What the main window's toolbar can hold. Texts are those of `labelKey` and `labelKey`_tip,
/// pictures those of `image`.
struct ToolbarItem {
  /// Of the last three there may be any number in a toolbar, of the others one each.
  enum Kind { kGauge, kLight, kButton, kCustomize, kSeparator, kSpace, kFlexibleSpace };

  const char* identifier;
  Kind kind;
  const char* labelKey;
  const char* image;
  /// Of buttons: what it does, and what decides whether it can be used.
  MenuCommand command = MenuCommand::kOther;
  void (vqMainTableController::*action)() = nullptr;

  bool IsRepeatable() const { return kind >= kSeparator; }
};

/// Null for an identifier that no item has.
const ToolbarItem* FindToolbarItem(std::string_view identifier);
inline const ToolbarItem* FindToolbarItem(const QString& identifier) {
  return FindToolbarItem(std::string_view(identifier.toLatin1().constData()));
}

QStringList AllowedToolbarItems();
QStringList DefaultToolbarItems();

}  // namespace lurkwell
