#include "app/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <ostream>
#include <string_view>
#include <utility>

namespace lurkwell {
namespace {

constexpr char kHelpText[] =
    R"(Usage: lurkwell [OPTION]... [lurkwell://pid/N]
Watches the processes of this machine. An address selects the process with that number.

  --theme THEME        light, dark, or system: what the desktop has
  --screenshot FILE    write a picture of a window (PNG) after two updates and end;
                       works without a display, too
  --window NAME        which window (with --screenshot only): main, machine,
                       alerts, history, logging, preferences, settings,
                       animated or about; history and logging follow lurkwell itself;
                       animated needs a display
  --new-instance       start another instance; without it, one that is running comes
                       to the front
  --toggle-overlay     have the instance that is running show the animated view over
                       the whole screen, or in its window again
  --print              print the processes in the terminal, once a second
  --count N            end after N updates (with --print)
  --columns KEY,...    print these properties instead of the usual five
                       (with --print); keys are properties such as pid_rsz,
                       the column headers of ps such as %CPU, and the short
                       words that filters have, such as user
  --format FORM        text, json, jsonl or csv (with --print)
  --filter QUERY       print the processes that a query is true of (with --print):
                       'ssh' (a part of what is shown), 'name:post',
                       'user:root,mail', 'mem>500M', 'name:/^k.*d$/', '-name:sh'
                       (not), 'a b' (both), 'a | b' (one of them)
  --sort KEY           in this order (with --print); -KEY has the largest first
  --limit N            print N processes at most (with --print)
  --tree               print children below their parents (with --print)
  --interval SECONDS   time between two updates (with --print); 1 without it;
                       and between two beats (with --record); 2 without it
  --replay FILE        show a recording instead of this machine, or print the
                       processes of one of its moments (with --print)
  --at TIME            as they were then (with --replay): '03:12', a date with a time
                       as in '2026-11-22T03:12', or '-2h' before the recording's end;
                       its end without it
  --record FILE        record the processes to a file, until a signal ends it; goes on
                       with a recording that is there
  --arguments          record programs' arguments, too (with --record); they may be
                       secrets
  --keep DAYS          let go of what is older (with --record); 7 without it
  --limit-size SIZE    let go of the oldest beyond that size, such as 500M or 2G
                       (with --record); 1G without it
  --export [ADDRESS]   serve figures to Prometheus, without a window: 'lurkwell-export'
                       (a package of its own) with all that follows; without an
                       address at 127.0.0.1:19256
  --fleet ADDRESS      show the machines that a Prometheus server knows, such as
                       http://monitor:9090, instead of this one
  --credentials FILE   a file of one line that says who asks (with --fleet),
                       NAME:PASSWORD or a token; nobody else may read it
  --unprivileged       never ask for an administrator's password; other users'
                       processes then show and obey only as far as your own
                       rights go
  --help               show this text
  --version            show the version

Without options the window is shown; without a display, the processes are
printed.
Exit status: 0 after a normal end, 1 when something failed, 2 for options that
make no sense.
)";

constexpr const char* kWindows[] = {"main",        "machine",  "alerts",   "history", "logging",
                                    "preferences", "settings", "animated", "about"};

constexpr double kLeastSecondsBetween = 0.1;
constexpr double kMostSecondsBetween = 86'400;
constexpr std::int32_t kMostDays = 36'500;
constexpr double kLeastSize = 1 << 20;
constexpr double kMostSize = 1e15;

bool IsForPrinting(std::string_view option) {
  constexpr std::string_view kOptions[] = {"--count", "--columns", "--format",   "--filter",
                                           "--sort",  "--limit",   "--interval", "--tree"};
  return std::ranges::find(kOptions, option) != std::end(kOptions);
}

bool IsForRecording(std::string_view option) {
  return option == "--arguments" || option == "--keep" || option == "--limit-size";
}

/// Walks over the arguments; an option's value follows it or stands behind "=".
class Reader {
 public:
  Reader(std::span<const char* const> arguments, std::ostream& errors)
      : mArguments(arguments.subspan(arguments.empty() ? 0 : 1)), mErrors(errors) {}

  std::optional<CommandLine> Read() {
    for (bool isFirst = true; !mArguments.empty(); isFirst = false) {
      const std::string_view argument = Take();
      if (argument.starts_with("lurkwell:")) {
        mLine.address = argument;
        continue;
      }
      const auto equals = argument.find('=');
      mOption = argument.substr(0, equals);
      if (mOption == "--export" && !isFirst) {
        Complain("--export comes first, and only its own options follow it");
        return std::nullopt;
      }
      if (IsForPrinting(mOption) && (mOption != "--interval" || mLine.printingOption.empty()))
        mLine.printingOption = mOption;
      if (IsForRecording(mOption)) mLine.recordingOption = mOption;
      mValue.reset();
      if (equals != std::string_view::npos) mValue = argument.substr(equals + 1);
      if (!ReadOption()) return std::nullopt;
    }
    if (!FitsTogether()) return std::nullopt;
    return mLine;
  }

