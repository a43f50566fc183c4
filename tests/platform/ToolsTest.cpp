// The tools and the ps dialect against the real ps.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/FileDescriptor.h"
#include "platform/linux/LinuxTools.h"
#include "platform/linux/ProcpsDialect.h"
#include "support/Child.h"
#include "support/PidNamespace.h"
#include "support/TemporaryFolder.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;

// Long enough that only a hang reaches it.
constexpr auto kAmple = 60s;

ToolProcess::Deadline Ample() {
  return std::chrono::steady_clock::now() + kAmple;
}

/// Serves them until the deadline, and ends those that have not ended by themselves.
std::vector<ToolOutput> RunAll(const std::vector<std::vector<std::string>>& programs,
                               ToolProcess::Deadline deadline) {
  std::vector<ToolProcess> processes;
  std::vector<ToolProcess*> pointers;
  for (const auto& arguments : programs) processes.emplace_back(arguments);
  for (auto& process : processes) pointers.push_back(&process);
  ServeUntil(pointers, deadline);
  std::vector<ToolOutput> outputs;
  for (auto& process : processes) {
    while (!process.Reap()) process.Kill();
    outputs.push_back(process.TakeOutput());
  }
  return outputs;
}

ToolOutput RunOne(const std::vector<std::string>& arguments, ToolProcess::Deadline deadline) {
  return RunAll({arguments}, deadline).front();
}

ToolOutput RunOne(LinuxTools& tools, const std::string& line) {
  const auto tool = tools.Start(line);
  if (tool == nullptr) return {};
  RunningTool* const pointer = tool.get();
  tools.Await(std::span(&pointer, 1), kAmple);
  EXPECT_TRUE(tool->HasEnded());
  return tool->TakeOutput();
}

bool HasNoChildren() {
  return ::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD;
}

