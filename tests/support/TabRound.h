#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <set>
#include <string>

#include "windows/Contrast.h"

namespace lurkwell {

/// Goes round a window with Tab and Shift+Tab: both come back to the start and reach whatever a
/// click does something with, and each stop is seen to have the keyboard.
class TabRound {
 public:
  /// On all of its pages.
  static void LookAt(QWidget& window) {
    SCOPED_TRACE(window.windowTitle().toStdString() + " of " + window.metaObject()->className());
    bool hasPages = false;
    for (auto* pages : window.findChildren<QTabWidget*>()) {
      const int shown = pages->currentIndex();
      for (int page = 0; page < pages->count(); ++page) {
        SCOPED_TRACE(pages->tabText(page).toStdString());
        pages->setCurrentIndex(page);
        LookAtPage(window);
      }
      pages->setCurrentIndex(shown);
      hasPages = true;
    }
    if (!hasPages) LookAtPage(window);
  }

 private:
  using Widgets = std::set<const QWidget*>;

  static std::string NameOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const auto name = widget.accessibleName().isEmpty() && button != nullptr
                          ? button->text()
                          : widget.accessibleName() + '/' + widget.objectName();
    return std::string(widget.metaObject()->className()) + " '" + name.toStdString() + "'";
  }

  static bool TakesClicks(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
           qobject_cast<const QTextBrowser*>(&widget) != nullptr ||
           qobject_cast<const QTabBar*>(&widget) != nullptr ||
           (label != nullptr && label->text().contains(QLatin1String("<a "))) ||
           (qobject_cast<const QAbstractItemView*>(&widget) != nullptr &&
            qobject_cast<const QHeaderView*>(&widget) == nullptr) ||
           (qobject_cast<const QAbstractSlider*>(&widget) != nullptr &&
            qobject_cast<const QScrollBar*>(&widget) == nullptr);
  }

  /// Whether another one stands for it: the one that it is a part of, or one of its group.
  static bool IsServed(const QWidget& widget, const Widgets& visited) {
    for (const auto* of = &widget; of != nullptr && !of->isWindow(); of = of->parentWidget()) {
      if (visited.contains(of)) return true;
      if (qobject_cast<const QAbstractSpinBox*>(of) != nullptr &&
          visited.contains(of->focusProxy()))
        return true;
      // Arrows go on from there.
      if (qobject_cast<const QToolBar*>(of) != nullptr)
        for (const auto* item : visited)
          if (of->isAncestorOf(item)) return true;
      // What scrolls them has a key of its own.
      if (qobject_cast<const QTabBar*>(of->parentWidget()) != nullptr) return true;
      // A field's own buttons do what keys do in it.
      if (qobject_cast<const QLineEdit*>(of->parentWidget()) != nullptr) return true;
    }
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    if (button == nullptr || !(button->autoExclusive() || button->group() != nullptr)) return false;
    for (const auto* other : widget.parentWidget()->findChildren<QAbstractButton*>())
      if (other->autoExclusive() == button->autoExclusive() && other->group() == button->group() &&
          visited.contains(other))
        return true;
    return false;
  }

  static QImage PictureOf(QWidget& window) { return window.grab().toImage(); }

  static QImage PictureWithout(QWidget& window, QWidget& stop) {
    stop.clearFocus();
    auto picture = PictureOf(window);
    stop.setFocus(Qt::TabFocusReason);
    return picture;
  }

  /// Of the pixels that differ where the widget is, how many do so for everybody.
  static int CountTelling(const QImage& without, const QImage& with, const QWidget& widget) {
    const QRect place(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
    const auto within = place.adjusted(-2, -2, 2, 2) & with.rect() & without.rect();
    int count = 0;
    for (int y = within.top(); y <= within.bottom(); ++y)
      for (int x = within.left(); x <= within.right(); ++x)
        count += with.pixel(x, y) != without.pixel(x, y) &&
                 ContrastBetween(with.pixelColor(x, y), without.pixelColor(x, y)) >= kMarkContrast;
    return count;
  }

  static void Press(Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key,
                    key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    QApplication::processEvents();
  }

  static void LookAtPage(QWidget& window) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    if (QApplication::focusWidget() == nullptr) QTest::keyClick(&window, Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    // What changes with the first key is no sign of the second stop.
    Press(Qt::Key_Tab);
    const auto* first = QApplication::focusWidget();
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
      Widgets visited;
      constexpr int kMost = 150;
      // A frame round the smallest button.
      constexpr int kFewestPixels = 40;
      int steps = 0;
      auto before = PictureOf(window);
      const auto* last = QApplication::focusWidget();
      do {
        visited.insert(QApplication::focusWidget());
        Press(key);
        auto* stop = QApplication::focusWidget();
        ASSERT_NE(stop, nullptr);
        ASSERT_EQ(stop->window(), &window);
        if (key != Qt::Key_Tab) continue;
        auto picture = PictureOf(window);
        // The only stop there is.
        if (stop == last) before = PictureWithout(window, *stop);
        last = stop;
        EXPECT_GE(CountTelling(before, picture, *stop), kFewestPixels)
            << NameOf(*stop) << " has the keyboard, and is not seen to";
        before = std::move(picture);
      } while (QApplication::focusWidget() != first && ++steps < kMost);
      EXPECT_EQ(QApplication::focusWidget(), first)
          << "it does not come round, but back to " << NameOf(*QApplication::focusWidget());
      for (const auto* widget : window.findChildren<QWidget*>())
        if (TakesClicks(*widget) && widget->isVisible() && widget->isEnabled() &&
            widget->window() == &window && !IsServed(*widget, visited))
          ADD_FAILURE() << NameOf(*widget) << " is not reached, in "
                        << NameOf(*widget->parentWidget());
    }
  }
};

}  // namespace lurkwell
