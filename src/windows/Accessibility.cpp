#include "windows/Accessibility.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QWidget>
#include <QWindow>

#include "platform/Clock.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"

namespace lurkwell {
namespace {

class AccessibleFigures final : public QAccessibleWidget {
 public:
  AccessibleFigures(QWidget* widget, const FigureSpeaker& speaker)
      : QAccessibleWidget(widget, QAccessible::Chart), mSpeaker(speaker) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? mSpeaker.SpokenFigures()
                                            : QAccessibleWidget::text(kind);
  }

 private:
  /// The widget itself, which this is gone before.
  const FigureSpeaker& mSpeaker;
};

/// A plain window, which the toolkit takes for a part without meaning.
class AccessibleFrame final : public QAccessibleWidget {
 public:
  explicit AccessibleFrame(QWidget* window) : QAccessibleWidget(window, QAccessible::Window) {}
};

/// A window without widgets, all of which is a picture.
class AccessiblePicture final : public QAccessibleObject {
 public:
  AccessiblePicture(QWindow* window, const FigureSpeaker& speaker)
      : QAccessibleObject(window), mSpeaker(speaker) {}

  QWindow* window() const override { return static_cast<QWindow*>(object()); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(qApp);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Window; }
  QRect rect() const override { return window()->geometry(); }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return window()->title();
    return kind == QAccessible::Description ? mSpeaker.SpokenFigures() : QString();
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.active = window()->isActive();
    state.focused = state.active;
    state.focusable = true;
    state.invisible = !window()->isVisible();
    return state;
  }

 private:
  const FigureSpeaker& mSpeaker;
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  const auto* picture = dynamic_cast<const FigureSpeaker*>(object);
  auto* window = qobject_cast<QWindow*>(object);
  if (window != nullptr && picture != nullptr) return new AccessiblePicture(window, *picture);
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  if (auto* maker = dynamic_cast<InterfaceMaker*>(widget)) return maker->MakeInterface();
  const auto type = widget->windowType();
  const bool isFrame = className == QLatin1String("QWidget") && widget->isWindow() &&
                       (type == Qt::Window || type == Qt::Dialog || type == Qt::Tool);
  if (picture == nullptr && isFrame) return new AccessibleFrame(widget);
  return picture != nullptr ? new AccessibleFigures(widget, *picture) : nullptr;
}

}  // namespace

void ServeAssistivePrograms() {
  static const bool isServed = [] {
    QAccessible::installFactory(&MakeInterface);
    return true;
  }();
  (void)isServed;
}

void TellFiguresAreOthers(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&widget, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

bool UnaskedTellings::IsTime() const {
  constexpr double kSecondsBetween = 5;
  return QAccessible::isActive() &&
         TheMachine().clock.AbsoluteTime() - mToldAt >= kSecondsBetween &&
         !ReadSwitch("ACCESSIBLE_QUIET");
}

void UnaskedTellings::HasTold() {
  mToldAt = TheMachine().clock.AbsoluteTime();
}

}  // namespace lurkwell
