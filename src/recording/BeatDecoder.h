#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "recording/Bytes.h"
#include "recording/RecordedBeat.h"

namespace lurkwell {

/// The columns that a file says its beats have, by name and in its order.
struct RecordedLayout {
  std::vector<std::string> numbers;
  std::vector<std::string> texts;
  std::vector<std::string> machine;

  /// Those of this program.
  static RecordedLayout Own();
  /// False for more than there can be.
  bool IsPossible() const;
};

/// Reads what a BeatEncoder wrote, a beat at a time. Any bytes may come: what makes no sense is
/// refused, and takes no more memory than some hundred times what it is.
class BeatDecoder {
 public:
  /// The layout must be a possible one.
  explicit BeatDecoder(const RecordedLayout& layout);

  /// Begins with what one call of Encode gave, which has to be the next after the one before.
  /// `bytes` have to stay until its last beat. False for nonsense.
  bool Begin(std::string_view bytes);

  /// The beats of those bytes.
  const std::vector<BeatHeader>& Headers() const { return mHeaders; }

  /// Goes on to the next of them; false at their end, and for nonsense. Which, HasFailed tells.
  bool Next();
  bool HasFailed() const { return mHasFailed; }

  /// What changed with the latest beat.
  Beat TakeBeat() const;
  /// Those that lived then, in the order in which they became known.
  std::vector<RecordedProcess> Living() const;

 private:
  struct Known {
    RecordedProcess process;
    bool isAlive = false;
  };

  bool Fail() { return mHasFailed = true, false; }
  bool ReadHeaders(std::string_view bytes, std::size_t count);
  bool ReadTexts(std::string_view bytes, std::uint64_t count);
  bool ReadProcesses(std::string_view bytes, std::uint64_t count);
  bool ReadEnds();
  bool ReadChanges();
  bool ReadChange(Known& known);
  bool ReadNumber(std::size_t column, RecordedProcess& process);
  bool ReadText(std::size_t column, RecordedProcess& process, RecordedTexts& texts);

  /// Of the file's columns, those of this program; kMostColumns for one that it does not know.
  std::vector<std::size_t> mNumberPlaces, mTextPlaces, mMachinePlaces;

  std::vector<std::string> mTexts;
  std::vector<Known> mProcesses;
  std::unordered_map<std::int32_t, std::size_t> mAlive;
  BeatHeader mLast;
  ProcessIdentity mLastNew;

  std::vector<BeatHeader> mHeaders;
  std::size_t mNext = 0;
  ByteReader mPlaces, mMasks;
  std::vector<ByteReader> mNumbers, mTextNumbers;
  std::vector<std::int64_t> mScales;
  std::vector<std::size_t> mChanged;
  std::vector<std::size_t> mEnded;
  bool mHasFailed = false;
};

}  // namespace lurkwell
