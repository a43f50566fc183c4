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

ColumnMenus::ColumnMenus(vqMainTableController& controller) : mController(controller) {
  connect(&controller, &vqMainTableController::columnsChanged, this, &ColumnMenus::ShowTicks);
}

QAction* ColumnMenus::AddItem(FilterMenu& menu, const char* key) {
  const auto group = PlaceOfColumn(key).group;
  const auto words =
      QString::fromUtf8(key) + QLatin1Char(' ') + KeywordsOfColumn(key).join(QLatin1Char(' '));
  auto* item = menu.AddItem(group, LocalizedString(ColumnGroups()[group].id),
                            WithoutMnemonic(ColumnTitle(key)), words);
  item->setData(QByteArray(key));
  item->setCheckable(true);
  item->setToolTip(ColumnTip(key));
  return item;
}

void ColumnMenus::Build() {
  const auto prepare = [this](QAction& item, const char* id, void (ColumnMenus::*handler)()) {
    item.setText(LocalizedString(id));
    item.setCheckable(true);
    connect(&item, &QAction::triggered, this, handler);
  };
  prepare(fTopLevelIconMenuItem, "menu_columns_icon", &ColumnMenus::processIconMenuItem);
  prepare(fTopLevelIndicatorMenuItem, "menu_columns_indicator",
          &ColumnMenus::processIndicatorMenuItem);
  prepare(fTopLevelNameMenuItem, "menu_columns_name", &ColumnMenus::processNameMenuItem);
  prepare(fTopLevelCPUPercentMenuItem, "menu_columns_cpu_usage",
          &ColumnMenus::processCPUPercentMenuItem);
  prepare(fTopLevelMemGraphMenuItem, "menu_columns_memory", &ColumnMenus::processMemGraphMenuItem);

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
  if (mHeadersSeen == CountProcPropertyHeaders()) return;
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
  ShowTicks();
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

void ColumnMenus::ShowTicks() {
  for (const auto* menu : {&mBuiltInMenu, &mPSAvailableMenu})
    for (auto* item : menu->Items())
      item->setChecked(mController.isTracked(item->data().toByteArray().constData()));
  for (const KeyId key :
       {kInternalIcon, kInternalIndicator, kMetaName, kInternalCPUPercent, kInternalMemGraph})
    TopLevelItem(key).setChecked(mController.isTracked(KeyText(key)));
}

void ColumnMenus::processGeneralMenuItem(KeyId key, KeyId afterKey) {
  if (mController.isTracked(KeyText(key))) {
    mController.removeFromKeysWeTrackForUI(key);
  } else {
    mController.addToKeysWeTrackForUI(key, afterKey);
  }
}

void ColumnMenus::processIconMenuItem() {
  processGeneralMenuItem(kInternalIcon);
}

void ColumnMenus::processIndicatorMenuItem() {
  processGeneralMenuItem(kInternalIndicator, kInternalIcon);
}

void ColumnMenus::processCPUPercentMenuItem() {
  processGeneralMenuItem(kInternalCPUPercent);
}

void ColumnMenus::processMemGraphMenuItem() {
  processGeneralMenuItem(kInternalMemGraph);
}

void ColumnMenus::processNameMenuItem() {
  processGeneralMenuItem(kMetaName);
}

void ColumnMenus::processBuiltInMenuItem(QAction* item) {
  const bool isOurs = mBuiltInMenu.Items().contains(item);
  if (!Expect(isOurs, kMenusUnit, "builtInMenuItemToDealWith")) return;
  processGeneralMenuItem(KeyOf(*item));
}

void ColumnMenus::processPSAvailableMenuItem(QAction* item) {
  const bool isOurs = mPSAvailableMenu.Items().contains(item);
  if (!Expect(isOurs, kMenusUnit, "PSAvailableMenuItemToDealWith")) return;
  processGeneralMenuItem(KeyOf(*item));
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
