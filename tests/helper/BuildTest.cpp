// The program file of the helper: how it was built, and how much of it there is.
#include <elf.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <set>
#include <sstream>

#include "helper/HelperProcess.h"

namespace lurkwell::helper::testing {
namespace {

template <typename Entry>
Entry At(const std::string& bytes, std::uint64_t place) {
  Entry entry{};
  EXPECT_LE(place + sizeof entry, bytes.size());
  std::memcpy(&entry, bytes.data() + place, sizeof entry);
  return entry;
}

TEST(BuildTest, IsStaticPositionIndependentBoundAndHardened) {
  const std::string bytes = ReadAll(HelperPath());
  const auto header = At<Elf64_Ehdr>(bytes, 0);
  EXPECT_EQ(header.e_type, ET_DYN) << "not position independent";
  std::set<std::uint32_t> segments;
  std::set<std::int64_t> tags;
  std::uint64_t flags = 0;
  for (unsigned i = 0; i < header.e_phnum; ++i) {
    const auto segment = At<Elf64_Phdr>(bytes, header.e_phoff + i * sizeof(Elf64_Phdr));
    segments.insert(segment.p_type);
    EXPECT_NE(segment.p_flags & (PF_W | PF_X), std::uint32_t{PF_W | PF_X}) << "segment " << i;
    if (segment.p_type != PT_DYNAMIC) continue;
    for (std::uint64_t place = 0; place < segment.p_filesz; place += sizeof(Elf64_Dyn)) {
      const auto entry = At<Elf64_Dyn>(bytes, segment.p_offset + place);
      tags.insert(entry.d_tag);
      if (entry.d_tag == DT_FLAGS_1) flags = entry.d_un.d_val;
      if (entry.d_tag == DT_NULL) break;
    }
  }
  EXPECT_FALSE(segments.contains(PT_INTERP)) << "needs a loader";
  EXPECT_TRUE(segments.contains(PT_GNU_RELRO));
  EXPECT_TRUE(segments.contains(PT_GNU_STACK));
  for (const std::int64_t tag : {DT_NEEDED, DT_RPATH, DT_RUNPATH, DT_TEXTREL})
    EXPECT_FALSE(tags.contains(tag)) << tag;
  EXPECT_TRUE(flags & DF_1_NOW) << "not bound before it runs";
  EXPECT_TRUE(flags & DF_1_PIE);
  // Left by the stack protector and the checked calls; the third would be a sanitizer's.
  EXPECT_NE(bytes.find("__stack_chk_fail"), std::string::npos);
  EXPECT_NE(bytes.find("_chk"), std::string::npos);
  EXPECT_EQ(bytes.find("__asan_init"), std::string::npos);
  EXPECT_EQ(bytes.find("__cxa_throw"), std::string::npos) << "has exceptions";
}

TEST(BuildTest, EverySourceIsCompiledWithTheHelpersOwnFlags) {
  std::istringstream commands(ReadAll(LURKWELL_TEST_COMMANDS));
  int sources = 0;
  for (std::string line; std::getline(commands, line);) {
    if (line.find("\"command\"") == std::string::npos ||
        line.find("Lurkwell_helper.dir") == std::string::npos)
      continue;
    ++sources;
    for (const char* flag : {" -fPIE", " -fstack-protector-strong", " -D_FORTIFY_SOURCE=2", " -O2",
                             " -fno-exceptions", " -fno-rtti"})
      EXPECT_NE(line.find(flag), std::string::npos) << flag << " in " << line;
    EXPECT_EQ(line.find("-fsanitize"), std::string::npos) << line;
  }
  EXPECT_GE(sources, 10);
}

/// Lines of sources and headers that hold more than a bracket, without comments and includes.
TEST(BuildTest, StaysSmallEnoughToBeReadAtOneSitting) {
  int lines = 0;
  for (const auto& file : std::filesystem::directory_iterator(LURKWELL_TEST_HELPER_SOURCES)) {
    if (file.path().extension() != ".cpp" && file.path().extension() != ".h") continue;
    std::istringstream text(ReadAll(file.path()));
    for (std::string line; std::getline(text, line);) {
      const std::size_t begin = line.find_first_not_of(" });");
      if (begin == std::string::npos || line[begin] == '#' || line[begin] == '/' ||
          line.compare(begin, 9, "namespace") == 0)
        continue;
      ++lines;
    }
  }
  EXPECT_LE(lines, LURKWELL_TEST_LINES);
  EXPECT_GE(lines, 800) << "the sources were not found";
}

}  // namespace
}  // namespace lurkwell::helper::testing
