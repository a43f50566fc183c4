#pragma once

#include <QStringList>
#include <QToolBar>

#include "main_window/SystemInfoImage.h"
#include "main_window/ToolbarItems.h"

namespace lurkwell {

class ToolbarGauge;
class ToolbarKeys;

/// The main window's toolbar: items by identifier, in an order that the user may change. What the
/// user makes of it is kept in the preferences: the identifiers between blanks, how they are shown,
/// and whether the toolbar is. Main thread only.
class MainToolbar final : public QToolBar {
  Q_OBJECT

 public:
  enum DisplayMode { kDefault, kIconAndLabel, kIconOnly, kLabelOnly };

  /// More than any window has room for.
  static constexpr qsizetype kMostItems = 64;

  explicit MainToolbar(QWidget* parent);

  /// Makes the items that are remembered, but for unknown ones and those that are there already, or
  /// the default ones.
  void RestoreItems();

  const QStringList& itemIdentifiers() const { return mIdentifiers; }
  /// The items' actions, in the same order.
  const QList<QAction*>& items() const { return mItems; }

  /// Makes an item; its owner is the caller.
  QAction* itemForItemIdentifier(const ToolbarItem& item);

  /// Enables the buttons that can be used.
  void Validate(const SelectionFacts& facts);

  /// Change what there is, and remember it. Items that cannot be there are left out.
  void SetItems(const QStringList& identifiers);
  /// Puts an item before the one at `place`; one that is there already moves, from place `from` if
  /// there may be several of them.
  void PutItem(const QString& identifier, int place, int from = -1);
  void RemoveItem(int place);

  DisplayMode displayMode() const { return mDisplayMode; }
  void SetDisplayMode(DisplayMode mode);
  void SetShown(bool shown);

  /// While the user arranges the items, they are dragged instead of pressed, and none is disabled.
  void SetCustomising(bool customising);

  /// Show a picture, and figures in words, in the items of an identifier.
  void ShowGauge(const char* identifier, const SystemInfoImage& image, int usedEnd,
                 const QString& figures);
  void ShowLight(const char* identifier, const char* image, const QString& figures);

 Q_SIGNALS:
  /// There are other items, or they are shown again, so that they lack pictures and validation.
  void itemsChanged();
  void shownChanged(bool shown);
  /// A button was pressed.
  void chosen(const Command& command);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QStringList RememberedItems() const;
  void Rebuild(const QStringList& identifiers);
  void WatchItems(bool watch);
  void StartDrag(int place);
  int PlaceAt(const QPoint& point) const;
  template <typename Show>
  void ForGauges(const char* identifier, Show show);

  ToolbarKeys* mKeys;
  QStringList mIdentifiers;
  QList<QAction*> mItems;
  DisplayMode mDisplayMode = kDefault;
  bool mCustomising = false;
  QPoint mPressed;
};

}  // namespace lurkwell
