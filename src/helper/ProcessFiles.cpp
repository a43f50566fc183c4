#include "helper/ProcessFiles.h"

#include <errno.h>

#include "helper/Text.h"

namespace lurkwell::helper {

int OpenProcessFile(const System& system, std::int32_t pid, ProcessFile file) {
  static constexpr std::string_view kNames[] = {"/stat", "/status", "/io"};
  PathWriter path;
  path.Add("/proc/");
  path.AddNumber(static_cast<std::uint64_t>(pid));
  path.Add(kNames[file]);
  return system.openFile(path.Terminated());
}

void ProcessFiles::Begin(const System& system, const Surroundings& surroundings) {
  mSystem = &system;
  mLimit = surroundings.keptFiles;
  mNow = Now();
}

ProcessFiles::Place& ProcessFiles::PlaceOf(std::int32_t pid) {
  Place* const set = mPlaces + FirstPlace(pid);
  Place* oldest = set;
  for (Place* place = set; place != set + kWays; ++place) {
    if (place->pid == pid) {
      place->used = mNow;
      return *place;
    }
    if (place->pid == 0 || (oldest->pid != 0 && mNow - place->used > mNow - oldest->used))
      oldest = place;
  }
  CloseAll(*oldest);
  *oldest = Place{pid, mNow, 0, {}};
  return *oldest;
}

std::uint64_t ProcessFiles::StartOf(std::int32_t pid) const {
  const Place* const set = mPlaces + FirstPlace(pid);
  for (const Place* place = set; place != set + kWays; ++place)
    if (place->pid == pid) return place->start;
  return 0;
}

int ProcessFiles::Open(Place& place, ProcessFile file) {
  std::int32_t& kept = place.files[file];
  if (kept != 0) return kept - 1;
  const int descriptor = OpenProcessFile(*mSystem, place.pid, file);
  if (descriptor == -EACCES) kept = kClosedToUs;
  if (descriptor >= 0 && mKept < mLimit) {
    kept = descriptor + 1;
    ++mKept;
  }
  return descriptor;
}

void ProcessFiles::Release(Place& place, ProcessFile file, int descriptor, bool wasRead) {
  if (descriptor < 0) return;
  std::int32_t& kept = place.files[file];
  const bool isKept = kept == descriptor + 1;
  if (isKept && wasRead) return;
  isKept ? Forget(kept) : mSystem->close(descriptor);
  if (!wasRead) kept = kClosedToUs;
}

void ProcessFiles::Forget(std::int32_t& kept) {
  if (kept == 0) return;
  if (kept > 0) {
    mSystem->close(kept - 1);
    --mKept;
  }
  kept = 0;
}

void ProcessFiles::CloseAll(Place& place) {
  for (std::int32_t& kept : place.files) Forget(kept);
}

void ProcessFiles::Sweep() {
  mNow = Now();
  for (std::size_t count = 0; count < kSwept; ++count) {
    Place& place = mPlaces[mHand];
    mHand = (mHand + 1) % kPlaces;
    if (mNow - place.used > kLongestAge) CloseAll(place);
  }
}

}  // namespace lurkwell::helper
