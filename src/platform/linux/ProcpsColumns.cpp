#include "platform/linux/ProcpsColumns.h"

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <unordered_map>
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

}  // namespace lurkwell
