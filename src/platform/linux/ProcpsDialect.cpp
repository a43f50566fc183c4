#include "platform/linux/ProcpsDialect.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace lurkwell {
namespace {

using Kind = ToolColumn::Kind;

/// Names at single blanks.
struct ColumnsOfAKind {
  ToolColumn column;
  std::string_view names;
};

std::int64_t PageSize() {
  return ::sysconf(_SC_PAGESIZE);
}

std::unordered_map<std::string_view, ToolColumn> AllColumns() {
  const ColumnsOfAKind kinds[] = {
      {{Kind::kInteger},
       "AGID AGNI API C CP CPUID CPUTIMES EGID ETIMES EUID F FGID FSGID FSUID FUID GID LASTCPU "
       "LIM LUID LWP M_SIZE MAJFL MAJFLT MINFL MINFLT NI NLWP NUMA OOM OOMADJ OPRI OWNER P PAGEIN "
       "PGID "
       "PID PPID PRI PRIORITY PSR RGID RTPRIO RUID SCH SGID SID SPID SUID SVGID SVUID TGID "
       "THCNT TID TPGID UID"},
      {{Kind::kReal}, "%CPU %CUC %CUU %MEM"},
      {{Kind::kSize, 1024}, "DRS DSIZ HTPRV HTSHR RSS RSZ SIZE TRS TRSS TSIZ VSZ"},
      {{Kind::kSize, PageSize()}, "SZ"},
      {{Kind::kInteger, 1, true}, "CGROUPNS IPCNS MNTNS NETNS PIDNS ROPS TIMENS USERNS UTSNS WOPS"},
      {{Kind::kSize, 1024, true}, "PSS USS"},
      {{Kind::kSize, 1, true}, "RBYTES RCHARS WBYTES WCBYTES WCHARS"},
      {{Kind::kText, 1, true}, "EXE"},
      {{Kind::kClock}, "BSDTIME ELAPSED TIME"},
      {{Kind::kDate}, "LSTART"},
      {{Kind::kText},
       "BLOCKED CATCHED CAUGHT CGNAME CGROUP CLS CMD COMM COMMAND CONTEXT EGROUP EIP ESP EUSER "
       "FGROUP FNAME FSGROUP FSUSER FUSER GROUP IGNORED LABEL LXC MACHINE PENDING POL "
       "RGROUP RUSER S SEAT SGROUP SIGNAL SLICE STACKP START STARTED STAT STIME "
       "SUPGRP SUSER SVGROUP SVUSER TSIG TT TTY TTY4 UCMD UNIT USER UUNIT WCHAN ZONE"},
  };
  std::unordered_map<std::string_view, ToolColumn> columns;
  for (const auto& [column, names] : kinds) {
    for (auto left = names; !left.empty();) {
      const auto blank = std::min(left.find(' '), left.size());
      columns.emplace(left.substr(0, blank), column);
      left.remove_prefix(std::min(blank + 1, left.size()));
    }
  }
  return columns;
}

constexpr std::pair<std::string_view, std::string_view> kAliases[] = {
    {"atime", "time"},
    {"class", "cls"},
    {"command", "args"},
    {"cputime", "time"},
    {"flag", "f"},
    {"flags", "f"},
    {"intpri", "opri"},
    {"longtname", "tname"},
    {"m_drs", "drs"},
    {"m_trs", "trs"},
    {"nice", "ni"},
    {"pcpu", "%cpu"},
    {"pgrp", "pgid"},
    {"pmem", "%mem"},
    {"rssize", "rss"},
    {"sgi_rss", "rss"},
    {"sig", "pending"},
    {"sig_block", "blocked"},
    {"sigcatch", "caught"},
    {"sig_ignore", "ignored"},
    {"sigignore", "ignored"},
    {"sigmask", "blocked"},
    {"start_stack", "stackp"},
    {"start_time", "stime"},
    {"state", "s"},
    {"times", "cputimes"},
    {"tty", "tt"},
    {"tty8", "tname"},
    {"ucomm", "comm"},
    {"uid_hack", "user"},
    {"uname", "user"},
    {"util", "c"},
    {"vsize", "vsz"},
    {"wname", "wchan"},
};

constexpr std::string_view kOddities[] = {"pri_bar", "pri_baz", "pri_foo", "sess", "session"};

// Of the two under "STARTED" users of ps mean the short one.
constexpr std::string_view kNamesOfTheirOwn[] = {"lstart"};

}  // namespace

