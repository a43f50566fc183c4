#include "process_details/DetailsWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/PropertyText.h"
#include "windows/TimeGraph.h"
#include "windows/WindowFrame.h"

namespace lurkwell {
namespace {

constexpr char kDetailsFrameKey[] = "DETAILS_WINDOW_FRAME";
constexpr char kDetailsPageKey[] = "DETAILS_WINDOW_PAGE";
/// Characters of a name, which may be any number.
constexpr int kLongestHeading = 60;

QString ShortName(std::int32_t pid) {
  auto name = PlainText(WholeNameOf(pid));
  return name.size() <= kLongestHeading ? name : name.left(kLongestHeading) + QStringLiteral("…");
}

}  // namespace

DetailsWindow::DetailsWindow(ProcessIdentity process, FillProcessMenu fillMenu)
    : mProcess(process),
      mFillMenu(std::move(fillMenu)),
      mClient(new DetailsClient(process, *this)),
      mHeading(new QLabel(this)),
      mActions(new QToolButton(this)),
      mPages(new QTabWidget(this)),
      mStatus(new QLabel(this)) {
  setWindowIcon(NamedImage("lurkwell"));
  auto* top = new QWidget(this);
  BuildTop(*top);
  BuildPages();
  mStatus->setTextFormat(Qt::PlainText);
  mStatus->setWordWrap(true);
  mStatus->setContentsMargins(8, 2, 8, 4);
  mStatus->hide();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(top);
  layout->addWidget(mPages, 1);
  layout->addWidget(mStatus);
  AddKeys();
  ShowNames();
  const auto metrics = fontMetrics();
  RestoreFrame(kDetailsFrameKey,
               QSize(metrics.averageCharWidth() * 150, metrics.lineSpacing() * 46));
  AddProcessInformationClient(mClient);
  const int last = ReadInt(kDetailsPageKey);
  mPages->setCurrentIndex(std::clamp(last, 0, mPages->count() - 1));
  connect(mPages, &QTabWidget::currentChanged, this, &DetailsWindow::ChoosePage);
  LookWhatIsSeen();
  CurrentPage().Table().TakeFocus();
  WatchWindowOrder(*this);
  AddHelpKey(*this, HelpSection::kDetails);
}

DetailsWindow::~DetailsWindow() {
  // It tells this window that it is gone.
  delete mClient;
}

void DetailsWindow::BuildTop(QWidget& top) {
  mHeading->setTextFormat(Qt::PlainText);
  auto font = mHeading->font();
  font.setBold(true);
  mHeading->setFont(font);
  mHeading->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  mActions->setText(LocalizedString("details_actions"));
  mActions->setAccessibleName(LocalizedString("details_actions"));
  mActions->setPopupMode(QToolButton::InstantPopup);
  mActions->setFocusPolicy(Qt::TabFocus);
  auto* menu = new QMenu(mActions);
  mActions->setMenu(menu);
  mActions->setVisible(mFillMenu != nullptr);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    menu->clear();
    mFillMenu(*menu, mProcess, [this](const QString& text) {
      mStatus->setText(text);
      mStatus->setVisible(!text.isEmpty());
    });
  });
  auto* layout = new QHBoxLayout(&top);
  layout->setContentsMargins(8, 6, 8, 6);
  layout->addWidget(mHeading, 1);
  layout->addWidget(mActions);
}

void DetailsWindow::BuildPages() {
  mPages->setDocumentMode(true);
  // The keyboard goes to the tabs and to what is on the page; this tells the tabs so, too.
  mPages->setFocusPolicy(Qt::NoFocus);
  mPages->tabBar()->setFocusPolicy(Qt::TabFocus);
  mPages->tabBar()->setAccessibleName(LocalizedString("details_pages"));
  mOverview = new OverviewPage(mProcess, mPages);
  mPageList.push_back(mOverview);
  for (std::size_t kind = 0; kind < kDetailsKinds; ++kind)
    mPageList.push_back(new DetailsListPage(mProcess, static_cast<DetailsKind>(kind), mPages));
  for (auto* page : mPageList) mPages->addTab(page, page->Title());
}

