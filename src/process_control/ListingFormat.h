#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "consolidator/TypedValue.h"
#include "platform/Clock.h"

namespace lurkwell {

/// A property that is printed.
struct ListingColumn {
  std::string key;
  PropertyType type = kPropertyTypeString;
};

/// A process at one update. In a tree `depth` tells how many of its ancestors are listed above it.
struct PrintedProcess {
  std::int32_t pid = 0;
  int depth = 0;
  /// One for each column.
  std::vector<TypedValue> values;
};

/// One update.
struct Listing {
  TimeValue time;
  std::vector<PrintedProcess> processes;
};

/// How updates are written. docs/printing.md describes the forms for other programs; a change that
/// such a program would notice makes another version.
class ListingFormat {
 public:
  virtual ~ListingFormat() = default;

  /// Writes one update, without a look at errors, which the stream keeps.
  virtual void Write(const Listing& listing, std::FILE* out) = 0;
};

enum class ListingForm : std::uint8_t { kText, kJson, kJsonLines, kCsv };

/// `isTree`: whether depths mean anything.
std::unique_ptr<ListingFormat> MakeListingFormat(ListingForm form,
                                                 std::vector<ListingColumn> columns, bool isTree);

/// One update as a text.
std::string ListingText(ListingForm form, std::vector<ListingColumn> columns,
                        const Listing& listing);

}  // namespace lurkwell
