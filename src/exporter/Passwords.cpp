#include "exporter/Passwords.h"

#include <crypt.h>
#include <gnutls/crypto.h>
#include <gnutls/gnutls.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

// bcrypt, yescrypt and its kin, scrypt, and the two of SHA-2.
constexpr std::string_view kStrongHashes[] = {"$2b$", "$2y$", "$2a$", "$y$",
                                              "$gy$", "$7$",  "$5$",  "$6$"};
constexpr std::size_t kMostRemembered = 64;
constexpr std::size_t kMostAddresses = 1024;
constexpr std::size_t kLongestCredentials = 1024;

std::string_view WithoutScheme(std::string_view authorization) {
  constexpr std::string_view kScheme = "basic ";
  const auto begins = authorization.size() > kScheme.size() &&
                      std::ranges::equal(authorization.substr(0, kScheme.size()), kScheme, {},
                                         [](char c) { return static_cast<char>(c | ' '); });
  return begins ? authorization.substr(kScheme.size()) : std::string_view();
}

std::optional<std::string> Decoded(std::string_view base64) {
  ::gnutls_datum_t decoded{};
  std::string copy(base64);
  const ::gnutls_datum_t encoded{reinterpret_cast<unsigned char*>(copy.data()),
                                 static_cast<unsigned>(copy.size())};
  if (::gnutls_base64_decode2(&encoded, &decoded) != GNUTLS_E_SUCCESS) return std::nullopt;
  std::string text(reinterpret_cast<const char*>(decoded.data), decoded.size);
  ::gnutls_free(decoded.data);
  return text;
}

/// The hash of the password by the settings of another; empty when that makes no sense.
std::string HashLike(const std::string& password, const std::string& settings) {
  const auto data = std::make_unique<::crypt_data>();
  const char* const hash = ::crypt_r(password.c_str(), settings.c_str(), data.get());
  // What begins with a star is no hash.
  return hash != nullptr && *hash != '*' ? hash : std::string();
}

}  // namespace

Passwords::Passwords() {
  ::gnutls_rnd(GNUTLS_RND_KEY, mKey.data(), mKey.size());
}

std::variant<Passwords, PasswordError> Passwords::Read(std::string_view text) {
  Passwords passwords;
  for (int number = 1; !text.empty(); ++number) {
    auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty() || line.starts_with('#')) continue;
    const auto where = "line " + std::to_string(number) + ": ";
    const auto colon = line.find(':');
    if (colon == std::string_view::npos || colon == 0)
      return PasswordError{where + "is not USER:HASH"};
    const std::string hash(line.substr(colon + 1));
    const bool isStrong = std::ranges::any_of(
        kStrongHashes, [&](std::string_view begin) { return hash.starts_with(begin); });
    if (!isStrong || HashLike("", hash).empty())
      return PasswordError{where +
                           "has no hash that is strong enough, such as those of bcrypt "
                           "($2y$) or yescrypt ($y$)"};
    passwords.mAccounts.push_back({std::string(line.substr(0, colon)), hash});
  }
  if (passwords.mAccounts.empty()) return PasswordError{"there is nobody in it"};
  return passwords;
}

std::optional<Passwords::Digest> Passwords::DigestOf(std::string_view credentials) const {
  Digest digest{};
  if (::gnutls_hmac_fast(GNUTLS_MAC_SHA256, mKey.data(), mKey.size(), credentials.data(),
                         credentials.size(), digest.data()) != GNUTLS_E_SUCCESS)
    return std::nullopt;
  return digest;
}

Passwords::Verdict Passwords::Judge(std::string_view authorization, const std::string& address,
                                    Moment now) {
  const auto encoded = WithoutScheme(authorization);
  if (encoded.empty() || encoded.size() > kLongestCredentials) return Verdict::kWrong;
  const auto digest = DigestOf(encoded);
  const auto isSame = [&](const Digest& known) {
    return ::gnutls_memcmp(known.data(), digest->data(), known.size()) == 0;
  };
  if (digest && std::ranges::any_of(mRemembered, isSame)) return Verdict::kRight;
  const auto credentials = Decoded(encoded);
  const auto colon = credentials ? credentials->find(':') : std::string::npos;
  if (colon == std::string::npos) return Verdict::kWrong;
  if (!MayTry(address, now)) return Verdict::kTooMany;
  if (!IsRight(std::string_view(*credentials).substr(0, colon), credentials->substr(colon + 1)))
    return Verdict::kWrong;
  mDebts.erase(address);
  if (digest) mRemembered.push_back(*digest);
  if (mRemembered.size() > kMostRemembered) mRemembered.pop_front();
  return Verdict::kRight;
}

/// Each attempt is a debt of some seconds, of which only so much may stand open.
bool Passwords::MayTry(const std::string& address, Moment now) {
  std::erase_if(mDebts, [now](const auto& debt) { return debt.second <= now; });
  const auto [debt, isNew] = mDebts.try_emplace(address, now);
  if (isNew && mDebts.size() > kMostAddresses) {
    mDebts.erase(debt);
    return false;
  }
  if (debt->second - now > kBetweenAttempts * (kAttemptsInARow - 1)) return false;
  debt->second += kBetweenAttempts;
  return true;
}

/// Somebody unknown takes as long as somebody known.
bool Passwords::IsRight(std::string_view user, std::string_view password) const {
  const auto account = std::ranges::find(mAccounts, user, &Account::user);
  const bool isKnown = account != mAccounts.end();
  const auto& hash = isKnown ? account->hash : mAccounts.front().hash;
  const auto found = HashLike(std::string(password), hash);
  return isKnown && found.size() == hash.size() &&
         ::gnutls_memcmp(found.data(), hash.data(), hash.size()) == 0 &&
         password.find('\0') == std::string_view::npos;
}

std::optional<std::string> PasswordLine(const std::string& user, const std::string& password) {
  std::array<char, CRYPT_GENSALT_OUTPUT_SIZE> settings{};
  if (::crypt_gensalt_rn("$y$", 0, nullptr, 0, settings.data(), settings.size()) == nullptr)
    return std::nullopt;
  const auto hash = HashLike(password, settings.data());
  if (hash.empty()) return std::nullopt;
  return user + ":" + hash;
}

}  // namespace lurkwell
