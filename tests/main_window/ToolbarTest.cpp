// What the toolbar holds, how it is arranged, and that it is remembered.
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "main_window/MainToolbar.h"
#include "main_window/MainWindowTest.h"
#include "main_window/ToolbarCustomiseDialog.h"
#include "main_window/ToolbarItems.h"

namespace lurkwell {
namespace {

constexpr char kItemsKey[] = "vqMainTableToolbarIdentifierTarvikTemp14_ITEMS";

class ToolbarTest : public MainWindowTest {
 protected:
  MainToolbar& Toolbar() { return *controller().toolbar(); }

  /// The labels from left to right, those that can be used with a star.
  std::string Labels() {
    QStringList labels;
    for (const auto* item : Toolbar().items())
      labels.append(item->text() + (item->isEnabled() ? "*" : ""));
    return labels.join(QLatin1Char(' ')).toStdString();
  }

  void Reopen() {
    window.reset();
    Open();
  }

  ToolbarCustomiseDialog& Customise() {
    Choose("menu_view_customise_toolbar");
    auto* dialog = window->findChild<ToolbarCustomiseDialog*>();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
    return *dialog;
  }

  void Take(ToolbarItemList& list, const QString& text) {
    const auto found = list.findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << qPrintable(text);
    list.setCurrentItem(found.first());
  }

