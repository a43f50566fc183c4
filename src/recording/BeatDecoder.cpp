#include "recording/BeatDecoder.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "recording/BeatFormat.h"

namespace lurkwell {
namespace {

/// More than live in a minute.
constexpr std::size_t kMostProcesses = 1 << 20;

template <std::size_t kCount>
std::vector<std::size_t> PlacesOf(const std::vector<std::string>& names,
                                  const std::array<std::string_view, kCount>& own) {
  std::vector<std::size_t> places;
  for (const auto& name : names) {
    const auto found = std::ranges::find(own, name);
    places.push_back(found == own.end() ? kMostColumns
                                        : static_cast<std::size_t>(found - own.begin()));
  }
  return places;
}

}  // namespace

RecordedLayout RecordedLayout::Own() {
  return {{kRecordedNumbers.begin(), kRecordedNumbers.end()},
          {kRecordedTexts.begin(), kRecordedTexts.end()},
          {kRecordedMachine.begin(), kRecordedMachine.end()}};
}

bool RecordedLayout::IsPossible() const {
  return numbers.size() + texts.size() <= kMostColumns && machine.size() <= kMostColumns;
}

BeatDecoder::BeatDecoder(const RecordedLayout& layout)
    : mNumberPlaces(PlacesOf(layout.numbers, kRecordedNumbers)),
      mTextPlaces(PlacesOf(layout.texts, kRecordedTexts)),
      mMachinePlaces(PlacesOf(layout.machine, kRecordedMachine)) {}

bool BeatDecoder::Begin(std::string_view bytes) {
  ByteReader in(bytes);
  mNext = 0;
  mHeaders.clear();
  if (mHasFailed || in.Byte() != kBeatFormat) return Fail();
  const auto beats = in.Count();
  const auto headers = in.Text();
  const auto textCount = in.Number();
  const auto texts = in.Text();
  const auto processCount = in.Number();
  const auto processes = in.Text();
  mPlaces = ByteReader(in.Text());
  mMasks = ByteReader(in.Text());
  mNumbers.clear();
  mScales.clear();
  for (std::size_t i = 0; i < mNumberPlaces.size(); ++i) {
    auto& column = mNumbers.emplace_back(in.Text());
    const auto scale = column.Byte();
    if (column.HasFailed() || scale >= kScales.size()) return Fail();
    mScales.push_back(kScales[scale]);
  }
  mTextNumbers.clear();
  for (std::size_t i = 0; i < mTextPlaces.size(); ++i) mTextNumbers.emplace_back(in.Text());
  if (in.HasFailed() || !in.IsAtEnd()) return Fail();
  return ReadHeaders(headers, beats) && ReadTexts(texts, textCount) &&
         ReadProcesses(processes, processCount);
}

bool BeatDecoder::ReadHeaders(std::string_view bytes, std::size_t count) {
  ByteReader in(bytes);
  std::vector<std::int64_t> machine(mMachinePlaces.size());
  for (std::size_t i = 0; i < machine.size(); ++i)
    if (mMachinePlaces[i] < kMachineCount) machine[i] = mLast.machine[mMachinePlaces[i]];
  for (std::size_t beat = 0; beat < count && !in.HasFailed(); ++beat) {
    mLast.sequence += in.Number();
    mLast.wall = in.Difference(mLast.wall);
    mLast.elapsed = in.Difference(mLast.elapsed);
    mLast.lost = in.Number();
    for (std::size_t i = 0; i < machine.size(); ++i) {
      machine[i] = in.Difference(machine[i]);
      if (mMachinePlaces[i] < kMachineCount) mLast.machine[mMachinePlaces[i]] = machine[i];
    }
    mHeaders.push_back(mLast);
  }
  return (!in.HasFailed() && in.IsAtEnd()) || Fail();
}

bool BeatDecoder::ReadTexts(std::string_view bytes, std::uint64_t count) {
  ByteReader in(bytes);
  for (std::uint64_t i = 0; i < count && !in.HasFailed(); ++i) mTexts.emplace_back(in.Text());
  return (!in.HasFailed() && in.IsAtEnd()) || Fail();
}

bool BeatDecoder::ReadProcesses(std::string_view bytes, std::uint64_t count) {
  ByteReader in(bytes);
  for (std::uint64_t i = 0; i < count && !in.HasFailed(); ++i) {
    const auto pid = in.Difference(mLastNew.pid);
    const auto stamp = in.Difference(static_cast<std::int64_t>(mLastNew.startStamp));
    if (in.HasFailed() || !std::in_range<std::int32_t>(pid) || pid < 0) return Fail();
    mLastNew = {static_cast<std::int32_t>(pid), static_cast<std::uint64_t>(stamp)};
    if (mProcesses.size() >= kMostProcesses) return Fail();
    mProcesses.emplace_back().process.process = mLastNew;
  }
  return (!in.HasFailed() && in.IsAtEnd()) || Fail();
}

bool BeatDecoder::Next() {
  if (mHasFailed || mNext >= mHeaders.size()) return false;
  ++mNext;
  return ReadEnds() && ReadChanges();
}

bool BeatDecoder::ReadEnds() {
  mEnded.clear();
  const auto count = mPlaces.Count();
  std::uint64_t place = 0;
  for (std::size_t i = 0; i < count; ++i) {
    place += mPlaces.Number();
    if (mPlaces.HasFailed() || place >= mProcesses.size() || !mProcesses[place].isAlive)
      return Fail();
    mProcesses[place].isAlive = false;
    mAlive.erase(mProcesses[place].process.process.pid);
    mEnded.push_back(place);
  }
  return true;
}

bool BeatDecoder::ReadChanges() {
  mChanged.clear();
  const auto count = mPlaces.Count();
  std::uint64_t place = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const auto step = mPlaces.Number();
    place += step;
    if (mPlaces.HasFailed() || place >= mProcesses.size() || (i > 0 && step == 0)) return Fail();
    auto& known = mProcesses[place];
    // One that has ended does not come back.
    if (known.process.texts != nullptr && !known.isAlive) return Fail();
    const auto pid = known.process.process.pid;
    if (const auto holder = mAlive.find(pid); !known.isAlive && holder != mAlive.end()) {
      if (mProcesses[holder->second].process.process == known.process.process) return Fail();
      mProcesses[holder->second].isAlive = false;
      mEnded.push_back(holder->second);
    }
    mAlive[pid] = place;
    known.isAlive = true;
    if (!ReadChange(known)) return Fail();
    mChanged.push_back(place);
  }
  return true;
}

