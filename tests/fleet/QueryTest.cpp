// What a server is asked, and what becomes of its answers.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <initializer_list>

#include "fleet/FakePrometheus.h"
#include "fleet/FleetSession.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

/// The condition that is put to the server, or "!" before what nobody can be asked.
QString Asked(const char* filter, FleetLevel level) {
  const auto read = ReadFleetFilter(filter, level);
  if (const auto* error = std::get_if<FleetFilterError>(&read)) return '!' + error->text;
  if (const auto* error = std::get_if<QueryError>(&read))
    return '?' + QString::fromStdString(error->Text());
  const auto& made = std::get<FleetFilter>(read);
  auto parts = made.ofMachines + made.ofGroups;
  if (!made.kind.isEmpty()) parts.append("kind " + made.kind);
  for (const auto& bound : made.bounds) parts.append(RowOf(bound.figure).key + bound.comparison);
  return parts.join("; ");
}

TEST(FleetFilterTest, AsksTheServerOrSaysWhyItCannot) {
  using enum FleetLevel;
  const struct {
    FleetLevel level;
    const char* filter;
    const char* asked;
  } kFilters[] = {
      {kMachines, "", ""},
      {kMachines, "web", R"q(instance=~"(?is:.*web.*)")q"},
      {kGroups, "web", R"q(group=~"(?is:.*web.*)")q"},
      {kGroups, "machine:web-1.example cpu>50",
       R"q(instance=~"(?is:.*web-1\\.example.*)"; cpu> 0.5)q"},
      {kGroups, "-name:sh mem>=1G", R"q(group!~"(?is:.*sh.*)"; mem>= 1073741824)q"},
      {kGroups, "USER=root,mail", R"q(group=~"(?is:root|mail)"; kind user)q"},
      {kGroups, "ssh | cron", R"q(group=~"(?is:.*ssh.*|.*cron.*)")q"},
      {kMachines, "unit:/^ng/ load>4", R"q(group=~"(?is:.*(?:^ng).*)"; kind unit; load> 4)q"},
      {kGroups, R"q("a\"b{}\\")q", R"q(group=~"(?is:.*a\"b\\{\\}\\\\.*)")q"},
      {kGroups, "-cpu>50 processes=0", "cpu<= 0.5; processes== 0"},
  };
  for (const auto& [level, filter, asked] : kFilters)
    EXPECT_EQ(Asked(filter, level), QString(asked)) << filter;
  for (const char* refused :
       {"pid:4", "a | cpu>5", "user:root unit:cron", "cpu:50", "load>4", "cpu:/5/"})
    EXPECT_EQ(Asked(refused, kGroups)[0], '!') << qPrintable(Asked(refused, kGroups));
  EXPECT_EQ(Asked("-unit:cron", kMachines)[0], '!');
  EXPECT_EQ(Asked("cpus>4", kGroups), "?there is no 'cpus' to look at; there is cpu");
  EXPECT_EQ(Asked("cpu>", kGroups)[0], '?');
}

struct Sample {
  const char* figure;
  const char* name;
  const char* value;
};

