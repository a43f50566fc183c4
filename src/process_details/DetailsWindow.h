#pragma once

#include <QLabel>
#include <QMenu>
#include <QString>
#include <QTabWidget>
#include <QToolButton>
#include <functional>
#include <vector>

#include "platform/ProcessIdentity.h"
#include "process_details/DetailsClient.h"
#include "process_details/DetailsPage.h"
#include "process_details/OverviewPage.h"
#include "windows/WindowFrame.h"

namespace lurkwell {

/// Fills a menu with what can be done to a process. `report` takes what became of it.
using FillProcessMenu = std::function<void(QMenu& menu, ProcessIdentity process,
                                           const std::function<void(const QString&)>& report)>;

/// All about one process, on pages. It follows the process, and stays with its last figures when
/// that has ended. Deletes itself when it is closed. Main thread only.
class DetailsWindow final : public ControlledWindow, private DetailsViewer {
  Q_OBJECT

 public:
  /// Of a process that is known to the consolidator.
  DetailsWindow(ProcessIdentity process, FillProcessMenu fillMenu);
  ~DetailsWindow() override;

  ProcessIdentity Process() const { return mProcess; }
  bool HasEnded() const { return mHasEnded; }
  QTabWidget& Pages() { return *mPages; }
  DetailsPage& CurrentPage() const;
  /// What is said at the top of the process as a whole.
  QString Heading() const { return mHeading->text(); }
  QString Status() const { return mStatus->text(); }
  QMenu& Actions() { return *mActions->menu(); }

  /// Writes its size and place into the preferences.
  void SaveFrame();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void turnHasEnded() override;
  void processHasEnded() override;
  void clientIsGone() override { mClient = nullptr; }

  void BuildTop(QWidget& top);
  void BuildPages();
  void AddKeys();
  void ChoosePage(int number);
  void StepPage(int by);
  void LookWhatIsSeen();
  void ShowNames();
  void Escape();

  ProcessIdentity mProcess;
  FillProcessMenu mFillMenu;
  DetailsClient* mClient;
  QLabel* mHeading;
  QToolButton* mActions;
  QTabWidget* mPages;
  QLabel* mStatus;
  OverviewPage* mOverview = nullptr;
  std::vector<DetailsPage*> mPageList;
  QString mName;
  bool mHasEnded = false;
};

}  // namespace lurkwell
