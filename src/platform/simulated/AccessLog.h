#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lurkwell {

/// What was asked of a simulated machine, a line each, in order. Tests compare it as text.
class AccessLog {
 public:
  void Add(std::string line) { mLines.push_back(std::move(line)); }
  const std::vector<std::string>& Lines() const { return mLines; }
  void Clear() { mLines.clear(); }

  /// Everything since the last call, each line ended by a newline.
  std::string Take() {
    std::string text;
    for (const auto& line : mLines) text += line + '\n';
    mLines.clear();
    return text;
  }

 private:
  std::vector<std::string> mLines;
};

}  // namespace lurkwell
