#include "platform/linux/FigureFiles.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

#include "platform/ControlGroupPath.h"

namespace lurkwell {
namespace {

constexpr Figure kOwner = FigureCalled("pid_owner");
constexpr Figure kInnerPid = FigureCalled("pid_inner_pid");
constexpr Figure kElevated = FigureCalled("pid_elevated");
constexpr Figure kExecutable = FigureCalled("pid_executable");
constexpr Figure kContainer = FigureCalled("pid_container");
constexpr FigureSources kOfStatus = kFromStatus | kFromIdentity;

/// Where the kernel's numbers fill 64 bits they begin anew.
std::int64_t SumOf(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

std::optional<std::int64_t> NumberIn(std::string_view value, SourceUnit unit) {
  constexpr std::string_view kKibibytes = " kB";
  if (unit == SourceUnit::kKibibytes && value.ends_with(kKibibytes))
    value.remove_suffix(kKibibytes.size());
  return ParseWholeNumber(value, unit == SourceUnit::kHexadecimal ? 16 : 10);
}

/// The n-th of the words between tabs.
std::string_view WordOf(std::string_view value, int n) {
  for (; n > 0; --n) value.remove_prefix(std::min(value.find('\t'), value.size() - 1) + 1);
  return value.substr(0, value.find('\t'));
}

}  // namespace

FigureFiles::FigureFiles(std::shared_ptr<ProcFiles> files, const std::string& units)
    : mFiles(std::move(files)),
      mUnits(units),
      mTicksPerSecond(std::max(1L, ::sysconf(_SC_CLK_TCK))),
      mPageSize(std::max(1L, ::sysconf(_SC_PAGESIZE))),
      mPages(std::max(1L, ::sysconf(_SC_PHYS_PAGES))) {}

void FigureFiles::BeginPass() {
  mUnits.BeginPass();
  mUsers.BeginPass();
}

void FigureFiles::TakeStat(const ProcStatFields& fields, KnownProcess& known) const {
  for (const Figure figure : kFiguresFrom<kFromStat>) {
    const auto& origin = RowOf(figure).origin;
    known.figures.Set(figure,
                      FigureOf(origin, SumOf(fields[origin.field], fields[origin.otherField])));
  }
}

FigureSources FigureFiles::Read(FigureSource source, const FileDescriptor& folder,
                                KnownProcess& known) {
  switch (source) {
    case kFromStatus:
    case kFromIdentity:
      ReadNamed(kOfStatus, folder, "status", known);
      return kOfStatus;
    case kFromIO:
      ReadNamed(kFromIO, folder, "io", known);
      break;
    case kFromThreads:
      ReadThreads(folder, known);
      break;
    case kFromGroup:
      ReadGroup(folder, known);
      break;
    case kFromExecutable:
      ReadExecutable(folder, known);
      break;
    case kFromLabel:
      ReadSingle(FigureCalled("pid_label"), folder, "attr/current", known);
      break;
    case kFromOOM:
      ReadSingle(FigureCalled("pid_oom_score"), folder, "oom_score", known);
      break;
    case kFromNamespaces:
      ReadNamespaces(folder, known);
      break;
    default:
      return 0;
  }
  return source;
}

FigureState FigureFiles::WhyMissing(std::ptrdiff_t bytes) {
  if (bytes >= 0 || errno == ENOENT || errno == EINVAL) return FigureState::kUncounted;
  return errno == EACCES || errno == EPERM ? FigureState::kRefused : FigureState::kUnread;
}

void FigureFiles::ReadNamed(FigureSources sources, const FileDescriptor& folder, const char* file,
                            KnownProcess& known) {
  const auto bytes = mFiles->ReadIn(folder.Get(), file, mBuffer);
  const auto why = WhyMissing(bytes);
  if (why == FigureState::kUnread) return;
  const NamedFields fields(BufferText(bytes));
  ForEachSource(sources, [&](FigureSource source) {
    for (const Figure figure : FiguresFrom(source)) {
      const auto& origin = RowOf(figure).origin;
      known.figures.SetMissing(figure, why);
      const auto number = NumberIn(fields.Get(origin.name), origin.unit);
      const auto other =
          origin.otherName.empty() ? 0 : NumberIn(fields.Get(origin.otherName), origin.unit);
      if (number && other) known.figures.Set(figure, FigureOf(origin, SumOf(*number, *other)));
    }
  });
  if ((sources & kFromIdentity) != 0) TakeIdentity(fields, known);
}

void FigureFiles::TakeIdentity(const NamedFields& fields, KnownProcess& known) {
  const auto users = fields.Get("Uid");
  const auto real = ParseWholeNumber(WordOf(users, 0));
  const auto effective = ParseWholeNumber(WordOf(users, 1));
  if (real && effective) {
    known.users = {static_cast<std::uint32_t>(*real), static_cast<std::uint32_t>(*effective)};
    known.areUsersNamed = false;
    TakeUserNames(known);
    const auto capabilities = ParseWholeNumber(fields.Get("CapEff"), 16);
    known.figures.Set(kElevated, *effective == 0                 ? kIsRoot
                                 : capabilities.value_or(0) != 0 ? kHasCapabilities
                                                                 : kNotElevated);
  }
  // "OURS\tINNER..."
  const auto pids = fields.Get("NSpid");
  known.isInside = pids.find('\t') != std::string_view::npos;
  if (!pids.empty())
    known.figures.SetText(kInnerPid, known.isInside ? pids.substr(pids.rfind('\t') + 1) : "");
}

bool FigureFiles::TakeUserNames(KnownProcess& known) {
  if (!known.users || known.areUsersNamed) return false;
  const auto [real, effective] = *known.users;
  const auto realName = mUsers.NameOf(real);
  const auto effectiveName = effective == real ? realName : mUsers.NameOf(effective);
  known.areUsersNamed = realName && effectiveName;
  auto text = realName.value_or(std::to_string(real));
  if (effective != real) text += " as " + effectiveName.value_or(std::to_string(effective));
  const bool isOther = known.figures.GetText(kOwner) != text;
  known.figures.SetText(kOwner, text);
  return isOther;
}

/// A process of one thread has its figures in a file of its own.
void FigureFiles::ReadThreads(const FileDescriptor& folder, KnownProcess& known) {
  constexpr const char* kFile = "schedstat";
  mThreadSums = {};
  const auto bytes = mFiles->ReadIn(folder.Get(), kFile, mBuffer);
  const bool isCounted = bytes > 0;
  const auto count = known.figures.Get(FigureCalled("pid_threads"));
  if (count <= 1 && isCounted) AddThread(BufferText(bytes));
  if (count > 1 && isCounted && mFiles->ListThreads(folder.Get(), mThreads)) {
    for (const std::int32_t thread : mThreads) {
      const auto path = "task/" + std::to_string(thread) + '/' + kFile;
      AddThread(BufferText(mFiles->ReadIn(folder.Get(), path.c_str(), mBuffer)));
    }
  }
  for (const Figure figure : kFiguresFrom<kFromThreads>) {
    if (isCounted) {
      const auto sum = mThreadSums[static_cast<std::size_t>(figure)];
      known.figures.Set(figure, FigureOf(RowOf(figure).origin, sum));
    } else {
      known.figures.SetMissing(figure, FigureState::kUncounted);
    }
  }
}

void FigureFiles::AddThread(std::string_view text) {
  for (const Figure figure : kFiguresFrom<kFromThreads>) {
    const auto line = text.substr(0, text.find('\n'));
    auto& sum = mThreadSums[static_cast<std::size_t>(figure)];
    sum = SumOf(sum, ParseNthNumber(line, RowOf(figure).origin.field).value_or(0));
  }
}

void FigureFiles::ReadGroup(const FileDescriptor& folder, KnownProcess& known) {
  const auto bytes = mFiles->ReadIn(folder.Get(), "cgroup", mBuffer);
  const auto why = WhyMissing(bytes);
  if (why == FigureState::kUnread) return;
  const auto text = BufferText(bytes);
  known.unit = mUnits.Find(text);
  auto& figures = known.figures;
  if (text.empty()) {
    for (const Figure figure : kFiguresFrom<kFromGroup>) figures.SetMissing(figure, why);
    return;
  }
  const auto path = PathOfControlGroups(text);
  figures.SetText(FigureCalled("pid_cgroup"), path);
  figures.SetText(FigureCalled("pid_unit"), UnitOfPath(path));
  figures.SetText(FigureCalled("pid_slice"), SliceOfPath(path));
  const auto scope = ScopeOfControlGroups(text);
  figures.SetText(FigureCalled("pid_app_scope"), scope ? scope->entryId : std::string());
  auto container = ContainerOfPath(path);
  if (container.empty() && known.isInside) container = "own pid namespace";
  figures.SetText(kContainer, container);
}

void FigureFiles::ReadExecutable(const FileDescriptor& folder, KnownProcess& known) {
  const auto bytes = mFiles->ReadLinkIn(folder.Get(), "exe", mBuffer);
  const auto why = WhyMissing(bytes);
  if (bytes > 0) {
    known.figures.SetText(kExecutable, BufferText(bytes));
  } else if (why == FigureState::kUncounted) {
    // The kernel's own threads have none.
    known.figures.SetText(kExecutable, {});
  } else if (why == FigureState::kRefused) {
    known.figures.SetMissing(kExecutable, why);
  }
}

void FigureFiles::ReadNamespaces(const FileDescriptor& folder, KnownProcess& known) {
  constexpr Figure kNamespace = FigureCalled("pid_namespace");
  // "pid:[4026531836]"
  const auto bytes = mFiles->ReadLinkIn(folder.Get(), "ns/pid", mBuffer);
  const auto why = WhyMissing(bytes);
  if (why == FigureState::kUnread) return;
  auto text = BufferText(bytes);
  text.remove_prefix(std::min(text.find('[') + 1, text.size()));
  const auto number = ParseWholeNumber(text.substr(0, text.find(']')));
  known.figures.SetMissing(kNamespace, why);
  if (number) known.figures.Set(kNamespace, *number);
}

/// The whole file is the figure.
void FigureFiles::ReadSingle(Figure figure, const FileDescriptor& folder, const char* file,
                             KnownProcess& known) {
  const auto bytes = mFiles->ReadIn(folder.Get(), file, mBuffer);
  const auto why = WhyMissing(bytes);
  if (why == FigureState::kUnread) return;
  auto text = BufferText(bytes);
  while (!text.empty() && (text.back() == '\n' || text.back() == '\0')) text.remove_suffix(1);
  const auto number = ParseWholeNumber(text);
  if (RowOf(figure).kind == FigureKind::kText && bytes > 0) {
    known.figures.SetText(figure, text);
  } else if (number) {
    known.figures.Set(figure, *number);
  } else {
    known.figures.SetMissing(figure, why);
  }
}

bool FigureFiles::TakeUnitFigures(KnownProcess& known) {
  const auto* figures = known.unit != nullptr ? &mUnits.FiguresOf(*known.unit) : nullptr;
  const auto stamp = figures != nullptr ? known.unit->stamp : UnitFiles::kStampOfNone;
  if (std::exchange(known.unitStamp, stamp) == stamp) return false;
  for (const Figure figure : kFiguresFrom<kFromUnit>) {
    const auto state = figures != nullptr ? figures->StateOf(figure) : FigureState::kUncounted;
    if (state == FigureState::kKnown) {
      known.figures.Set(figure, figures->Get(figure));
    } else {
      known.figures.SetMissing(figure, state);
    }
  }
  return true;
}

void FigureFiles::TakeAssignment(const std::optional<Assignment>& assignment, KnownProcess& known) {
  if (!assignment) {
    for (const Figure figure : kFiguresFrom<kFromAssignment>)
      known.figures.SetMissing(figure, FigureState::kUncounted);
    return;
  }
  known.figures.SetText(FigureCalled("pid_affinity"), ListOfProcessors(assignment->processors));
  known.figures.Set(FigureCalled("pid_io_priority"), assignment->ioPriority);
}

std::int64_t FigureFiles::FigureOf(const FigureOrigin& origin, std::int64_t number) const {
  switch (origin.unit) {
    case SourceUnit::kTicks:
      return number / mTicksPerSecond * 1'000'000 +
             number % mTicksPerSecond * 1'000'000 / mTicksPerSecond;
    case SourceUnit::kNanoseconds:
      return number / 1000;
    case SourceUnit::kPages:
      return number * mPageSize;
    case SourceUnit::kPagesOfAll:
      return number * 100'000 / mPages;
    case SourceUnit::kKibibytes:
      return number * 1024;
    case SourceUnit::kStateLetter:
      return number == 'T' || number == 't';
    case SourceUnit::kOnes:
    case SourceUnit::kHexadecimal:
      break;
  }
  return number;
}

/// What was read, empty after a failure.
std::string_view FigureFiles::BufferText(std::ptrdiff_t bytes) const {
  return {mBuffer.data(), bytes > 0 ? static_cast<std::size_t>(bytes) : 0};
}

}  // namespace lurkwell
