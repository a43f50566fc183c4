#include "main_window/ToolbarItems.h"

#include <QCoreApplication>
#include <QMimeData>
#include <algorithm>
#include <vector>

namespace lurkwell {
namespace {

using Item = ToolbarItem;

constexpr char kCustomizeIdentifier[] = "NSToolbarCustomizeToolbarItemIdentifier";

/// Buttons stand between these.
constexpr Item kFixedItems[] = {
    {kToolbarCPU, Item::kGauge, "toolbar_system_cpu", "headercpu", 0},
    {kToolbarMemory, Item::kGauge, "toolbar_system_ram", "headermemory", 1},
    {kToolbarPageouts, Item::kLight, "toolbar_vm_thrashing", "vm_green", 2},
    {"NSToolbarSeparatorItemIdentifier", Item::kSeparator, "toolbar_separator", "toolbar_separator",
     90},
    {"NSToolbarSpaceItemIdentifier", Item::kSpace, "toolbar_space", "toolbar_space", 91},
    {"NSToolbarFlexibleSpaceItemIdentifier", Item::kFlexibleSpace, "toolbar_flexible_space",
     "toolbar_flexible_space", 92},
};

std::vector<Item> MakeItems() {
  std::vector<Item> items(std::begin(kFixedItems), std::end(kFixedItems));
  items.push_back({kCustomizeIdentifier, Item::kCustomize, "toolbar_customise", "customise", 93,
                   FindCommand("menu_view_customise_toolbar")});
  for (const auto& command : Commands()) {
    const auto& button = command.button;
    if (command.HasButton())
      items.push_back(
          {button.identifier, Item::kButton, button.text, button.picture, button.place, &command});
  }
  std::ranges::stable_sort(items, {}, &Item::place);
  return items;
}

const std::vector<Item>& Items() {
  static const auto items = MakeItems();
  return items;
}

}  // namespace

const ToolbarItem* FindToolbarItem(std::string_view identifier) {
  const auto item = std::ranges::find(Items(), identifier, [](const Item& candidate) {
    return std::string_view(candidate.identifier);
  });
  return item != Items().end() ? &*item : nullptr;
}

QStringList toolbarAllowedItemIdentifiers() {
  QStringList identifiers;
  for (const auto& item : Items()) identifiers.append(QLatin1String(item.identifier));
  return identifiers;
}

QStringList toolbarDefaultItemIdentifiers() {
  QStringList identifiers;
  for (const char* identifier :
       {kToolbarCPU, kToolbarMemory, kToolbarPageouts, "vqToolbarOpenCPUHistoryWindow",
        "vqToolbarOpenLoggingWindow", "vqToolbarShowPreferences", kCustomizeIdentifier})
    identifiers.append(QLatin1String(identifier));
  return identifiers;
}

bool validateToolbarItem(std::string_view identifier, const SelectionFacts& facts) {
  const auto* item = FindToolbarItem(identifier);
  if (item == nullptr || item->kind != ToolbarItem::kButton) return false;
  const auto& command = *item->command;
  return IsMet(command.needs, facts) && IsMet(command.button.alsoNeeds, facts);
}

QString ToolbarDrag::MimeType() {
  // Whatever another instance drags is none of ours.
  return QStringLiteral("application/x-lurkwell-toolbar-item-%1")
      .arg(QCoreApplication::applicationPid());
}

std::unique_ptr<QMimeData> ToolbarDrag::ToMime() const {
  auto data = std::make_unique<QMimeData>();
  data->setData(MimeType(), QByteArray::number(from) + ' ' + identifier.toLatin1());
  return data;
}

std::optional<ToolbarDrag> ToolbarDrag::FromMime(const QMimeData* data) {
  if (data == nullptr || !data->hasFormat(MimeType())) return {};
  const auto words = data->data(MimeType()).split(' ');
  if (words.size() != 2) return {};
  return ToolbarDrag{QString::fromLatin1(words[1]), words[0].toInt()};
}

}  // namespace lurkwell
