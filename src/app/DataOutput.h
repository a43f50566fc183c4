#pragma once

#include <cstdio>

namespace lurkwell {

/// Keeps standard output for data: as long as this lives, what is printed in any other way than to
/// Stream() goes to standard error, line by line, in the same words; programs that are started have
/// no part in the data either. One at a time, main thread.
class DataOutput {
 public:
  /// Where there is no descriptor to spare, everything stays as it is.
  DataOutput();
  ~DataOutput();
  DataOutput(const DataOutput&) = delete;
  DataOutput& operator=(const DataOutput&) = delete;

  std::FILE* Stream() const { return mStream; }

 private:
  std::FILE* mStream;
};

}  // namespace lurkwell
