#include "process_control/ListingFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <string_view>
#include <utility>

#include "consolidator/PropertyCatalogue.h"
#include "consolidator/PropertyValues.h"
#include "platform/PrintableText.h"
#include "process_control/DisplayFormats.h"

namespace lurkwell {
namespace {

constexpr int kVersion = 1;

/// Long enough for every built-in property; ps cuts its own columns at 1023 characters.
constexpr std::int32_t kValueLength = 1024;

/// In UTC, as RFC 3339 has it.
std::string UtcText(TimeValue time) {
  std::time_t seconds = time.seconds;
  std::tm parts{};
  if (::gmtime_r(&seconds, &parts) == nullptr) return {};
  char text[64];
  const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &parts);
  char fraction[16];
  std::snprintf(fraction, sizeof fraction, ".%06dZ", time.microseconds);
  return std::string(text, length) + fraction;
}

/// The shortest text that reads back as the same number; there is none for what is no number.
std::string FractionText(double number) {
  if (!std::isfinite(number)) return {};
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

/// Why a value is missing, in words that do not change; empty for a value, or for a lack of one
/// that has no reason.
const char* ReasonOf(const TypedValue& value) {
  const auto* why = std::get_if<Missing>(&value);
  if (why == nullptr) return "";
  switch (*why) {
    case Missing::kNotYetKnown:
      return "not known";
    case Missing::kNotAllowed:
      return "not allowed";
    case Missing::kNotCounted:
      return "not counted";
    case Missing::kNone:
      break;
  }
  return "";
}

std::string_view TypeWord(PropertyType type) {
  switch (type) {
    case kPropertyTypeInteger:
      return "integer";
    case kPropertyTypeReal:
    case kPropertyTypeShare:
      return "number";
    case kPropertyTypeMemory:
      return "bytes";
    case kPropertyTypeRate:
      return "bytes/s";
    case kPropertyTypeTime:
    case kPropertyTypeClock:
      return "seconds";
    case kPropertyTypeDate:
      return "date";
    case kPropertyTypeString:
    case kPropertyTypeHex:
      break;
  }
  return "text";
}

/// What a value is in a form for programs, without quotation marks; `isText` says whether it needs
/// them. A value that is not of its column's type is a text.
std::string PlainValue(const TypedValue& value, PropertyType type, bool& isText) {
  isText = false;
  if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
  if (const auto* number = std::get_if<double>(&value)) return FractionText(*number);
  if (const auto* time = std::get_if<TimeValue>(&value)) {
    isText = type == kPropertyTypeDate;
    return isText ? UtcText(*time) : TimeString(*time);
  }
  isText = true;
  if (const auto* text = std::get_if<std::string>(&value))
    return PrintableText(WithoutNewline(*text));
  return {};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

std::string JsonValue(const TypedValue& value, PropertyType type) {
  if (!IsKnown(value)) return "null";
  bool isText = false;
  const std::string plain = PlainValue(value, type, isText);
  return isText ? Quoted(plain) : plain.empty() ? "null" : plain;
}

// ---- Text ---------------------------------------------------------------------------------------

class TextFormat final : public ListingFormat {
 public:
  TextFormat(std::vector<ListingColumn> columns, bool isTree)
      : mColumns(std::move(columns)), mIsTree(isTree) {}

  void Write(const Listing& listing, std::FILE* out) override {
    std::vector<std::vector<std::string>> rows;
    for (const auto& process : listing.processes) rows.push_back(Texts(process));
    std::vector<std::string> heading;
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
      heading.push_back(mColumns[i].key);
      std::size_t width = mColumns[i].key.size();
      for (const auto& row : rows) width = std::max(width, CountCharacters(row[i]));
      widths.push_back(width);
    }
    std::fprintf(out, "%7s:", "pid");
    WriteRow(heading, widths, out);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      std::fprintf(out, "%7d:", listing.processes[i].pid);
      WriteRow(rows[i], widths, out);
    }
  }

 private:
  bool IsText(std::size_t column) const { return mColumns[column].type == kPropertyTypeString; }

  static std::string Mark(const TypedValue& value) {
    const auto* why = std::get_if<Missing>(&value);
    if (why == nullptr || *why == Missing::kNone) return "";
    return *why == Missing::kNotYetKnown ? "?" : *why == Missing::kNotAllowed ? "x" : "-";
  }

  std::vector<std::string> Texts(const PrintedProcess& process) const {
    std::vector<std::string> texts;
    bool isIndented = !mIsTree;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
      std::string text = Mark(process.values[i]);
      if (const auto* known = std::get_if<std::string>(&process.values[i])) {
        text = PrintableText(WithoutNewline(*known));
      } else if (IsKnown(process.values[i])) {
        char value[kValueLength];
        const char* key = mColumns[i].key.c_str();
        GetPIDPropertyValue(process.pid, key, value, kValueLength, nullptr);
        text = PrintableText(FindBuiltInProperty(key) == nullptr ? WithoutNewline(value) : value);
      }
      if (!isIndented && IsText(i)) {
        text.insert(0, 2 * static_cast<std::size_t>(process.depth), ' ');
        isIndented = true;
      }
      texts.push_back(std::move(text));
    }
    return texts;
  }

  void WriteRow(const std::vector<std::string>& values, const std::vector<std::size_t>& widths,
                std::FILE* out) const {
    for (std::size_t i = 0; i < values.size(); ++i) {
      const std::string blanks(widths[i] - CountCharacters(values[i]), ' ');
      // Nothing stands behind the last column's text.
      const bool isLast = i + 1 == values.size();
      const std::string cell = IsText(i) ? values[i] + (isLast ? "" : blanks) : blanks + values[i];
      std::fprintf(out, " %s", cell.c_str());
    }
    std::fputc('\n', out);
  }

