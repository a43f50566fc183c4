#pragma once

#include <QString>
#include <memory>
#include <optional>

class QMimeData;

namespace lurkwell {

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
