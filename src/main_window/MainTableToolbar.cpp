// The main window's toolbar: what it holds, what its items do, and when they can be used.
#include <QMainWindow>
#include <QWidgetAction>

#include "main_window/MainToolbar.h"
#include "main_window/ToolbarGauge.h"
#include "main_window/vqMainTableController.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr QSize kLightSize(20, 20);
constexpr int kSpaceWidth = 32;

QWidgetAction* MakeWidgetAction(QWidget* widget) {
  auto* action = new QWidgetAction(nullptr);
  action->setDefaultWidget(widget);
  return action;
}

QAction* MakeGauge(const ToolbarItem& item, const MainToolbar& toolbar, const QString& label,
                   const QString& tip) {
  const bool isGauge = item.kind == ToolbarItem::kGauge;
  const QSize size = isGauge ? QSize(kSystemInfoImageWidth, kSystemInfoImageHeight) : kLightSize;
  auto* gauge = new ToolbarGauge(size, toolbar.iconSize().height(), label, tip);
  gauge->ShowNamedImage(item.image);
  gauge->setToolButtonStyle(toolbar.toolButtonStyle());
  QObject::connect(&toolbar, &QToolBar::toolButtonStyleChanged, gauge,
                   &QToolButton::setToolButtonStyle);
  return MakeWidgetAction(gauge);
}

QAction* MakeSpace(bool isFlexible) {
  auto* space = new QWidget;
  space->setMinimumWidth(isFlexible ? 0 : kSpaceWidth);
  space->setSizePolicy(isFlexible ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                       QSizePolicy::Preferred);
  return MakeWidgetAction(space);
}

}  // namespace

void vqMainTableController::setupToolbar(QMainWindow& window) {
  fToolbar = new MainToolbar(
      &window, [this](const ToolbarItem& item) { return itemForItemIdentifier(item); });
  window.addToolBar(fToolbar);
  fToolbar->RestoreItems();
  connect(fToolbar, &MainToolbar::itemsChanged, this, [this] {
    validateToolbarItems(selectionFacts());
    if (fInfoSynchronizer != nullptr) fInfoSynchronizer->ShowSystemInfo();
  });
}

MainToolbar* vqMainTableController::visibleToolbar() const {
  return fToolbar != nullptr && !fToolbar->isHidden() ? fToolbar : nullptr;
}

QStringList vqMainTableController::toolbarDefaultItemIdentifiers() {
  return DefaultToolbarItems();
}

QStringList vqMainTableController::toolbarAllowedItemIdentifiers() {
  return AllowedToolbarItems();
}

QAction* vqMainTableController::itemForItemIdentifier(const ToolbarItem& item) {
  const auto label = LocalizedString(item.labelKey);
  const auto tip = LocalizedString((QByteArray(item.labelKey) + "_tip").constData());
  QAction* action = nullptr;
  switch (item.kind) {
    case ToolbarItem::kGauge:
    case ToolbarItem::kLight:
      action = MakeGauge(item, *fToolbar, label, tip);
      break;
    case ToolbarItem::kSpace:
    case ToolbarItem::kFlexibleSpace:
      action = MakeSpace(item.kind == ToolbarItem::kFlexibleSpace);
      break;
    case ToolbarItem::kSeparator:
      action = new QAction;
      action->setSeparator(true);
      break;
    case ToolbarItem::kButton:
      action = new QAction(NamedImage(item.image), label);
      connect(action, &QAction::triggered, this, item.action);
      break;
    case ToolbarItem::kCustomize:
      action = new QAction(NamedImage(item.image), label);
      connect(action, &QAction::triggered, this, &vqMainTableController::customisingRequested);
      break;
  }
  action->setText(label);
  action->setToolTip(tip);
  action->setObjectName(QLatin1String(item.identifier));
  return action;
}

bool vqMainTableController::validateToolbarItem(std::string_view identifier,
                                                const SelectionFacts& facts) const {
  const auto* item = FindToolbarItem(identifier);
  if (item == nullptr || item->kind != ToolbarItem::kButton) return false;
  // A halted application without a kernel pid can be continued from the menu alone.
  if (item->command == MenuCommand::kContinue && !facts.anyPIDs) return false;
  return validateMenuItem(item->command, facts);
}

void vqMainTableController::validateToolbarItems(const SelectionFacts& facts) {
  if (fToolbar == nullptr) return;
  for (auto* action : fToolbar->items()) {
    const auto identifier = action->objectName().toStdString();
    // The platform's own items and what only shows something need no permission.
    if (FindToolbarItem(identifier)->kind != ToolbarItem::kButton) continue;
    action->setEnabled(fToolbar->IsCustomising() || validateToolbarItem(identifier, facts));
  }
}

}  // namespace lurkwell