  /// Drops on a point of a widget.
  void DropOn(QWidget& target, const ToolbarDrag& item, const QPointF& point) {
    const auto mime = item.ToMime();
    QDragEnterEvent enter(point.toPoint(), Qt::CopyAction, mime.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    QDropEvent drop(point, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    QApplication::processEvents();
  }
  void Drop(const ToolbarDrag& item, const QPointF& point) { DropOn(Toolbar(), item, point); }
};

TEST_F(ToolbarTest, ANewUserHasTheDefaultSet) {
  machine.processTable.Birth(300, "p");
  Open();
  window->table().clearSelection();
  EXPECT_EQ(Labels(), "CPU* Memory* Swapping* CPU History Log Preferences* Customise*");
  EXPECT_EQ(Toolbar().itemIdentifiers(), toolbarDefaultItemIdentifiers());
  for (const auto* item : Toolbar().items()) {
    EXPECT_TRUE(Toolbar().widgetForAction(const_cast<QAction*>(item))->isVisible());
    EXPECT_NE(item->toolTip(), item->text());
  }
  Select({300});
  EXPECT_EQ(Labels(), "CPU* Memory* Swapping* CPU History* Log* Preferences* Customise*");
  Toolbar().items()[5]->trigger();
  EXPECT_EQ(commands.Take(), "preferences\n");
  char text[8];
  std::uint8_t found = 0;
  GetPrefString(kItemsKey, text, sizeof text, &found, false, "");
  EXPECT_EQ(found, 0) << "what nobody changed is not remembered";
}

TEST_F(ToolbarTest, HoldsAllThatIsAllowedAndButtonsReachTheSelection) {
  OpenWith({300});
  Toolbar().SetItems(toolbarAllowedItemIdentifiers());
  window->table().clearSelection();
  EXPECT_EQ(Labels(),
            "CPU* Memory* Swapping* CPU History Log Bring to Front Kill Hide Show File High Normal "
            "Low Halt Continue Children Preferences* Separator* Space* Flexible Space* Customise*");
  Select({300});
  EXPECT_EQ(Labels(),
            "CPU* Memory* Swapping* CPU History* Log* Bring to Front Kill* Hide Show File High* "
            "Normal* Low* Halt* Continue Children* Preferences* Separator* Space* Flexible Space* "
            "Customise*");
  machine.log.Clear();
  Toolbar().items()[9]->trigger();
  // A halt asks, from here as well.
  bool wasAsked = false;
  std::function<void()> agree = [&] {
    auto* question = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (question == nullptr) return QTimer::singleShot(10, window.get(), agree);
    wasAsked = true;
    question->accept();
  };
  QTimer::singleShot(10, window.get(), agree);
  Toolbar().items()[12]->trigger();
  EXPECT_TRUE(wasAsked);
  EXPECT_EQ(machine.log.Take(),
            "Helper Lkw Action Request:\\nrenice 300 -19\n"
            "Helper Lkw Action Request:\\nkill_halt 300\n");
  EXPECT_FALSE(Toolbar().items()[12]->isEnabled()) << "halted at once";
  EXPECT_TRUE(Toolbar().items()[13]->isEnabled());
}

TEST_F(ToolbarTest, IsArrangedByKeyboardAndComesBackSo) {
  Open();
  auto& dialog = Customise();
  EXPECT_EQ(Labels(), "CPU* Memory* Swapping* CPU History* Log* Preferences* Customise*")
      << "nothing is disabled while it is arranged";
  auto& available = *dialog.findChild<ToolbarItemList*>("available");
  auto& current = *dialog.findChild<ToolbarItemList*>("current");
  EXPECT_EQ(available.count(), 20);
  Take(current, "Swapping");
  Take(available, "Kill");
  QTest::keyClick(&available, Qt::Key_Return);
  EXPECT_EQ(current.currentItem()->text(), "Kill");
  QTest::keyClick(&current, Qt::Key_Down, Qt::AltModifier);
  Take(current, "Memory");
  QTest::keyClick(&current, Qt::Key_Delete);
  QTest::keyClick(&current, Qt::Key_Up, Qt::AltModifier);
  Take(current, "Log");
  Take(available, "Separator");
  for (int i = 0; i < 2; ++i)
    QTest::mouseClick(dialog.findChild<QPushButton*>("add"), Qt::LeftButton);
  // There already, so that it moves.
  Take(available, "CPU");
  QTest::mouseClick(dialog.findChild<QPushButton*>("add"), Qt::LeftButton);
  auto& modes = *dialog.findChild<QComboBox*>("mode");
  modes.setFocus();
  QTest::keyClick(&modes, Qt::Key_Down);
  dialog.findChild<QDialogButtonBox*>()->buttons().first()->click();
  const auto isGone = [this] { return window->findChild<ToolbarCustomiseDialog*>() == nullptr; };
  EXPECT_TRUE(QTest::qWaitFor(isGone, 1000));
  const std::string arranged =
      "Swapping* CPU History Kill Log Separator* Separator* CPU* Preferences* Customise*";
  window->table().clearSelection();
  EXPECT_EQ(Labels(), arranged);
  Reopen();
  window->table().clearSelection();
  EXPECT_EQ(Labels(), arranged);
  EXPECT_EQ(Toolbar().toolButtonStyle(), Qt::ToolButtonIconOnly);
  auto& again = Customise();
  QTest::mouseClick(again.findChild<QPushButton*>("default"), Qt::LeftButton);
  EXPECT_EQ(Toolbar().itemIdentifiers(), toolbarDefaultItemIdentifiers());
  window->close();
  EXPECT_FALSE(again.isVisible()) << "it goes with its window";
}

TEST_F(ToolbarTest, ItemsAreDraggedIntoItAndOutOfIt) {
  Open();
  const auto middleOf = [&](int place) {
    return QPointF(Toolbar().widgetForAction(Toolbar().items()[place])->geometry().center());
  };
  Drop({"vqToolbarKill"}, middleOf(0));
  EXPECT_EQ(Toolbar().items().size(), 7) << "only while it is arranged";
  auto& dialog = Customise();
  Drop({"vqToolbarKill"}, middleOf(1) - QPointF(3, 0));
  EXPECT_EQ(Toolbar().itemIdentifiers()[1], "vqToolbarKill");
  QApplication::processEvents();
  Drop({kToolbarCPU, 0}, middleOf(2) + QPointF(3, 0));
  EXPECT_EQ(Toolbar().itemIdentifiers()[0], "vqToolbarKill");
  EXPECT_EQ(Toolbar().itemIdentifiers()[2], kToolbarCPU);
  Drop({"NSToolbarSpaceItemIdentifier"}, QPointF(Toolbar().width() - 2, 10));
  EXPECT_EQ(Toolbar().itemIdentifiers().last(), "NSToolbarSpaceItemIdentifier");
  Drop({"vqToolbarUnheard"}, middleOf(0));
  EXPECT_EQ(Toolbar().items().size(), 9);

  // Out again, by a drop on the list of what is available.
  auto& available = *dialog.findChild<ToolbarItemList*>("available");
  DropOn(*available.viewport(), {"vqToolbarKill", 0}, QPointF(20, 20));
  EXPECT_FALSE(Toolbar().itemIdentifiers().contains("vqToolbarKill"));
  EXPECT_EQ(dialog.findChild<ToolbarItemList*>("current")->count(), 8);
  Drop({}, middleOf(0));
  EXPECT_EQ(Toolbar().itemIdentifiers(), toolbarDefaultItemIdentifiers());

  // A click arranges, it does not do what the item does.
  QTest::mouseClick(Toolbar().widgetForAction(Toolbar().items()[5]), Qt::LeftButton);
  EXPECT_EQ(commands.Take(), "");
  dialog.close();
  QTest::qWait(1);
  QTest::mouseClick(Toolbar().widgetForAction(Toolbar().items()[5]), Qt::LeftButton);
  EXPECT_EQ(commands.Take(), "preferences\n");
}

TEST_F(ToolbarTest, WhatIsRememberedMayBeAnything) {
  const std::string prefix = "vqMainTableToolbarIdentifierTarvikTemp14";
  SetPrefString(kItemsKey, "  vqToolbarKill gone vqToolbarKill vqToolbarShowTopHeaderStuffCPU ");
  SetPrefInt((prefix + "_DISPLAY_MODE").c_str(), 99);
  Open();
  EXPECT_EQ(Toolbar().itemIdentifiers(), QStringList({"vqToolbarKill", kToolbarCPU}));
  EXPECT_EQ(Toolbar().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  std::string many;
  for (int i = 0; i < 100; ++i) many += "NSToolbarSpaceItemIdentifier ";
  SetPrefString(kItemsKey, many.c_str());
  Reopen();
  EXPECT_EQ(Toolbar().items().size(), 64);
  SetPrefString(kItemsKey, "");
  Reopen();
  EXPECT_EQ(Toolbar().items().size(), 0) << "empty is what the user wants";
}

TEST_F(ToolbarTest, ShowingAndHidingIsRemembered) {
  Open();
  auto& item = Action("menu_view_show_toolbar");
  EXPECT_TRUE(item.isChecked());
  item.trigger();
  EXPECT_FALSE(Toolbar().isVisible());
  EXPECT_FALSE(item.isChecked());
  Reopen();
  EXPECT_FALSE(Toolbar().isVisible());
  EXPECT_FALSE(Action("menu_view_show_toolbar").isChecked());
  // To arrange it is to see it.
  Customise().close();
  EXPECT_TRUE(Toolbar().isVisible());
  auto* menu = window->createPopupMenu();
  for (auto* mode : menu->actions())
    if (mode->text() == QLatin1String("Text Only")) mode->trigger();
  Reopen();
  EXPECT_TRUE(Toolbar().isVisible());
  EXPECT_EQ(Toolbar().toolButtonStyle(), Qt::ToolButtonTextOnly);
}

TEST_F(ToolbarTest, TheSelectedRowsPictureStandsOutFromItsGround) {
  Open();
  auto& list = *Customise().findChild<ToolbarItemList*>("available");
  list.setFocus();
  for (int row = 0; row < list.count(); ++row) {
    list.setCurrentRow(row);
    const auto place = list.visualItemRect(list.item(row));
    const auto image = list.viewport()->grab().toImage();
    const QColor ground = image.pixelColor(place.right() - 3, place.center().y());
    int visible = 0;
    for (int y = place.top(); y <= place.bottom(); ++y)
      for (int x = place.left(); x < place.left() + 30; ++x) {
        const auto pixel = image.pixelColor(x, y);
        visible += std::abs(pixel.red() - ground.red()) + std::abs(pixel.green() - ground.green()) +
                       std::abs(pixel.blue() - ground.blue()) >
                   120;
      }
    EXPECT_GT(visible, 50) << qPrintable(list.item(row)->text());
  }
}

}  // namespace
}  // namespace lurkwell
