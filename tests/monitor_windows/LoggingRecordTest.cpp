// Rows: what is written down, and when nothing is.
#include <gtest/gtest.h>

#include "monitor_windows/LoggingRecord.h"
#include "platform/simulated/SimulatedMachine.h"

namespace lurkwell {
namespace {

constexpr std::int64_t kMega = 1 << 20;
constexpr LoggingSwitches kAll{true, true, true, true, true, true, true};

class LoggingRecordTest : public testing::Test {
 protected:
  /// "CELL|...\nLINE" for a row, "" for none.
  std::string Log(const LoggingSwitches& switches, TimeValue active, std::int64_t real = 0,
                  std::int64_t size = 0) {
    mNow = AddMilliseconds(mNow, 1500);
    const auto row = LogFigures(switches, {mNow, active, real, size}, last);
    if (!row) return {};
    std::string text;
    for (int column = kActiveColumn; column < kLoggingColumns; ++column)
      text += row->cells[static_cast<std::size_t>(column)] + '|';
    return text + '\n' + row->line;
  }

  SimulatedMachine machine;
  MachineInstallation installation{machine.services};
  LoggedInfoStruct last;

 private:
  TimeValue mNow{1'000'000'000, 0};
};

TEST_F(LoggingRecordTest, SharesAreCountedFromTheSecondRowOn) {
  const LoggingSwitches usual{true, true, true, false, false, false, false};
  EXPECT_EQ(Log(usual, {7, 900'000}),
            "7.900000|0.000000|||||\n1000000001.500000\t7.900000\t0.000000");
  EXPECT_EQ(Log(usual, {7, 900'000}), "") << "nothing has changed";
  EXPECT_EQ(Log(usual, {9, 100'001}),
            "9.100001|+ 1.200001|||||\n1000000004.500000\t9.100001\t+1.200001")
      << "with a borrow";
  EXPECT_EQ(Log(usual, {9, 100'001}, 5, 5), "") << "what is not logged does not count";
  EXPECT_EQ(last.timestamp, (TimeValue{1'000'000'004, 500'000}));
}

TEST_F(LoggingRecordTest, EveryChangeCarriesItsSignAndIsNothingInTheFirstRow) {
  EXPECT_EQ(LogHeader(kAll),
            "time_s\tcpu_time_s\tcpu_time_change_s\tresident_bytes\tresident_change_bytes\t"
            "virtual_bytes\tvirtual_change_bytes");
  EXPECT_EQ(Log(kAll, {1, 0}, 3 * kMega, 4 * kMega),
            "1.000000|0.000000|3.0 M|  0|4.0 M|  0|\n"
            "1000000001.500000\t1.000000\t0.000000\t3145728\t0\t4194304\t0");
  EXPECT_EQ(Log(kAll, {1, 0}, 2 * kMega, kMega),
            "1.000000|0.000000|2.0 M|- 1.0 M|1.0 M|- 3.0 M|\n"
            "1000000003.000000\t1.000000\t0.000000\t2097152\t-1048576\t1048576\t-3145728");
  EXPECT_EQ(Log(kAll, {1, 5}, 2 * kMega, 5'000'000'000),
            "1.000005|+ 0.000005|2.0 M|  0|4.66 G|+ 4.66 G|\n"
            "1000000004.500000\t1.000005\t+0.000005\t2097152\t0\t5000000000\t+4998951424")
      << "beyond 32 bits";
}

TEST_F(LoggingRecordTest, WithoutATimeALineBeginsWithATab) {
  LoggingSwitches onlyChange;
  onlyChange.logDeltaActiveTime = true;
  EXPECT_EQ(LogHeader(onlyChange), "\tcpu_time_change_s");
  EXPECT_EQ(Log(onlyChange, {2, 5}), "|0.000000|||||\n\t0.000000");
  EXPECT_EQ(Log(onlyChange, {3, 4}), "|+ 0.999999|||||\n\t+0.999999");
  LoggingSwitches onlyTime;
  onlyTime.includeTimeStamp = true;
  EXPECT_EQ(Log(onlyTime, {9, 0}, 1, 1), "") << "a time alone is no change";
}

TEST_F(LoggingRecordTest, FiguresThatTheProcessDoesNotGiveAreNoChange) {
  Log(kAll, {1, 0}, kMega, kMega);
  EXPECT_FALSE(LogFigures(kAll, {{1, 1}, {}, {}, {}}, last));
  EXPECT_EQ(last.realMemUsed, kMega);
}

}  // namespace
}  // namespace lurkwell
