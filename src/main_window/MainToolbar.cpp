#include "main_window/MainToolbar.h"

#include <QAction>
#include <QDrag>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>
#include <QWidgetAction>
#include <algorithm>
#include <utility>

#include "main_window/ToolbarGauge.h"
#include "main_window/ToolbarItems.h"
#include "main_window/ToolbarKeys.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr QSize kIconSize(24, 24);
constexpr char kItemsKey[] = "vqMainTableToolbarIdentifierTarvikTemp14_ITEMS";
constexpr char kModeKey[] = "vqMainTableToolbarIdentifierTarvikTemp14_DISPLAY_MODE";
constexpr char kShownKey[] = "vqMainTableToolbarIdentifierTarvikTemp14_SHOWN";

/// Those that a toolbar can hold: known ones, repeated where they may be, not too many.
QStringList Allowed(const QStringList& identifiers) {
  QStringList allowed;
  for (const auto& identifier : identifiers) {
    const auto* item = FindToolbarItem(identifier);
    if (item == nullptr || allowed.size() == MainToolbar::kMostItems) continue;
    if (item->IsRepeatable() || !allowed.contains(identifier)) allowed.append(identifier);
  }
  return allowed;
}

Qt::ToolButtonStyle StyleOf(MainToolbar::DisplayMode mode) {
  if (mode == MainToolbar::kIconOnly) return Qt::ToolButtonIconOnly;
  return mode == MainToolbar::kLabelOnly ? Qt::ToolButtonTextOnly : Qt::ToolButtonTextUnderIcon;
}

constexpr QSize kLightSize(20, 20);
constexpr int kSpaceWidth = 32;

QWidgetAction* MakeWidgetAction(QWidget* widget) {
  auto* action = new QWidgetAction(nullptr);
  action->setDefaultWidget(widget);
  return action;
}

