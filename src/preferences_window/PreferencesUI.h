#pragma once

#include <QColorDialog>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVariantAnimation>
#include <cstdint>

#include "preferences_window/PreferenceControls.h"

namespace lurkwell {

/// The preferences window: five pages of controls, each of which stores its setting the moment it
/// is changed and tells the clients concerned. There is one at most; its window owns it. Main
/// thread only.
class vqPreferencesUI final : public QObject {
  Q_OBJECT

 public:
  /// As a page's number: the one that was shown last.
  static constexpr int kRememberedTab = 5;
  static constexpr char kFormPath[] = ":/forms/PreferencesUI.ui";

  /// Opens the window on that page, or brings the one that is there to the front as it is. A form
  /// that cannot be loaded is told to the user, and nothing is opened.
  static void runWithTab(int tab, const QString& form = QLatin1String(kFormPath));
  /// Closes the window, if there is one, as its user would.
  static void closeIfOpen();

  ~vqPreferencesUI() override;

  QWidget& window() { return *fWindow; }

  /// A control was changed: stores its setting and whatever follows, and sends one notification.
  void takeValueFrom(const QWidget& sender);
  /// Shows what is stored now.
  void loadControls();

  /// Remembers the page and gives the window its height. Any other page is a failure.
  void internalTabViewItem(int index);
  /// The notice that a change holds for windows that are opened afterwards.
  void PutNotificationChangeTextOnScreen(bool show);

  void windowWillClose();
  void showAllSettings();

 private:
  explicit vqPreferencesUI(QWidget& window);

  void initWithTabShowing(int tab);
  bool loadInterface(const QString& form);
  void awakeFromNib();
  void didSelectTabViewItem(int index);
  void connectControl(const Setting& setting);
  void connectSlider(QSlider& slider, const Setting& setting);
  void takeSoon(QWidget& sender);
  void takePendingValue();
  void chooseColour(QPushButton& well, const Setting& setting);
  int widthOfTabs() const;
  /// Where the tabs do not fit on the screen, the pages are chosen from a list.
  void chooseTabsOrList();
  int heightForTab(int index) const;
  QSize roomOnScreen() const;
  void setHeight(int height, bool animated);

  QWidget* fWindow;
  QWidget* fContents = nullptr;
  QTabWidget* fTabView = nullptr;
  QComboBox* fPages = nullptr;
  QLabel* fNotice = nullptr;
  std::int32_t fTabToShow = 0;
  /// A control that the mouse or a key is changing, until its value is taken.
  QPointer<QWidget> fDragged;
  /// A slider between a key's or the wheel's step and the value that follows from it.
  const QWidget* fStepped = nullptr;
  QTimer fDragTimer;
  QVariantAnimation fGrowth;
};

/// The window's controller; null while there is none.
extern vqPreferencesUI* gThePreferencesUI;

}  // namespace lurkwell
