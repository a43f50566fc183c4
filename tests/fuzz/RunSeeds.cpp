// Runs a fuzz target over the files of a folder; fails when there are none.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(argv[1])) {
    std::ifstream stream(file.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(stream), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++count;
  }
  std::printf("%d seeds\n", count);
  return count > 0 ? 0 : 1;
}
