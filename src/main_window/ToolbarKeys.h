#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QToolBar;

namespace lurkwell {

/// Makes the buttons of a toolbar reachable by keys: one of them is a stop of the Tab key, the one
/// that had the keyboard last or else the first, and from there the arrows, Home and End go on.
/// They still do not take the keyboard at a click. Belongs to its toolbar; main thread only.
class ToolbarKeys final : public QObject {
  Q_OBJECT

 public:
  explicit ToolbarKeys(QToolBar& toolbar);

  /// The toolbar has other items.
  void ItemsChanged();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// Those that can be seen and used, in their order.
  QWidgetList Items() const;
  void ChooseStop();
  bool Serve(int key, QWidget* from);

  QToolBar& mToolbar;
  QPointer<QWidget> mStop;
  bool mIsChoosing = false;
};

}  // namespace lurkwell
