#include "main_window/OneProcess.h"

#include <QAction>
#include <QMenu>
#include <string_view>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// A selection of one process, as long as it lives. Belongs to its menu.
class OneProcess final : public QObject, private ProcessSelection {
 public:
  OneProcess(QMenu& menu, ProcessIdentity process, const CommandScope& scope,
             std::function<void(const QString&)> report)
      : QObject(&menu),
        mMenu(menu),
        mProcess(process),
        mScope{mCommands, scope.window, scope.application},
        mReport(std::move(report)) {
    mCommands.SetMonitorWindows(scope.processes.GetMonitorWindows());
    setObjectName(kName);
  }

  static constexpr QLatin1String kName{"one process"};

  void Fill() {
    const auto facts = mCommands.Facts();
    Append(CommandMenu::kProcess, facts);
    mMenu.addSeparator();
    Append(CommandMenu::kFile, facts);
  }

 private:
  void Append(CommandMenu which, const SelectionFacts& facts) {
    for (const auto& command : Commands()) {
      const bool isOfWindow = std::string_view(command.text) == "menu_file_details";
      const bool isForProcesses = which == CommandMenu::kProcess || command.isInContextMenu;
      if (command.menu != which || !isForProcesses || isOfWindow) continue;
      if (command.beginsGroup) mMenu.addSeparator();
      auto* action = mMenu.addAction(LocalizedString(command.text));
      action->setObjectName(QLatin1String(command.text));
      action->setEnabled(IsMet(command.needs, facts));
      connect(action, &QAction::triggered, this, [this, &command] { command.run(mScope); });
    }
  }

  bool isAnyRowSelected() const override { return !selectedPids().empty(); }
  std::vector<std::int32_t> selectedPids() const override {
    // Another process may have the pid by now.
    if (GetPidsStartStamp(mProcess.pid) != mProcess.startStamp) return {};
    return {mProcess.pid};
  }
  std::size_t selectPids(const std::vector<std::int32_t>&) override { return 0; }
  QWidget* parentOfQuestions() const override { return mMenu.parentWidget()->window(); }
  void holdOrder(const QObject*, bool) override {}
  void processesHaveChanged(const std::vector<std::int32_t>&) override {}
  void report(const QString& text) override { mReport(text); }

  QMenu& mMenu;
  ProcessIdentity mProcess;
  ProcessCommands mCommands{*this};
  CommandScope mScope;
  std::function<void(const QString&)> mReport;
};

}  // namespace

void FillMenuOfOne(QMenu& menu, ProcessIdentity process, const CommandScope& scope,
                   const std::function<void(const QString&)>& report) {
  delete menu.findChild<QObject*>(OneProcess::kName, Qt::FindDirectChildrenOnly);
  (new OneProcess(menu, process, scope, report))->Fill();
}

}  // namespace lurkwell
