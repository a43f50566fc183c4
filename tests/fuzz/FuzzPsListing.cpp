// The listing of the ps columns and the command lines that are answered from it.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>

#include "platform/linux/ProcpsDialect.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace lurkwell;
  const std::string text(reinterpret_cast<const char*>(data), size);
  const auto command = ParsePsCommand(text);
  if (command && command->keyword.find_first_of(" ,;$\n") != std::string::npos) std::abort();

  const auto columns = ParsePsListing(text);
  std::set<std::string> keywords;
  for (const auto& column : columns) {
    if (column.name.empty() || column.name.find_first_of(" \t\n") != std::string::npos)
      std::abort();
    if (HeaderLine(columns, column.keyword) != column.name + '\n') std::abort();
    if (!ParsePsCommand("/bin/ps 0 -o " + column.keyword)) std::abort();
    if (!keywords.insert(column.keyword).second) std::abort();
  }
  // The reader's rules: one line of limited length, words of the listing at single blanks.
  std::string line = KeywordLine(columns);
  if (line.size() > 1023 || line.empty() != columns.empty()) std::abort();
  std::size_t count = 0;
  while (!line.empty()) {
    const auto end = line.find_first_of(" \n");
    if (end == std::string::npos || keywords.erase(line.substr(0, end)) != 1) std::abort();
    if (line[end] == '\n' && end + 1 != line.size()) std::abort();
    line.erase(0, end + 1);
    ++count;
  }
  if (count > columns.size()) std::abort();
  return 0;
}
