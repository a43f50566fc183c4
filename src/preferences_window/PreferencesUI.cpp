#include "preferences_window/PreferencesUI.h"

#include <QFile>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <QTabBar>
#include <QUiLoader>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "platform/Alerts.h"
#include "platform/Diagnostics.h"
#include "platform/Machine.h"
#include "preferences/LessMotion.h"
#include "preferences/Settings.h"
#include "preferences_window/AllSettings.h"
#include "preferences_window/PreferenceChanges.h"
#include "resources/Resources.h"
#include "windows/ControllerAssertion.h"
#include "windows/FrontmostWindow.h"
#include "windows/HelpKey.h"
#include "windows/WindowFrame.h"

namespace lurkwell {

vqPreferencesUI* gThePreferencesUI = nullptr;

namespace {

constexpr char kTabKey[] = "PREFERENCES_UI_DEFAULT_TAB";
constexpr const char* kUnit = "PreferencesUI";
/// Of the whole contents, in points, a page each.
constexpr int kHeights[] = {283, 214, 373, 309, 353};
constexpr int kTabs = static_cast<int>(std::size(kHeights));
/// A change under the mouse or a held key counts when it has stood for so long: each goes to disk.
constexpr int kDragMilliseconds = 100;

/// Names that only the eye would find are told to those who listen.
void NameSliders(const QWidget& contents) {
  for (const auto* label : contents.findChildren<QLabel*>())
    if (auto* buddy = label->buddy())
      buddy->setAccessibleName(WithoutLetter(label->text()).remove(QLatin1Char(':')).remove(u'：'));
}

}  // namespace

// ---- Opening and closing ------------------------------------------------------------------------

void vqPreferencesUI::runWithTab(int tab, const QString& form) {
  if (gThePreferencesUI != nullptr) return BringToFront(*gThePreferencesUI->fWindow);
  auto window = std::make_unique<ControlledWindow>();
  auto* controller = new vqPreferencesUI(*window);
  controller->initWithTabShowing(tab);
  if (!controller->loadInterface(form)) {
    DiagnoseVerbatim("MainWindowCocoa.nib failed to load");
    window.reset();
    TheMachine().alerts.RunAlertPanel(
        LocalizedString("preferences_form_missing").toStdString(),
        LocalizedString("preferences_form_missing_text").toStdString(),
        LocalizedString("alert_ok").toStdString(), "", "");
    return;
  }
  gThePreferencesUI = controller;
  controller->awakeFromNib();
  window->willClose = [controller] { controller->windowWillClose(); };
  WatchWindowOrder(*window);
  AddHelpKey(*window, HelpSection::kPreferences);
  // It deletes itself when it is closed.
  BringToFront(*window.release());
}

void vqPreferencesUI::closeIfOpen() {
  if (gThePreferencesUI != nullptr) gThePreferencesUI->fWindow->close();
}

vqPreferencesUI::vqPreferencesUI(QWidget& window) : QObject(&window), fWindow(&window) {
  fDragTimer.setSingleShot(true);
  fDragTimer.setInterval(kDragMilliseconds);
  connect(&fDragTimer, &QTimer::timeout, this, &vqPreferencesUI::takePendingValue);
  connect(&fGrowth, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& height) { fWindow->setFixedHeight(height.toInt()); });
}

vqPreferencesUI::~vqPreferencesUI() {
  if (gThePreferencesUI == this) gThePreferencesUI = nullptr;
}

void vqPreferencesUI::initWithTabShowing(int tab) {
  fTabToShow = tab;
  if (tab != kRememberedTab) return;
  fTabToShow = ReadInt(kTabKey);
  // Preferences may hold any number.
  if (fTabToShow < 0 || fTabToShow >= kTabs) fTabToShow = 0;
}

bool vqPreferencesUI::loadInterface(const QString& form) {
  QFile file(form);
  auto* contents = file.open(QIODevice::ReadOnly) ? QUiLoader().load(&file, fWindow) : nullptr;
  if (contents == nullptr || contents->layout() == nullptr) return false;
  fTabView = contents->findChild<QTabWidget*>(QStringLiteral("tabView"));
  // The keyboard goes to the tabs and to what is on the page; this tells the tabs so, too.
  fTabView->setFocusPolicy(Qt::NoFocus);
  fTabView->tabBar()->setFocusPolicy(Qt::TabFocus);
  fNotice = contents->findChild<QLabel*>(QStringLiteral("changeNotice"));
  fPages = contents->findChild<QComboBox*>(QStringLiteral("pageChoice"));
  if (fTabView == nullptr || fTabView->count() != kTabs || fNotice == nullptr || fPages == nullptr)
    return false;
  const auto isThere = [contents](const Setting* setting) {
    return contents->findChild<QWidget*>(QLatin1String(setting->control)) != nullptr;
  };
  if (!std::ranges::all_of(SettingsWithControls(), isThere)) return false;
  auto* layout = new QVBoxLayout(fWindow);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  // For fonts that a page needs more room with than the screen has.
  auto* area = new QScrollArea(fWindow);
  // What is in it comes into sight with the keyboard.
  area->setFocusPolicy(Qt::NoFocus);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(contents);
  layout->addWidget(area);
  fContents = contents;
  return true;
}

