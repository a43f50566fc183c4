#include "main_window/ColumnMenus.h"

#include <algorithm>
#include <string>
#include <vector>

#include "consolidator/PI_Consolidator.h"
#include "main_window/ColumnGroups.h"
#include "main_window/vqMainTableController.h"
#include "resources/Resources.h"
#include "windows/ControllerAssertion.h"

namespace lurkwell {
namespace {

constexpr char kMenusUnit[] = "vqMainTableController";

/// An ampersand of a title is no mnemonic.
QString WithoutMnemonic(QString title) {
  return title.replace(QLatin1String("&"), QLatin1String("&&"));
}

/// Items keep texts: a number is given to a key when it becomes a column, so that rows stay small.
KeyId KeyOf(const QAction& item) {
  return InternKey(item.data().toByteArray().constData());
}

}  // namespace

ColumnMenus::ColumnMenus(vqMainTableController& controller) : mController(controller) {}

QAction* ColumnMenus::AddItem(FilterMenu& menu, const char* key) {
  const auto group = PlaceOfColumn(key).group;
  const auto words =
      QString::fromUtf8(key) + QLatin1Char(' ') + KeywordsOfColumn(key).join(QLatin1Char(' '));
  auto* item = menu.AddItem(group, LocalizedString(ColumnGroups()[group].id),
                            WithoutMnemonic(ColumnTitle(key)), words);
  item->setData(QByteArray(key));
  item->setCheckable(true);
  item->setChecked(mController.isTracked(key));
  item->setToolTip(ColumnTip(key));
  return item;
}

void ColumnMenus::Build() {
  const auto prepare = [this](QAction& item, const char* id, KeyId key,
                              void (ColumnMenus::*handler)()) {
    item.setText(LocalizedString(id));
    item.setCheckable(true);
    item.setChecked(mController.isTracked(KeyText(key)));
    connect(&item, &QAction::triggered, this, handler);
  };
  prepare(fTopLevelIconMenuItem, "menu_columns_icon", kInternalIcon,
          &ColumnMenus::processIconMenuItem);
  prepare(fTopLevelIndicatorMenuItem, "menu_columns_indicator", kInternalIndicator,
          &ColumnMenus::processIndicatorMenuItem);
  prepare(fTopLevelNameMenuItem, "menu_columns_name", kMetaName, &ColumnMenus::processNameMenuItem);
  prepare(fTopLevelCPUPercentMenuItem, "menu_columns_cpu_usage", kInternalCPUPercent,
          &ColumnMenus::processCPUPercentMenuItem);
  prepare(fTopLevelMemGraphMenuItem, "menu_columns_memory", kInternalMemGraph,
          &ColumnMenus::processMemGraphMenuItem);

  mBuiltInMenu.setTitle(LocalizedString("menu_columns_built_in"));
  mPSAvailableMenu.setTitle(LocalizedString("menu_columns_ps"));
  AddItems();
}

void ColumnMenus::AddItems() {
  struct Column {
    std::string key;
    bool isBuiltIn;
  };
  std::vector<Column> columns;
  char header[64];
  while (mHeadersSeen < CountProcPropertyHeaders()) {
    const bool isBuiltIn = mHeadersSeen < CountBuiltInProcPropertyHeaders();
    if (!GetNthProcPropertyHeader(mHeadersSeen++, header, sizeof header)) continue;
    // Pids have a column of their own, which ps's would only repeat.
    if (KeyText(kMetaPid) != header && std::string_view(header) != "PID")
      columns.push_back({header, isBuiltIn});
  }
  std::ranges::stable_sort(columns, {},
                           [](const Column& column) { return PlaceOfColumn(column.key); });
  for (const auto& [key, isBuiltIn] : columns) {
    auto* item = AddItem(isBuiltIn ? mBuiltInMenu : mPSAvailableMenu, key.c_str());
    if (isBuiltIn) {
      connect(item, &QAction::triggered, this, [this, item] { processBuiltInMenuItem(item); });
    } else {
      connect(item, &QAction::triggered, this, [this, item] { processPSAvailableMenuItem(item); });
    }
  }
}

void ColumnMenus::AppendTo(QMenu& menu) const {
  auto* self = const_cast<ColumnMenus*>(this);
  for (auto* item : {&self->fTopLevelIconMenuItem, &self->fTopLevelIndicatorMenuItem,
                     &self->fTopLevelNameMenuItem, &self->fTopLevelCPUPercentMenuItem,
                     &self->fTopLevelMemGraphMenuItem})
    menu.addAction(item);
  menu.addSeparator();
  menu.addMenu(&self->mBuiltInMenu);
  menu.addMenu(&self->mPSAvailableMenu);
}

QAction& ColumnMenus::TopLevelItem(KeyId key) {
  if (key == kInternalIcon) return fTopLevelIconMenuItem;
  if (key == kInternalIndicator) return fTopLevelIndicatorMenuItem;
  if (key == kMetaName) return fTopLevelNameMenuItem;
  if (key == kInternalCPUPercent) return fTopLevelCPUPercentMenuItem;
  return fTopLevelMemGraphMenuItem;
}

QAction* ColumnMenus::ItemFor(KeyId key, const FilterMenu& menu) {
  for (auto* item : menu.Items())
    if (KeyText(key) == item->data().toByteArray().constData()) return item;
  return nullptr;
}

void ColumnMenus::Hide(KeyId key) {
  if (!mController.isTracked(KeyText(key))) return;
  mController.removeFromKeysWeTrackForUI(key);
  for (auto* item : {ItemFor(key, mBuiltInMenu), ItemFor(key, mPSAvailableMenu)})
    if (item != nullptr) item->setChecked(false);
  if (IsInternalKey(KeyText(key)) || key == kMetaName) TopLevelItem(key).setChecked(false);
}

void ColumnMenus::processGeneralMenuItem(QAction* item, KeyId key, KeyId afterKey) {
  // Qt has ticked the chosen item already; the column tells what it was before.
  if (mController.isTracked(KeyText(key))) {
    item->setChecked(false);
    mController.removeFromKeysWeTrackForUI(key);
  } else {
    item->setChecked(true);
    mController.addToKeysWeTrackForUI(key, afterKey);
  }
}

void ColumnMenus::processIconMenuItem() {
  processGeneralMenuItem(&fTopLevelIconMenuItem, kInternalIcon);
}

void ColumnMenus::processIndicatorMenuItem() {
  processGeneralMenuItem(&fTopLevelIndicatorMenuItem, kInternalIndicator, kInternalIcon);
}

void ColumnMenus::processCPUPercentMenuItem() {
  processGeneralMenuItem(&fTopLevelCPUPercentMenuItem, kInternalCPUPercent);
}

void ColumnMenus::processMemGraphMenuItem() {
  processGeneralMenuItem(&fTopLevelMemGraphMenuItem, kInternalMemGraph);
}

void ColumnMenus::processNameMenuItem() {
  processGeneralMenuItem(&fTopLevelNameMenuItem, kMetaName);
  // The same column has an item among the built-in ones.
  if (auto* item = ItemFor(kMetaName, mBuiltInMenu))
    item->setChecked(fTopLevelNameMenuItem.isChecked());
}

void ColumnMenus::processBuiltInMenuItem(QAction* item) {
  const bool isOurs = mBuiltInMenu.Items().contains(item);
  if (!Expect(isOurs, kMenusUnit, "builtInMenuItemToDealWith")) return;
  processGeneralMenuItem(item, KeyOf(*item));
  if (KeyOf(*item) == kMetaName) fTopLevelNameMenuItem.setChecked(item->isChecked());
}

void ColumnMenus::processPSAvailableMenuItem(QAction* item) {
  const bool isOurs = mPSAvailableMenu.Items().contains(item);
  if (!Expect(isOurs, kMenusUnit, "PSAvailableMenuItemToDealWith")) return;
  processGeneralMenuItem(item, KeyOf(*item));
}

void ColumnMenus::Validate() {
  AddItems();
  // Columns do not depend on what is selected.
  const auto* window = mController.window();
  const bool isKey = window != nullptr && window->isActiveWindow();
  for (const auto* menu : {&mBuiltInMenu, &mPSAvailableMenu})
    for (auto* item : menu->Items()) item->setEnabled(isKey);
}

}  // namespace lurkwell
