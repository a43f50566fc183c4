#include "recording/RecordingFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/PrintableText.h"
#include "recording/BeatDecoder.h"
#include "recording/BeatEncoder.h"
#include "recording/Compression.h"
#include "recording/RecordingTables.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kMicrosecondsInDay = 86'400'000'000;
/// Of blocks that go because of their age, in a minute: where the calendar jumps ahead for a while,
/// not everything is gone when it comes back.
constexpr int kMostByAge = 10;
/// The same for the size.
constexpr int kMostBySize = 1000;

std::string SystemWords() {
  return std::generic_category().message(errno);
}

std::string Named(const std::string& path, const std::string& words) {
  return "'" + PrintableText(path) + "' " + words;
}

/// Whether others than root could put something else in the place of a file there.
bool IsOpenToOthers(const std::filesystem::path& folder) {
  struct stat info {};
  return ::stat(folder.c_str(), &info) != 0 || info.st_uid != 0 ||
         (info.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

/// The folder without links, and the file's own name.
std::string WithoutLinksAbove(const std::string& path) {
  std::error_code error;
  const auto whole = std::filesystem::absolute(path, error);
  const auto folder = std::filesystem::canonical(whole.parent_path(), error);
  return error ? path : (folder / whole.filename()).string();
}

/// Opens the file, or makes it, and locks it for this recorder; else `words` say why not.
FileDescriptor OpenForRecorder(const std::string& path, std::string& words) {
  if (::geteuid() == 0 && IsOpenToOthers(std::filesystem::path(path).parent_path())) {
    words = Named(path,
                  "lies in a folder that others than root can write to; root records only "
                  "where nobody else can put something in the file's place");
    return {};
  }
  FileDescriptor file(
      ::open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600));
  struct stat info {};
  if (!file.IsOpen() || ::fstat(file.Get(), &info) != 0) {
    words = errno == ELOOP ? Named(path, "is a link; the file itself has to be named")
                           : "cannot open " + Named(path, "for recording: " + SystemWords());
    return {};
  }
  if (!S_ISREG(info.st_mode)) return words = Named(path, "is no file"), FileDescriptor();
  if (info.st_uid != ::geteuid())
    return words = Named(path, "belongs to another user"), FileDescriptor();
  if (::flock(file.Get(), LOCK_EX | LOCK_NB) != 0) {
    words = errno == EWOULDBLOCK ? Named(path, "is being recorded to already")
                                 : "cannot lock " + Named(path, ": " + SystemWords());
    return {};
  }
  // Copies come with any mode; what is recorded is for its owner.
  if ((info.st_mode & 07777) != 0600) ::fchmod(file.Get(), 0600);
  return file;
}

}  // namespace

RecordingFile::RecordingFile(std::string path, FileDescriptor lock)
    : mPath(std::move(path)), mLock(std::move(lock)), mDatabase(mPath, Database::Use::kWrite) {}

std::variant<std::unique_ptr<RecordingFile>, std::string> RecordingFile::Open(
    const std::string& path, const RecordingSession& session) {
  const auto whole = WithoutLinksAbove(path);
  std::string words;
  auto lock = OpenForRecorder(whole, words);
  if (!lock.IsOpen()) return words;
  std::unique_ptr<RecordingFile> file(new RecordingFile(whole, std::move(lock)));
  if (words = file->Prepare(session); !words.empty()) return words;
  return file;
}

std::string RecordingFile::Prepare(const RecordingSession& session) {
  if (!mDatabase.IsOpen() || !IsInPlace()) return Named(mPath, "cannot be opened");
  if (auto words = CheckKind(); !words.empty()) return words;
  const auto failed = [this] {
    return Named(mPath, mDatabase.IsDamaged() ? "is damaged; it was left as it is"
                                              : "cannot be written: " + mDatabase.Words());
  };
  if (!mDatabase.Run("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;"
                     "PRAGMA wal_autocheckpoint=256; PRAGMA journal_size_limit=4194304"))
    return failed();
  if (!FindLayout() || !CloseMinute().IsDone()) return failed();
  mNextSequence = 1 + static_cast<std::uint64_t>(std::max<std::int64_t>(
                          mDatabase.NumberOf("SELECT max(last_sequence) FROM block"), 0));
  return BeginSession(session) ? std::string() : failed();
}

/// Makes the tables of an empty file; every other has to be a recording.
std::string RecordingFile::CheckKind() {
  const auto application = mDatabase.NumberOf("PRAGMA application_id", -1);
  if (application < 0)
    return Named(mPath, mDatabase.IsDamaged() ? "is no recording; it was left as it is"
                                              : "cannot be read: " + mDatabase.Words());
  const auto version = mDatabase.NumberOf("PRAGMA user_version", -1);
  if (application == kRecordingApplication) {
    if (version == kRecordingVersion) return {};
    return Named(mPath, "was recorded by a later version of Lurkwell; it was left as it is");
  }
  const bool isEmpty = application == 0 && version == 0 &&
                       mDatabase.NumberOf("SELECT count(*) FROM sqlite_schema", -1) == 0;
  return isEmpty ? MakeTables() : Named(mPath, "is no recording; it was left as it is");
}

/// In one step, so that a file that broke off is an empty one.
std::string RecordingFile::MakeTables() {
  bool isMade = mDatabase.Run("PRAGMA auto_vacuum=INCREMENTAL");
  Transaction transaction(mDatabase);
  isMade = isMade && transaction.HasBegun() &&
           mDatabase.Run("PRAGMA application_id=" + std::to_string(kRecordingApplication) +
                         "; PRAGMA user_version=" + std::to_string(kRecordingVersion)) &&
           mDatabase.Run(kRecordingTables) && transaction.Commit();
  return isMade ? std::string() : Named(mPath, "cannot be written: " + mDatabase.Words());
}

