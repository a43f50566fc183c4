#include "platform/desktop/XKeyGrabs.h"

#include <xcb/xcbext.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

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

namespace {

constexpr std::uint32_t kNumLock = 0xff7f;
constexpr std::uint32_t kScrollLock = 0xff14;
constexpr std::uint32_t kSuperLeft = 0xffeb;
constexpr std::uint32_t kSuperRight = 0xffec;
constexpr std::chrono::milliseconds kShortestRetry{50};
/// A try goes on in the background; how often its end is looked for.
constexpr int kLooksPerRetry = 5;
constexpr std::chrono::milliseconds kLongestFirstWait{500};
constexpr std::uint16_t kRealModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL |
                                         XCB_MOD_MASK_1 | XCB_MOD_MASK_2 | XCB_MOD_MASK_3 |
                                         XCB_MOD_MASK_4 | XCB_MOD_MASK_5;

/// Every sum of some of the masks, none of them among those.
std::vector<std::uint16_t> Combinations(const std::vector<std::uint16_t>& masks) {
  std::vector<std::uint16_t> sums = {0};
  for (const auto mask : masks) {
    const auto before = sums.size();
    for (std::size_t i = 0; i < before; ++i)
      sums.push_back(static_cast<std::uint16_t>(sums[i] | mask));
  }
  return sums;
}

}  // namespace

XKeyGrabs::XKeyGrabs(const std::string& display, std::chrono::milliseconds retryInterval,
                     Refused refused)
    : mLink(display, retryInterval), mRefused(std::move(refused)) {
  mRetry.setInterval(std::max(kShortestRetry, retryInterval / kLooksPerRetry));
  QObject::connect(&mRetry, &QTimer::timeout, [this] { TryAgain(); });
}

XKeyGrabs::~XKeyGrabs() = default;

// ---- The connection -----------------------------------------------------------------------------

bool XKeyGrabs::Prepare(std::chrono::milliseconds longestWait) {
  if (mNotifier != nullptr) return true;
  auto* connection = mLink.Connect(longestWait);
  if (connection == nullptr || !ReadKeyboard()) {
    GiveUpConnection();
    return false;
  }
  connection->KeepKeyEvents();
  mNotifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection->Raw()),
                                                QSocketNotifier::Read);
  QObject::connect(mNotifier.get(), &QSocketNotifier::activated, [this] { ReadEvents(); });
  mRetry.stop();
  return true;
}

/// The server would go on keeping our keys from everybody for a connection that is not read.
void XKeyGrabs::GiveUpConnection() {
  if (mNotifier != nullptr) {
    mNotifier->setEnabled(false);
    // It may be the one that is calling.
    mNotifier.release()->deleteLater();
  }
  if (mLink.Connection() != nullptr) mLink.Drop();
  for (auto& grab : mGrabs) grab.keys.clear();
  mLastRelease = {};
  mRetry.start();
}

void XKeyGrabs::TryAgain() {
  if (Prepare(std::chrono::milliseconds::zero())) TakeAll();
}

// ---- The keyboard -------------------------------------------------------------------------------

bool XKeyGrabs::ReadKeyboard() {
  auto* connection = mLink.Connection();
  auto* raw = connection->Raw();
  const auto* setup = xcb_get_setup(raw);
  const auto deadline = XConnection::BatchDeadline();
  mFirstKey = setup->min_keycode;
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto mapping = connection->Wait<xcb_get_keyboard_mapping_reply_t>(
      xcb_get_keyboard_mapping_unchecked(raw, mFirstKey, count), deadline);
  if (mapping == nullptr) return false;
  mSymbolsPerKey = mapping->keysyms_per_keycode;
  const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  mSymbols.assign(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(mapping.get()));
  ReadModifiers(deadline);
  return !connection->IsLost();
}

void XKeyGrabs::ReadModifiers(XConnection::Deadline deadline) {
  mLocks = {XCB_MOD_MASK_LOCK};
  mSuper = 0;
  const auto reply = mLink.Connection()->Wait<xcb_get_modifier_mapping_reply_t>(
      xcb_get_modifier_mapping_unchecked(mLink.Connection()->Raw()), deadline);
  if (reply == nullptr) return;
  const auto* keys = xcb_get_modifier_mapping_keycodes(reply.get());
  const std::size_t perModifier = reply->keycodes_per_modifier;
  const auto maskOf = [&](std::uint32_t symbol) {
    std::uint16_t mask = 0;
    for (const auto key : KeysOf(symbol)) {
      for (std::size_t i = 0; i < perModifier * 8; ++i)
        if (keys[i] == key) mask = static_cast<std::uint16_t>(mask | (1U << (i / perModifier)));
    }
    return mask;
  };
  for (const auto symbol : {kNumLock, kScrollLock})
    if (const auto mask = maskOf(symbol); mask != 0) mLocks.push_back(mask);
  mSuper = maskOf(kSuperLeft);
  if (mSuper == 0) mSuper = maskOf(kSuperRight);
  mAllLocks = 0;
  for (const auto mask : mLocks) mAllLocks = static_cast<std::uint16_t>(mAllLocks | mask);
}

