#include "process_details/OverviewPage.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// An hour of every other second.
constexpr std::size_t kMostMoments = 1800;
/// Milliseconds.
constexpr std::int64_t kShownSpan = 300'000;

/// In the order in which people ask.
constexpr const char* kOverview[] = {"meta_pid",
                                     "meta_name",
                                     "pid_command_line",
                                     "pid_executable",
                                     "pid_owner",
                                     "pid_parent_pid",
                                     "pid_p_starttime",
                                     "pid_running_time",
                                     "pid_state",
                                     "pid_cpu_share",
                                     "meta_active_time",
                                     "pid_threads",
                                     "pid_rsz",
                                     "pid_pss",
                                     "pid_uss",
                                     "pid_swap",
                                     "pid_vsz",
                                     "pid_disk_read",
                                     "pid_disk_written",
                                     "pid_descriptors",
                                     "pid_connections",
                                     "pid_listening_ports",
                                     "pid_p_nice",
                                     "pid_scheduler",
                                     "pid_io_priority",
                                     "pid_affinity",
                                     "pid_terminal",
                                     "pid_unit",
                                     "pid_cgroup",
                                     "pid_container",
                                     "pid_label",
                                     "pid_elevated",
                                     "pid_capabilities",
                                     "pid_seccomp",
                                     "pid_no_new_privileges",
                                     "pid_oom_score"};

constexpr DetailsColumn kOverviewColumns[] = {
    {"details_overview_figure", kPropertyTypeString, 26},
    {"details_overview_value", kPropertyTypeString, 0},
};

QString OverviewText(std::int32_t pid, const char* property) {
  const auto value = GetPIDPropertyTypedValue(pid, property);
  if (!IsKnown(value)) return MissingText(value);
  constexpr int kWholeDate = 25;
  auto text = DisplayText(GetProcPropertyType(property, nullptr), value, kWholeDate, pid);
  if (GetProcPropertyType(property, nullptr) == kPropertyTypeShare && !text.isEmpty())
    text += QStringLiteral(" %");
  const auto name = std::string_view(property) == "pid_parent_pid"
                        ? WholeNameOf(static_cast<std::int32_t>(IntegerOf(value)))
                        : std::string();
  return name.empty() ? text : LocalizedString("details_parent").arg(text, PlainText(name));
}

/// The process's own bytes as they are, to be escaped and cut where they are shown.
TypedValue OverviewValue(std::int32_t pid, const char* property) {
  if (std::string_view(property) == "meta_name") return WholeNameOf(pid);
  auto value = GetPIDPropertyTypedValue(pid, property);
  if (std::holds_alternative<std::string>(value)) return value;
  return OverviewText(pid, property).toStdString();
}

}  // namespace

OverviewPage::OverviewPage(ProcessIdentity process, QWidget* parent)
    : DetailsPage(parent), mProcess(process), mHistory(kMostMoments) {
  mTable = new DetailsTable(Title(), kOverviewColumns, -1, Qt::AscendingOrder, this);
  mTable->View().setHeaderHidden(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* graphs = new QGridLayout;
  graphs->setContentsMargins(6, 6, 6, 0);
  AddGraph("details_graph_cpu", GraphUnit::kShare, {{"pid_cpu_share", ""}}, 0.1);
  AddGraph("details_graph_memory", GraphUnit::kBytes,
           {{"pid_rsz", "details_graph_resident"}, {"pid_swap", "details_graph_swap"}}, 1 << 20);
  AddGraph("details_graph_disk", GraphUnit::kBytesPerSecond,
           {{"pid_disk_read_rate", "details_graph_read"},
            {"pid_disk_write_rate", "details_graph_written"}},
           1024);
  AddGraph("details_graph_network", GraphUnit::kBytesPerSecond,
           {{"pid_net_receive_rate", "details_graph_received"},
            {"pid_net_send_rate", "details_graph_sent"}},
           1024);
  for (std::size_t i = 0; i < mGraphs.size(); ++i)
    graphs->addWidget(mGraphs[i].widget, static_cast<int>(i / 2), static_cast<int>(i % 2));
  layout->addLayout(graphs, 1);
  layout->addWidget(mTable, 1);
}

void OverviewPage::AddGraph(const char* title, GraphUnit unit,
                            const std::vector<std::pair<const char*, const char*>>& series,
                            double leastTop) {
  Graph graph{new TimeGraph(LocalizedString(title), unit, this), {}};
  std::vector<TimeGraph::Series> shown;
  for (const auto& [property, name] : series) {
    shown.push_back({*name != 0 ? LocalizedString(name) : QString(), mHistory.AddSeries()});
    graph.properties.push_back(property);
    mSampled.push_back(property);
  }
  graph.widget->setHistory(&mHistory, std::move(shown));
  graph.widget->setLeastTop(leastTop);
  graph.widget->setSpan(kShownSpan);
  graph.widget->setLongestStep(kShownSpan / 5);
  mGraphs.push_back(std::move(graph));
}

QString OverviewPage::Title() const {
  return LocalizedString("details_overview");
}

void OverviewPage::SetSeen(bool isSeen) {
  mIsSeen = isSeen;
  if (isSeen && !mHasEnded) FillTable();
}

std::vector<const char*> OverviewPage::Needs() const {
  auto needs = mSampled;
  // For pages that may not be read.
  needs.push_back("pid_owner");
  if (mIsSeen) needs.insert(needs.end(), std::begin(kOverview), std::end(kOverview));
  return needs;
}

void OverviewPage::Update() {
  AddMoment();
  if (mIsSeen) FillTable();
}

void OverviewPage::AddMoment() {
  std::vector<float> values;
  for (const auto* property : mSampled) {
    const auto value = GetPIDPropertyTypedValue(mProcess.pid, property);
    const bool isShare = GetProcPropertyType(property, nullptr) == kPropertyTypeShare;
    values.push_back(!IsKnown(value) ? FigureHistory::kMissing
                                     : static_cast<float>(NumberOf(value) * (isShare ? 0.01 : 1)));
  }
  const auto now = TheMachine().clock.Now();
  mHistory.Add(now.seconds * 1000 + now.microseconds / 1000, values);
  for (const auto& graph : mGraphs) {
    const auto value = GetPIDPropertyTypedValue(mProcess.pid, graph.properties.front());
    graph.widget->setEmptyText(MissingText(value));
    graph.widget->historyHasGrown();
  }
}

void OverviewPage::FillTable() {
  std::vector<DetailsRow> rows;
  std::uint64_t place = 0;
  for (const auto* property : kOverview) {
    ++place;
    auto value = OverviewValue(mProcess.pid, property);
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr || text->empty()) continue;
    rows.push_back({place, {LocalizedString(property).toStdString(), std::move(value)}});
  }
  mTable->SetRows(std::move(rows));
}

}  // namespace lurkwell
