#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "exporter/GroupRules.h"

namespace lurkwell {

/// What the exporter is to do, of its arguments and its configuration file.
struct ExportOptions {
  enum class Action { kServe, kCheck, kHelp, kVersion, kMakePassword };

  Action action = Action::kServe;
  std::string address = std::string(kUsualAddress);
  /// Paths; empty for none.
  std::string config;
  std::string certificate;
  std::string key;
  std::string passwords;
  /// Served to other machines as it is, whatever of protection is missing.
  bool isOpen = false;
  /// For whom a password is made.
  std::string user;
  GroupRules rules;

  static constexpr std::string_view kUsualAddress = "127.0.0.1:19256";

  bool HasTLS() const { return !certificate.empty(); }
};

/// What is wrong with the options, in a sentence.
struct OptionsError {
  std::string words;
};
using ReadOptions = std::variant<ExportOptions, OptionsError>;

/// Reads the arguments, without the program's name, and the configuration file that they name;
/// what an argument says holds before what the file says.
ReadOptions ReadExportOptions(std::span<const char* const> arguments);

/// What a configuration file says, added to `options`; nothing when it makes sense. `name` is what
/// the complaint calls it. Pure but for $CREDENTIALS_DIRECTORY; any bytes.
std::optional<OptionsError> AddConfiguration(const std::string& text, const std::string& name,
                                             ExportOptions& options);

/// Whether what is served to `isLoopback`, or else to other machines, is protected as it has to be.
std::optional<OptionsError> CheckProtection(const ExportOptions& options, bool isLoopback);

/// The text of --help.
const char* ExportHelpText();

}  // namespace lurkwell