QByteArray AnswerOf(const char* label, std::initializer_list<Sample> samples) {
  QJsonArray result;
  for (const auto& [figure, name, value] : samples) {
    QJsonObject metric;
    if (figure != nullptr) metric["figure"] = figure;
    if (name != nullptr) metric[label] = name;
    result.append(QJsonObject{{"metric", metric}, {"value", QJsonArray{1'700'000'000.0, value}}});
  }
  const QJsonObject answer{{"status", "success"},
                           {"data", QJsonObject{{"resultType", "vector"}, {"result", result}}}};
  return FakePrometheus::Whole(QJsonDocument(answer).toJson());
}

const FleetRow* RowNamed(const FleetTable& table, const char* name) {
  for (const auto& row : table.rows)
    if (row.name == QLatin1String(name)) return &row;
  return nullptr;
}

TEST(FleetSessionTest, ShowsNoWrongFigureAndKeepsTheLastGoodOnes) {
  FakePrometheus server([](QTcpSocket& socket, const FakePrometheus::Question& question) {
    if (question.Query().startsWith("max by (instance) (max_over_time"))
      return FakePrometheus::Answer(socket,
                                    AnswerOf("instance", {{nullptr, "lost", "1699999000"}}));
    FakePrometheus::Answer(socket, AnswerOf("instance", {{"cpu", "web", "0.5"},
                                                         {"mem", "web", "1024"},
                                                         {"up", "web", "1"},
                                                         {"cpu", "twice", "0.1"},
                                                         {"cpu", "twice", "0.9"},
                                                         {"mem", "twice", "5"},
                                                         {"mem", "less than nothing", "-5"},
                                                         {"load", "nan", "NaN"},
                                                         {"colour", "web", "3"},
                                                         {nullptr, "web", "3"},
                                                         {"cpu", nullptr, "3"},
                                                         {"up", "lost", "0"},
                                                         {"disk", "lost", "4096"},
                                                         {"all", nullptr, "2000"},
                                                         {"down", nullptr, "1"}}));
  });
  FleetSession session(server.Url());
  session.Show(FleetView(), FleetFilter());
  EXPECT_TRUE(session.IsAsking());
  ASSERT_TRUE(SoonTrue([&] {
    return session.Table() && !session.Table()->rows.empty() &&
           std::isfinite(RowNamed(*session.Table(), "lost")->Of(FleetFigure::kSeen));
  }));
  const auto& table = *session.Table();
  EXPECT_TRUE(session.IsCurrent());
  EXPECT_EQ(table.all, 2000);
  EXPECT_EQ(table.down, 1);
  EXPECT_EQ(table.rows.size(), 3U);
  EXPECT_EQ(RowNamed(table, "web")->Of(FleetFigure::kCpu), 0.5);
  EXPECT_FALSE(std::isfinite(RowNamed(table, "web")->Of(FleetFigure::kLoad)));
  EXPECT_FALSE(std::isfinite(RowNamed(table, "twice")->Of(FleetFigure::kCpu)));
  EXPECT_EQ(RowNamed(table, "twice")->Of(FleetFigure::kMemory), 5);
  EXPECT_TRUE(RowNamed(table, "lost")->IsDown());
  EXPECT_FALSE(std::isfinite(RowNamed(table, "lost")->Of(FleetFigure::kDisk)));
  EXPECT_EQ(table.time - RowNamed(table, "lost")->Of(FleetFigure::kSeen), 1000);
  EXPECT_EQ(table.leftOut, 5);

  // It fails, and comes back.
  server.handle = FakePrometheus::Always(FakePrometheus::Whole("no", "503 No"));
  session.Refresh();
  ASSERT_TRUE(SoonTrue([&] { return session.Error().has_value(); }));
  EXPECT_FALSE(session.IsCurrent());
  EXPECT_EQ(session.Table()->rows.size(), 3U);
  server.handle = FakePrometheus::Always(AnswerOf("instance", {{"up", "web", "1"}}));
  session.SetInterval(50);
  ASSERT_TRUE(SoonTrue([&] { return session.IsCurrent(); }));
  EXPECT_EQ(session.Table()->rows.size(), 1U);
  // Nobody who was refused knocks again and again.
  server.handle = FakePrometheus::Always(FakePrometheus::Whole("", "401 No"));
  ASSERT_TRUE(SoonTrue([&] { return session.Error().has_value(); }));
  const int asked = server.questions;
  EXPECT_FALSE(SoonTrue([&] { return server.questions > asked; }, 0.4));
}

TEST(FleetSessionTest, AHistoryHasAPlaceForEachMomentAndGapsWhereNothingIsKnown) {
  QString query, start, end, step;
  FakePrometheus server([&](QTcpSocket& socket, const FakePrometheus::Question& question) {
    query = question.Query();
    start = question.form.queryItemValue("start");
    end = question.form.queryItemValue("end");
    step = question.form.queryItemValue("step");
    const double last = end.toDouble(), between = step.toDouble();
    const QJsonArray values{QJsonArray{last - 2 * between, "0.25"},
                            QJsonArray{last - between, "NaN"}, QJsonArray{last, "0.75"},
                            QJsonArray{last - between, "9"}, QJsonArray{last + 1e6, "9"}};
    const QJsonObject series{{"metric", QJsonObject{{"figure", "cpu"}}}, {"values", values}};
    const QJsonObject answer{
        {"status", "success"},
        {"data", QJsonObject{{"resultType", "matrix"}, {"result", QJsonArray{series}}}}};
    FakePrometheus::Answer(socket, FakePrometheus::Whole(QJsonDocument(answer).toJson()));
  });
  FleetSession session(server.Url());
  FleetView view;
  view.level = FleetLevel::kGroupsOfMachine;
  view.machine = "web\"1";
  session.Show(view, FleetFilter());
  session.AskHistory("nginx", {FleetFigure::kCpu, FleetFigure::kMemory}, 7 * 86'400'000LL, 300);
  ASSERT_TRUE(SoonTrue([&] { return session.History() != nullptr; }));
  EXPECT_TRUE(query.contains(R"q(instance="web\"1")q")) << qPrintable(query);
  EXPECT_TRUE(query.contains(R"q(group="nginx")q")) << qPrintable(query);
  EXPECT_EQ(step, "2016.000");
  EXPECT_NEAR(end.toDouble() - start.toDouble(), 7 * 86'400, 1);
  const auto& history = session.History()->history;
  ASSERT_EQ(history.Size(), 301U);
  EXPECT_EQ(history.ValueOf(0, 300), 0.75F);
  EXPECT_FALSE(IsThere(history.ValueOf(0, 299)));
  EXPECT_EQ(history.ValueOf(0, 298), 0.25F);
  EXPECT_FALSE(IsThere(history.ValueOf(1, 300)));
}

}  // namespace
}  // namespace lurkwell