/// What a command prints, through the C library, so by another way than the tools'.
std::string Printed(const std::string& command) {
  std::string text;
  FILE* pipe = ::popen(command.c_str(), "r");
  for (int c = 0; (c = std::fgetc(pipe)) != EOF;) text += static_cast<char>(c);
  ::pclose(pipe);
  return text;
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

TEST(PsDialect, OffersEveryColumnUnderANameOfItsOwn) {
  LinuxTools tools;
  const auto answer = RunOne(tools, "/bin/ps -Lww");
  ASSERT_TRUE(answer.complete);
  EXPECT_LE(answer.text.size(), 1023u);
  EXPECT_EQ(answer.text.find("  "), std::string::npos);
  EXPECT_EQ(answer.text.find('\n'), answer.text.size() - 1);
  const auto columns = ParsePsListing(Printed("LC_ALL=C /bin/ps L"));
  ASSERT_GT(columns.size(), 150u);

  std::set<std::string> offered;
  for (const auto& keyword : WordsOf(answer.text)) {
    const auto name = RunOne(tools, "/bin/ps 0 -o " + keyword);
    ASSERT_TRUE(name.complete) << keyword;
    offered.insert(name.text);
  }
  std::map<std::string, std::string> keywordOf;
  for (const auto& column : columns) {
    EXPECT_TRUE(offered.contains(column.name + "\n")) << column.keyword;
    const auto first = keywordOf.emplace(column.name, column.keyword).first->second;
    EXPECT_TRUE(first == column.keyword || !ProcpsKeywordFor(column.keyword).empty() ||
                ProcpsKeywordFor(first) == column.keyword)
        << first << " and " << column.keyword << " are both " << column.name;
  }
  // ps itself prints the names.
  for (const char* keyword : {"args", "comm", "etime", "etimes", "lstart", "rss", "m_size"}) {
    const auto printed = RunOne(tools, "/bin/ps -axww -o pid," + std::string(keyword));
    EXPECT_EQ(WordsOf(printed.text.substr(0, printed.text.find('\n'))).back() + "\n",
              HeaderLine(columns, keyword));
  }
  EXPECT_EQ(HeaderLine(columns, "comm") + HeaderLine(columns, "ucomm"), "COMM\nCOMM\n");
  EXPECT_EQ(HeaderLine(columns, "sess") + HeaderLine(columns, "pri_foo"), "");
  EXPECT_TRUE(HasNoChildren());
}

/// What is known of columns beforehand, against what ps prints for all processes.
TEST(PsDialect, KnowsWhatTheColumnsHold) {
  const std::regex number(R"(-?(0|[1-9][0-9]*)(\.[0-9]+)?)");
  const std::set<std::string> noNumbers{"-", "?", "*", "xx"};
  std::string unknown;
  for (const auto& column : ParsePsListing(Printed("LC_ALL=C /bin/ps L"))) {
    const auto kind = ProcpsColumnNamed(column.name);
    if (!kind) unknown += column.keyword + ' ';
    if (!kind || kind->kind >= ToolColumn::Kind::kClock) continue;
    std::istringstream lines(Printed("LC_ALL=C.UTF-8 /bin/ps -axww -o " + column.keyword + "="));
    std::size_t numbers = 0, texts = 0;
    for (std::string line; std::getline(lines, line);) {
      const auto words = WordsOf(line);
      if (words.empty() || noNumbers.contains(words[0])) continue;
      words.size() == 1 && std::regex_match(words[0], number) ? ++numbers : ++texts;
    }
    // Of terminals that have numbers alone this one prints just these.
    if (column.name == "TTY4") continue;
    if (kind->kind == ToolColumn::Kind::kText) {
      EXPECT_TRUE(texts > 0 || numbers == 0) << column.keyword << " is a number throughout";
    } else {
      EXPECT_EQ(texts, 0u) << column.keyword << " is no number throughout";
    }
  }
  if (!unknown.empty()) std::printf("columns that are shown as texts: %s\n", unknown.c_str());
}

TEST(LinuxTools, KnowsWhomPsMayLookInto) {
  const LinuxTools tools;
  EXPECT_TRUE(tools.MayLookInto(::getpid()));
  std::string line;
  EXPECT_EQ(tools.MayLookInto(1),
            static_cast<bool>(std::getline(std::ifstream("/proc/1/io"), line)));
}

TEST(PsDialect, OtherKeywordsOfAColumnPrintTheSame) {
  const Child sleeper;
  const auto value = [&sleeper](const std::string& keyword) {
    return WordsOf(Printed("LC_ALL=C.UTF-8 /bin/ps -ww -p " + std::to_string(sleeper.Pid()) +
                           " -o " + keyword + "="));
  };
  const auto columns = ParsePsListing(Printed("LC_ALL=C /bin/ps L"));
  int aliases = 0;
  for (const auto& column : columns) {
    const auto known = ProcpsKeywordFor(column.keyword);
    if (known.empty()) continue;
    ++aliases;
    EXPECT_EQ(value(column.keyword), value(std::string(known))) << column.keyword;
  }
  EXPECT_GT(aliases, 20);
}

TEST(PsDialect, GivesEachColumnAKeywordBeforeAnyHasTwo) {
  std::string listing;
  for (int i = 0; i < 60; ++i) {
    const auto number = std::to_string(100 + i);
    for (const char* kind : {"first", "second", "third"}) {
      listing += kind + number + "  H" + number + "  \n";
    }
  }
  auto columns = ParsePsListing(listing);
  // As if all under one header were one column.
  for (auto& column : columns) column.name = column.header;
  const auto line = KeywordLine(columns);
  EXPECT_GT(line.size(), 1010u);
  EXPECT_LE(line.size(), 1023u);
  const auto words = WordsOf(line);
  const auto count = [&words](const char* kind) {
    return std::count_if(words.begin(), words.end(),
                         [kind](const auto& word) { return word.starts_with(kind); });
  };
  EXPECT_EQ(count("first"), 60);
  // 60 * 9 characters are gone; 10 a piece from the rest.
  EXPECT_EQ(count("second"), 48);
  EXPECT_EQ(count("third"), 0);
  EXPECT_EQ(words[2], "first101");
}

TEST(PsDialect, LeavesOutWhatCannotBeAProperty) {
  const auto columns =
      ParsePsListing("_left LLLL\nnone\nspaced  TWO WORDS\nsame A\nsame B\na,b C\nlong " +
                     std::string(63, 'X') + "\n%cpu\t%CPU \r\n\n \nlast LAST");
  std::string text;
  for (const auto& column : columns) text += column.keyword + '=' + column.name + ' ';
  EXPECT_EQ(text, "spaced=TWO same=A %cpu=%CPU last=LAST ");
  text.clear();
  for (const auto& column :
       ParsePsListing("comm COMMAND\ntty9 TTY\nnew TTY\ncommand COMMAND\ntty TTY\nTTY9 COMMAND\n"
                      "new2 NEW2\nlstart STARTED\nucomm COMMAND\nsess SESS\npri_baz BAZ\n"))
    text += column.keyword + '=' + column.name + ' ';
  EXPECT_EQ(text,
            "comm=COMM tty9=TTY9 new=NEW command=COMMAND tty=TTY TTY9=COMMAND(TTY9) "
            "new2=NEW2 lstart=LSTART ucomm=COMM ");
  EXPECT_EQ(HeaderLine(columns, "spaced"), "TWO\n");
  EXPECT_EQ(HeaderLine(columns, "other"), "");
  EXPECT_EQ(KeywordLine({}), "");
  for (const char* line :
       {"/bin/ps", "/bin/ps 0 -o ", "/bin/ps 0 -o a b", "/bin/ps -axww -o pid,$(x)",
        "/bin/ps -axww -o pid,rsz,vsz", "/bin/sh -c x", ""}) {
    EXPECT_FALSE(ParsePsCommand(line)) << line;
    LinuxTools tools;
    const auto answer = RunOne(tools, line);
    EXPECT_TRUE(answer.text.empty() && !answer.complete) << line;
  }
}

TEST(Tools, GiveProgramsNothingOfOurs) {
  const TemporaryFolder folder;
  const int leaked = ::open("/dev/null", O_RDONLY);
  ::signal(SIGPIPE, SIG_IGN);
  sigset_t blocked;
  ::sigemptyset(&blocked);
  ::sigaddset(&blocked, SIGTERM);
  ::pthread_sigmask(SIG_BLOCK, &blocked, nullptr);

  EXPECT_EQ(RunOne({"/usr/bin/env"}, Ample()).text,
            "PATH=/usr/sbin:/usr/bin:/sbin:/bin\nLC_ALL=C.UTF-8\n");
  // The fourth is the folder that ls reads.
  EXPECT_EQ(RunOne({"/bin/ls", "/proc/self/fd"}, Ample()).text, "0\n1\n2\n3\n");
  // The C library ignores two signals of its own, the 32nd and the 33rd.
  const std::string signals = "/bin/grep -E ^Sig(Blk|Ign):.*[08]0{7}$ /proc/self/status";
  EXPECT_EQ(WordsOf(RunOne(WordsOf(signals), Ample()).text).size(), 4u);
  const auto input = RunOne({"/bin/cat"}, Ample());
  EXPECT_TRUE(input.complete && input.text.empty());
  const auto errors = RunOne({"/bin/ls", "/nowhere"}, Ample());
  EXPECT_TRUE(errors.complete && errors.text.empty());

  const std::string path = folder.Path() + "/answer";
  LinuxTools tools;
  ASSERT_TRUE(tools.StartInBackground(
      {"/bin/sh", "-c",
       "{ env | sort; ls /proc/self/fd; cut -d' ' -f4,5,6 /proc/$$/stat; grep -cE '" +
           WordsOf(signals)[2] + "' /proc/self/status; } > $0.part; mv $0.part $0",
       path}));
  EXPECT_TRUE(HasNoChildren());
  for (int tries = 0; tries < 3000 && tools.Stat(path) != 0; ++tries) ::usleep(10'000);
  std::ifstream stream(path);
  const std::string answer{std::istreambuf_iterator<char>(stream), {}};
  const auto words = WordsOf(answer);
  EXPECT_NE(answer.find("LC_ALL=C.UTF-8\nPATH=/usr/sbin:/usr/bin:/sbin:/bin\nPWD="),
            std::string::npos)
      << answer;
  EXPECT_NE(answer.find("\n0\n1\n2\n3\n"), std::string::npos) << answer;
  ASSERT_GE(words.size(), 4u);
  // Parent, process group and session, none of them ours.
  for (std::size_t i = words.size() - 4; i < words.size() - 1; ++i) {
    EXPECT_NE(words[i], std::to_string(::getpid()));
  }
  EXPECT_NE(words[words.size() - 2], std::to_string(::getsid(0)));
  EXPECT_EQ(words.back(), "2");
  ::close(leaked);
}

TEST(Tools, RunAtTheSameTimeAndNotBeyondTheirTime) {
  const TemporaryFolder folder;
  const std::string fifo = folder.Path() + "/fifo";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  // The reader can only end while the writer runs too.
  const auto pair = RunAll({{"/bin/cat", fifo}, {"/bin/cp", "/proc/version", fifo}}, Ample());
  EXPECT_TRUE(pair.front().complete && pair.front().text.starts_with("Linux"));

  // Says something and then neither ends nor says more; and one that closes its output but stays.
  const auto slow = RunAll({{"/bin/sleep", "1000"},
                            {"/bin/sh", "-c", "echo begun; exec sleep 1000"},
                            {"/bin/sh", "-c", "echo done; exec sleep 1000 >&2"},
                            {"/bin/echo", "quick"}},
                           std::chrono::steady_clock::now() + 500ms);
  const char* texts[] = {"", "begun\n", "done\n", "quick\n"};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(slow[i].text, texts[i]);
    EXPECT_EQ(slow[i].complete, i == 3);
  }
  const auto endless = RunOne({"/usr/bin/yes"}, Ample());
  EXPECT_FALSE(endless.complete);
  EXPECT_EQ(endless.text.size(), 64u * 1024 * 1024);
  EXPECT_TRUE(HasNoChildren());
}

TEST(Tools, AreReadWithoutWaitingAndKilledWithTheirOwner) {
  LinuxTools tools;
  auto ps = tools.Start("/bin/ps -axww -o pid,args");
  ASSERT_NE(ps, nullptr);
  int looks = 0;
  for (; !ps->HasEnded(); ++looks) ::usleep(1000);
  EXPECT_GT(looks, 0);
  const auto output = ps->TakeOutput();
  EXPECT_TRUE(output.complete);
  EXPECT_NE(output.text.find("PID COMMAND\n"), std::string::npos);
  ps = tools.Start("/bin/ps -axww -o pid,args");
  ps.reset();
  for (int tries = 0; !HasNoChildren() && tries < 3000; ++tries) ::usleep(1000);
  EXPECT_TRUE(HasNoChildren());
}

/// Others' arguments are no limit to what ps tells of ours.
TEST(Tools, KeepOfEachProcessNoMoreThanAColumnHolds) {
  constexpr int kFat = 512;
  const auto before = ::getpid();
  const std::string arguments(131'000, 'x');
  std::array<int, 2> life{};
  ASSERT_EQ(::pipe2(life.data(), O_CLOEXEC), 0);
  std::vector<pid_t> children;
  for (int i = 0; i < kFat; ++i)
    children.push_back(Fork([&] {
      ::dup2(life[0], STDIN_FILENO);
      ::execl("/bin/sh", "sh", "-c", "read line", arguments.c_str(), nullptr);
      return 97;
    }));
  // A shell that reads has its arguments.
  const auto isShell = [](pid_t pid) {
    return ReadFile("/proc/" + std::to_string(pid) + "/comm") == "sh\n";
  };
  for (int tries = 0; !std::ranges::all_of(children, isShell) && tries < 30'000; ++tries)
    ::usleep(1000);
  LinuxTools tools;
  const auto output = RunOne(tools, "/bin/ps -axww -o pid,args");
  ::close(life[1]);
  for (const auto child : children) WaitFor(child);
  ::close(life[0]);
  EXPECT_TRUE(output.complete);
  EXPECT_LT(output.text.size(), 2u * 1024 * 1024 + kFat * 2049u);
  std::istringstream lines(output.text);
  int fat = 0;
  bool isOwnThere = false;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 2048u);
    fat += line.find("sh -c read line xxx") != std::string::npos && line.size() == 2048 ? 1 : 0;
    isOwnThere = isOwnThere || std::atoi(line.c_str()) == before;
  }
  EXPECT_EQ(fat, kFat);
  EXPECT_TRUE(isOwnThere);
}

TEST(Tools, SurviveThatNothingCanBeStarted) {
  EXPECT_EQ(RunForked([]() -> std::string {
              LinuxTools tools;
              const std::vector<std::string> lines = {"/bin/ps -axww -o pid,args", "/bin/ps -Lww",
                                                      "/bin/ps 0 -o rsz"};
              const auto attempt = [&] {
                int complete = 0;
                for (const auto& line : lines) {
                  const auto output = RunOne(tools, line);
                  if (output.complete != !output.text.empty()) return -1;
                  complete += output.complete ? 1 : 0;
                }
                return complete;
              };
              // The undefined-behaviour sanitizer looks at a new object through a pipe: before
              // there is none to be had.
              if (RunOne(tools, "nothing").complete) return "an answer to nothing";
              const rlimit few{20, 20};
              ::setrlimit(RLIMIT_NOFILE, &few);
              int last = 0;
              for (int copy = 0; (copy = ::dup(0)) >= 0;) last = copy;
              if (attempt() != 0) return "started without descriptors";
              if (tools.StartInBackground({"/bin/true"})) return "background without descriptors";
              for (int i = 0; i < 8; ++i) ::close(last - i);
              const rlimit none{0, 0};
              ::setrlimit(RLIMIT_NPROC, &none);
              if (::setresuid(61001, 61001, 61001) != 0) return "no other user";
              if (attempt() != 0) return "started without processes";
              if (tools.StartInBackground({"/bin/true"})) return "background without processes";
              return {};
            }),
            "");
  LinuxTools tools;
  EXPECT_FALSE(tools.StartInBackground({"/nowhere/program"}));
  EXPECT_FALSE(tools.StartInBackground({"/etc/passwd"}));
  EXPECT_FALSE(tools.StartInBackground({"sh"}));
  EXPECT_FALSE(tools.StartInBackground({}));
  EXPECT_TRUE(tools.StartInBackground({"/bin/true"}));
  EXPECT_FALSE(ToolProcess({"/nowhere/program"}).IsRunning());
  EXPECT_EQ(tools.Stat("/nowhere"), -1);
  EXPECT_EQ(tools.Stat("/bin/ps"), 0);
  EXPECT_TRUE(HasNoChildren());
}

/// Runs a command of the user's to its end; 999 if it has none.
int StatusOf(LinuxTools& tools, const std::vector<std::string>& arguments) {
  const auto [command, problem] = tools.StartCommand(arguments, {"LURKWELL_TEST=a b"});
  if (command == nullptr) return -1;
  const auto deadline = Ample();
  while (!command->Status() && std::chrono::steady_clock::now() < deadline) ::usleep(1000);
  return command->Status().value_or(999);
}

TEST(UserCommand, RunsAsTheUserWouldAndWithoutAShell) {
  LinuxTools tools;
  const TemporaryFolder folder;
  const std::string file = folder / "told";
  // One variable more, the user's own, no input, nobody to tell, no descriptor of ours.
  const FileDescriptor ours(::open("/dev/null", O_RDONLY));
  const std::string script =
      "echo \"$LURKWELL_TEST|$HOME|$(pwd)|$1|$(cat)|$(ls /proc/$$/fd | tr '\\n' ,)\" > " + file;
  EXPECT_EQ(StatusOf(tools, {"sh", "-c", script, "sh", "$(x) `y`"}), 0);
  EXPECT_TRUE(
      ReadFile(file).starts_with("a b|" + std::string(::getenv("HOME")) + "|/|$(x) `y`||0,1,2,"))
      << ReadFile(file);
  EXPECT_EQ(StatusOf(tools, {"sh", "-c", "exit 3"}), 3);
  EXPECT_EQ(StatusOf(tools, {"sh", "-c", "kill -9 $$"}), 137);
  EXPECT_NE(tools.StartCommand({"/nonexistent"}, {}).problem, "");
  EXPECT_NE(tools.StartCommand({}, {}).problem, "");
  // No shell is asked what a text without an interpreter may mean.
  WriteFile(folder / "text", "exit 5\n");
  ::chmod((folder / "text").c_str(), 0755);
  EXPECT_EQ(tools.StartCommand({folder / "text"}, {}).command, nullptr);
}

TEST(UserCommand, EndsWithAllThatItHasStarted) {
  LinuxTools tools;
  const TemporaryFolder folder;
  const std::string file = folder / "pid";
  auto started = tools.StartCommand(
      {"sh", "-c",
       "sleep 1000 & echo $! > " + file + ".part; mv " + file + ".part " + file + "; wait"},
      {});
  ASSERT_NE(started.command, nullptr);
  const auto deadline = Ample();
  while (ReadFile(file).empty() && std::chrono::steady_clock::now() < deadline) ::usleep(1000);
  const int child = std::stoi(ReadFile(file));
  const auto isGone = [child] {
    // One that nobody has collected yet has ended, too.
    const auto text = ReadFile("/proc/" + std::to_string(child) + "/stat");
    return text.empty() || text.find(") Z ") != text.npos;
  };
  EXPECT_FALSE(isGone());
  started.command.reset();
  while (!isGone() && std::chrono::steady_clock::now() < deadline) ::usleep(1000);
  EXPECT_TRUE(isGone());
}

}  // namespace
}  // namespace lurkwell