std::optional<ToolColumn> ProcpsColumnNamed(std::string_view name) {
  static const auto columns = AllColumns();
  const auto found = columns.find(name);
  return found == columns.end() ? std::nullopt : std::optional(found->second);
}

std::string_view ProcpsKeywordFor(std::string_view alias) {
  const auto* found =
      std::ranges::find(kAliases, alias, &std::pair<std::string_view, std::string_view>::first);
  return found == std::end(kAliases) ? std::string_view() : found->second;
}

bool IsProcpsOddity(std::string_view keyword) {
  return keyword.starts_with('_') || std::ranges::find(kOddities, keyword) != std::end(kOddities);
}

bool HasProcpsNameOfItsOwn(std::string_view keyword) {
  return std::ranges::find(kNamesOfTheirOwn, keyword) != std::end(kNamesOfTheirOwn);
}

namespace {

constexpr const char* kPs = "/bin/ps";
constexpr std::string_view kKeywordsLine = "/bin/ps -Lww";
constexpr std::string_view kHeaderLine = "/bin/ps 0 -o ";
constexpr std::string_view kColumnLine = "/bin/ps -axww -o pid,";

constexpr std::size_t kLongestAnswer = 1023;
constexpr std::size_t kLongestHeader = 62;
constexpr std::size_t kLongestKeyword = 255;

bool IsKeyword(std::string_view text) {
  return !text.empty() && text.size() <= kLongestKeyword &&
         std::all_of(text.begin(), text.end(), [](char c) {
           return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                  c == '_' || c == '%';
         });
}

/// Takes the next word off `line`, blanks on either side of it being none of it.
std::string_view TakeListedWord(std::string_view& line) {
  constexpr std::string_view kBlanks = " \t\r\v\f";
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  const auto word = line.substr(0, line.find_first_of(kBlanks));
  line.remove_prefix(word.size());
  return word;
}

bool IsHeader(std::string_view text) {
  return !text.empty() && text.size() <= kLongestHeader &&
         text.find('\0') == std::string_view::npos;
}

/// Which of its name's keywords each column is, from 0.
std::vector<std::size_t> RanksUnderName(const std::vector<PsColumn>& columns) {
  std::unordered_map<std::string_view, std::size_t> counts;
  std::vector<std::size_t> ranks;
  ranks.reserve(columns.size());
  for (const auto& column : columns) ranks.push_back(counts[column.name]++);
  return ranks;
}

const PsColumn* FindKeyword(const std::vector<PsColumn>& columns, std::string_view keyword) {
  const auto found = std::ranges::find(columns, keyword, &PsColumn::keyword);
  return found == columns.end() ? nullptr : &*found;
}

std::string InCapitals(std::string text) {
  for (char& c : text)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return text;
}

/// The column of which this one is another keyword; itself when it is none.
const PsColumn& ColumnBehind(const std::vector<PsColumn>& columns, const PsColumn& column) {
  const auto* known = FindKeyword(columns, ProcpsKeywordFor(column.keyword));
  return known != nullptr ? *known : column;
}

/// For each header the keyword of the column that has it for its name.
std::unordered_map<std::string_view, std::string_view> HeaderOwners(
    const std::vector<PsColumn>& columns) {
  std::unordered_map<std::string_view, std::string_view> owners;
  for (const auto& column : columns) {
    if (&ColumnBehind(columns, column) != &column || HasProcpsNameOfItsOwn(column.keyword))
      continue;
    const bool isItsKeyword = InCapitals(column.keyword) == column.header;
    if (!owners.emplace(column.header, column.keyword).second && isItsKeyword)
      owners[column.header] = column.keyword;
  }
  return owners;
}

void NameColumns(std::vector<PsColumn>& columns) {
  const auto owners = HeaderOwners(columns);
  std::unordered_set<std::string> taken;
  for (const auto& column : columns) taken.insert(column.header);
  for (auto& column : columns) {
    const auto owner = owners.find(column.header);
    if (owner != owners.end() && owner->second == column.keyword) {
      column.name = column.header;
    } else if (&ColumnBehind(columns, column) == &column) {
      column.name = InCapitals(column.keyword);
      if (!taken.insert(column.name).second)
        column.name = column.header + '(' + column.keyword + ')';
    }
  }
  for (auto& column : columns)
    if (column.name.empty()) column.name = ColumnBehind(columns, column).name;
  std::erase_if(columns, [](const PsColumn& column) { return !IsHeader(column.name); });
}

}  // namespace

