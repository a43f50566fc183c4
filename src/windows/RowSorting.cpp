#include "windows/RowSorting.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "preferences/Settings.h"
#include "process_control/ProcessActions.h"
#include "windows/ControllerAssertion.h"
#include "windows/CustomCells.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr char kSortingUnit[] = "vqMainTableController";

template <typename T>
int Order(const T& a, const T& b, const compareContextStructure& context) {
  const int order = a < b ? -1 : b < a ? 1 : 0;
  return context.ascending ? order : -order;
}

template <typename T>
int OrderOfValues(const SortedRow& a, const SortedRow& b, T SortedRow::*value,
                  const compareContextStructure& context) {
  if (a.isMissing != b.isMissing) return a.isMissing ? 1 : -1;
  if (a.isMissing) return 0;
  if (a.isText != b.isText) return a.isText ? 1 : -1;
  if (a.isText) return Order(a.text, b.text, context);
  return Order(a.*value, b.*value, context);
}

/// Reads what one comparison needs of every row.
using Preparation = void (*)(SortedRow& row, const compareContextStructure& context);

// Texts have no totals.

void PrepareText(SortedRow& row, const compareContextStructure& context) {
  row.isMissing = !std::holds_alternative<std::string>(row.row->Get(context.sortKey));
  row.text = row.row->CaseFolded(context.sortKey);
}

void SetNumber(SortedRow& row, KeyId key) {
  const auto& value = row.row->SortValue(key);
  row.isMissing = !IsKnown(value);
  row.integer = IntegerOf(value);
  row.number = NumberOf(value);
  row.isText = std::holds_alternative<std::string>(value);
  if (row.isText) row.text = row.row->CaseFolded(key);
}

void PrepareNumber(SortedRow& row, const compareContextStructure& context) {
  SetNumber(row, context.sortKey);
}

void PrepareCPUPercent(SortedRow& row, const compareContextStructure&) {
  SetNumber(row, kInternalCpuUsage);
  if (row.pid != 0 || !IgnoresPidZero()) return;
  row.isMissing = false;
  row.number = 0.0;
}

void PrepareVirtualSize(SortedRow& row, const compareContextStructure&) {
  SetNumber(row, MemoryFigureKey());
  if (row.pid != 0 || !IgnoresPidZero()) return;
  row.isMissing = false;
  row.integer = 0;
}

void PrepareApplication(SortedRow& row, const compareContextStructure&) {
  ProcessSerialNumber psn;
  PID2PSN(row.row->LeadPid(), &psn);
  row.hasApplication = !psn.IsNone();
  row.hasAction = GetProcessAction(row.row->LeadPid(), kProcessActionAny, nullptr);
  row.text = row.row->CaseFolded(kMetaName);
}

struct Comparison {
  RowComparison compare;
  Preparation prepare;
};

constexpr Comparison kComparisons[] = {
    {pidCompare, PrepareNumber},
    {stringCompare, PrepareText},
    {integerCompare, PrepareNumber},
    {realCompare, PrepareNumber},
    {memoryCompare, PrepareNumber},
    {timeCompare, PrepareNumber},
    {cpuPercentCompare, PrepareCPUPercent},
    {memGraphCompare, PrepareVirtualSize},
    {iconCompare, PrepareApplication},
    {indicatorCompare, PrepareApplication},
    {hexCompare, PrepareNumber},
};

Preparation PreparationFor(RowComparison compare) {
  return std::ranges::find(kComparisons, compare, &Comparison::compare)->prepare;
}

RowComparison ComparisonForType(PropertyType type) {
  switch (type) {
    case kPropertyTypeString:
      return stringCompare;
    case kPropertyTypeInteger:
      return integerCompare;
    case kPropertyTypeReal:
    case kPropertyTypeShare:
    case kPropertyTypeClock:
      return realCompare;
    case kPropertyTypeHex:
      return hexCompare;
    case kPropertyTypeMemory:
    case kPropertyTypeRate:
      return memoryCompare;
    case kPropertyTypeTime:
    case kPropertyTypeDate:
      return timeCompare;
  }
  return stringCompare;
}

