#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <string_view>

#include "main_window/CommandTable.h"

class QMimeData;

namespace lurkwell {

inline constexpr char kToolbarCPU[] = "vqToolbarShowTopHeaderStuffCPU";
inline constexpr char kToolbarMemory[] = "vqToolbarShowTopHeaderStuffMemory";
inline constexpr char kToolbarPageouts[] = "vqToolbarShowTopHeaderStuffPageouts";

/// What the main window's toolbar can hold: the commands that have a button, and a few things of
/// its own. Texts are those of `labelKey` and `labelKey`_tip, pictures those of `image`. Main
/// thread.
struct ToolbarItem {
  /// Of the last three there may be any number in a toolbar, of the others one each.
  enum Kind { kGauge, kLight, kButton, kCustomize, kSeparator, kSpace, kFlexibleSpace };

  const char* identifier;
  Kind kind;
  const char* labelKey;
  const char* image;
  /// Items are offered in this order.
  int place;
  /// What it does, of buttons and of the item that opens the dialog; null for all others.
  const Command* command = nullptr;

  bool IsRepeatable() const { return kind >= kSeparator; }
};

/// Null for an identifier that no item has.
const ToolbarItem* FindToolbarItem(std::string_view identifier);
inline const ToolbarItem* FindToolbarItem(const QString& identifier) {
  return FindToolbarItem(std::string_view(identifier.toLatin1().constData()));
}

QStringList toolbarAllowedItemIdentifiers();
QStringList toolbarDefaultItemIdentifiers();

/// Whether a button can be used; false for what is no button of a command.
bool validateToolbarItem(std::string_view identifier, const SelectionFacts& facts);

/// An item of the toolbar on its way under the mouse, within this program alone. Main thread only.
struct ToolbarDrag {
  /// Of an item; empty for the whole default set.
  QString identifier;
  /// Its place in the toolbar, or -1 when it comes from elsewhere.
  int from = -1;

  std::unique_ptr<QMimeData> ToMime() const;
  /// Nothing when what is dragged is something else, or comes from another program.
  static std::optional<ToolbarDrag> FromMime(const QMimeData* data);
  static QString MimeType();
};

}  // namespace lurkwell
