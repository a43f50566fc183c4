// How the table is arranged: the status line's switches, and the sets of columns.
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>

#include "main_window/AskForText.h"
#include "main_window/MainWindow.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

/// The text of the item that is ticked; an ampersand is none of a mnemonic there.
QString ChosenIn(const QMenu& menu) {
  for (const auto* item : menu.actions())
    if (item->isChecked()) return WithoutLetter(item->text());
  return {};
}

/// Return alone refuses.
bool Agrees(QWidget* parent, const QString& question, const char* agree) {
  QMessageBox box(QMessageBox::Question, LocalizedString("set_question_title"), question,
                  QMessageBox::Cancel, parent);
  box.setTextFormat(Qt::PlainText);
  const auto* button = box.addButton(LocalizedString(agree), QMessageBox::DestructiveRole);
  box.setDefaultButton(QMessageBox::Cancel);
  box.exec();
  return box.clickedButton() == button;
}

}  // namespace

void MainWindow::BuildSwitchers() {
  const auto add = [this](const char* name, QMenu& menu) {
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setMenu(&menu);
    connect(button, &QToolButton::clicked, button, &QToolButton::showMenu);
    button->setToolTip(LocalizedString(name));
    // Between the counts and the remark on the helper, which a message leaves alone, too.
    statusBar()->insertPermanentWidget(1 + static_cast<int>(mSwitchers.size()), button);
    mSwitchers.push_back({button, name, &menu});
  };
  add("switch_columns", mMenus->ColumnSetMenu());
  add("switch_shape", mMenus->ShapeMenu());
  add("switch_scope", mMenus->ScopeMenu());
}

void MainWindow::ShowArrangement() {
  mMenus->ValidateAll();
  for (const auto& [button, name, menu] : mSwitchers) {
    button->setText(ChosenIn(*menu));
    button->setAccessibleName(LocalizedString(name) + QLatin1String(": ") + button->text());
  }
  setWindowTitle(
      LocalizedString(mController->isPaused() ? "main_window_title_paused" : "main_window_title"));
  UpdateStatus();
}

QString MainWindow::AskForColumnSetTitle(const char* title, const QString& first, int place) {
  const auto& sets = mController->columnSets();
  return AskForText(this,
                    {LocalizedString(title), LocalizedString("set_title_label"),
                     LocalizedString("set_title_agree"), first},
                    [&](const QString& text) { return sets.ComplaintAbout(text, place); });
}

void MainWindow::saveColumnSetAs() {
  const auto title = AskForColumnSetTitle("set_save_title", {}, -1);
  if (!title.isEmpty()) mController->saveColumnSetAs(title);
}

void MainWindow::renameColumnSet() {
  const int place = shownColumnSet();
  const auto before = mController->columnSets().TitleOf(place);
  const auto title = AskForColumnSetTitle("set_rename_title", before, place);
  if (!title.isEmpty()) mController->renameColumnSet(title);
}

void MainWindow::deleteColumnSet() {
  const auto title = mController->columnSets().TitleOf(shownColumnSet());
  if (Agrees(this, LocalizedString("set_delete_question").arg(title), "set_delete_agree"))
    mController->deleteColumnSet();
}

void MainWindow::restoreColumnSet() {
  const auto title = mController->columnSets().TitleOf(shownColumnSet());
  if (Agrees(this, LocalizedString("set_restore_question").arg(title), "set_restore_agree"))
    mController->restoreColumnSet();
}

}  // namespace lurkwell