bool BeatDecoder::ReadChange(Known& known) {
  static const auto kNoTexts = std::make_shared<const RecordedTexts>();
  auto& process = known.process;
  if (process.texts == nullptr) process.texts = kNoTexts;
  const std::uint64_t mask = mMasks.Number();
  const std::size_t columns = mNumberPlaces.size() + mTextPlaces.size();
  if (mMasks.HasFailed() || mask >> columns != 0) return false;
  for (std::size_t i = 0; i < mNumberPlaces.size(); ++i)
    if ((mask >> i & 1) != 0 && !ReadNumber(i, process)) return false;
  if (mask >> mNumberPlaces.size() == 0) return true;
  auto texts = std::make_shared<RecordedTexts>(*process.texts);
  for (std::size_t i = 0; i < mTextPlaces.size(); ++i)
    if ((mask >> (mNumberPlaces.size() + i) & 1) != 0 && !ReadText(i, process, *texts))
      return false;
  process.texts = std::move(texts);
  return true;
}

bool BeatDecoder::ReadNumber(std::size_t column, RecordedProcess& process) {
  auto& in = mNumbers[column];
  const std::uint64_t code = in.Number();
  const std::uint64_t number = code == kEscapeCode ? in.Number() : code - kFirstPlainCode;
  if (in.HasFailed()) return false;
  const std::size_t place = mNumberPlaces[column];
  if (place >= kNumberCount) return true;
  process.numberStates[place] = StateOfCode(code);
  if (code < kEscapeCode) return true;
  const auto scaled = UnZigZag(number) * static_cast<std::uint64_t>(mScales[column]);
  process.numbers[place] =
      static_cast<std::int64_t>(static_cast<std::uint64_t>(process.numbers[place]) + scaled);
  return true;
}

bool BeatDecoder::ReadText(std::size_t column, RecordedProcess& process, RecordedTexts& texts) {
  auto& in = mTextNumbers[column];
  const std::uint64_t code = in.Number();
  if (in.HasFailed() || code == kEscapeCode) return false;
  const bool isKnown = code >= kFirstPlainCode;
  if (isKnown && code - kFirstPlainCode >= mTexts.size()) return false;
  const std::size_t place = mTextPlaces[column];
  if (place >= kTextCount) return true;
  process.textStates[place] = StateOfCode(code);
  texts[place] = isKnown ? mTexts[code - kFirstPlainCode] : std::string();
  return true;
}

Beat BeatDecoder::TakeBeat() const {
  Beat beat;
  if (mNext == 0) return beat;
  beat.header = mHeaders[mNext - 1];
  for (const auto place : mChanged) beat.changed.push_back(mProcesses[place].process);
  for (const auto place : mEnded) beat.ended.push_back(mProcesses[place].process.process);
  return beat;
}

std::vector<RecordedProcess> BeatDecoder::Living() const {
  std::vector<RecordedProcess> living;
  for (const auto& known : mProcesses)
    if (known.isAlive) living.push_back(known.process);
  return living;
}

}  // namespace lurkwell
