#include "main_window/ColumnGroups.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "consolidator/PI_Consolidator.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

enum GroupIndex : std::size_t {
  kIdentity,
  kCPU,
  kMemory,
  kDisk,
  kNetwork,
  kGPU,
  kBelonging,
  kSecurity,
  kUsers,
  kTerminal,
  kSignals,
  kOther,
  kDesktop,
  kRepeated,
  kClassic,
  kNotCounted,
};

constexpr ColumnGroup kGroups[] = {
    {"column_group_identity"},    {"column_group_cpu"},      {"column_group_memory"},
    {"column_group_disk"},        {"column_group_network"},  {"column_group_gpu"},
    {"column_group_belonging"},   {"column_group_security"}, {"column_group_users"},
    {"column_group_terminal"},    {"column_group_signals"},  {"column_group_other"},
    {"column_group_desktop"},     {"column_group_repeated"}, {"column_group_classic"},
    {"column_group_not_counted"},
};
static_assert(std::size(kGroups) == kNotCounted + 1);

/// Names at single blanks.
struct Members {
  GroupIndex group;
  std::string_view names;
};

constexpr Members kMembers[] = {
    {kIdentity,
     "meta_pid meta_name pid_owner pid_state pid_threads pid_terminal pid_command_line "
     "pid_executable pid_p_starttime pid_running_time meta_kind pid_p_comm pid_parent_pid "
     "pid_suspend_count "
     "PPID COMMAND COMM FNAME EXE START STARTED LSTART ELAPSED ETIMES S STAT NLWP LWP F"},
    {kCPU,
     "pid_cpu_share pid_user_share pid_system_share meta_active_time pid_user_time pid_system_time "
     "pid_cpu_wait pid_processor "
     "pid_affinity pid_scheduler pid_io_priority pid_p_priority pid_p_nice pid_policy pid_csw "
     "%CPU %CUC %CUU C CP TIME CPUTIMES "
     "NI PRI PRIORITY OPRI API RTPRIO CLS SCH NUMA WCHAN AGID AGNI P"},
    {kMemory,
     "pid_rsz pid_pss pid_uss pid_shared_memory pid_swap pid_highest_rsz pid_memory_share "
     "pid_oom_score pid_vsz pid_faults pid_pageins %MEM RSS VSZ SZ SIZE M_SIZE DRS TRS LIM "
     "MAJFLT MINFLT PAGEIN OOM OOMADJ HTPRV HTSHR STACKP"},
    {kDisk,
     "pid_disk_read_rate pid_disk_write_rate pid_disk_read pid_disk_written pid_read_rate "
     "pid_write_rate pid_bytes_read pid_bytes_written pid_syscalls_unix pid_unit_read_rate "
     "pid_unit_write_rate pid_unit_disk_read pid_unit_disk_written pid_descriptors WCBYTES ROPS "
     "WOPS pid_open_files"},
    {kNetwork,
     "pid_net_receive_rate pid_net_send_rate pid_net_received pid_net_sent pid_connections "
     "pid_listening_ports pid_ports pid_unit_net_receive_rate pid_unit_net_send_rate "
     "pid_unit_net_received "
     "pid_unit_net_sent"},
    {kGPU, "pid_gpu_share pid_gpu_memory pid_gpu_engine"},
    {kBelonging,
     "pid_cgroup pid_unit pid_slice pid_app_scope pid_container pid_inner_pid pid_namespace "
     "CGROUP CGNAME SLICE UNIT UUNIT MACHINE LXC "
     "CGROUPNS IPCNS MNTNS NETNS PIDNS TIMENS USERNS UTSNS"},
    {kSecurity,
     "pid_elevated pid_capabilities pid_seccomp pid_no_new_privileges pid_label LABEL CONTEXT"},
    {kUsers,
     "USER UID GROUP GID EUSER EUID EGROUP EGID RUSER RUID RGROUP RGID SUSER SUID SGROUP SGID "
     "FUSER FUID FGROUP FGID SUPGRP SUPGID LUID"},
    {kTerminal, "TTY TTY4 TPGID PGID SID SESSION SEAT OWNER"},
    {kSignals, "BLOCKED CAUGHT IGNORED PENDING TSIG"},
    {kDesktop, "meta_psn"},
    {kRepeated,
     "BSDTIME CMD UCMD STIME PSS USS RSZ DSIZ TRSS TSIZ MAJFL MINFL TT CATCHED SIGNAL PSR RBYTES "
     "WBYTES "
     "RCHARS WCHARS CPUID LASTCPU "
     "TGID "
     "SPID TID "
     "THCNT POL FSUSER FSUID FSGROUP FSGID SVUSER SVUID SVGROUP SVGID"},
    {kNotCounted,
     "pid_terminated_user_time pid_terminated_system_time pid_cow_faults pid_messages_sent "
     "pid_messages_received pid_syscalls_mach EIP ESP ZONE"},
};

/// Where the name stands among the names; nothing when it does not.
std::optional<std::size_t> RankOf(std::string_view name, std::string_view names) {
  for (std::size_t at = 0; at < names.size();) {
    const auto blank = std::min(names.find(' ', at), names.size());
    if (names.substr(at, blank - at) == name) return at;
    at = blank + 1;
  }
  return std::nullopt;
}

std::size_t GroupOfOthers(std::string_view key) {
  if (key.starts_with("carbonpsn_")) return kDesktop;
  if (key.starts_with("classicpsn_")) return kClassic;
  switch (GetProcPropertyType(std::string(key).c_str(), nullptr)) {
    case kPropertyTypeMemory:
      return kMemory;
    case kPropertyTypeTime:
    case kPropertyTypeClock:
      return kCPU;
    default:
      return kOther;
  }
}

}  // namespace

std::span<const ColumnGroup> ColumnGroups() {
  return kGroups;
}

ColumnPlace PlaceOfColumn(std::string_view key) {
  for (const auto& [group, names] : kMembers)
    if (const auto rank = RankOf(key, names)) return {group, *rank};
  return {GroupOfOthers(key), std::string_view::npos};
}

QStringList KeywordsOfColumn(const char* key) {
  QStringList keywords;
  const int header = FindPSHeader(key);
  if (header < 0) return keywords;
  // The newest, which is the one that is used, stands last.
  for (int option = GetNthPSHeadersGeneratingOptionCount(header) - 1; option >= 0; --option) {
    char text[256];
    GetNthPSHeadersNthGeneratingOption(header, option, text, sizeof text);
    keywords.append(QString::fromUtf8(text));
  }
  return keywords;
}

QString ColumnTitle(const char* key) {
  const auto ofMachine = std::string(key) + "_of_machine";
  const bool isOfMachine =
      HasLocalizedString(ofMachine.c_str()) && ReadSwitch("CPU_SHARE_OF_MACHINE");
  return LocalizedString(isOfMachine ? ofMachine.c_str() : key);
}

QString ColumnTip(const char* key) {
  const std::string tip = std::string(key) + "_tip";
  const auto keywords = KeywordsOfColumn(key).join(QLatin1String(", "));
  if (!HasLocalizedString(tip.c_str()))
    return keywords.isEmpty() ? QString() : LocalizedString("column_of_ps_tip").arg(keywords);
  const auto text = LocalizedString(tip.c_str());
  return keywords.isEmpty()
             ? text
             : text + QLatin1Char('\n') + LocalizedString("column_keywords_tip").arg(keywords);
}

}  // namespace lurkwell
