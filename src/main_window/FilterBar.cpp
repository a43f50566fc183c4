#include "main_window/FilterBar.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>
#include <utility>

#include "preferences/Settings.h"
#include "resources/Resources.h"
#include "windows/ClearButton.h"
#include "windows/NameList.h"
#include "windows/QueryErrorWords.h"

namespace lurkwell {
namespace {

constexpr int kMostRemembered = 10;
constexpr int kPatienceInMilliseconds = 500;
constexpr int kRoomForRemembered = 8192;

/// The last ones first.
QStringList RememberedFilters() {
  char text[kRoomForRemembered] = "";
  ReadText("MAIN_WINDOW_RECENT_FILTERS", text, sizeof text);
  return DecodedNames(text);
}

}  // namespace

FilterBar::FilterBar(std::function<void(Query)> onQuery, QWidget* parent)
    : QWidget(parent),
      mOnQuery(std::move(onQuery)),
      mField(new QLineEdit(this)),
      mWords(new QLabel(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mField, 1);
  layout->addWidget(mWords);
  mWords->setTextFormat(Qt::PlainText);
  mWords->setContentsMargins(6, 0, 6, 0);
  mWords->hide();
  mField->setPlaceholderText(LocalizedString("main_window_filter_placeholder"));
  mField->setToolTip(LocalizedString("main_window_filter_tip"));
  mField->setAccessibleName(LocalizedString("main_window_filter_placeholder"));
  AddClearButton(*mField);
  auto* last = mField->addAction(NamedImage("filter"), QLineEdit::LeadingPosition);
  last->setToolTip(LocalizedString("filter_last"));
  // A field's own buttons have pictures alone.
  for (auto* button : mField->findChildren<QToolButton*>())
    if (button->defaultAction() == last) button->setAccessibleName(LocalizedString("filter_last"));
  connect(last, &QAction::triggered, this, &FilterBar::showLast);
  auto* down = new QShortcut(Qt::Key_Down, mField);
  down->setContext(Qt::WidgetShortcut);
  connect(down, &QShortcut::activated, this, &FilterBar::showLast);
  mPatience.setSingleShot(true);
  mPatience.setInterval(kPatienceInMilliseconds);
  connect(&mPatience, &QTimer::timeout, this, &FilterBar::tellError);
  connect(mField, &QLineEdit::textChanged, this, &FilterBar::takeText);
  connect(mField, &QLineEdit::returnPressed, this, [this] {
    tellError();
    remember();
    if (mErrorWords.isEmpty()) Q_EMIT left();
  });
  hide();
}

void FilterBar::begin() {
  show();
  mField->setFocus();
  mField->selectAll();
}

void FilterBar::end() {
  remember();
  mField->clear();
  hide();
  Q_EMIT left();
}

void FilterBar::takeText() {
  const QByteArray text = mField->text().toUtf8();
  auto query = Query::Read({text.data(), static_cast<std::size_t>(text.size())});
  const auto* error = std::get_if<QueryError>(&query);
  mErrorWords = error == nullptr ? QString() : QueryErrorWords(*error);
  mField->setAccessibleDescription(mErrorWords);
  if (error != nullptr) return mPatience.start();
  tellError();
  mOnQuery(std::move(std::get<Query>(query)));
}

void FilterBar::tellError() {
  mPatience.stop();
  mIsErrorShown = !mErrorWords.isEmpty();
  showWords();
}

void FilterBar::setRemark(const QString& text) {
  if (text == mRemark) return;
  mRemark = text;
  showWords();
}

void FilterBar::showWords() {
  mWords->setText(mIsErrorShown ? mErrorWords : mRemark);
  mWords->setToolTip(mIsErrorShown ? QString() : LocalizedString("filter_not_allowed_tip"));
  mWords->setVisible(!mWords->text().isEmpty());
}

void FilterBar::remember() {
  const QString text = mField->text().trimmed();
  if (text.isEmpty() || !mErrorWords.isEmpty()) return;
  auto filters = RememberedFilters();
  if (!filters.isEmpty() && filters.constFirst() == text) return;
  filters.removeAll(text);
  filters.prepend(text);
  while (filters.size() > kMostRemembered) filters.removeLast();
  StoreText("MAIN_WINDOW_RECENT_FILTERS", EncodedNames(filters, kRoomForRemembered).constData());
}

void FilterBar::showLast() {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const auto& filter : RememberedFilters()) {
    auto* item = menu->addAction(QString(filter).replace(QLatin1Char('&'), QLatin1String("&&")));
    connect(item, &QAction::triggered, mField, [this, filter] { mField->setText(filter); });
  }
  if (menu->isEmpty()) menu->addAction(LocalizedString("filter_none_yet"))->setEnabled(false);
  menu->popup(mField->mapToGlobal(QPoint(0, mField->height())));
}

}  // namespace lurkwell
