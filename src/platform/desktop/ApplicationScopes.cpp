#include "platform/desktop/ApplicationScopes.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace lurkwell {
namespace {

constexpr std::chrono::seconds kTimeToSettle{3};
constexpr std::chrono::seconds kTimeBetweenLooks{1};
constexpr int kLooksPerRefresh = 8;

}  // namespace

/// A program that runs with another user's rights may be in a group of the session's, and be older
/// than the application itself.
std::optional<ApplicationScope> ApplicationScopes::ScopeOf(std::int32_t pid) const {
  auto scope = ScopeOfControlGroups(mFolder.ControlGroups(pid));
  if (!scope || scope->user.value_or(mUser) != mUser || mFolder.User(pid) != mUser) return {};
  return scope;
}

void ApplicationScopes::Read(Process& process, std::int32_t pid) {
  const auto identity = mFolder.Identify(pid).value_or(ProcessIdentity{});
  auto scope = ScopeOf(pid);
  if (identity == process.identity && scope == process.scope) return;
  process.identity = identity;
  process.scope = std::move(scope);
  mHaveChanged = true;
}

const std::vector<ApplicationScopes::Application>& ApplicationScopes::Refresh() {
  const auto now = Clock::now();
  // Asked for before the listing: a process born in between counts as not listed.
  const auto lastPid = mFolder.LastPid();
  if (!lastPid || lastPid != mLastPid) List(now);
  mLastPid = lastPid;
  ReadThoseThatSettle(now);
  if (mHasLooked && now >= mNextLook) {
    mNextLook = now + kTimeBetweenLooks;
    LookAtSomeKnown();
  }
  mHasLooked = true;
  if (std::exchange(mHaveChanged, false)) mApplications = FirstOfEach();
  return mApplications;
}

void ApplicationScopes::ReadThoseThatSettle(Clock::time_point now) {
  std::erase_if(mSettling, [&](std::int32_t pid) {
    const auto known = mProcesses.find(pid);
    if (known == mProcesses.end() || known->second.settled <= now) return true;
    Read(known->second, pid);
    return false;
  });
}

void ApplicationScopes::NoteEnd(std::int32_t pid) {
  mHaveChanged |= mProcesses.erase(pid) > 0;
  mLastPid.reset();
}

/// Those that are new have to settle, and are read as long as they do.
void ApplicationScopes::List(Clock::time_point now) {
  const auto pids = mFolder.Pids();
  const std::unordered_set<std::int32_t> present(pids.begin(), pids.end());
  const auto isGone = [&](const auto& known) { return !present.contains(known.first); };
  mHaveChanged |= std::erase_if(mProcesses, isGone) > 0;
  for (const std::int32_t pid : pids) {
    const auto [known, isNew] = mProcesses.try_emplace(pid);
    if (!isNew) continue;
    known->second.settled = mHasLooked ? now + kTimeToSettle : now;
    if (mHasLooked)
      mSettling.push_back(pid);
    else
      Read(known->second, pid);
  }
}

/// A pid may have come round between two refreshes, or a process may have been moved late.
void ApplicationScopes::LookAtSomeKnown() {
  if (mTurn.empty()) {
    for (const auto& [pid, process] : mProcesses) mTurn.push_back(pid);
  }
  for (int i = 0; i < kLooksPerRefresh && !mTurn.empty(); ++i) {
    const auto known = mProcesses.find(mTurn.back());
    mTurn.pop_back();
    if (known != mProcesses.end()) Read(known->second, known->first);
  }
}

std::vector<ApplicationScopes::Application> ApplicationScopes::FirstOfEach() const {
  const auto age = [](const ProcessIdentity& process) {
    return std::tie(process.startStamp, process.pid);
  };
  std::map<std::string_view, const Process*> first;
  for (const auto& [pid, process] : mProcesses) {
    if (!process.scope || process.identity.pid == kInvalidPID) continue;
    const auto [place, isNew] = first.emplace(process.scope->path, &process);
    if (!isNew && age(process.identity) < age(place->second->identity)) place->second = &process;
  }
  std::vector<Application> applications;
  applications.reserve(first.size());
  for (const auto& [path, process] : first) {
    applications.push_back({process->identity, *process->scope});
  }
  std::ranges::sort(applications,
                    [&](const auto& a, const auto& b) { return age(a.process) < age(b.process); });
  return applications;
}

std::string ApplicationScopes::PathOfScope(std::int32_t pid) const {
  const auto known = mProcesses.find(pid);
  if (known == mProcesses.end() || !known->second.scope) return {};
  return known->second.scope->path;
}

}  // namespace lurkwell