  std::vector<ListingColumn> mColumns;
  bool mIsTree;
};

// ---- JSON ---------------------------------------------------------------------------------------

class JsonFormat : public ListingFormat {
 public:
  JsonFormat(std::vector<ListingColumn> columns, bool isTree)
      : mColumns(std::move(columns)), mIsTree(isTree) {}

  void Write(const Listing& listing, std::FILE* out) override {
    std::fprintf(out, "{%s,\n \"time\":\"%s\",\n \"processes\":[", Head().c_str(),
                 UtcText(listing.time).c_str());
    const char* separator = "";
    for (const auto& process : listing.processes) {
      std::fprintf(out, "%s\n  {%s}", separator, Members(process).c_str());
      separator = ",";
    }
    std::fputs("\n ]}\n", out);
  }

 protected:
  /// What is said of the form and the columns.
  std::string Head() const {
    std::string head = "\"format\":\"lurkwell.processes\",\"version\":" + std::to_string(kVersion) +
                       ",\"columns\":[";
    const char* separator = "";
    for (const auto& column : mColumns) {
      head += separator + ("{\"key\":" + Quoted(PrintableText(column.key)) + ",\"type\":\"") +
              std::string(TypeWord(column.type)) + "\"}";
      separator = ",";
    }
    return head + "]";
  }

  std::string Members(const PrintedProcess& process) const {
    std::string text = "\"pid\":" + std::to_string(process.pid);
    if (mIsTree) text += ",\"depth\":" + std::to_string(process.depth);
    std::string values;
    std::string missing;
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
      const std::string key = Quoted(PrintableText(mColumns[i].key));
      const auto& value = process.values[i];
      values += (i == 0 ? "" : ",") + key + ":" + JsonValue(value, mColumns[i].type);
      if (const std::string reason = ReasonOf(value); !reason.empty())
        missing += (missing.empty() ? "" : ",") + key + ":\"" + reason + '"';
    }
    text += ",\"values\":{" + values + "}";
    return missing.empty() ? text : text + ",\"missing\":{" + missing + "}";
  }

 private:
  std::vector<ListingColumn> mColumns;
  bool mIsTree;
};

/// A line that says what the others are, then a line for each process.
class JsonLinesFormat final : public JsonFormat {
 public:
  using JsonFormat::JsonFormat;

  void Write(const Listing& listing, std::FILE* out) override {
    if (!std::exchange(mHasHead, true)) std::fprintf(out, "{%s}\n", Head().c_str());
    const std::string time = UtcText(listing.time);
    for (const auto& process : listing.processes)
      std::fprintf(out, "{\"time\":\"%s\",%s}\n", time.c_str(), Members(process).c_str());
  }

 private:
  bool mHasHead = false;
};

// ---- CSV ----------------------------------------------------------------------------------------

class CsvFormat final : public ListingFormat {
 public:
  CsvFormat(std::vector<ListingColumn> columns, bool isTree)
      : mColumns(std::move(columns)), mIsTree(isTree) {}

  void Write(const Listing& listing, std::FILE* out) override {
    if (!std::exchange(mHasHead, true)) WriteHead(out);
    const std::string time = UtcText(listing.time);
    for (const auto& process : listing.processes) {
      std::fprintf(out, "%s,%d", time.c_str(), process.pid);
      if (mIsTree) std::fprintf(out, ",%d", process.depth);
      for (std::size_t i = 0; i < mColumns.size(); ++i)
        std::fprintf(out, ",%s", Field(process.values[i], mColumns[i].type).c_str());
      std::fputs("\r\n", out);
    }
  }

 private:
  void WriteHead(std::FILE* out) const {
    std::fputs(mIsTree ? "time,pid,depth" : "time,pid", out);
    for (const auto& column : mColumns)
      std::fprintf(out, ",%s", TextField(PrintableText(column.key)).c_str());
    std::fputs("\r\n", out);
  }

  static std::string Field(const TypedValue& value, PropertyType type) {
    if (!IsKnown(value)) return ReasonOf(value);
    bool isText = false;
    const std::string plain = PlainValue(value, type, isText);
    return isText ? TextField(plain) : plain;
  }

  /// In quotation marks where it needs them. A spreadsheet would take what begins like a formula
  /// for one; the mark in front makes it a text.
  static std::string TextField(std::string text) {
    if (!text.empty() && std::string_view("=+-@").find(text.front()) != std::string_view::npos)
      text.insert(0, 1, '\'');
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
  }

  std::vector<ListingColumn> mColumns;
  bool mIsTree;
  bool mHasHead = false;
};

}  // namespace

std::unique_ptr<ListingFormat> MakeListingFormat(ListingForm form,
                                                 std::vector<ListingColumn> columns, bool isTree) {
  switch (form) {
    case ListingForm::kJson:
      return std::make_unique<JsonFormat>(std::move(columns), isTree);
    case ListingForm::kJsonLines:
      return std::make_unique<JsonLinesFormat>(std::move(columns), isTree);
    case ListingForm::kCsv:
      return std::make_unique<CsvFormat>(std::move(columns), isTree);
    case ListingForm::kText:
      break;
  }
  return std::make_unique<TextFormat>(std::move(columns), isTree);
}

std::string ListingText(ListingForm form, std::vector<ListingColumn> columns,
                        const Listing& listing) {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* out = ::open_memstream(&text, &size);
  if (out == nullptr) return {};
  MakeListingFormat(form, std::move(columns), false)->Write(listing, out);
  std::fclose(out);
  const std::unique_ptr<char, decltype(&std::free)> owned(text, &std::free);
  return owned ? std::string(owned.get(), size) : std::string();
}

}  // namespace lurkwell