 private:
  std::string_view Take() {
    const std::string_view argument = mArguments.front();
    mArguments = mArguments.subspan(1);
    return argument;
  }

  bool Complain(std::string_view what) {
    mErrors << "lurkwell: " << what << "\nTry 'lurkwell --help'.\n";
    return false;
  }

  bool FitsTogether() {
    using enum CommandLine::Action;
    if (mLine.action == kHelp || mLine.action == kVersion) return true;
    std::vector<const char*> alone;
    if (mLine.action == kPrint) alone.push_back("--print");
    if (!mLine.recordTo.empty()) alone.push_back("--record");
    if (mLine.toggleOverlay) alone.push_back("--toggle-overlay");
    if (mLine.screenshot) alone.push_back("--screenshot");
    if (!mLine.address.empty()) alone.push_back("an address");
    if (alone.size() > 1)
      return Complain(std::string(alone[0]) + " and " + alone[1] + " exclude each other");
    if (mWindowIsNamed && !mLine.screenshot) return Complain("--window needs --screenshot");
    return FleetFitsTogether() && RecordingFitsTogether();
  }

  bool FleetFitsTogether() {
    if (!mLine.credentials.empty() && mLine.fleet.empty())
      return Complain("--credentials needs --fleet");
    if (mLine.fleet.empty()) return true;
    const bool prints = mLine.action == CommandLine::Action::kPrint;
    const char* other = prints                    ? "--print"
                        : !mLine.recordTo.empty() ? "--record"
                        : !mLine.replay.empty()   ? "--replay"
                        : mLine.toggleOverlay     ? "--toggle-overlay"
                        : mWindowIsNamed          ? "--window"
                                                  : nullptr;
    return other == nullptr ||
           Complain(std::string("--fleet and ") + other + " exclude each other");
  }

  bool RecordingFitsTogether() {
    const bool records = !mLine.recordTo.empty();
    if (!mLine.recordingOption.empty() && !records)
      return Complain(mLine.recordingOption + " needs --record");
    if (!mLine.at.empty() && mLine.replay.empty()) return Complain("--at needs --replay");
    if (!mLine.replay.empty() && records)
      return Complain("--record and --replay exclude each other");
    if (!records) return true;
    mLine.action = CommandLine::Action::kRecord;
    const bool isForPrinting =
        !mLine.printingOption.empty() && mLine.printingOption != "--interval";
    return !isForPrinting || Complain(mLine.printingOption + " needs --print");
  }

  bool ReadOption() {
    if (mOption == "--count") return ReadCountInto(mLine.count);
    if (mOption == "--columns") return ReadColumns();
    if (mOption == "--format") return ReadForm();
    if (mOption == "--filter") return ReadText(mLine.filter);
    if (mOption == "--sort") return ReadText(mLine.sort);
    if (mOption == "--limit") return ReadCountInto(mLine.limit);
    if (mOption == "--interval") return ReadInterval();
    if (mOption == "--record") return ReadText(mLine.recordTo);
    if (mOption == "--keep") return ReadDays();
    if (mOption == "--limit-size") return ReadSize();
    if (mOption == "--replay") return ReadText(mLine.replay);
    if (mOption == "--at") return ReadText(mLine.at);
    if (mOption == "--fleet") return ReadText(mLine.fleet);
    if (mOption == "--credentials") return ReadText(mLine.credentials);
    if (mOption == "--screenshot") return ReadScreenshot();
    if (mOption == "--export") return ReadExport();
    if (mOption == "--window") return ReadWindow();
    if (mOption == "--theme") return ReadTheme();
    // Of a session manager; Qt reads it.
    if (mOption == "-session") return TakeValue();
    if (mValue) return Complain(std::string(mOption) + " takes no value");
    if (mOption == "--tree") {
      mLine.isTree = true;
    } else if (mOption == "--arguments") {
      mLine.keepsArguments = true;
    } else if (mOption == "--print") {
      mLine.action = CommandLine::Action::kPrint;
    } else if (mOption == "--help" || mOption == "-h") {
      mLine.action = CommandLine::Action::kHelp;
    } else if (mOption == "--version") {
      mLine.action = CommandLine::Action::kVersion;
    } else if (mOption == "--unprivileged") {
      mLine.unprivileged = true;
    } else if (mOption == "--new-instance") {
      mLine.newInstance = true;
    } else if (mOption == "--toggle-overlay") {
      mLine.toggleOverlay = true;
    } else {
      return Complain("unknown option '" + std::string(mOption) + "'");
    }
    return true;
  }

  bool TakeValue() {
    if (!mValue && mArguments.empty()) return Complain(std::string(mOption) + " needs a value");
    if (!mValue) mValue = Take();
    return true;
  }

  bool ReadCountInto(std::optional<std::int32_t>& result) {
    if (!TakeValue()) return false;
    std::int32_t count = 0;
    const char* end = mValue->data() + mValue->size();
    const auto [at, error] = std::from_chars(mValue->data(), end, count);
    if (error != std::errc{} || at != end || count < 1) {
      return Complain(std::string(mOption) + " needs a number from 1 up, not '" +
                      std::string(*mValue) + "'");
    }
    result = count;
    return true;
  }

