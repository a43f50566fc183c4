#include "process_details/DetailsLists.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "platform/Clock.h"
#include "platform/FigureWords.h"
#include "process_control/DisplayFormats.h"
#include "resources/Resources.h"
#include "resources/UserLocale.h"

namespace lurkwell {
namespace {

constexpr DetailsColumn kThreadColumns[] = {
    {"details_thread_id", kPropertyTypeInteger, 9},
    {"details_thread_name", kPropertyTypeString, 0},
    {"details_thread_share", kPropertyTypeShare, 8},
    {"details_thread_time", kPropertyTypeTime, 12},
    {"details_thread_state", kPropertyTypeString, 16},
    {"details_thread_processor", kPropertyTypeInteger, 10},
    {"details_thread_nice", kPropertyTypeInteger, 6},
};
constexpr DetailsColumn kDescriptorColumns[] = {
    {"details_descriptor", kPropertyTypeInteger, 10},
    {"details_descriptor_kind", kPropertyTypeString, 11},
    {"details_descriptor_target", kPropertyTypeString, 0},
    {"details_descriptor_position", kPropertyTypeInteger, 12},
    {"details_descriptor_flags", kPropertyTypeString, 26},
};
constexpr DetailsColumn kMappingColumns[] = {
    {"details_mapping_range", kPropertyTypeString, 26, true},
    {"details_mapping_size", kPropertyTypeMemory, 9},
    {"details_mapping_resident", kPropertyTypeMemory, 9},
    {"details_mapping_proportional", kPropertyTypeMemory, 9},
    {"details_mapping_swapped", kPropertyTypeMemory, 9},
    {"details_mapping_permissions", kPropertyTypeString, 6},
    {"details_mapping_file", kPropertyTypeString, 0},
};
constexpr DetailsColumn kEnvironmentColumns[] = {
    {"details_variable_name", kPropertyTypeString, 28},
    {"details_variable_value", kPropertyTypeString, 0},
};
constexpr DetailsColumn kLimitColumns[] = {
    {"details_limit_name", kPropertyTypeString, 0},
    {"details_limit_soft", kPropertyTypeInteger, 18},
    {"details_limit_hard", kPropertyTypeInteger, 18},
    {"details_limit_unit", kPropertyTypeString, 14},
};
constexpr DetailsColumn kGroupColumns[] = {
    {"details_group_figure", kPropertyTypeString, 30},
    {"details_group_in_use", kPropertyTypeInteger, 16},
    {"details_group_limit", kPropertyTypeInteger, 16},
    {"details_group_path", kPropertyTypeString, 0},
};

// In the order of DetailsKind.
constexpr DetailsListLook kLooks[] = {
    {"details_threads", "details_threads_count", kThreadColumns, 2, Qt::DescendingOrder},
    {"details_descriptors", "details_descriptors_count", kDescriptorColumns, 0, Qt::AscendingOrder},
    {"details_mappings", "details_mappings_count", kMappingColumns, 0, Qt::AscendingOrder},
    {"details_environment", "details_environment_count", kEnvironmentColumns, 0,
     Qt::AscendingOrder},
    {"details_limits", "details_limits_count", kLimitColumns, 0, Qt::AscendingOrder},
    {"details_group", "details_group_count", kGroupColumns, -1, Qt::AscendingOrder},
};
static_assert(std::size(kLooks) == kDetailsKinds);

TypedValue NumberOrNone(std::optional<std::int64_t> number) {
  if (number) return *number;
  return Missing::kNone;
}

std::vector<DetailsRow> RowsOf(const std::vector<DescriptorDetails>& descriptors) {
  std::vector<DetailsRow> rows;
  rows.reserve(descriptors.size());
  for (const auto& its : descriptors) {
    rows.push_back(
        {static_cast<std::uint64_t>(its.number),
         {std::int64_t{its.number}, its.kind, its.target, NumberOrNone(its.position), its.flags}});
  }
  return rows;
}

std::string RangeInWords(const MappingDetails& mapping) {
  return QStringLiteral("%1–%2").arg(mapping.begin, 0, 16).arg(mapping.end, 0, 16).toStdString();
}

std::vector<DetailsRow> RowsOf(const std::vector<MappingDetails>& mappings) {
  std::vector<DetailsRow> rows;
  rows.reserve(mappings.size());
  for (const auto& its : mappings)
    rows.push_back({its.begin,
                    {RangeInWords(its), static_cast<std::int64_t>(its.end - its.begin),
                     its.resident, its.proportional, its.swapped, its.permissions, its.file}});
  return rows;
}

std::vector<DetailsRow> RowsOf(const std::vector<VariableDetails>& variables) {
  std::vector<DetailsRow> rows;
  rows.reserve(variables.size());
  for (const auto& its : variables) rows.push_back({rows.size(), {its.name, its.value}});
  return rows;
}

TypedValue BoundOrUnlimited(std::optional<std::int64_t> bound) {
  if (bound) return *bound;
  return LocalizedString("details_unlimited").toStdString();
}

std::vector<DetailsRow> RowsOf(const std::vector<LimitDetails>& limits) {
  std::vector<DetailsRow> rows;
  rows.reserve(limits.size());
  for (const auto& its : limits)
    rows.push_back({rows.size(),
                    {its.name, BoundOrUnlimited(its.soft), BoundOrUnlimited(its.hard), its.unit}});
  return rows;
}

TypedValue GroupNumber(ControlGroupDetails::Unit unit, std::optional<std::int64_t> number) {
  using Unit = ControlGroupDetails::Unit;
  if (!number) return Missing::kNone;
  switch (unit) {
    case Unit::kNumber:
      break;
    case Unit::kBytes:
      return LocalFigure(QString::fromStdString(MemoryString(*number))).toStdString();
    case Unit::kMicroseconds:
      return QStringLiteral("%1 s")
          .arg(LocalNumber(static_cast<double>(*number) / 1e6, 'f', 2))
          .toStdString();
    case Unit::kShareOfProcessor:
      return LocalizedString("details_group_processors", static_cast<double>(*number) / 1000,
                             LocalNumber(static_cast<double>(*number) / 1000, 'g', 4))
          .toStdString();
  }
  return *number;
}

std::vector<DetailsRow> RowsOf(const std::vector<ControlGroupDetails>& groups) {
  std::vector<DetailsRow> rows;
  for (const auto& its : groups) {
    const auto id = "details_group_" + its.figure;
    const bool isKnown = HasLocalizedString(id.c_str());
    rows.push_back(
        {rows.size(),
         {isKnown ? LocalizedString(id.c_str()).toStdString() : its.figure,
          GroupNumber(its.unit, its.inUse), GroupNumber(its.unit, its.limit), its.group}});
  }
  return rows;
}

}  // namespace

const DetailsListLook& LookOf(DetailsKind kind) {
  return kLooks[static_cast<std::size_t>(kind)];
}

std::vector<DetailsRow> DetailsRows::Make(const DetailsAnswer& answer) {
  mPassed = mReadAt > 0 ? answer.readAt - mReadAt : 0;
  mReadAt = answer.readAt;
  return std::visit(
      [this]<typename Row>(const std::vector<Row>& list) {
        if constexpr (std::is_same_v<Row, ThreadDetails>) {
          return Of(list);
        } else {
          return RowsOf(list);
        }
      },
      answer.list);
}

std::vector<DetailsRow> DetailsRows::Of(const std::vector<ThreadDetails>& threads) {
  std::vector<DetailsRow> rows;
  rows.reserve(threads.size());
  std::unordered_map<std::int32_t, ThreadTime> times;
  for (const auto& its : threads) {
    times[its.tid] = {its.startStamp, its.cpuTime};
    TypedValue share = Missing::kNotYetKnown;
    const auto before = mTimes.find(its.tid);
    if (before != mTimes.end() && before->second.startStamp == its.startStamp && mPassed > 0)
      share = std::clamp(100.0 * static_cast<double>(its.cpuTime - before->second.cpuTime) /
                             static_cast<double>(mPassed),
                         0.0, 100.0);
    // Hundredths, as everywhere.
    const auto hundredths = its.cpuTime / 10'000;
    const TimeValue time{hundredths / 100, static_cast<std::int32_t>(hundredths % 100) * 10'000};
    rows.push_back({static_cast<std::uint64_t>(its.tid),
                    {std::int64_t{its.tid}, its.name, share, time, StateInWords(its.state),
                     std::int64_t{its.processor}, std::int64_t{its.nice}}});
  }
  mTimes = std::move(times);
  return rows;
}

QString CountText(DetailsKind kind, const DetailsAnswer& answer) {
  auto text = LocalizedString(LookOf(kind).count).arg(LocalNumber(qint64{answer.count}));
  if (const auto* mappings = std::get_if<std::vector<MappingDetails>>(&answer.list)) {
    const auto sum = [mappings](auto of) {
      return LocalFigure(QString::fromStdString(MemoryString(std::transform_reduce(
          mappings->begin(), mappings->end(), std::int64_t{0}, std::plus<>(), of))));
    };
    text = text.arg(
        sum([](const auto& its) { return static_cast<std::int64_t>(its.end - its.begin); }),
        sum([](const auto& its) { return its.resident; }),
        sum([](const auto& its) { return its.proportional; }));
  }
  const auto shown = static_cast<std::int64_t>(
      std::visit([](const auto& list) { return list.size(); }, answer.list));
  // Some may have ended while the others were read.
  if (answer.count > shown && shown == static_cast<std::int64_t>(kMostDetails))
    text = LocalizedString("details_first_ones").arg(text, LocalNumber(qint64{shown}));
  return text;
}

}  // namespace lurkwell
