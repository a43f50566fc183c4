#include "main_window/HintBar.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <iterator>

#include "preferences/Settings.h"
#include "resources/Resources.h"

namespace lurkwell {
namespace {

constexpr const char* kHints[] = {"hint_details", "hint_filter", "hint_columns", "hint_follow",
                                  "hint_shapes"};
constexpr char kSeenKey[] = "HINTS_SEEN";

}  // namespace

HintBar::HintBar(QWidget* parent) : QWidget(parent), mText(new QLabel(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(6, 2, 2, 2);
  layout->addWidget(mText, 1);
  mText->setTextFormat(Qt::PlainText);
  // A long line is no reason for a wider window.
  mText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* never = new QToolButton(this);
  never->setAutoRaise(true);
  never->setText(LocalizedString("hints_none"));
  connect(never, &QToolButton::clicked, this, [this] { putAway(true); });
  layout->addWidget(never);
  auto* close = new QToolButton(this);
  close->setAutoRaise(true);
  close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  close->setToolTip(LocalizedString("hints_close"));
  close->setAccessibleName(LocalizedString("hints_close"));
  connect(close, &QToolButton::clicked, this, [this] { putAway(false); });
  layout->addWidget(close);
  hide();
}

void HintBar::begin() {
  const int seen = ReadInt(kSeenKey);
  if (seen < 0 || seen >= static_cast<int>(std::size(kHints))) return;
  mText->setText(LocalizedString(kHints[seen]));
  // What does not fit can be read all the same.
  mText->setToolTip(mText->text());
  show();
}

void HintBar::putAway(bool all) {
  StoreInt(kSeenKey, all ? static_cast<int>(std::size(kHints)) : ReadInt(kSeenKey) + 1);
  hide();
}

}  // namespace lurkwell
