// Writes what a shell needs to complete the program's options, from the text of --help:
// lurkwell_completions bash|zsh|fish > FILE
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <regex>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "app/CommandLine.h"

namespace {

struct Option {
  std::string name;   // "--theme"
  std::string value;  // "THEME"; empty for none
  std::string text;
  std::vector<std::string> words;  // that the value may be; empty for any

  bool IsFile() const { return value == "FILE"; }
};

// Values that are one of a few words, with what else such a command line needs.
struct Words {
  const char* option;
  const char* words;
  std::vector<const char*> others;
};
const Words kWords[] = {
    {"--theme", "light dark system", {}},
    {"--format", "text json jsonl csv", {"--print"}},
    {"--window",
     "main machine history logging preferences settings animated about",
     {"--screenshot", "x.png"}},
};

/// The first clause, which has to do for a list.
std::string Shortened(std::string text) {
  text.resize(std::min(text.size(), text.find_first_of(";:(")));
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

std::vector<Option> OptionsOf(const std::string& help) {
  const std::regex first(R"(  (--[a-z-]+)(?: (\S+))?  +(\S.*))");
  std::vector<Option> options;
  std::istringstream lines(help);
  bool isInside = false;
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    if (std::regex_match(line, match, first)) {
      options.push_back({match[1], match[2], match[3], {}});
      isInside = true;
    } else if (isInside && line.starts_with("          ")) {
      options.back().text += line.substr(line.find_first_not_of(' ') - 1);
    } else {
      isInside = false;
    }
  }
  for (auto& option : options) option.text = Shortened(option.text);
  return options;
}

/// Whether the program takes each of the words.
bool GiveWords(std::vector<Option>& options) {
  for (const auto& [name, words, others] : kWords) {
    const auto option = std::ranges::find(options, name, &Option::name);
    if (option == options.end()) return false;
    std::istringstream list(words);
    for (std::string word; list >> word;) {
      std::vector<const char*> line{"lurkwell", name, word.c_str()};
      line.insert(line.end(), others.begin(), others.end());
      if (!lurkwell::ReadCommandLine(line, std::cerr)) return false;
      option->words.push_back(word);
    }
  }
  return true;
}

std::string Joined(const std::vector<std::string>& words, const char* between = " ") {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

/// In single quotes for any of the shells.
std::string Quoted(const std::string& text, bool isFish) {
  return '\'' + std::regex_replace(text, std::regex("'"), isFish ? "\\'" : "'\\''") + '\'';
}

void WriteBash(std::span<const Option> options) {
  std::vector<std::string> all, files, others;
  std::string cases;
  for (const auto& option : options) {
    all.push_back(option.name);
    if (!option.words.empty())
      cases += "    " + option.name + ") mapfile -t COMPREPLY < <(compgen -W '" +
               Joined(option.words) + "' -- \"$word\"); return ;;\n";
    else if (option.IsFile())
      files.push_back(option.name);
    else if (!option.value.empty())
      others.push_back(option.name);
  }
  std::cout << "_lurkwell() {\n"
               "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}\n"
               "  [ \"$word\" != = ] || word=\n"
               "  [ \"$before\" != = ] || before=${COMP_WORDS[COMP_CWORD - 2]}\n"
               "  COMPREPLY=()\n"
               "  case $before in\n"
            << cases << "    " << Joined(files, "|")
            << ")\n      mapfile -t COMPREPLY < <(compgen -f -- \"$word\")\n"
               "      compopt -o filenames 2>/dev/null\n      return ;;\n    "
            << Joined(others, "|") << ") return ;;\n  esac\n  mapfile -t COMPREPLY < <(compgen -W '"
            << Joined(all) << "' -- \"$word\")\n}\ncomplete -F _lurkwell lurkwell\n";
}

void WriteZsh(std::span<const Option> options) {
  std::cout << "#compdef lurkwell\n_arguments";
  for (const auto& option : options) {
    const auto text = std::regex_replace(option.text, std::regex(R"([\[\]\\])"), "\\$&");
    std::string line = option.name + (option.value.empty() ? "" : "=") + '[' + text + ']';
    if (!option.value.empty())
      line += ": :" + (option.IsFile()        ? "_files"
                       : option.words.empty() ? std::string()
                                              : '(' + Joined(option.words) + ')');
    std::cout << " \\\n  " << Quoted(line, false);
  }
  std::cout << '\n';
}

void WriteFish(std::span<const Option> options) {
  std::cout << "complete -c lurkwell -f\n";
  for (const auto& option : options) {
    std::cout << "complete -c lurkwell -l " << option.name.substr(2) << " -d "
              << Quoted(option.text, true);
    if (option.IsFile())
      std::cout << " -r -F";
    else if (!option.value.empty())
      std::cout << " -x";
    if (!option.words.empty()) std::cout << " -a " << Quoted(Joined(option.words), true);
    std::cout << '\n';
  }
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view shell = count == 2 ? arguments[1] : "";
  auto options = OptionsOf(lurkwell::HelpText());
  if (options.empty() || !GiveWords(options)) {
    std::fputs("the options of --help are not what completions expect\n", stderr);
    return 1;
  }
  if (shell == "bash")
    WriteBash(options);
  else if (shell == "zsh")
    WriteZsh(options);
  else if (shell == "fish")
    WriteFish(options);
  else
    return 2;
  std::cout.flush();
  return std::cout ? 0 : 1;
}