std::vector<xcb_keycode_t> XKeyGrabs::KeysOf(std::uint32_t symbol) const {
  std::vector<xcb_keycode_t> keys;
  for (std::size_t i = 0; mSymbolsPerKey > 0 && i < mSymbols.size(); ++i) {
    if (mSymbols[i] != symbol) continue;
    const auto key = static_cast<xcb_keycode_t>(mFirstKey + i / mSymbolsPerKey);
    if (keys.empty() || keys.back() != key) keys.push_back(key);
  }
  return keys;
}

// ---- Keys ---------------------------------------------------------------------------------------

XKeyGrabs::Outcome XKeyGrabs::Add(std::uint32_t symbol, bool withSuper,
                                  std::function<void()> pressed) {
  auto& grab = mGrabs.emplace_back(Grab{symbol, withSuper, std::move(pressed), {}});
  if (!Prepare(kLongestFirstWait)) return Outcome::kNoServer;
  const auto outcome = Take(grab);
  grab.isRefused = outcome == Outcome::kRefused;
  if (outcome == Outcome::kNoServer) {
    GiveUpConnection();
  } else {
    ReadSoon();
  }
  return outcome;
}

XKeyGrabs::Outcome XKeyGrabs::Take(Grab& grab) {
  grab.keys = KeysOf(grab.symbol);
  if (grab.keys.empty() || (grab.withSuper && mSuper == 0)) return Outcome::kRefused;
  auto* connection = mLink.Connection();
  std::vector<xcb_void_cookie_t> cookies;
  for (const auto key : grab.keys) {
    for (const auto locks : Combinations(mLocks)) {
      const auto modifiers = static_cast<std::uint16_t>(locks | (grab.withSuper ? mSuper : 0));
      cookies.push_back(xcb_grab_key_checked(connection->Raw(), 0, connection->Root(), modifiers,
                                             key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
  }
  // Answers come in order: once the server has told its time, every refusal has come.
  connection->ServerTime();
  if (connection->IsLost()) return Outcome::kNoServer;
  auto outcome = Outcome::kTaken;
  for (const auto cookie : cookies) {
    void* none = nullptr;
    xcb_generic_error_t* error = nullptr;
    xcb_poll_for_reply(connection->Raw(), cookie.sequence, &none, &error);
    std::free(none);
    if (error != nullptr) outcome = Outcome::kRefused;
    std::free(error);
  }
  return outcome;
}

void XKeyGrabs::TakeAll() {
  std::vector<std::pair<std::uint32_t, bool>> refused;
  for (auto& grab : mGrabs) {
    const auto outcome = Take(grab);
    if (outcome == Outcome::kNoServer) return GiveUpConnection();
    const bool isRefused = outcome == Outcome::kRefused;
    if (!std::exchange(grab.isRefused, isRefused) && isRefused)
      refused.emplace_back(grab.symbol, grab.withSuper);
  }
  ReadSoon();
  for (const auto& [symbol, withSuper] : refused) mRefused(symbol, withSuper);
}

void XKeyGrabs::GiveBack(const Grab& grab) {
  const auto* connection = mLink.Connection();
  for (const auto key : grab.keys)
    xcb_ungrab_key(connection->Raw(), key, connection->Root(), XCB_MOD_MASK_ANY);
}

// ---- Events -------------------------------------------------------------------------------------

void XKeyGrabs::ReadEvents() {
  auto* connection = mLink.Connection();
  if (connection == nullptr) return;
  const auto events = connection->TakeKeyEvents();
  if (connection->IsLost()) return GiveUpConnection();
  if (events.mappingChanged) FollowMapping();
  for (const auto& event : events.keys) HandleKey(event);
}

void XKeyGrabs::HandleKey(const xcb_key_press_event_t& event) {
  if ((event.response_type & 0x7f) == XCB_KEY_RELEASE) {
    mLastRelease = {event.detail, event.time};
    return;
  }
  // A key that is held is said to go up and down in the same moment, over and over.
  if (event.detail == mLastRelease.key && event.time == mLastRelease.time) return;
  const auto held = static_cast<std::uint16_t>(event.state & kRealModifiers & ~mAllLocks);
  for (const auto& grab : mGrabs) {
    const bool isKey = std::ranges::find(grab.keys, event.detail) != grab.keys.end();
    if (!isKey || held != (grab.withSuper ? mSuper : 0)) continue;
    // It may add a key, which moves the grabs.
    const auto pressed = grab.pressed;
    pressed();
    return;
  }
}

void XKeyGrabs::FollowMapping() {
  for (const auto& grab : mGrabs) GiveBack(grab);
  if (!ReadKeyboard()) return GiveUpConnection();
  TakeAll();
}

/// Presses that came while something else was waited for have left nothing to read behind.
void XKeyGrabs::ReadSoon() {
  QTimer::singleShot(0, &mRetry, [this] { ReadEvents(); });
}

}  // namespace lurkwell
