#include "exporter/GroupRules.h"

#include <fnmatch.h>

#include <algorithm>

namespace lurkwell {

bool GroupRules::OfKind::Admits(const std::string& name) const {
  return patterns.empty() || std::ranges::any_of(patterns, [&](const std::string& pattern) {
           return ::fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
         });
}

}  // namespace lurkwell
