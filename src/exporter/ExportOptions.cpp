#include "exporter/ExportOptions.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "exporter/ProtectedFile.h"
#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

constexpr char kHelpText[] =
    R"(Usage: lurkwell-export [OPTION]... [ADDRESS]
Serves figures of this machine and of groups of its processes to Prometheus, at
http://ADDRESS/metrics.

ADDRESS is HOST:PORT, such as 127.0.0.1:19256 (without one), [::1]:19256 or
0.0.0.0:19256. HOST is a number, localhost, or missing for all interfaces.

  --config FILE        read options from a file; those of the command line hold
                       before them
  --certificate FILE   serve over TLS with this certificate and those that it is
                       signed with (PEM)
  --key FILE           its private key (PEM)
  --passwords FILE     answer those alone who have a password: lines USER:HASH, with
                       hashes as crypt(5) has them (bcrypt, yescrypt and others)
  --open               serve other machines although certificate or passwords are
                       missing: whoever reaches the port may read everything
  --check              look whether all of that makes sense, and end
  --make-password USER read a password from standard input and print a line for
                       the file of passwords
  --help               show this text
  --version            show the version

What is served to other machines than this one needs --certificate, --key and
--passwords, or --open. SIGHUP has the certificate, the key and the passwords
read again.
Exit status: 0 after a normal end, 1 when something failed, 2 for options or
files that make no sense.
)";

/// Takes the arguments one after the other; an option's value follows it or stands behind "=".
class ArgumentReader {
 public:
  ArgumentReader(std::span<const char* const> arguments, ExportOptions& options)
      : mArguments(arguments), mOptions(options) {}

  std::optional<OptionsError> Read() {
    while (!mArguments.empty()) {
      const std::string_view argument = mArguments.front();
      mArguments = mArguments.subspan(1);
      if (auto error = ReadOne(argument)) return error;
    }
    return std::nullopt;
  }

 private:
  using Action = ExportOptions::Action;

  std::optional<OptionsError> ReadOne(std::string_view argument) {
    if (!argument.starts_with('-')) {
      if (mHasAddress) return OptionsError{"there can be one address only"};
      mHasAddress = true;
      mOptions.address = argument;
      return std::nullopt;
    }
    const auto equals = argument.find('=');
    const auto option = argument.substr(0, equals);
    std::optional<std::string_view> value;
    if (equals != std::string_view::npos) value = argument.substr(equals + 1);
    const std::pair<std::string_view, std::string*> kFiles[] = {
        {"--config", &mOptions.config},
        {"--certificate", &mOptions.certificate},
        {"--key", &mOptions.key},
        {"--passwords", &mOptions.passwords},
        {"--make-password", &mOptions.user}};
    for (const auto& [name, place] : kFiles) {
      if (option != name) continue;
      if (option == "--make-password") mOptions.action = Action::kMakePassword;
      return TakeValue(option, value, *place);
    }
    if (value) return OptionsError{PrintableText(option) + " takes no value"};
    return ReadWord(option);
  }

  std::optional<OptionsError> TakeValue(std::string_view option,
                                        std::optional<std::string_view> value, std::string& place) {
    if (!value && !mArguments.empty()) {
      value = mArguments.front();
      mArguments = mArguments.subspan(1);
    }
    if (!value || value->empty()) return OptionsError{std::string(option) + " needs a value"};
    place = *value;
    return std::nullopt;
  }

  std::optional<OptionsError> ReadWord(std::string_view option) {
    if (option == "--open") {
      mOptions.isOpen = true;
    } else if (option == "--check") {
      mOptions.action = Action::kCheck;
    } else if (option == "--help" || option == "-h") {
      mOptions.action = Action::kHelp;
    } else if (option == "--version") {
      mOptions.action = Action::kVersion;
    } else {
      return OptionsError{"unknown option '" + PrintableText(option) + "'"};
    }
    return std::nullopt;
  }

  std::span<const char* const> mArguments;
  ExportOptions& mOptions;
  bool mHasAddress = false;
};

}  // namespace

ReadOptions ReadExportOptions(std::span<const char* const> arguments) {
  ExportOptions named;
  if (auto error = ArgumentReader(arguments, named).Read()) return *std::move(error);
  if (named.config.empty()) return named;
  auto text = ReadWholeFile(named.config, Secrecy::kOpen);
  if (const auto* error = std::get_if<FileError>(&text)) return OptionsError{error->words};
  ExportOptions options;
  const auto name = PrintableText(named.config);
  if (auto error = AddConfiguration(std::get<std::string>(text), name, options))
    return *std::move(error);
  // Once more, over what the file says.
  if (auto error = ArgumentReader(arguments, options).Read()) return *std::move(error);
  return options;
}

std::optional<OptionsError> CheckProtection(const ExportOptions& options, bool isLoopback) {
  if (options.certificate.empty() != options.key.empty())
    return OptionsError{"a certificate and its key belong together: one of them is missing"};
  if (isLoopback || options.isOpen) return std::nullopt;
  if (options.HasTLS() && !options.passwords.empty()) return std::nullopt;
  return OptionsError{PrintableText(options.address) +
                      " can be reached from other machines: that needs a certificate, its key and "
                      "passwords, or --open, with which everybody may read"};
}

const char* ExportHelpText() {
  return kHelpText;
}

}  // namespace lurkwell
