// The window on a real server: over real exporters on this machine, and over as many machines as a
// large site has.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QDateTime>
#include <QFile>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <cmath>
#include <memory>
#include <vector>

#include "fleet/FleetAddress.h"
#include "fleet_window/FleetWindow.h"
#include "support/ConsolidatorTest.h"
#include "support/EventLoop.h"

namespace lurkwell {
namespace {

constexpr int kExporters = 20;

/// Goes with the test, whatever becomes of that.
std::unique_ptr<QProcess> Started(const QString& program, const QStringList& arguments) {
  auto process = std::make_unique<QProcess>();
  process->setProcessChannelMode(QProcess::MergedChannels);
  process->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
  process->start(program, arguments);
  EXPECT_TRUE(process->waitForStarted()) << qPrintable(program);
  return process;
}

/// While events go on, as the main thread is watched.
bool HasEnded(const QProcess& process, double seconds) {
  return SoonTrue([&] { return process.state() == QProcess::NotRunning; }, seconds);
}

void End(QProcess& process) {
  process.terminate();
  if (HasEnded(process, 10)) return;
  process.kill();
  HasEnded(process, 10);
}

int FreePort() {
  QTcpServer server;
  EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
  return server.serverPort();
}

class RealPrometheusTest : public ConsolidatorTest {
 protected:
  static void SetUpTestSuite() {
    QProcess fetch;
    fetch.start(SOURCE_FOLDER "/scripts/fetch-prometheus", QStringList());
    ASSERT_TRUE(fetch.waitForFinished(120'000));
    ASSERT_EQ(fetch.exitCode(), 0) << fetch.readAllStandardError().constData();
    sTools = QString::fromLocal8Bit(fetch.readAllStandardOutput()).trimmed();
  }

  void TearDown() override {
    FleetWindow::CloseAll();
    if (mServer != nullptr) End(*mServer);
    ConsolidatorTest::TearDown();
  }

  QString Path(const char* name) const { return mFolder.filePath(name); }

  /// On the folder's data, with what is scraped every second.
  void StartServer(const QStringList& targets) {
    QFile config(Path("prometheus.yml"));
    ASSERT_TRUE(config.open(QIODevice::WriteOnly | QIODevice::Truncate));
    config.write("global: {scrape_interval: 1s, scrape_timeout: 1s}\n");
    if (!targets.isEmpty())
      config.write("scrape_configs:\n- job_name: lurkwell\n  static_configs:\n  - targets: [" +
                   targets.join(QLatin1Char(',')).toLatin1() + "]\n");
    config.close();
    mServer =
        Started(sTools + "/prometheus",
                {"--config.file=" + Path("prometheus.yml"), "--storage.tsdb.path=" + Path("data"),
                 "--web.listen-address=127.0.0.1:" + QString::number(mPort)});
    mServer->setStandardOutputFile(QProcess::nullDevice());
  }

  FleetWindow& Open() {
    QString complaint;
    const auto address = ReadFleetAddress(QStringLiteral("127.0.0.1:%1").arg(mPort), complaint);
    auto& window = FleetWindow::Open(*address);
    window.resize(1280, 800);
    window.Session().SetInterval(500);
    return window;
  }
  static void TypeFilter(FleetWindow& window, const QString& text) {
    window.Filter().setText(text);
    Q_EMIT window.Filter().returnPressed();
    EXPECT_TRUE(SoonTrue([&] { return !window.Session().IsAsking(); }));
  }
  static double Figure(FleetWindow& window, const char* name, FleetFigure figure) {
    for (int row = 0; row < window.Model().rowCount(); ++row)
      if (window.Model().RowAt(row).name.startsWith(QLatin1String(name)))
        return window.Model().RowAt(row).Of(figure);
    return kNoFigure;
  }

  static inline QString sTools;
  QTemporaryDir mFolder;
  int mPort = FreePort();
  std::unique_ptr<QProcess> mServer;
};

TEST_F(RealPrometheusTest, ShowsTwentyExportersAndTheOneThatDoesNotAnswer) {
  std::vector<std::unique_ptr<QProcess>> exporters;
  QStringList targets;
  for (int i = 0; i < kExporters; ++i) {
    exporters.push_back(Started(LURKWELL_EXPORT, {"127.0.0.1:0"}));
    QByteArray said;
    const QRegularExpression serving("serving https?://(\\S+)/metrics");
    ASSERT_TRUE(SoonTrue([&] {
      exporters.back()->waitForReadyRead(50);
      said += exporters.back()->readAll();
      return serving.match(said).hasMatch();
    })) << said.constData();
    targets.append(serving.match(said).captured(1));
  }
  targets.append(QStringLiteral("127.0.0.1:%1").arg(FreePort()));
  StartServer(targets);
  auto& window = Open();
  auto& model = window.Model();
  const auto machines = [&] {
    int known = 0;
    for (int row = 0; row < model.rowCount(); ++row)
      known += std::isfinite(model.RowAt(row).Of(FleetFigure::kCpu)) ? 1 : 0;
    return known;
  };
  // The first questions come before the server listens.
  ASSERT_TRUE(SoonTrue([&] { return machines() == kExporters && model.rowCount() == 21; }, 60))
      << qPrintable(window.ErrorText());
  EXPECT_TRUE(window.StatusText().contains("1 down")) << qPrintable(window.StatusText());
  const auto& first = model.RowAt(0);
  for (const auto figure : {FleetFigure::kMemory, FleetFigure::kMemoryAll, FleetFigure::kLoad,
                            FleetFigure::kProcesses, FleetFigure::kSeen, FleetFigure::kOldest})
    EXPECT_TRUE(std::isfinite(first.Of(figure))) << RowOf(figure).key;
  EXPECT_LT(first.Of(FleetFigure::kMemory), first.Of(FleetFigure::kMemoryAll));
  EXPECT_TRUE(SoonTrue([&] { return window.Session().History() != nullptr; }));
  EXPECT_FALSE(window.Session().HistoryError());

  TypeFilter(window, "name:lurkwell-export processes>5 -machine:nowhere");
  EXPECT_EQ(model.rowCount(), kExporters) << qPrintable(window.ErrorText());
  TypeFilter(window, "name:/(?<=a)b/");
  EXPECT_TRUE(SoonTrue([&] { return window.ErrorText().contains("regexp"); }))
      << qPrintable(window.ErrorText());
  TypeFilter(window, "");
  ASSERT_TRUE(SoonTrue([&] { return model.rowCount() == 21; }));

  window.OpenRow(0);
  ASSERT_TRUE(SoonTrue([&] { return model.rowCount() > 1 && !window.Session().IsAsking(); }));
  // Somebody else's may run, too.
  EXPECT_GE(Figure(window, "lurkwell-export", FleetFigure::kProcesses), kExporters);
  window.GoBack();
  auto view = window.Session().View();
  view.level = FleetLevel::kGroups;
  window.Session().Show(view, {});
  ASSERT_TRUE(SoonTrue([&] { return window.Session().IsCurrent(); }));
  const auto& groups = *window.Session().Table();
  const auto* own = &groups.rows.front();
  for (const auto& row : groups.rows)
    if (row.name == QLatin1String("lurkwell-export")) own = &row;
  EXPECT_EQ(own->name, "lurkwell-export");
  EXPECT_EQ(own->Of(FleetFigure::kMachines), kExporters);
  EXPECT_GE(own->Of(FleetFigure::kProcesses), kExporters * kExporters);
  view.level = FleetLevel::kMachines;
  window.Session().Show(view, {});

  // One goes, then the server.
  End(*exporters.back());
  ASSERT_TRUE(SoonTrue([&] { return window.StatusText().contains("2 down"); }, 30));
  ASSERT_TRUE(SoonTrue([&] {
    return std::isfinite(Figure(window, qPrintable(targets[kExporters - 1]), FleetFigure::kSeen));
  }));
  End(*mServer);
  ASSERT_TRUE(SoonTrue([&] { return !window.ErrorText().isEmpty(); }));
  EXPECT_EQ(model.rowCount(), 21);
  StartServer(targets);
  EXPECT_TRUE(SoonTrue([&] { return window.ErrorText().isEmpty(); }, 60));
  for (auto& exporter : exporters) End(*exporter);
}

TEST_F(RealPrometheusTest, ChoosesFrom2000MachinesOnTheServer) {
  constexpr int kMachines = 2000;
  constexpr int kSamples = 12;
  constexpr int kBetween = 15;
  QFile file(Path("samples"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  // Up to some time from now, so that there are figures whenever the server is asked.
  const auto start = QDateTime::currentSecsSinceEpoch() - 60;
  const auto write = [&](const char* name, const char* type, const char* labels,
                         const auto& value) {
    const QByteArray family = QByteArray(name).replace("_total", "");
    file.write("# TYPE " + family + ' ' + type + '\n');
    for (int i = 0; i < kMachines; ++i)
      for (int sample = 0; sample < kSamples; ++sample)
        file.write(name + QByteArray("{job=\"lurkwell\",instance=\"machine-") +
                   QByteArray::number(i) + ":9256\"" + labels + "} " +
                   QByteArray::number(value(i, sample)) + ' ' +
                   QByteArray::number(start + sample * kBetween) + '\n');
  };
  write("up", "gauge", "", [](int, int) { return 1.0; });
  write("lurkwell_build_info", "gauge", "", [](int, int) { return 1.0; });
  write("lurkwell_machine_cpus", "gauge", "", [](int, int) { return 4.0; });
  write("lurkwell_machine_cpu_seconds_total", "counter", ",mode=\"user\"",
        [](int i, int sample) { return sample * kBetween * 4.0 * i / kMachines; });
  write("lurkwell_machine_load1", "gauge", "", [](int i, int) { return i / 100.0; });
  write("lurkwell_group_processes", "gauge", ",kind=\"program\",group=\"nginx\"",
        [](int i, int) { return i % 3 == 0 ? 4.0 : 0.0; });
  file.write("# EOF\n");
  file.close();
  QProcess promtool;
  promtool.setProcessChannelMode(QProcess::MergedChannels);
  promtool.start(sTools + "/promtool",
                 {"tsdb", "create-blocks-from", "openmetrics", Path("samples"), Path("data")});
  ASSERT_TRUE(HasEnded(promtool, 120));
  ASSERT_EQ(promtool.exitCode(), 0) << promtool.readAll().constData();
  StartServer({});
  auto& window = Open();
  auto& model = window.Model();
  ASSERT_TRUE(SoonTrue([&] { return model.rowCount() == kMostRows; }, 60))
      << qPrintable(window.ErrorText());
  EXPECT_EQ(model.RowAt(0).name, "machine-1999:9256");
  EXPECT_NEAR(model.RowAt(0).Of(FleetFigure::kCpu), 1999.0 / 2000, 0.001);
  EXPECT_EQ(window.Session().Table()->all, kMachines);
  TypeFilter(window, "name:nginx load<1");
  EXPECT_TRUE(SoonTrue([&] { return model.rowCount() == 34; })) << model.rowCount();
  TypeFilter(window, "machine-77");
  EXPECT_TRUE(SoonTrue([&] { return model.rowCount() == 11; })) << model.rowCount();
}

}  // namespace
}  // namespace lurkwell
