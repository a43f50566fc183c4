#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lurkwell {

/// What is wrong with a file of passwords, in a sentence without the file's name.
struct PasswordError {
  std::string words;
};

/// Users and the hashes of their passwords, lines "USER:HASH" with hashes as crypt(5) has them. The
/// weak ones among these are refused. One thread.
///
/// A right password is remembered by a digest, with a key that this program makes for itself, so
/// that its slow hash is worked out once. Wrong ones are answered kAttemptsInARow at a time from
/// one address, and then one in two seconds: what tries many cannot keep the exporter busy.
class Passwords {
 public:
  using Moment = std::chrono::steady_clock::time_point;
  enum class Verdict { kRight, kWrong, kTooMany };

  static constexpr int kAttemptsInARow = 5;
  static constexpr std::chrono::seconds kBetweenAttempts{2};

  static std::variant<Passwords, PasswordError> Read(std::string_view text);

  /// Judges an Authorization header, empty when there is none, from an address.
  Verdict Judge(std::string_view authorization, const std::string& address, Moment now);

 private:
  using Digest = std::array<unsigned char, 32>;
  struct Account {
    std::string user;
    std::string hash;
  };
  /// Of one address: when its attempts will all be forgotten.
  using Debts = std::map<std::string, Moment>;

  Passwords();
  std::optional<Digest> DigestOf(std::string_view credentials) const;
  bool MayTry(const std::string& address, Moment now);
  bool IsRight(std::string_view user, std::string_view password) const;

  std::array<unsigned char, 32> mKey{};
  std::vector<Account> mAccounts;
  std::deque<Digest> mRemembered;
  Debts mDebts;
};

/// The line for a user and a password; nothing, and errno, when it cannot be made.
std::optional<std::string> PasswordLine(const std::string& user, const std::string& password);

}  // namespace lurkwell
