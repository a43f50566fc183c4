#pragma once

#include <QDialog>
#include <QListWidget>

#include "main_window/ToolbarItems.h"

class QPushButton;

namespace lurkwell {

class MainToolbar;

/// A list of the toolbar's items that can be dragged, and that others can be dropped on.
class ToolbarItemList final : public QListWidget {
  Q_OBJECT

 public:
  /// Items of the list have places in the toolbar, or come from elsewhere.
  ToolbarItemList(bool isToolbar, QWidget* parent);

  void SetIdentifiers(const QStringList& identifiers);
  /// Of the current item; empty without one.
  QString CurrentIdentifier() const;

 Q_SIGNALS:
  void dropped(const ToolbarDrag& item, int place);

 protected:
  QStringList mimeTypes() const override { return {ToolbarDrag::MimeType()}; }
  QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
  bool dropMimeData(int place, const QMimeData* data, Qt::DropAction action) override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
  void startDrag(Qt::DropActions actions) override;

 private:
  bool mIsToolbar;
};

/// Lets the user arrange the toolbar: all items on the left, those of the toolbar on the right, the
/// default set below. Items are dragged, also onto the toolbar itself and off it, or moved by
/// buttons and keys. What is changed is seen in the toolbar at once. Deletes itself when closed.
/// Main thread only.
class ToolbarCustomiseDialog final : public QDialog {
  Q_OBJECT

 public:
  /// The toolbar outlives the dialog.
  ToolbarCustomiseDialog(MainToolbar& toolbar, QWidget* parent);
  ~ToolbarCustomiseDialog() override;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* MakeLists();
  QWidget* MakeDefaultSet();
  QWidget* MakeLastRow();
  QPushButton* MakeButton(const char* id, const char* name);
  void Add();
  void Remove();
  void Move(int places);
  void ShowItems();
  void ShowCurrent();

  MainToolbar& mToolbar;
  ToolbarItemList* mAvailable;
  ToolbarItemList* mCurrent;
  QWidget* mDefaultSet = nullptr;
  QPushButton* mAdd = nullptr;
  QPushButton* mRemove = nullptr;
  QPushButton* mEarlier = nullptr;
  QPushButton* mLater = nullptr;
};

}  // namespace lurkwell
