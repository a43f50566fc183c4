// The tools and the ps dialect against the real ps.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Children.h"
#include "platform/MadeUpTree.h"
#include "platform/linux/LinuxTools.h"

namespace lurkwell {
namespace {

using namespace std::chrono_literals;

// Long enough that only a hang reaches it.
constexpr auto kAmple = 60s;

ToolProcess::Deadline Ample() {
  return std::chrono::steady_clock::now() + kAmple;
}

ToolOutput RunOne(const std::vector<std::string>& arguments, ToolProcess::Deadline deadline) {
  std::vector<ToolProcess> processes;
  processes.emplace_back(arguments);
  EXPECT_TRUE(ServeUntil(processes, deadline).empty());
  return processes.front().TakeOutput();
}

ToolOutput RunOne(LinuxTools& tools, const std::string& line) {
  return tools.Run(std::span(&line, 1), kAmple).front();
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

TEST(PsDialect, OffersEveryRealColumnUnderTheHeaderThatPsPrints) {
  LinuxTools tools;
  const auto answer = RunOne(tools, "/bin/ps -Lww");
  ASSERT_TRUE(answer.complete);
  EXPECT_LE(answer.text.size(), 1023u);
  EXPECT_EQ(answer.text.find("  "), std::string::npos);
  EXPECT_EQ(answer.text.find('\n'), answer.text.size() - 1);
  const auto keywords = WordsOf(answer.text);

  std::set<std::string> offered;
  std::vector<std::string> headerLines;
  std::vector<std::string> columnLines;
  for (const auto& keyword : keywords) {
    headerLines.push_back("/bin/ps 0 -o " + keyword);
    columnLines.push_back("/bin/ps -axww -o pid," + keyword);
  }
  const auto headers = tools.Run(headerLines, kAmple);
  // More than a hundred at once.
  auto columns = tools.Run(columnLines, kAmple);
  ASSERT_GT(keywords.size(), 100u);
  for (std::size_t i = 0; i < keywords.size(); ++i) {
    // Some releases of ps crash over group columns when a process ends under their eyes.
    for (int tries = 0; !columns[i].complete && tries < 10; ++tries) {
      columns[i] = RunOne(tools, columnLines[i]);
    }
    ASSERT_TRUE(headers[i].complete && columns[i].complete) << keywords[i];
    const auto printed =
        WordsOf(Printed("LC_ALL=C /bin/ps -p 1 -o " + keywords[i] + " | head -n 1"));
    EXPECT_EQ(WordsOf(headers[i].text), printed) << keywords[i];
    const auto words = WordsOf(columns[i].text.substr(0, columns[i].text.find('\n')));
    EXPECT_EQ(words, (std::vector<std::string>{"PID", printed.front()})) << keywords[i];
    const auto self = "\n" + std::to_string(::getpid()) + ' ';
    auto lines = "\n" + columns[i].text;
    lines.erase(std::unique(lines.begin(), lines.end(),
                            [](char a, char b) { return a == ' ' && b == ' '; }),
                lines.end());
    EXPECT_TRUE(lines.find(self) != std::string::npos ||
                lines.find("\n " + self.substr(1)) != std::string::npos)
        << keywords[i];
    offered.insert(printed.front());
  }
  std::istringstream listing(Printed("LC_ALL=C /bin/ps L"));
  for (std::string keyword, header; listing >> keyword >> header;) {
    EXPECT_TRUE(keyword.starts_with('_') || offered.contains(header)) << keyword;
  }
  EXPECT_TRUE(HasNoChildren());
}

TEST(PsDialect, GivesEachHeaderAKeywordBeforeAnyHasTwo) {
  std::string listing;
  for (int i = 0; i < 60; ++i) {
    const auto number = std::to_string(100 + i);
    for (const char* kind : {"first", "second", "third"}) {
      listing += kind + number + "  H" + number + "  \n";
    }
  }
  const auto columns = ParsePsListing(listing);
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
  for (const auto& column : columns) text += column.keyword + '=' + column.header + ' ';
  EXPECT_EQ(text, "spaced=TWO same=A %cpu=%CPU last=LAST ");
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

TEST(Tools, AnswerTheSameInAnyEnvironment) {
  const Child child([] { ::prctl(PR_SET_NAME, "na\xc3\xafve"); });
  const std::vector<std::string> lines = {"/bin/ps -axww -o pid,lstart",
                                          "/bin/ps -axww -o pid,args",
                                          "/bin/ps -axww -o pid,comm",
                                          "/bin/ps -axww -o pid,user",
                                          "/bin/ps -axww -o pid,pmem",
                                          "/bin/ps -axww -o pid,tty",
                                          "/bin/ps 0 -o rsz",
                                          "/bin/ps -Lww"};
  const auto answers = [&] {
    LinuxTools tools;
    std::string text;
    for (const auto& output : tools.Run(lines, kAmple)) {
      EXPECT_TRUE(output.complete);
      // Only the first line and our child's: other processes come and go.
      std::istringstream stream(output.text);
      bool isFirst = true;
      for (std::string line; std::getline(stream, line); isFirst = false) {
        const auto words = WordsOf(line);
        if (isFirst || words.front() == std::to_string(child.Pid())) text += line + '\n';
      }
    }
    return text;
  };
  const std::string expected = answers();
  EXPECT_NE(expected.find("na"), std::string::npos);

  std::vector<std::pair<const char*, const char*>> settings;
  for (const char* variable :
       {"LC_ALL", "LANG", "LC_TIME", "LC_NUMERIC", "LC_CTYPE", "LC_MESSAGES"}) {
    for (const char* value : {"C.UTF-8", "de_DE.UTF-8", "tr_TR"})
      settings.push_back({variable, value});
  }
  for (const char* value : {"bsd", "posix", "sunos4", "old", "nonsense"}) {
    settings.push_back({"PS_PERSONALITY", value});
    settings.push_back({"CMD_ENV", value});
  }
  for (const auto& setting :
       std::initializer_list<std::pair<const char*, const char*>>{{"COLUMNS", "20"},
                                                                  {"LINES", "2"},
                                                                  {"PS_FORMAT", "tty,args"},
                                                                  {"TZ", "Asia/Tokyo"},
                                                                  {"TZ", "Nowhere+99"},
                                                                  {"POSIXLY_CORRECT", "1"},
                                                                  {"UNIX95", "1"},
                                                                  {"_XPG", "1"},
                                                                  {"I_WANT_A_BROKEN_PS", "1"},
                                                                  {"PATH", "/nowhere"},
                                                                  {"PS_SYSMAP", "/dev/zero"},
                                                                  {"LIBPROC_HIDE_KERNEL", "1"},
                                                                  {"LD_PRELOAD", "/nowhere.so"},
                                                                  {"IFS", "p"},
                                                                  {"TERM", "dumb"}}) {
    settings.push_back(setting);
  }
  ASSERT_GE(settings.size(), 40u);
  for (const auto& [variable, value] : settings) {
    const char* before = ::getenv(variable);
    const std::string restored = before == nullptr ? "" : before;
    ::setenv(variable, value, 1);
    EXPECT_EQ(answers(), expected) << variable << '=' << value;
    if (before == nullptr) {
      ::unsetenv(variable);
    } else {
      ::setenv(variable, restored.c_str(), 1);
    }
  }
}

TEST(Tools, GiveProgramsNothingOfOurs) {
  const MadeUpTree folder;
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

  const std::string path = folder.Root() + "/answer";
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
  const MadeUpTree folder;
  const std::string fifo = folder.Root() + "/fifo";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  // The reader can only end while the writer runs too.
  std::vector<ToolProcess> pair;
  pair.emplace_back(std::vector<std::string>{"/bin/cat", fifo});
  pair.emplace_back(std::vector<std::string>{"/bin/cp", "/proc/version", fifo});
  ServeUntil(pair, Ample());
  const auto read = pair.front().TakeOutput();
  EXPECT_TRUE(read.complete && read.text.starts_with("Linux"));

  std::vector<ToolProcess> slow;
  slow.emplace_back(std::vector<std::string>{"/bin/sleep", "1000"});
  // Says something and then neither ends nor says more; and one that closes its output but stays.
  slow.emplace_back(std::vector<std::string>{"/bin/sh", "-c", "echo begun; exec sleep 1000"});
  slow.emplace_back(std::vector<std::string>{"/bin/sh", "-c", "echo done; exec sleep 1000 >&2"});
  slow.emplace_back(std::vector<std::string>{"/bin/echo", "quick"});
  EXPECT_TRUE(ServeUntil(slow, std::chrono::steady_clock::now() + 500ms).empty());
  const char* texts[] = {"", "begun\n", "done\n", "quick\n"};
  for (std::size_t i = 0; i < 4; ++i) {
    const auto output = slow[i].TakeOutput();
    EXPECT_EQ(output.text, texts[i]);
    EXPECT_EQ(output.complete, i == 3);
  }
  const auto endless = RunOne({"/usr/bin/yes"}, Ample());
  EXPECT_FALSE(endless.complete);
  EXPECT_EQ(endless.text.size(), 64u * 1024 * 1024);
  LinuxTools tools;
  const std::string column = "/bin/ps -axww -o pid,args";
  EXPECT_FALSE(tools.Run(std::span(&column, 1), 0ms).front().complete);
  EXPECT_TRUE(HasNoChildren());
}

TEST(Tools, SurviveThatNothingCanBeStarted) {
  EXPECT_EQ(RunForked([]() -> std::string {
              LinuxTools tools;
              const std::vector<std::string> lines = {"/bin/ps -axww -o pid,args", "/bin/ps -Lww",
                                                      "/bin/ps 0 -o rsz"};
              const auto attempt = [&] {
                int complete = 0;
                for (const auto& output : tools.Run(lines, kAmple)) {
                  if (output.complete != !output.text.empty()) return -1;
                  complete += output.complete ? 1 : 0;
                }
                return complete;
              };
              // The undefined-behaviour sanitizer looks at a new object through a pipe: before
              // there is none to be had.
              if (!tools.Run({}, kAmple).empty()) return "an answer to nothing";
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

}  // namespace
}  // namespace lurkwell
