// The program file of the helper: how it was built, and how much of it there is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "helper/HelperProcess.h"

namespace lurkwell::helper::testing {
namespace {

std::string OutputOf(const std::string& command) {
  const TemporaryFolder folder;
  Shell(command + " > " + (folder / "output"));
  return ReadFile(folder / "output");
}

TEST(BuildTest, IsStaticPositionIndependentBoundAndHardened) {
  // What the compiler has to check besides is asked for in main.cpp, of the compiler.
  for (const std::string& program : {HelperPath(), StepPath()}) {
    const std::string file = OutputOf("readelf -hldsW " + program);
    for (const char* part :
         {"Type: +DYN ", "GNU_RELRO", "GNU_STACK [^\n]* RW ", "FLAGS_1[^\n]* NOW PIE"})
      EXPECT_THAT(file, ::testing::ContainsRegex(part));
    for (const char* part :
         {"INTERP", "NEEDED", "RPATH", "RUNPATH", "TEXTREL", " RWE ", "__asan_init", "__cxa_throw"})
      EXPECT_EQ(file.find(part), std::string::npos) << part;
  }
}

/// Lines of sources and headers that hold more than a bracket, without comments and includes.
TEST(BuildTest, StaysSmallEnoughToBeReadAtOneSitting) {
  const std::string sources = LURKWELL_TEST_HELPER_SOURCES;
  const int lines = std::stoi(OutputOf("cat " + sources + "/*.cpp " + sources +
                                       "/*.h | grep -cvE '^[ });]*($|[#/]|namespace)'"));
  EXPECT_LE(lines, LURKWELL_TEST_LINES);
  EXPECT_GE(lines, 700) << "the sources were not found";
}

}  // namespace
}  // namespace lurkwell::helper::testing
