#pragma once

#include <QList>
#include <QMenu>
#include <vector>

class QLineEdit;
class QWidgetAction;

namespace lurkwell {

/// A menu of very many items: in submenus, one a group, and with a field on top that takes what is
/// typed and puts the items with that text in their place. Main thread.
class FilterMenu : public QMenu {
  Q_OBJECT

 public:
  explicit FilterMenu(QWidget* parent = nullptr);

  /// Puts an item, which the menu owns, into the group, in the order of the calls. Groups stand in
  /// the order of their numbers; `title` counts when the group is new. An item is found by its
  /// text, its tooltip, and `words`.
  QAction* AddItem(std::size_t group, const QString& title, const QString& text,
                   const QString& words);

  /// All items, in all groups.
  const QList<QAction*>& Items() const { return mItems; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Group {
    std::size_t number;
    QMenu* menu;
  };

  QMenu* GroupMenu(std::size_t number, const QString& title);
  QList<QAction*> Matches(const QString& text) const;
  void ShowMatches(const QString& text);

  QLineEdit* mField;
  QWidgetAction* mFieldAction;
  /// In the order of their numbers.
  std::vector<Group> mGroups;
  QList<QAction*> mItems;
  /// What stands in the menu because of the field.
  QList<QAction*> mShown;
  QAction* mRemark;
};

}  // namespace lurkwell
