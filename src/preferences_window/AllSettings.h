#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimer>

#include "preferences_window/SettingsModel.h"
#include "windows/WindowFrame.h"

namespace lurkwell {

/// The cell of a setting's name: its title, and small below it the key that the file has it under.
/// Main thread.
class SettingTitleCell final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;

  /// Points, for a view with that font.
  static int HeightOfRow(const QFont& font);
  /// What a title and its key need in width.
  static int WidthOf(const QFont& font, const QModelIndex& index);
};

/// A window with every setting there is, for those that have no control of their own. There is one
/// at most per preferences window, which it closes with. Main thread only.
class AllSettings final : public ControlledWindow {
  Q_OBJECT

 public:
  static constexpr char kFormPath[] = ":/forms/AllSettings.ui";

  /// Opens the window over `parent`, which owns it, or brings the one that is there to the front.
  /// Null when its form cannot be loaded, which is said on standard error.
  static AllSettings* ShowOver(QWidget& parent);

  QTableView& table() { return *fTable; }

 Q_SIGNALS:
  /// A setting was changed here.
  void changed();

 private:
  explicit AllSettings(QWidget& parent);

  bool loadInterface();
  void setUpTable();
  void setColumnWidths();
  QList<int> selectedRows() const;
  void selectionHasChanged();
  void resetSelection();

  SettingsModel* fModel;
  QSortFilterProxyModel* fProxy;
  QTableView* fTable = nullptr;
  QLineEdit* fFilter = nullptr;
  QLabel* fNote = nullptr;
  QPushButton* fReset = nullptr;
  QTimer fRefreshTimer;
};

}  // namespace lurkwell