  bool ReadInterval() {
    if (!TakeValue()) return false;
    double seconds = 0;
    const char* end = mValue->data() + mValue->size();
    const auto [at, error] = std::from_chars(mValue->data(), end, seconds);
    if (error != std::errc{} || at != end || !(seconds >= kLeastSecondsBetween) ||
        seconds > kMostSecondsBetween)
      return Complain("--interval needs seconds from 0.1 to 86400, not '" + std::string(*mValue) +
                      "'");
    mLine.intervalInMilliseconds = static_cast<std::int32_t>(std::lround(seconds * 1000));
    return true;
  }

  bool ReadDays() {
    std::optional<std::int32_t> days;
    if (!ReadCountInto(days)) return false;
    mLine.daysToKeep = *days;
    return *days <= kMostDays || Complain("--keep needs 36500 days at most");
  }

  /// A number with a unit behind it; K, M, G and T are powers of 1024.
  bool ReadSize() {
    if (!TakeValue()) return false;
    constexpr std::string_view kUnits = "KMGT";
    double size = 0;
    const char* end = mValue->data() + mValue->size();
    const auto [at, error] = std::from_chars(mValue->data(), end, size);
    std::string_view unit(at, static_cast<std::size_t>(end - at));
    if (unit.ends_with('B') && unit.size() > 1) unit.remove_suffix(unit.ends_with("iB") ? 2 : 1);
    const auto place = unit.size() == 1 ? kUnits.find(unit) : std::string_view::npos;
    if (place != std::string_view::npos)
      size = std::ldexp(size, 10 * (static_cast<int>(place) + 1));
    const bool hasUnit = unit.empty() || place != std::string_view::npos;
    if (error != std::errc{} || !hasUnit || !(size >= kLeastSize) || size > kMostSize)
      return Complain("--limit-size needs a size from 1M up, such as 500M or 2G, not '" +
                      std::string(*mValue) + "'");
    mLine.bytesToKeep = static_cast<std::int64_t>(size);
    return true;
  }

  bool ReadForm() {
    if (!TakeValue()) return false;
    constexpr std::pair<std::string_view, ListingForm> kForms[] = {
        {"text", ListingForm::kText},
        {"json", ListingForm::kJson},
        {"jsonl", ListingForm::kJsonLines},
        {"csv", ListingForm::kCsv}};
    for (const auto& [name, form] : kForms)
      if (*mValue == name) return mLine.form = form, true;
    return Complain("--format is text, json, jsonl or csv, not '" + std::string(*mValue) + "'");
  }

  bool ReadText(std::string& text) {
    if (!TakeValue()) return false;
    text = *mValue;
    return !text.empty() || Complain(std::string(mOption) + " needs a value");
  }

  bool ReadColumns() {
    if (!TakeValue()) return false;
    std::string_view rest = *mValue;
    while (!rest.empty()) {
      const auto comma = rest.find(',');
      if (comma != 0) mLine.columns.emplace_back(rest.substr(0, comma));
      rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
    }
    return !mLine.columns.empty() || Complain("--columns needs at least one key");
  }

  bool ReadScreenshot() {
    if (!TakeValue()) return false;
    mLine.screenshot = *mValue;
    return !mValue->empty() || Complain("--screenshot needs a file name");
  }

  /// The exporter reads what follows, and complains of it.
  bool ReadExport() {
    mLine.action = CommandLine::Action::kExport;
    if (mValue) mLine.exportArguments.emplace_back(*mValue);
    while (!mArguments.empty()) mLine.exportArguments.emplace_back(Take());
    return true;
  }

  bool ReadWindow() {
    if (!TakeValue()) return false;
    mLine.window = *mValue;
    mWindowIsNamed = true;
    for (const auto* name : kWindows)
      if (mLine.window == name) return true;
    std::string names;
    for (const auto* name : kWindows) names += std::string(names.empty() ? "" : ", ") + name;
    return Complain("there is no window '" + mLine.window + "'; there are " + names);
  }

  bool ReadTheme() {
    if (!TakeValue()) return false;
    if (*mValue == "system") return mLine.theme = CommandLine::Theme::kSystem, true;
    if (*mValue == "light") return mLine.theme = CommandLine::Theme::kLight, true;
    if (*mValue == "dark") return mLine.theme = CommandLine::Theme::kDark, true;
    return Complain("--theme is light, dark or system, not '" + std::string(*mValue) + "'");
  }

  std::span<const char* const> mArguments;
  std::ostream& mErrors;
  CommandLine mLine;
  std::string_view mOption;
  std::optional<std::string_view> mValue;
  bool mWindowIsNamed = false;
};

}  // namespace

std::optional<CommandLine> ReadCommandLine(std::span<const char* const> arguments,
                                           std::ostream& errors) {
  return Reader(arguments, errors).Read();
}

const char* HelpText() {
  return kHelpText;
}

}  // namespace lurkwell