void vqPreferencesUI::awakeFromNib() {
  fWindow->setWindowTitle(LocalizedString("preferences_title"));
  fWindow->setWindowIcon(NamedImage("show_preferences"));
  auto policy = fNotice->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  fNotice->setSizePolicy(policy);
  PutNotificationChangeTextOnScreen(false);
  NameSliders(*fWindow);
  if (!Expect(fTabToShow != -1, kUnit, "Invalid initial tab setting in pref panel")) fTabToShow = 0;
  for (int page = 0; page < kTabs; ++page) fPages->addItem(fTabView->tabText(page));
  fTabView->setCurrentIndex(fTabToShow);
  fWindow->ensurePolished();
  internalTabViewItem(fTabToShow);
  loadControls();
  connect(fTabView, &QTabWidget::currentChanged, this, &vqPreferencesUI::didSelectTabViewItem);
  connect(fPages, &QComboBox::currentIndexChanged, fTabView, &QTabWidget::setCurrentIndex);
  for (const auto* setting : SettingsWithControls()) connectControl(*setting);
  auto* escape = new QShortcut(Qt::Key_Escape, fWindow);
  connect(escape, &QShortcut::activated, fWindow, &QWidget::close);
  if (auto* button = fWindow->findChild<QPushButton*>(QStringLiteral("closeButton")))
    connect(button, &QPushButton::clicked, fWindow, &QWidget::close);
  if (auto* button = fWindow->findChild<QPushButton*>(QStringLiteral("allSettingsButton")))
    connect(button, &QPushButton::clicked, this, &vqPreferencesUI::showAllSettings);
}

