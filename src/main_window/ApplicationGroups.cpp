#include "main_window/ApplicationGroups.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "resources/Resources.h"

namespace lurkwell {
namespace {

const KeyId kPidUnit = InternKey("pid_unit");
const KeyId kPidAppScope = InternKey("pid_app_scope");
const KeyId kPidContainer = InternKey("pid_container");

/// Empty where there is none.
std::string TextOf(const RowDictionary& row, KeyId key) {
  const auto* text = std::get_if<std::string>(&row.Get(key));
  return text != nullptr ? *text : std::string();
}

/// Sessions and the like have all programs of a user in one unit.
bool IsService(std::string_view unit) {
  return unit.ends_with(".service") && !unit.starts_with("user@");
}

/// "Docker 3f2a8c91d0be" and not the remark that a process has namespaces of its own, which many
/// that have nothing to do with each other have.
bool IsNamed(std::string_view container) {
  return !container.empty() && !container.starts_with("own ");
}

}  // namespace

std::span<const KeyId> ApplicationGroups::Needs() {
  static const std::array<KeyId, 3> kKeys{kPidUnit, kPidAppScope, kPidContainer};
  return kKeys;
}

int ApplicationGroups::NumberOf(std::string kind, std::string title, bool isApplication) {
  auto key = std::move(kind) + title;
  const auto [found, isNew] = mNumbers.try_emplace(key, static_cast<int>(mBelongings.size()));
  if (isNew) mBelongings.push_back({std::move(key), std::move(title), isApplication, {}});
  return found->second;
}

int ApplicationGroups::GroupOf(const RowDictionary& row, const RowDictionary* parent,
                               int parentsGroup) {
  const auto name = TextOf(row, kMetaName);
  if (row.origin.isApplication) return NumberOf("app:", name, true);
  if (row.Pid() == 0) return NumberOf("idle:", name, false);
  if (row.origin.isKernelThread)
    return NumberOf("kernel:", LocalizedString("group_kernel_threads").toStdString(), false);
  if (auto scope = TextOf(row, kPidAppScope); !scope.empty()) {
    const auto found = mNameOfScope.find(scope);
    return NumberOf("app:", found != mNameOfScope.end() ? found->second : std::move(scope), true);
  }
  const bool isApplications =
      parentsGroup >= 0 && mBelongings[static_cast<std::size_t>(parentsGroup)].isApplication;
  // Also where it is locked up in namespaces of its own, as the parts of browsers are.
  if (isApplications && parent->Get(kPidUnit) == row.Get(kPidUnit)) return parentsGroup;
  if (auto container = TextOf(row, kPidContainer); IsNamed(container))
    return NumberOf("container:", std::move(container), false);
  if (auto text = TextOf(row, kPidUnit); IsService(text))
    return NumberOf("unit:", std::move(text), false);
  return isApplications ? parentsGroup : NumberOf("program:", name, false);
}

void ApplicationGroups::MakeRow(const Belonging& belonging) {
  auto& row = mByKey[belonging.key];
  if (row == nullptr) {
    auto group = std::make_unique<RowGroup>();
    group->key = belonging.key;
    row = std::make_unique<RowDictionary>(std::move(group));
    row->Set(kMetaName, belonging.title);
  }
  const auto isApplication = [](const RowDictionary* member) {
    return member->origin.isApplication;
  };
  auto& group = *row->Group();
  const auto lead = std::ranges::find_if(belonging.rows, isApplication);
  group.first = (*std::ranges::min_element(belonging.rows, {}, &RowDictionary::Pid))->Pid();
  group.lead = lead != belonging.rows.end() ? (*lead)->Pid() : group.first;
  row->Set(kMetaPid, std::int64_t{group.first});
  row->isDeparted = false;
  row->above = nullptr;
  mRows.push_back(row.get());
  for (auto* member : belonging.rows) member->above = row.get();
}

void ApplicationGroups::Assign(std::span<const Member> members) {
  mNumbers.clear();
  mBelongings.clear();
  mNameOfScope.clear();
  for (auto* row : mRows) row->isDeparted = true;
  mRows.clear();
  for (const auto& member : members)
    if (member.row->origin.isApplication)
      if (auto scope = TextOf(*member.row, kPidAppScope); !scope.empty())
        mNameOfScope.try_emplace(std::move(scope), TextOf(*member.row, kMetaName));
  std::vector<int> groups(members.size(), -1);
  for (std::size_t i = 0; i < members.size(); ++i) {
    const auto& member = members[i];
    const auto parent = static_cast<std::size_t>(std::max(member.parent, 0));
    groups[i] = member.parent < 0 ? GroupOf(*member.row, nullptr, -1)
                                  : GroupOf(*member.row, members[parent].row, groups[parent]);
    member.row->above = nullptr;
    mBelongings[static_cast<std::size_t>(groups[i])].rows.push_back(member.row);
  }
  for (const auto& belonging : mBelongings)
    if (belonging.rows.size() > 1) MakeRow(belonging);
}

RowDictionary* ApplicationGroups::Find(const std::string& key) const {
  const auto found = mByKey.find(key);
  return found != mByKey.end() && !found->second->isDeparted ? found->second.get() : nullptr;
}

void ApplicationGroups::TidyUp() {
  std::erase_if(mByKey, [](const auto& entry) {
    return entry.second->isDeparted && entry.second->shownIndex < 0;
  });
}

}  // namespace lurkwell
