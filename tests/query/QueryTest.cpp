#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Clock.h"
#include "query/Query.h"
#include "query/TextPattern.h"

namespace lurkwell {
namespace {

/// A process that is what a test says.
class MadeUp final : public QuerySubject {
 public:
  std::map<std::string, TypedValue> values;
  std::string shown = "sshd 4711";

  TypedValue ValueOf(const std::string& property) const override {
    const auto found = values.find(property);
    return found == values.end() ? TypedValue(Missing::kNotYetKnown) : found->second;
  }
  bool ShowsTextLike(const TextPattern& pattern) const override { return pattern.Matches(shown); }
};

MadeUp Server() {
  MadeUp server;
  server.values = {{"meta_name", std::string("sshd")},
                   {"meta_pid", std::int64_t{4711}},
                   {"pid_rsz", std::int64_t{500} << 20},
                   {"meta_active_time", TimeValue{90, 500'000}},
                   {"pid_p_nice", std::int64_t{-5}},
                   {"pid_state", std::string("uninterruptible")},
                   {"pid_syscalls_unix", Missing::kNotAllowed},
                   {"carbonpsn_name", Missing::kNone},
                   {"pid_ports", std::string("22, 443, 50022")},
                   {"pid_listening_ports", Missing::kNone},
                   {"pid_open_files", std::string("/dev/null\n/var/log/a, b.log")}};
  return server;
}

bool Fulfils(const MadeUp& process, const char* text) {
  auto query = Query::Read(text);
  const auto* error = std::get_if<QueryError>(&query);
  if (error != nullptr) ADD_FAILURE() << text << ": " << error->Text();
  return error == nullptr && std::get<Query>(query).IsFulfilledBy(process);
}

TEST(Query, HoldsOrNot) {
  const auto server = Server();
  for (const char* text :
       {"", "  ", "ssh", "SSHD", "ssh 47", "\"sshd 4711\"", "/^ss.d/", "-post", "name:ssh",
        "name=sshd", "NAME:/^S+HD$/", "-name:/^post/", "name:post,ssh", "name!=post", "pid:4711",
        "pid=1,4711", "pid:/^47/", "mem>499M", "mem>=500M", "mem<=500MiB", "mem<0.5G",
        "mem=524288000", "time>90", "time>1.5m", "time<1h", "nice<0", "nice=-5", "meta_name:sshd",
        "state:D", "state:D,Z", "-state:R", "state:unin", "post | ssh", "post OR ssh name:sshd",
        "name:\"ss\"", "sleep | -sleep",
        // One of several is enough, and none of them has to be.
        "port:443", "port:80,22", "port>50000", "port<100", "port!=80", "-port:80", "port:/^44/",
        "-listens:22", "file:/var/log", "file=/dev/null", "file:/\\.log$/", "file:/var/",
        "-file:\"/a b\"", "file:\"a, b\"",
        // What is not there at all is not what is asked for.
        "-carbonpsn_name:Mail"}) {
    EXPECT_TRUE(Fulfils(server, text)) << text;
  }
  for (const char* text :
       {"post", "ssh post", "-ssh", "name=ssh", "name:/^hd/", "pid:47", "pid:1,2", "mem>500M",
        "mem<500M", "time>2m", "nice>0", "nice!=-5", "name!=sshd,post", "post | sleep", "port:44",
        "port:2", "port!=22", "-port:443", "port>60000", "listens:22", "listens>0", "file=/var/log",
        "file:/^log/", "file:/log/a/", "-file:null",
        // A figure that is not told neither is large nor is not.
        "pid_syscalls_unix>5", "-pid_syscalls_unix>5", "pid_vsz<1G", "-pid_vsz<1G"}) {
    EXPECT_FALSE(Fulfils(server, text)) << text;
  }
}

TEST(Query, SaysWhereItCannotTell) {
  const auto server = Server();
  const auto verdict = [&](const char* text) {
    return std::get<Query>(Query::Read(text)).VerdictOn(server);
  };
  EXPECT_EQ(verdict(""), true);
  EXPECT_EQ(verdict("name:ssh mem>499M"), true);
  EXPECT_EQ(verdict("-name:ssh | mem>1G"), false);
  // One part decides, whatever is not known.
  EXPECT_EQ(verdict("pid_syscalls_unix>5 name:post"), false);
  EXPECT_EQ(verdict("pid_syscalls_unix>5 | name:ssh"), true);
  for (const char* text : {"pid_syscalls_unix>5", "-pid_syscalls_unix>5", "ssh pid_vsz<1G",
                           "pid_vsz<1G | name:post", "name:post | pid_vsz<1G"})
    EXPECT_EQ(verdict(text), std::nullopt) << text;
  // There is nothing that could be compared.
  EXPECT_EQ(verdict("listens>22"), false);
}

TEST(Query, IsPartOfALongerText) {
  constexpr std::string_view kText = "any cpu>5 \"for\" name:for for 5m";
  constexpr std::string_view kEnds[] = {"until", "for"};
  std::size_t at = 3;
  auto query = std::get<Query>(Query::ReadPart(kText, at, kEnds));
  EXPECT_EQ(kText.substr(at), "for 5m");
  EXPECT_EQ(query.Properties().size(), 2u);
  at = 3;
  const auto error = std::get<QueryError>(Query::ReadPart("any cpu>x for 5m", at, kEnds));
  EXPECT_EQ(error.position, 8u);
}

TEST(Query, LettersAreTheSameInEveryScript) {
  auto process = Server();
  process.shown =
      "SCHL\xC3\x84"
      "FER \xD0\x9C\xD0\x98\xD0\xA0 \xFF(bad)";
  EXPECT_TRUE(Fulfils(process,
                      "schl\xC3\xA4"
                      "fer"));
  EXPECT_TRUE(Fulfils(process, "\xD0\xBC\xD0\xB8\xD1\x80"));
  // Bytes that are no text do not hide what stands behind them.
  EXPECT_TRUE(Fulfils(process, "(BAD)"));
}

TEST(Query, NamesWhatItLooksAt) {
  auto query = std::get<Query>(Query::Read("mem>1 name:a | -mem<2 b"));
  EXPECT_EQ(std::vector(query.Properties().begin(), query.Properties().end()),
            (std::vector<std::string>{"pid_rsz", "meta_name"}));
  EXPECT_TRUE(std::get<Query>(Query::Read(" \t")).IsEmpty());
}

TEST(Query, SaysWhatIsWrongAndWhere) {
  using Kind = QueryError::Kind;
  struct Mistake {
    const char* text;
    Kind kind;
    std::size_t position;
    const char* hint;
  };
  for (const auto& [text, kind, position, hint] :
       {Mistake{"ssh nmae:x", Kind::kUnknownKey, 4, "name"},
        {"zzzzzzzz:1", Kind::kUnknownKey, 0, "quotation marks"},
        {"mem>", Kind::kNoValue, 0, "mem>"},
        {"name: x", Kind::kNoValue, 0, "name:"},
        {"name:a,", Kind::kNoValue, 7, "name:a,"},
        {"a |", Kind::kNoTerm, 2, "|"},
        {"| a", Kind::kNoTerm, 0, "|"},
        {"a | | b", Kind::kNoTerm, 4, "|"},
        {"a - b", Kind::kNoTerm, 2, "-"},
        {"a \"b", Kind::kNoEnd, 2, "second"},
        {"name>a", Kind::kTextIsNotCompared, 0, "name:part"},
        {"mem>much", Kind::kNoNumber, 4, "500M"},
        {"mem>5x", Kind::kNoNumber, 4, "500M"},
        {"mem>nan", Kind::kNoNumber, 4, "500M"},
        {"time>5k", Kind::kNoNumber, 5, "2h"},
        {"started>yesterday", Kind::kNoNumber, 8, "2026"},
        {"port:https", Kind::kNoNumber, 5, "5"},
        {"file>/a", Kind::kTextIsNotCompared, 0, "file:part"},
        {"name:/(/", Kind::kNoExpression, 5, "missing"},
        {"\xFF", Kind::kNoExpression, 0, "UTF-8"}}) {
    SCOPED_TRACE(text);
    const auto query = Query::Read(text);
    const auto* error = std::get_if<QueryError>(&query);
    ASSERT_NE(error, nullptr);
    EXPECT_EQ(error->kind, kind) << error->Text();
    EXPECT_EQ(error->position, position);
    EXPECT_LE(error->position + error->length, std::string(text).size());
    EXPECT_NE(error->Text().find(hint), std::string::npos) << error->Text();
  }
}

TEST(Query, AnExpressionThatWouldTakeForEverFindsNothing) {
  auto process = Server();
  process.shown = std::string(100'000, 'a');
  EXPECT_FALSE(Fulfils(process, "/(a+)+(a+)+(a+)+[xy]/"));
}

}  // namespace
}  // namespace lurkwell
