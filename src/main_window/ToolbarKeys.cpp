#include "main_window/ToolbarKeys.h"

#include <QKeyEvent>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace lurkwell {

ToolbarKeys::ToolbarKeys(QToolBar& toolbar) : QObject(&toolbar), mToolbar(toolbar) {}

void ToolbarKeys::ItemsChanged() {
  for (auto* button : mToolbar.findChildren<QToolButton*>()) {
    button->removeEventFilter(this);
    button->installEventFilter(this);
  }
  ChooseStop();
}

QWidgetList ToolbarKeys::Items() const {
  QWidgetList items;
  for (auto* button : mToolbar.findChildren<QToolButton*>())
    if (button->isVisibleTo(&mToolbar) && button->isEnabled() && !button->size().isEmpty())
      items.append(button);
  const bool isMirrored = mToolbar.isRightToLeft();
  std::ranges::sort(items, [isMirrored](const QWidget* one, const QWidget* other) {
    return isMirrored ? one->x() > other->x() : one->x() < other->x();
  });
  return items;
}

void ToolbarKeys::ChooseStop() {
  const auto items = Items();
  auto* stop = items.contains(mStop) ? mStop.data() : items.value(0);
  for (auto* button : mToolbar.findChildren<QToolButton*>())
    button->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
  mStop = stop;
}

bool ToolbarKeys::Serve(int key, QWidget* from) {
  const auto items = Items();
  if (items.isEmpty()) return false;
  if (mToolbar.isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
    key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
  auto place = items.indexOf(from);
  switch (key) {
    case Qt::Key_Left:
      place -= 1;
      break;
    case Qt::Key_Right:
      place += 1;
      break;
    case Qt::Key_Home:
      place = 0;
      break;
    case Qt::Key_End:
      place = items.size() - 1;
      break;
    default:
      return false;
  }
  items[std::clamp<qsizetype>(place, 0, items.size() - 1)]->setFocus(Qt::TabFocusReason);
  return true;
}

bool ToolbarKeys::eventFilter(QObject* object, QEvent* event) {
  auto* button = qobject_cast<QWidget*>(object);
  if (button == nullptr) return false;
  switch (event->type()) {
    case QEvent::KeyPress:
      return Serve(static_cast<QKeyEvent*>(event)->key(), button);
    case QEvent::FocusIn:
      mStop = button;
      [[fallthrough]];
    case QEvent::EnabledChange:
    case QEvent::Show:
    case QEvent::Hide:
      // Several of them change at a time, and each leaves before it has changed.
      if (!std::exchange(mIsChoosing, true))
        QTimer::singleShot(0, this, [this] {
          mIsChoosing = false;
          ChooseStop();
        });
      return false;
    default:
      return false;
  }
}

}  // namespace lurkwell
