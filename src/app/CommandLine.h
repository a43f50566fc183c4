#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "process_control/ListingFormat.h"

namespace lurkwell {

/// What the command line asks for.
struct CommandLine {
  enum class Action { kRun, kPrint, kRecord, kExport, kHelp, kVersion };
  enum class Theme { kSystem, kLight, kDark };

  Action action = Action::kRun;
  /// What follows --export, for the exporter.
  std::vector<std::string> exportArguments;
  /// End after that many updates; without it, go on until a signal.
  std::optional<std::int32_t> count;
  /// Properties to print instead of the usual five.
  std::vector<std::string> columns;
  ListingForm form = ListingForm::kText;
  /// A query; empty for all processes.
  std::string filter;
  /// A property, with "-" in front for the largest first; empty for no order.
  std::string sort;
  bool isTree = false;
  std::optional<std::int32_t> limit;
  std::optional<std::int32_t> intervalInMilliseconds;
  /// The last option that holds for printed processes alone; empty without one.
  std::string printingOption;
  /// A file to record to.
  std::string recordTo;
  /// Record whole command lines.
  bool keepsArguments = false;
  std::optional<std::int64_t> daysToKeep;
  std::optional<std::int64_t> bytesToKeep;
  /// The last option that holds for recording alone; empty without one.
  std::string recordingOption;
  /// A recording to show instead of this machine; empty for this machine.
  std::string replay;
  /// A moment in it, see RecordingTime.h; empty for its last one.
  std::string at;
  /// The address of a metrics server whose machines are shown; empty for this machine.
  std::string fleet;
  /// A file that says who asks it; empty for nobody in particular.
  std::string credentials;
  /// Start the helper with the user's own rights.
  bool unprivileged = false;
  /// A file to write a window's picture to, instead of running on.
  std::optional<std::string> screenshot;
  /// Which window; one of those that the help text names.
  std::string window = "main";
  Theme theme = Theme::kSystem;
  /// Start another instance beside one that is running.
  bool newInstance = false;
  /// Have the running instance change between the animated view's window and overlay, and end.
  bool toggleOverlay = false;
  /// An address to show, "lurkwell:" and anything; empty for none.
  std::string address;
};

/// Exit statuses of the program.
inline constexpr int kExitSuccess = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

/// Reads the arguments, the program's name first; nothing, with the reason on `errors`, when they
/// make no sense.
std::optional<CommandLine> ReadCommandLine(std::span<const char* const> arguments,
                                           std::ostream& errors);

/// The text of --help.
const char* HelpText();

}  // namespace lurkwell