std::vector<PsColumn> ParsePsListing(std::string_view listing) {
  std::vector<PsColumn> columns;
  std::unordered_set<std::string_view> seen;
  while (!listing.empty()) {
    auto line = listing.substr(0, listing.find('\n'));
    listing.remove_prefix(std::min(line.size() + 1, listing.size()));
    const auto keyword = TakeListedWord(line);
    const auto header = TakeListedWord(line);
    if (!IsKeyword(keyword) || IsProcpsOddity(keyword) || !IsHeader(header)) continue;
    if (seen.insert(keyword).second)
      columns.push_back({std::string(keyword), std::string(header), {}});
  }
  NameColumns(columns);
  return columns;
}

std::string KeywordLine(const std::vector<PsColumn>& columns) {
  const auto ranks = RanksUnderName(columns);
  std::vector<std::size_t> order(columns.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::stable_sort(order.begin(), order.end(),
                   [&ranks](std::size_t a, std::size_t b) { return ranks[a] < ranks[b]; });

  // Each keyword costs one character more: the blank behind it, or the newline behind the last.
  std::vector<bool> isKept(columns.size(), false);
  std::size_t left = kLongestAnswer;
  for (const std::size_t i : order) {
    const std::size_t cost = columns[i].keyword.size() + 1;
    if (cost > left) continue;
    left -= cost;
    isKept[i] = true;
  }
  std::string line;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (isKept[i]) line += columns[i].keyword + ' ';
  }
  if (!line.empty()) line.back() = '\n';
  return line;
}

std::string HeaderLine(const std::vector<PsColumn>& columns, std::string_view keyword) {
  const auto* column = FindKeyword(columns, keyword);
  return column == nullptr ? std::string() : column->name + '\n';
}

std::optional<PsCommand> ParsePsCommand(std::string_view commandLine) {
  if (commandLine == kKeywordsLine) return PsCommand{PsCommand::Kind::kKeywords, {}};
  for (const auto& [beginning, kind] : {std::pair{kHeaderLine, PsCommand::Kind::kHeader},
                                        std::pair{kColumnLine, PsCommand::Kind::kColumn}}) {
    if (!commandLine.starts_with(beginning)) continue;
    const auto keyword = commandLine.substr(beginning.size());
    if (IsKeyword(keyword)) return PsCommand{kind, std::string(keyword)};
  }
  return std::nullopt;
}

std::vector<std::string> PsListingArguments() {
  return {kPs, "L"};
}

std::vector<std::string> PsColumnArguments(const std::vector<PsColumn>& columns,
                                           const std::string& keyword) {
  const auto* column = FindKeyword(columns, keyword);
  if (column == nullptr || column->name == column->header)
    return {kPs, "-axww", "-o", "pid," + keyword};
  return {kPs, "-axww", "-o", "pid", "-o", keyword + '=' + column->name};
}

}  // namespace lurkwell
