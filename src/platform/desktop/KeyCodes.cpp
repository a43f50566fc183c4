#include "platform/desktop/KeyCodes.h"

#include <algorithm>
#include <array>

namespace lurkwell {
namespace {

struct Key {
  std::uint32_t code;
  std::uint32_t symbol;
};

constexpr std::uint32_t kF1Symbol = 0xffbe;

constexpr std::uint32_t F(std::uint32_t number) {
  return kF1Symbol + number - 1;
}

constexpr std::array kKeys = {
    Key{122, F(1)},  Key{120, F(2)},  Key{99, F(3)},   Key{118, F(4)},  Key{96, F(5)},
    Key{97, F(6)},   Key{98, F(7)},   Key{100, F(8)},  Key{101, F(9)},  Key{109, F(10)},
    Key{103, F(11)}, Key{111, F(12)}, Key{105, F(13)}, Key{107, F(14)}, Key{113, F(15)},
    Key{106, F(16)}, Key{64, F(17)},  Key{79, F(18)},  Key{80, F(19)},  Key{90, F(20)},
    Key{0, 'a'},     Key{11, 'b'},    Key{8, 'c'},     Key{2, 'd'},     Key{14, 'e'},
    Key{3, 'f'},     Key{5, 'g'},     Key{4, 'h'},     Key{34, 'i'},    Key{38, 'j'},
    Key{40, 'k'},    Key{37, 'l'},    Key{46, 'm'},    Key{45, 'n'},    Key{31, 'o'},
    Key{35, 'p'},    Key{12, 'q'},    Key{15, 'r'},    Key{1, 's'},     Key{17, 't'},
    Key{32, 'u'},    Key{9, 'v'},     Key{13, 'w'},    Key{7, 'x'},     Key{16, 'y'},
    Key{6, 'z'},     Key{29, '0'},    Key{18, '1'},    Key{19, '2'},    Key{20, '3'},
    Key{21, '4'},    Key{23, '5'},    Key{22, '6'},    Key{26, '7'},    Key{28, '8'},
    Key{25, '9'},    Key{49, ' '},    Key{36, 0xff0d}, Key{48, 0xff09}, Key{53, 0xff1b}};

}  // namespace

std::optional<std::uint32_t> KeySymbolOf(std::uint32_t virtualKeyCode) {
  const auto* key = std::ranges::find(kKeys, virtualKeyCode, &Key::code);
  if (key == kKeys.end()) return {};
  return key->symbol;
}

}  // namespace lurkwell