QAction* MakeGauge(const ToolbarItem& item, const QToolBar& toolbar, const QString& label,
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

MainToolbar::MainToolbar(QWidget* parent) : QToolBar(LocalizedString("toolbar_title"), parent) {
  setObjectName(QStringLiteral("vqMainTableToolbarIdentifierTarvikTemp14"));
  mKeys = new ToolbarKeys(*this);
  setMovable(false);
  setFloatable(false);
  setIconSize(kIconSize);
  const auto mode = StoredInt(kModeKey).value_or(kDefault);
  if (mode >= kDefault && mode <= kLabelOnly) mDisplayMode = static_cast<DisplayMode>(mode);
  setToolButtonStyle(StyleOf(mDisplayMode));
  if (StoredInt(kShownKey) == 0) hide();
}

void MainToolbar::RestoreItems() {
  Rebuild(RememberedItems());
}

// ---- What is remembered -------------------------------------------------------------------------

QStringList MainToolbar::RememberedItems() const {
  char text[4096] = "";
  if (!ReadText(kItemsKey, text, sizeof text)) return toolbarDefaultItemIdentifiers();
  return Allowed(QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

void MainToolbar::SetDisplayMode(DisplayMode mode) {
  mDisplayMode = mode;
  setToolButtonStyle(StyleOf(mode));
  StoreInt(kModeKey, mode);
}

void MainToolbar::SetShown(bool shown) {
  if (shown == !isHidden()) return;
  setVisible(shown);
  StoreInt(kShownKey, shown ? 1 : 0);
  if (shown) Q_EMIT itemsChanged();
  Q_EMIT shownChanged(shown);
}

// ---- Items --------------------------------------------------------------------------------------

void MainToolbar::Rebuild(const QStringList& identifiers) {
  WatchItems(false);
  clear();
  // One of them may be what was dragged here.
  for (auto* action : std::exchange(mItems, {})) action->deleteLater();
  mIdentifiers = identifiers;
  for (const auto& identifier : mIdentifiers) {
    auto* action = itemForItemIdentifier(*FindToolbarItem(identifier));
    action->setParent(this);
    addAction(action);
    mItems.append(action);
  }
  WatchItems(mCustomising);
  mKeys->ItemsChanged();
  Q_EMIT itemsChanged();
}

QAction* MainToolbar::itemForItemIdentifier(const ToolbarItem& item) {
  const auto label = LocalizedString(item.labelKey);
  const auto tip = LocalizedString((QByteArray(item.labelKey) + "_tip").constData());
  QAction* action = nullptr;
  switch (item.kind) {
    case ToolbarItem::kGauge:
    case ToolbarItem::kLight:
      action = MakeGauge(item, *this, label, tip);
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
    case ToolbarItem::kCustomize:
      action = new QAction(NamedImage(item.image), label);
      connect(action, &QAction::triggered, this,
              [this, command = item.command] { Q_EMIT chosen(*command); });
      break;
  }
  action->setText(label);
  action->setToolTip(tip);
  action->setObjectName(QLatin1String(item.identifier));
  return action;
}

void MainToolbar::Validate(const SelectionFacts& facts) {
  for (qsizetype place = 0; place < mItems.size(); ++place) {
    // The platform's own items and what only shows something need no permission.
    if (FindToolbarItem(mIdentifiers[place])->kind != ToolbarItem::kButton) continue;
    const auto identifier = mIdentifiers[place].toStdString();
    mItems[place]->setEnabled(mCustomising || validateToolbarItem(identifier, facts));
  }
}

void MainToolbar::SetItems(const QStringList& identifiers) {
  const auto allowed = Allowed(identifiers);
  if (allowed == mIdentifiers) return;
  StoreText(kItemsKey, allowed.join(QLatin1Char(' ')).toLatin1().constData());
  Rebuild(allowed);
}

void MainToolbar::PutItem(const QString& identifier, int place, int from) {
  const auto* item = FindToolbarItem(identifier);
  if (item == nullptr) return;
  auto identifiers = mIdentifiers;
  if (!item->IsRepeatable()) from = static_cast<int>(identifiers.indexOf(identifier));
  if (identifiers.value(from) == identifier) {
    identifiers.removeAt(from);
    if (from < place) --place;
  }
  if (identifiers.size() >= kMostItems) return;
  identifiers.insert(std::clamp<qsizetype>(place, 0, identifiers.size()), identifier);
  SetItems(identifiers);
}

void MainToolbar::RemoveItem(int place) {
  if (place < 0 || place >= mIdentifiers.size()) return;
  auto identifiers = mIdentifiers;
  identifiers.removeAt(place);
  SetItems(identifiers);
}

template <typename Show>
void MainToolbar::ForGauges(const char* identifier, Show show) {
  for (qsizetype place = 0; place < mItems.size(); ++place) {
    if (mIdentifiers[place] != QLatin1String(identifier)) continue;
    if (auto* gauge = dynamic_cast<ToolbarGauge*>(widgetForAction(mItems[place]))) show(*gauge);
  }
}

void MainToolbar::ShowGauge(const char* identifier, const SystemInfoImage& image, int usedEnd,
                            const QString& figures) {
  ForGauges(identifier, [&](ToolbarGauge& gauge) {
    gauge.ShowImage(image, usedEnd);
    gauge.SetFigures(figures);
  });
}

void MainToolbar::ShowLight(const char* identifier, const char* image, const QString& figures) {
  ForGauges(identifier, [&](ToolbarGauge& gauge) {
    gauge.ShowNamedImage(image);
    gauge.SetFigures(figures);
  });
}

// ---- Dragging -----------------------------------------------------------------------------------

void MainToolbar::SetCustomising(bool customising) {
  if (customising == mCustomising) return;
  mCustomising = customising;
  setAcceptDrops(customising);
  WatchItems(customising);
  Q_EMIT itemsChanged();
}

void MainToolbar::WatchItems(bool watch) {
  for (auto* action : std::as_const(mItems)) {
    auto* widget = widgetForAction(action);
    if (widget == nullptr) continue;
    widget->removeEventFilter(this);
    if (watch) widget->installEventFilter(this);
  }
}

bool MainToolbar::eventFilter(QObject* object, QEvent* event) {
  const bool isMouse =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
      event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseButtonDblClick;
  if (!isMouse) return QToolBar::eventFilter(object, event);
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const auto point = mouse.globalPosition().toPoint();
  if (event->type() == QEvent::MouseButtonPress) mPressed = point;
  const bool isFar =
      (point - mPressed).manhattanLength() >= QGuiApplication::styleHints()->startDragDistance();
  if (event->type() == QEvent::MouseMove && isFar && (mouse.buttons() & Qt::LeftButton) != 0) {
    mPressed = point;
    for (int place = 0; place < mItems.size(); ++place)
      if (widgetForAction(mItems[place]) == object)
        // Not from within the event of an item that may be gone when the drag is over.
        QMetaObject::invokeMethod(
            this, [this, place] { StartDrag(place); }, Qt::QueuedConnection);
  }
  return true;
}

void MainToolbar::StartDrag(int place) {
  if (!mCustomising || place >= mItems.size()) return;
  auto* drag = new QDrag(this);
  drag->setMimeData(ToolbarDrag{mIdentifiers[place], place}.ToMime().release());
  drag->setPixmap(widgetForAction(mItems[place])->grab());
  drag->exec(Qt::CopyAction);
}

int MainToolbar::PlaceAt(const QPoint& point) const {
  for (int place = 0; place < mItems.size(); ++place) {
    const auto* widget = widgetForAction(mItems[place]);
    if (widget == nullptr || !widget->isVisible()) continue;
    const int middle = widget->geometry().center().x();
    if (isRightToLeft() ? point.x() > middle : point.x() < middle) return place;
  }
  return static_cast<int>(mItems.size());
}

void MainToolbar::dragEnterEvent(QDragEnterEvent* event) {
  if (mCustomising && ToolbarDrag::FromMime(event->mimeData())) event->acceptProposedAction();
}

void MainToolbar::dragMoveEvent(QDragMoveEvent* event) {
  if (mCustomising && ToolbarDrag::FromMime(event->mimeData())) event->acceptProposedAction();
}

void MainToolbar::dropEvent(QDropEvent* event) {
  const auto dragged = ToolbarDrag::FromMime(event->mimeData());
  if (!mCustomising || !dragged) return;
  event->acceptProposedAction();
  QTimer::singleShot(0, this,
                     [this, item = *dragged, place = PlaceAt(event->position().toPoint())] {
                       if (item.identifier.isEmpty())
                         return SetItems(toolbarDefaultItemIdentifiers());
                       PutItem(item.identifier, place, item.from);
                     });
}

}  // namespace lurkwell
