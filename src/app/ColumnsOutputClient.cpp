#include "app/ColumnsOutputClient.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <numeric>
#include <string_view>

#include "consolidator/ProcessQueries.h"
#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

/// Long enough for every built-in property; ps cuts its own columns at 1023 characters.
constexpr std::int32_t kValueLength = 1024;

std::vector<std::string> AllKeys() {
  std::vector<std::string> keys;
  char key[64];
  for (int i = 0; GetNthProcPropertyHeader(i, key, sizeof key); ++i) keys.emplace_back(key);
  return keys;
}

/// How many letters must be put in, taken out or changed to make one name the other; case counts
/// for nothing.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (lower(a[i]) == lower(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

std::string NearMatches(const std::string& key, const std::vector<std::string>& keys) {
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const auto& known : keys) {
    const bool contains = known.find(key) != std::string::npos;
    const std::size_t distance = contains ? 1 : Distance(key, known);
    if (distance <= std::max<std::size_t>(2, key.size() / 3)) ranked.emplace_back(distance, known);
  }
  std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, std::string>::first);
  if (ranked.size() > 5) ranked.resize(5);
  std::string text;
  for (const auto& [distance, known] : ranked) text += (text.empty() ? "" : ", ") + known;
  return text;
}

struct Row {
  std::int32_t pid;
  std::vector<std::string> values;
};

std::vector<Row> ReadRows(const std::vector<std::string>& columns) {
  std::vector<Row> rows;
  for (const auto pid : PidBlob(kPidBlobAll)) {
    auto& row = rows.emplace_back(Row{pid, {}});
    for (const auto& column : columns) {
      char value[kValueLength];
      GetPIDPropertyValue(pid, column.c_str(), value, kValueLength, nullptr);
      row.values.push_back(
          PrintableText(FindBuiltInProperty(column) == nullptr ? WithoutNewline(value) : value));
    }
  }
  return rows;
}

}  // namespace

ColumnsOutputClient::ColumnsOutputClient(std::vector<std::string> columns, std::int32_t interval,
                                         std::FILE* out)
    : ProcessInformationClient(nullptr, interval), mColumns(std::move(columns)), mOut(out) {}

ProcessInformationClient::NeedLevel ColumnsOutputClient::NeedPidsForProcProperty(
    const char* property) {
  return NeedPidProcProperty(kInvalidPID, property) ? kNeedAllPids : kNeedNoPids;
}

bool ColumnsOutputClient::NeedPidProcProperty(int, const char* property) {
  return std::ranges::find(mColumns, std::string_view(property)) != mColumns.end();
}

void ColumnsOutputClient::NotifyProcessesHaveBeenUpdated() {
  const auto rows = ReadRows(mColumns);
  std::vector<std::size_t> widths;
  std::vector<bool> areTexts;
  for (std::size_t i = 0; i < mColumns.size(); ++i) {
    std::size_t width = mColumns[i].size();
    for (const auto& row : rows) width = std::max(width, CountCharacters(row.values[i]));
    widths.push_back(width);
    areTexts.push_back(GetProcPropertyType(mColumns[i].c_str(), nullptr) == kPropertyTypeString);
  }
  const auto print = [&](const std::vector<std::string>& values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const std::string blanks(widths[i] - CountCharacters(values[i]), ' ');
      // Nothing stands behind the last column's text.
      const bool isLast = i + 1 == values.size();
      const std::string cell =
          areTexts[i] ? values[i] + (isLast ? "" : blanks) : blanks + values[i];
      std::fprintf(mOut, " %s", cell.c_str());
    }
    std::fputc('\n', mOut);
  };
  std::fprintf(mOut, "%7s:", "pid");
  print(mColumns);
  for (const auto& row : rows) {
    std::fprintf(mOut, "%7d:", row.pid);
    print(row.values);
  }
  std::fflush(mOut);
}

std::optional<std::string> ComplaintAboutColumns(const std::vector<std::string>& columns) {
  for (const auto& column : columns) {
    if (IsKnownProcProperty(column.c_str())) continue;
    const auto near = NearMatches(column, AllKeys());
    return "no property or ps column '" + PrintableText(column) + "'" +
           (near.empty() ? "" : "; there is " + near);
  }
  return std::nullopt;
}

}  // namespace lurkwell
