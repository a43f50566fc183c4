// What the window consists of: its lines, buttons, menus and keys.
#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>

#include "fleet_window/FleetWindow.h"
#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/ClearButton.h"
#include "windows/SortMenu.h"

namespace lurkwell {
namespace {

constexpr int kFilterCharacters = 34;

}  // namespace

QWidget* FleetWindow::BuildTop() {
  auto* top = new QWidget;
  auto* layout = new QHBoxLayout(top);
  layout->setContentsMargins(8, 6, 8, 6);
  mBack = new QToolButton;
  mBack->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
  mBack->setToolTip(LocalizedString("fleet_back_tip"));
  mBack->setAccessibleName(LocalizedString("fleet_back"));
  connect(mBack, &QToolButton::clicked, this, &FleetWindow::GoBack);
  layout->addWidget(mBack);
  mKinds = new QButtonGroup(this);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(0);
  const char* kTexts[] = {"fleet_show_machines", "fleet_show_program", "fleet_show_unit",
                          "fleet_show_container", "fleet_show_user"};
  int number = kMachinesButton;
  for (const char* text : kTexts) {
    auto* button = new QToolButton;
    button->setText(LocalizedString(text));
    button->setToolTip(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number))
                           .toString(QKeySequence::NativeText));
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    mKinds->addButton(button, number++);
    buttons->addWidget(button);
  }
  connect(mKinds, &QButtonGroup::idClicked, this, &FleetWindow::ShowKind);
  layout->addLayout(buttons);
  mScope = new QLabel;
  mScope->setTextFormat(Qt::PlainText);
  auto bold = mScope->font();
  bold.setBold(true);
  mScope->setFont(bold);
  layout->addWidget(mScope);
  layout->addStretch(1);
  mFilterWords = new QLabel;
  mFilterWords->setTextFormat(Qt::PlainText);
  mFilterWords->setWordWrap(true);
  mFilterWords->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  layout->addWidget(mFilterWords, 2);
  mFilter = new QLineEdit;
  mFilter->setPlaceholderText(LocalizedString("fleet_filter"));
  mFilter->setAccessibleName(LocalizedString("fleet_filter"));
  mFilter->setToolTip(LocalizedString("fleet_filter_tip"));
  AddClearButton(*mFilter);
  mFilter->setMinimumWidth(fontMetrics().averageCharWidth() * kFilterCharacters);
  connect(mFilter, &QLineEdit::textChanged, this, [this] { mPatience.start(); });
  connect(mFilter, &QLineEdit::returnPressed, this, [this] {
    if (mPatience.isActive()) Ask();
    if (mFilterWords->text().isEmpty()) mTable->setFocus();
  });
  layout->addWidget(mFilter);
  mSeconds = new QComboBox;
  mSeconds->setAccessibleName(LocalizedString("fleet_interval"));
  mSeconds->setToolTip(LocalizedString("fleet_interval"));
  for (const int seconds : kSecondsToChoose) {
    const auto text = seconds == 0   ? LocalizedString("fleet_interval_never")
                      : seconds < 60 ? LocalizedString("fleet_interval_seconds").arg(seconds)
                                     : LocalizedString("fleet_interval_minutes").arg(seconds / 60);
    mSeconds->addItem(text, seconds);
  }
  connect(mSeconds, &QComboBox::activated, this, [this] {
    const int seconds = mSeconds->currentData().toInt();
    StoreInt("FLEET_WINDOW_SECONDS", seconds);
    SetSeconds(seconds);
  });
  layout->addWidget(mSeconds);
  return top;
}

QWidget* FleetWindow::BuildError() {
  mErrorFrame = new QFrame;
  mErrorFrame->setFrameShape(QFrame::StyledPanel);
  auto* layout = new QHBoxLayout(mErrorFrame);
  auto* picture = new QLabel;
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  picture->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
  layout->addWidget(picture);
  mErrorWords = new QLabel;
  mErrorWords->setTextFormat(Qt::PlainText);
  mErrorWords->setWordWrap(true);
  mErrorWords->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  layout->addWidget(mErrorWords, 1);
  mSignIn = new QPushButton(LocalizedString("fleet_sign_in"));
  connect(mSignIn, &QPushButton::clicked, this, &FleetWindow::SignIn);
  layout->addWidget(mSignIn);
  auto* again = new QPushButton(LocalizedString("fleet_again"));
  connect(again, &QPushButton::clicked, this, &FleetWindow::Ask);
  layout->addWidget(again);
  mErrorFrame->hide();
  return mErrorFrame;
}

void FleetWindow::BuildTable() {
  mTable = new StripedTableView;
  mTable->setModel(&mModel);
  mTable->setItemDelegate(&mTextCell);
  mTable->setSearchColumn(FleetModel::kNameColumn);
  mTable->setAccessibleName(windowTitle());
  connect(&mTable->header(), &QHeaderView::sectionClicked, this, &FleetWindow::SortBy);
  connect(mTable, &StripedTableView::doubleAction, this,
          [this] { OpenRow(mTable->currentIndex().row()); });
  connect(mTable->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &FleetWindow::RowIsCurrent);
}

void FleetWindow::BuildMenu() {
  const auto add = [this](const char* text, const QKeySequence& keys, const auto& run) {
    auto* action = mMenu.addAction(LocalizedString(text));
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, run);
    mTable->addAction(action);
    return action;
  };
  mOpenAction = add("fleet_open_machine", {}, [this] { OpenRow(mTable->currentIndex().row()); });
  mShellAction = add("fleet_ssh", Qt::CTRL | Qt::Key_T, [this] { OpenShell(); });
  mMenu.addSeparator();
  AddSortMenu(mMenu, mTable->header(), [this](int column) { SortBy(column); });
  mMenu.addSeparator();
  add("fleet_copy", QKeySequence::Copy, [this] { CopySelection(); });
  add("fleet_sign_in", {}, [this] { SignIn(); });
  mTable->setContextMenu(&mMenu);
}

void FleetWindow::BuildKeys() {
  const auto on = [this](const QKeySequence& keys, const auto& run) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
  };
  on(QKeySequence::Find, [this] {
    mFilter->setFocus();
    mFilter->selectAll();
  });
  on(Qt::Key_F5, [this] { Ask(); });
  on(Qt::ALT | Qt::Key_Left, [this] { GoBack(); });
  auto* back = new QShortcut(Qt::Key_Backspace, mTable);
  back->setContext(Qt::WidgetShortcut);
  connect(back, &QShortcut::activated, this, &FleetWindow::GoBack);
  for (const auto* button : mKinds->buttons()) {
    const int number = mKinds->id(const_cast<QAbstractButton*>(button));
    on(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number), [this, number] { ShowKind(number); });
  }
  on(Qt::Key_Escape, [this] {
    if (!mFilter->hasFocus()) return GoBack();
    mFilter->clear();
    mTable->setFocus();
  });
}

}  // namespace lurkwell