void DetailsWindow::AddKeys() {
  const auto add = [this](const QKeySequence& keys, auto action) {
    if (!keys.isEmpty()) connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  add(Qt::CTRL | Qt::Key_PageDown, [this] { StepPage(1); });
  add(Qt::CTRL | Qt::Key_PageUp, [this] { StepPage(-1); });
  add(Qt::CTRL | Qt::Key_Tab, [this] { StepPage(1); });
  add(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { StepPage(-1); });
  add(QKeySequence::Find, [this] { CurrentPage().Table().BeginFilter(); });
  add(QKeySequence::Copy, [this] { CurrentPage().Table().CopySelection(); });
  add(Qt::Key_Escape, [this] { Escape(); });
}

DetailsPage& DetailsWindow::CurrentPage() const {
  return *mPageList[static_cast<std::size_t>(mPages->currentIndex())];
}

void DetailsWindow::StepPage(int by) {
  mPages->setCurrentIndex((mPages->currentIndex() + by + mPages->count()) % mPages->count());
}

void DetailsWindow::ChoosePage(int number) {
  StoreInt(kDetailsPageKey, number);
  LookWhatIsSeen();
  CurrentPage().Table().TakeFocus();
}

void DetailsWindow::Escape() {
  if (!CurrentPage().Table().EndFilter()) close();
}

// ---- What is seen -------------------------------------------------------------------------------

bool DetailsWindow::event(QEvent* event) {
  const bool handled = ControlledWindow::event(event);
  // The system tells its own window, and not this one, what of it can be seen.
  if (event->type() == QEvent::Show && windowHandle() != nullptr)
    windowHandle()->installEventFilter(this);
  const auto type = event->type();
  if (type == QEvent::Show || type == QEvent::Hide || type == QEvent::WindowStateChange)
    LookWhatIsSeen();
  return handled;
}

bool DetailsWindow::eventFilter(QObject* object, QEvent* event) {
  if (object == windowHandle() && event->type() == QEvent::Expose) LookWhatIsSeen();
  return ControlledWindow::eventFilter(object, event);
}

void DetailsWindow::LookWhatIsSeen() {
  const bool isSeen =
      isVisible() && !isMinimized() && windowHandle() != nullptr && windowHandle()->isExposed();
  for (auto* page : mPageList) page->SetSeen(isSeen && page == &CurrentPage());
  if (mClient == nullptr || mHasEnded) return;
  mClient->SetSeen(isSeen);
  mClient->SetNeeds(mOverview->Needs());
}

// ---- The process --------------------------------------------------------------------------------

void DetailsWindow::ShowNames() {
  const auto name = ShortName(mProcess.pid);
  if (name.isEmpty() || name == mName) return;
  mName = name;
  setWindowTitle(LocalizedString("details_title").arg(mName).arg(mProcess.pid));
  mHeading->setText(LocalizedString("details_heading").arg(mName).arg(mProcess.pid));
}

void DetailsWindow::turnHasEnded() {
  ShowNames();
  mOverview->Update();
}

void DetailsWindow::processHasEnded() {
  mHasEnded = true;
  const auto now = TheMachine().clock.CalendarNow();
  const auto text = LocalizedString("details_ended").arg(MomentText(now.seconds * 1000));
  mHeading->setText(LocalizedString("details_heading_ended")
                        .arg(mName)
                        .arg(mProcess.pid)
                        .arg(MomentText(now.seconds * 1000)));
  setWindowTitle(LocalizedString("details_title_ended").arg(mName).arg(mProcess.pid));
  mActions->setEnabled(false);
  mStatus->setText(text);
  mStatus->show();
  for (auto* page : mPageList) page->SetEnded();
}

// ---- Life ---------------------------------------------------------------------------------------

void DetailsWindow::SaveFrame() {
  RememberFrame(kDetailsFrameKey);
}

void DetailsWindow::closeEvent(QCloseEvent* event) {
  SaveFrame();
  ControlledWindow::closeEvent(event);
}

}  // namespace lurkwell
