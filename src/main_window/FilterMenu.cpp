#include "main_window/FilterMenu.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidgetAction>
#include <algorithm>

#include "resources/Resources.h"
#include "windows/ClearButton.h"

namespace lurkwell {
namespace {

/// More would not fit the screen.
constexpr qsizetype kMostMatches = 20;
constexpr const char* kWords = "words";
constexpr int kMargin = 6;

bool IsTyped(const QKeyEvent& event, bool isEmpty) {
  if (event.key() == Qt::Key_Backspace) return !isEmpty;
  const auto text = event.text();
  if (text.isEmpty() || !text[0].isPrint()) return false;
  if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0) return false;
  // A blank chooses an item as long as it is no part of what is looked for.
  return !text[0].isSpace() || !isEmpty;
}

}  // namespace

FilterMenu::FilterMenu(QWidget* parent)
    : QMenu(parent),
      mField(new QLineEdit),
      mFieldAction(new QWidgetAction(this)),
      mRemark(new QAction(this)) {
  auto* frame = new QWidget;
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(mField);
  mField->setPlaceholderText(LocalizedString("column_filter"));
  mField->setAccessibleName(LocalizedString("column_filter"));
  AddClearButton(*mField);
  mFieldAction->setDefaultWidget(frame);
  frame->setFocusProxy(mField);
  addAction(mFieldAction);
  mRemark->setEnabled(false);
  mRemark->setVisible(false);
  addAction(mRemark);
  setToolTipsVisible(true);
  connect(mField, &QLineEdit::textChanged, this, &FilterMenu::ShowMatches);
}

QMenu* FilterMenu::GroupMenu(std::size_t number, const QString& title) {
  const auto place = std::ranges::lower_bound(mGroups, number, {}, &Group::number);
  if (place != mGroups.end() && place->number == number) return place->menu;
  auto* menu = new QMenu(title, this);
  menu->setToolTipsVisible(true);
  menu->installEventFilter(this);
  insertMenu(place != mGroups.end() ? place->menu->menuAction() : mRemark, menu);
  mGroups.insert(place, {number, menu});
  return menu;
}

QAction* FilterMenu::AddItem(std::size_t group, const QString& title, const QString& text,
                             const QString& words) {
  auto* item = GroupMenu(group, title)->addAction(text);
  item->setProperty(kWords, words);
  mItems.append(item);
  return item;
}

/// Those whose text or words have it come before those that only mention it.
QList<QAction*> FilterMenu::Matches(const QString& text) const {
  QList<QAction*> named;
  QList<QAction*> mentioned;
  for (auto* item : mItems) {
    const auto contains = [&text](const QString& in) {
      return in.contains(text, Qt::CaseInsensitive);
    };
    if (contains(item->text()) || contains(item->property(kWords).toString())) {
      named.append(item);
    } else if (contains(item->toolTip())) {
      mentioned.append(item);
    }
  }
  return named + mentioned;
}

void FilterMenu::ShowMatches(const QString& text) {
  for (auto* item : mShown) removeAction(item);
  const auto wanted = text.trimmed();
  const auto matches = wanted.isEmpty() ? QList<QAction*>() : Matches(wanted);
  mShown = matches.first(std::min(matches.size(), kMostMatches));
  insertActions(mRemark, mShown);
  for (const auto& group : mGroups) group.menu->menuAction()->setVisible(wanted.isEmpty());
  const auto left = matches.size() - mShown.size();
  mRemark->setVisible(!wanted.isEmpty() && (left > 0 || mShown.isEmpty()));
  mRemark->setText(left > 0 ? LocalizedString("column_filter_more", qint64{left})
                            : LocalizedString("column_filter_nothing"));
  if (!mShown.isEmpty()) setActiveAction(mShown.first());
}

void FilterMenu::keyPressEvent(QKeyEvent* event) {
  if (IsTyped(*event, mField->text().isEmpty())) {
    // Whichever item has the focus: what is typed is for the field.
    QCoreApplication::sendEvent(mField, event);
    return;
  }
  if (event->key() == Qt::Key_Escape && !mField->text().isEmpty()) {
    mField->clear();
    return;
  }
  const bool isChoice = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  // The field is no item to be chosen.
  if (isChoice && activeAction() == mFieldAction) return;
  QMenu::keyPressEvent(event);
}

/// What is typed while a group is open is for the field, too.
bool FilterMenu::eventFilter(QObject* watched, QEvent* event) {
  auto* menu = qobject_cast<QMenu*>(watched);
  if (menu == nullptr || event->type() != QEvent::KeyPress ||
      !IsTyped(*static_cast<QKeyEvent*>(event), mField->text().isEmpty()))
    return QMenu::eventFilter(watched, event);
  menu->hide();
  QCoreApplication::sendEvent(mField, event);
  return true;
}

void FilterMenu::showEvent(QShowEvent* event) {
  mField->clear();
  QMenu::showEvent(event);
}

}  // namespace lurkwell
