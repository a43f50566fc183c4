#include "platform/desktop/XKeyGrabs.h"

#include <xcb/xcbext.h>

#include <QTimer>
#include <algorithm>
#include <cstring>
#include <utility>

namespace lurkwell {
namespace {

constexpr std::uint32_t kNumLock = 0xff7f;
constexpr std::uint32_t kScrollLock = 0xff14;
constexpr std::uint32_t kSuperLeft = 0xffeb;
constexpr std::uint32_t kSuperRight = 0xffec;
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

std::unique_ptr<XKeyGrabs> XKeyGrabs::Open(const std::string& display) {
  auto connection = XConnection::Open(display);
  if (connection == nullptr) return nullptr;
  std::unique_ptr<XKeyGrabs> grabs(new XKeyGrabs(std::move(connection)));
  if (!grabs->ReadKeyboard()) return nullptr;
  return grabs;
}

XKeyGrabs::XKeyGrabs(std::unique_ptr<XConnection> connection) : mConnection(std::move(connection)) {
  mConnection->KeepKeyEvents();
  mNotifier = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(mConnection->Raw()),
                                                QSocketNotifier::Read);
  QObject::connect(mNotifier.get(), &QSocketNotifier::activated, [this] { ReadEvents(); });
}

XKeyGrabs::~XKeyGrabs() = default;

// ---- The keyboard -------------------------------------------------------------------------------

bool XKeyGrabs::ReadKeyboard() {
  auto* raw = mConnection->Raw();
  const auto* setup = xcb_get_setup(raw);
  const auto deadline = XConnection::BatchDeadline();
  mFirstKey = setup->min_keycode;
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto mapping = mConnection->Wait<xcb_get_keyboard_mapping_reply_t>(
      xcb_get_keyboard_mapping_unchecked(raw, mFirstKey, count), deadline);
  if (mapping == nullptr) return false;
  mSymbolsPerKey = mapping->keysyms_per_keycode;
  const auto* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  mSymbols.assign(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(mapping.get()));
  ReadModifiers(deadline);
  return !mConnection->IsLost();
}

void XKeyGrabs::ReadModifiers(XConnection::Deadline deadline) {
  mLocks = {XCB_MOD_MASK_LOCK};
  mSuper = 0;
  const auto reply = mConnection->Wait<xcb_get_modifier_mapping_reply_t>(
      xcb_get_modifier_mapping_unchecked(mConnection->Raw()), deadline);
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

bool XKeyGrabs::Add(std::uint32_t symbol, bool withSuper, std::function<void()> pressed) {
  Grab grab{symbol, withSuper, std::move(pressed), {}};
  const bool taken = Take(grab);
  // Kept either way: another keyboard may have the key.
  mGrabs.push_back(std::move(grab));
  ReadSoon();
  return taken;
}

bool XKeyGrabs::Take(Grab& grab) {
  grab.keys = KeysOf(grab.symbol);
  if (grab.keys.empty() || (grab.withSuper && mSuper == 0)) return false;
  std::vector<xcb_void_cookie_t> cookies;
  for (const auto key : grab.keys) {
    for (const auto locks : Combinations(mLocks)) {
      const auto modifiers = static_cast<std::uint16_t>(locks | (grab.withSuper ? mSuper : 0));
      cookies.push_back(xcb_grab_key_checked(mConnection->Raw(), 0, mConnection->Root(), modifiers,
                                             key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
  }
  // Answers come in order: once the server has told its time, every refusal has come.
  mConnection->ServerTime();
  bool taken = true;
  for (const auto cookie : cookies) {
    void* none = nullptr;
    xcb_generic_error_t* error = nullptr;
    xcb_poll_for_reply(mConnection->Raw(), cookie.sequence, &none, &error);
    std::free(none);
    if (error != nullptr) taken = false;
    std::free(error);
  }
  return taken && !mConnection->IsLost();
}

void XKeyGrabs::GiveBack(const Grab& grab) {
  for (const auto key : grab.keys)
    xcb_ungrab_key(mConnection->Raw(), key, mConnection->Root(), XCB_MOD_MASK_ANY);
}

// ---- Events -------------------------------------------------------------------------------------

void XKeyGrabs::ReadEvents() {
  const auto events = mConnection->TakeKeyEvents();
  if (mConnection->IsLost()) {
    mNotifier->setEnabled(false);
    return;
  }
  for (const auto& press : events.presses) HandlePress(press);
  if (events.mappingChanged) FollowMapping();
}

void XKeyGrabs::HandlePress(const xcb_key_press_event_t& press) {
  const auto held = static_cast<std::uint16_t>(press.state & kRealModifiers & ~mAllLocks);
  for (const auto& grab : mGrabs) {
    const bool isKey = std::ranges::find(grab.keys, press.detail) != grab.keys.end();
    if (!isKey || held != (grab.withSuper ? mSuper : 0)) continue;
    grab.pressed();
    return;
  }
}

void XKeyGrabs::FollowMapping() {
  for (const auto& grab : mGrabs) GiveBack(grab);
  if (!ReadKeyboard()) return;
  for (auto& grab : mGrabs) Take(grab);
  ReadSoon();
}

/// Presses that came while something else was waited for have left nothing to read behind.
void XKeyGrabs::ReadSoon() {
  QTimer::singleShot(0, mNotifier.get(), [this] { ReadEvents(); });
}

}  // namespace lurkwell