void vqPreferencesUI::windowWillClose() {
  takePendingValue();
  StoreInt(kTabKey, fTabToShow);
  for (auto* child : fWindow->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    if (child->isWindow()) child->close();
  if (gThePreferencesUI == this) gThePreferencesUI = nullptr;
}

// ---- Controls -----------------------------------------------------------------------------------

void vqPreferencesUI::connectControl(const Setting& setting) {
  auto* widget = fWindow->findChild<QWidget*>(QLatin1String(setting.control));
  if (auto* list = qobject_cast<QComboBox*>(widget)) {
    connect(list, &QComboBox::activated, this, [this, list] { takeValueFrom(*list); });
  } else if (ControlKindOf(setting) == ControlKind::kMatrix) {
    for (auto* row : widget->findChildren<QRadioButton*>())
      connect(row, &QRadioButton::clicked, this, [this, widget] { takeValueFrom(*widget); });
  } else if (auto* slider = qobject_cast<QSlider*>(widget)) {
    connectSlider(*slider, setting);
  } else if (auto* well = qobject_cast<QPushButton*>(widget)) {
    connect(well, &QPushButton::clicked, this,
            [this, well, &setting] { chooseColour(*well, setting); });
  } else if (auto* box = qobject_cast<QAbstractButton*>(widget)) {
    connect(box, &QAbstractButton::toggled, this, [this, box] { takeValueFrom(*box); });
  }
}

void vqPreferencesUI::connectSlider(QSlider& slider, const Setting& setting) {
  connect(&slider, &QSlider::actionTriggered, this, [this, &slider] {
    // Keys and wheels have moved the position; the value follows.
    if (slider.sliderPosition() != slider.value()) fStepped = &slider;
  });
  connect(&slider, &QSlider::valueChanged, this, [this, &slider, &setting] {
    const bool isStep = std::exchange(fStepped, nullptr) == &slider;
    if (!isStep && !slider.isSliderDown()) return takeValueFrom(slider);
    DescribeSlider(*fWindow, setting);
    takeSoon(slider);
  });
  connect(&slider, &QSlider::sliderReleased, this, &vqPreferencesUI::takePendingValue);
}

void vqPreferencesUI::takeSoon(QWidget& sender) {
  if (fDragged != &sender) takePendingValue();
  fDragged = &sender;
  if (!fDragTimer.isActive()) fDragTimer.start();
}

void vqPreferencesUI::takePendingValue() {
  fDragTimer.stop();
  const QPointer<QWidget> sender = std::exchange(fDragged, nullptr);
  if (sender != nullptr) takeValueFrom(*sender);
}

void vqPreferencesUI::takeValueFrom(const QWidget& sender) {
  const auto name = sender.objectName();
  const auto settings = SettingsWithControls();
  const auto at = std::ranges::find_if(
      settings, [&](const auto* one) { return name == QLatin1String(one->control); });
  if (at == settings.end()) return;
  StoreControl(*fWindow, **at);
  if ((*at)->effect == SettingEffect::kNewWindows) PutNotificationChangeTextOnScreen(true);
  NotifyOf(**at);
}

void vqPreferencesUI::loadControls() {
  for (const auto* setting : SettingsWithControls()) LoadControl(*fWindow, *setting);
}

void vqPreferencesUI::chooseColour(QPushButton& well, const Setting& setting) {
  const auto before = ShownColour(well);
  auto* dialog = new QColorDialog(before, fWindow);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setOption(QColorDialog::DontUseNativeDialog);
  dialog->setWindowTitle(well.accessibleName());
  dialog->setModal(true);
  const auto take = [this, &well](const QColor& colour) {
    ShowColour(well, colour);
    takeSoon(well);
  };
  connect(dialog, &QColorDialog::currentColorChanged, this, take);
  connect(dialog, &QColorDialog::finished, this, [this, &well, &setting, before](int result) {
    takePendingValue();
    if (result == QDialog::Accepted || ShownColour(well) == before) return;
    ShowColour(well, before);
    StoreControl(*fWindow, setting);
    NotifyOf(setting);
  });
  dialog->show();
}

void vqPreferencesUI::PutNotificationChangeTextOnScreen(bool show) {
  fNotice->setVisible(show);
}

void vqPreferencesUI::showAllSettings() {
  auto* window = AllSettings::ShowOver(*fWindow);
  if (window == nullptr) return;
  connect(window, &AllSettings::changed, this, &vqPreferencesUI::loadControls,
          Qt::UniqueConnection);
}

// ---- Pages --------------------------------------------------------------------------------------

void vqPreferencesUI::didSelectTabViewItem(int index) {
  internalTabViewItem(index);
}

void vqPreferencesUI::internalTabViewItem(int index) {
  if (!Expect(index >= 0 && index < kTabs, kUnit, "We're on an invalid tab in internalTabViewItem"))
    return;
  fTabToShow = index;
  fPages->setCurrentIndex(index);
  chooseTabsOrList();
  // Only the page that is shown counts for the height.
  for (int page = 0; page < fTabView->count(); ++page)
    fTabView->widget(page)->setSizePolicy(
        QSizePolicy::Preferred, page == index ? QSizePolicy::Preferred : QSizePolicy::Ignored);
  setHeight(heightForTab(index), fWindow->isVisible());
}

int vqPreferencesUI::widthOfTabs() const {
  const auto margins = fContents->layout()->contentsMargins();
  return fTabView->tabBar()->sizeHint().width() + margins.left() + margins.right();
}

void vqPreferencesUI::chooseTabsOrList() {
  const bool fit = widthOfTabs() <= roomOnScreen().width();
  fTabView->tabBar()->setVisible(fit);
  fPages->setVisible(!fit);
}

int vqPreferencesUI::heightForTab(int index) const {
  // Larger fonts and other themes need more.
  auto* layout = fContents->layout();
  // From the page outwards; what they needed before is kept on every level.
  for (auto* widget = static_cast<QWidget*>(fTabView); widget != fContents;
       widget = widget->parentWidget())
    widget->updateGeometry();
  const int width = std::max(fWindow->width(), layout->minimumSize().width());
  int needed = layout->minimumSize().height();
  if (layout->hasHeightForWidth()) needed = std::max(needed, layout->heightForWidth(width));
  return std::min(std::max(kHeights[index], needed), roomOnScreen().height());
}

QSize vqPreferencesUI::roomOnScreen() const {
  constexpr QSize kFrame(16, 48);
  return fWindow->screen()->availableSize() - kFrame;
}

void vqPreferencesUI::setHeight(int height, bool animated) {
  fGrowth.stop();
  const auto* layout = fContents->layout();
  const int most = roomOnScreen().width();
  int least = layout->minimumSize().width();
  if (fPages->isHidden()) least = std::max(least, widthOfTabs());
  fWindow->setMinimumWidth(std::min(least, most));
  const int duration = animated && !WantsLessMotion()
                           ? fWindow->style()->styleHint(QStyle::SH_Widget_Animation_Duration)
                           : 0;
  if (duration <= 0) {
    fWindow->setFixedHeight(height);
    const int width = std::max(fWindow->width(), layout->sizeHint().width());
    if (!animated) fWindow->resize(std::min(width, most), height);
    return;
  }
  // A window is measured from its top: that edge stays.
  fGrowth.setDuration(duration);
  fGrowth.setStartValue(fWindow->height());
  fGrowth.setEndValue(height);
  fGrowth.start();
}

}  // namespace lurkwell