RowComparison InternalComparison(std::string_view key) {
  const KeyId id = InternKey(key);
  if (id == kInternalCPUPercent) return cpuPercentCompare;
  if (id == kInternalMemGraph) return memGraphCompare;
  if (id == kInternalIcon) return iconCompare;
  if (id == kInternalIndicator) return indicatorCompare;
  return nullptr;
}

}  // namespace

int pidCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  return Order(a.pid, b.pid, context);
}

int stringCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  const int order = OrderOfValues(a, b, &SortedRow::text, context);
  return order != 0 ? order : pidCompare(a, b, context);
}

int integerCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  const int order = OrderOfValues(a, b, &SortedRow::integer, context);
  return order != 0 ? order : pidCompare(a, b, context);
}

int realCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  const int order = OrderOfValues(a, b, &SortedRow::number, context);
  return order != 0 ? order : pidCompare(a, b, context);
}

int memoryCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  return integerCompare(a, b, context);
}

int timeCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  const int order = OrderOfValues(a, b, &SortedRow::number, context);
  return order != 0 ? order : pidCompare(a, b, context);
}

int cpuPercentCompare(const SortedRow& a, const SortedRow& b,
                      const compareContextStructure& context) {
  if (!Expect(a.pid != 0 || b.pid != 0, kSortingUnit, "pid1 || pid2")) return 0;
  return timeCompare(a, b, context);
}

int memGraphCompare(const SortedRow& a, const SortedRow& b,
                    const compareContextStructure& context) {
  if (!Expect(a.pid != 0 || b.pid != 0, kSortingUnit, "pid1 || pid2")) return 0;
  return integerCompare(a, b, context);
}

int iconCompare(const SortedRow& a, const SortedRow& b, const compareContextStructure& context) {
  const int order = Order(b.hasApplication, a.hasApplication, context);
  return order != 0 ? order : stringCompare(a, b, context);
}

int indicatorCompare(const SortedRow& a, const SortedRow& b,
                     const compareContextStructure& context) {
  const int order = Order(b.hasAction, a.hasAction, context);
  return order != 0 ? order : iconCompare(a, b, context);
}

int hexCompare(const SortedRow&, const SortedRow&, const compareContextStructure&) {
  QApplication::beep();
  return 0;
}

RowComparison ComparisonForColumn(std::string_view key) {
  if (key.empty()) return nullptr;
  if (!IsInternalKey(key))
    return ComparisonForType(GetProcPropertyType(std::string(key).c_str(), nullptr));
  const auto compare = InternalComparison(key);
  return compare != nullptr ? compare : stringCompare;
}

RowComparison SortingComparisonForColumn(std::string_view key) {
  if (IsInternalKey(key)) return InternalComparison(key);
  const auto compare = ComparisonForColumn(key);
  return compare == hexCompare ? nullptr : compare;
}

bool IgnoresPidZero() {
  return ReadSwitch("MAIN_WINDOW_FAKILY_IGNORE_PID_ZERO_CPU_USAGE");
}

bool SortRows(std::span<RowDictionary*> rows, RowComparison comparison,
              const compareContextStructure& context) {
  const auto prepare = PreparationFor(comparison);
  std::vector<SortedRow> sorted(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    sorted[i].row = rows[i];
    sorted[i].pid = rows[i]->OrderPid();
    prepare(sorted[i], context);
  }
  const auto isBefore = [&](const SortedRow& a, const SortedRow& b) {
    return comparison(a, b, context) < 0;
  };
  const auto disorder = std::ranges::is_sorted_until(sorted, isBefore);
  if (disorder == sorted.end()) return false;
  // Those that have come stand at the end; the others are in order.
  std::ranges::sort(disorder, sorted.end(), isBefore);
  std::ranges::inplace_merge(sorted, disorder, isBefore);
  std::ranges::transform(sorted, rows.begin(), &SortedRow::row);
  return true;
}

}  // namespace lurkwell