bool RecordingFile::FindLayout() {
  const auto own = RecordedLayout::Own();
  const auto numbers = JoinedNames(own.numbers);
  const auto texts = JoinedNames(own.texts);
  const auto machine = JoinedNames(own.machine);
  if (!mDatabase
           .Prepare("INSERT OR IGNORE INTO layout(numbers, texts, machine) VALUES("
                    "CAST(? AS TEXT), CAST(? AS TEXT), CAST(? AS TEXT))")
           .Bind(numbers)
           .Bind(texts)
           .Bind(machine)
           .Run())
    return false;
  auto layout = mDatabase.Prepare(
      "SELECT id FROM layout WHERE numbers = CAST(? AS TEXT) AND texts = CAST(? AS TEXT) "
      "AND machine = CAST(? AS TEXT)");
  if (!layout.Bind(numbers).Bind(texts).Bind(machine).Step()) return false;
  mLayout = layout.Number(0);
  return true;
}

bool RecordingFile::BeginSession(const RecordingSession& session) {
  if (!mDatabase
           .Prepare("INSERT INTO session(program, host, boot, interval) VALUES("
                    "CAST(? AS TEXT), CAST(? AS TEXT), CAST(? AS TEXT), ?)")
           .Bind(session.program)
           .Bind(session.host)
           .Bind(session.boot)
           .Bind(std::int64_t{session.intervalInMilliseconds})
           .Run())
    return false;
  mSession = mDatabase.NumberOf("SELECT max(id) FROM session");
  return true;
}

RecordingFile::Outcome RecordingFile::Failed() const {
  return {mDatabase.Words(), mDatabase.IsFull()};
}

RecordingFile::Outcome RecordingFile::Append(const BeatHeader& header, const std::string& bytes) {
  if (!mDatabase
           .Prepare("INSERT INTO open_beat(sequence, session, layout, wall, data) "
                    "VALUES(?, ?, ?, ?, ?)")
           .Bind(static_cast<std::int64_t>(header.sequence))
           .Bind(mSession)
           .Bind(mLayout)
           .Bind(header.wall)
           .Bind(bytes)
           .Run())
    return Failed();
  mNextSequence = header.sequence + 1;
  return {};
}

RecordingFile::Outcome RecordingFile::CloseMinute() {
  const auto open = ReadOpenBeats(mDatabase);
  if (mDatabase.IsDamaged()) return Failed();
  if (open.payloads.empty()) return {};
  // What cannot be decoded any more is kept as far as it can.
  std::vector<Beat> beats;
  if (const auto layout = ReadLayout(mDatabase, open.layout)) {
    BeatDecoder decoder(*layout);
    for (const auto& payload : open.payloads) {
      if (!decoder.Begin(payload)) break;
      while (decoder.Next()) beats.push_back(decoder.TakeBeat());
      if (decoder.HasFailed()) break;
    }
  }
  Transaction transaction(mDatabase);
  if (!transaction.HasBegun()) return Failed();
  if (!beats.empty()) {
    const auto data = Compressed(BeatEncoder().Encode(beats));
    if (data.empty()) return {"there is not enough memory", true};
    std::vector<BeatHeader> headers;
    headers.reserve(beats.size());
    for (const auto& beat : beats) headers.push_back(beat.header);
    if (!mDatabase
             .Prepare("INSERT INTO block(session, layout, first_sequence, last_sequence, "
                      "first_wall, last_wall, busiest, data) VALUES(?, ?, ?, ?, ?, ?, ?, ?)")
             .Bind(open.session)
             .Bind(mLayout)
             .Bind(static_cast<std::int64_t>(headers.front().sequence))
             .Bind(static_cast<std::int64_t>(headers.back().sequence))
             .Bind(headers.front().wall)
             .Bind(headers.back().wall)
             .Bind(BusiestOf(headers))
             .Bind(data)
             .Run())
      return Failed();
  }
  if (!mDatabase.Run("DELETE FROM open_beat") || !transaction.Commit()) return Failed();
  return {};
}

std::int64_t RecordingFile::UsedBytes() {
  return (mDatabase.NumberOf("PRAGMA page_count") - mDatabase.NumberOf("PRAGMA freelist_count")) *
         mDatabase.NumberOf("PRAGMA page_size");
}

bool RecordingFile::DropOldest() {
  return mDatabase.Run("DELETE FROM block WHERE id = (SELECT min(id) FROM block)");
}

RecordingFile::Outcome RecordingFile::Trim(const RecordingLimits& limits, std::int64_t wall) {
  const auto oldest = [this] {
    return mDatabase.NumberOf("SELECT last_wall FROM block ORDER BY id LIMIT 1", INT64_MAX);
  };
  for (int i = 0; i < kMostByAge && oldest() < wall - limits.days * kMicrosecondsInDay; ++i)
    if (!DropOldest()) return Failed();
  for (int i = 0; i < kMostBySize && UsedBytes() > limits.bytes && oldest() != INT64_MAX; ++i)
    if (!DropOldest()) return Failed();
  if (!mDatabase.Run("DELETE FROM session WHERE id < (SELECT min(session) FROM block)") ||
      !mDatabase.Run("PRAGMA incremental_vacuum"))
    return Failed();
  return {};
}

bool RecordingFile::IsInPlace() const {
  struct stat here {};
  struct stat there {};
  return ::fstat(mLock.Get(), &here) == 0 && ::lstat(mPath.c_str(), &there) == 0 &&
         here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

}  // namespace lurkwell
