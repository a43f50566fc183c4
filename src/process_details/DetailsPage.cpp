#include "process_details/DetailsPage.h"

#include <QVBoxLayout>
#include <algorithm>

#include "consolidator/PI_Consolidator.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

// Seconds.
constexpr double kBetweenReadings = 2.0;
constexpr double kRestFactor = 20.0;
constexpr double kFirstLook = 0.02;
constexpr double kSeldomLook = 0.2;
constexpr double kBetweenTries = 1.0;
constexpr double kPatience = 1.0;

}  // namespace

DetailsListPage::DetailsListPage(ProcessIdentity process, DetailsKind kind, QWidget* parent)
    : DetailsPage(parent), mProcess(process), mKind(kind) {
  const auto& look = LookOf(kind);
  mTable = new DetailsTable(Title(), look.columns, look.sortColumn, look.sortOrder, this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mTable);
}

DetailsListPage::~DetailsListPage() = default;

QString DetailsListPage::Title() const {
  return LocalizedString(LookOf(mKind).title);
}

void DetailsListPage::SetSeen(bool isSeen) {
  if (!isSeen || mHasEnded) {
    mTimer.reset();
    mReading.reset();
    return;
  }
  if (mTimer != nullptr) return;
  if (!mHasRows) mTable->SetNotice(LocalizedString("details_reading"));
  Look();
}

void DetailsListPage::SetEnded() {
  mHasEnded = true;
  SetSeen(false);
  if (!mHasRows) mTable->SetNotice(LocalizedString("details_ended_before"));
}

void DetailsListPage::LookIn(double seconds) {
  const auto when = TheMachine().clock.AbsoluteTime() + seconds;
  if (mTimer == nullptr) {
    mTimer = TheMachine().runLoop.AddTimer(when, 0, [this] { Look(); });
  } else {
    mTimer->SetNextFireDate(when);
  }
}

void DetailsListPage::Look() {
  const auto now = TheMachine().clock.AbsoluteTime();
  if (mReading == nullptr) {
    mReading = TheMachine().processDetails.Begin(mProcess, mKind);
    mAskedAt = now;
    if (mReading != nullptr) return LookIn(kFirstLook);
    if (!mHasRows) mTable->SetNotice(LocalizedString("details_too_many_hang"));
    return LookIn(kBetweenTries);
  }
  const auto answer = mReading->Take();
  if (!answer) {
    const auto waited = now - mAskedAt;
    if (waited > kPatience && !mHasRows) mTable->SetNotice(LocalizedString("details_waiting"));
    if (waited > kPatience && mHasRows) mTable->SetFooter(LocalizedString("details_waiting"));
    return LookIn(std::clamp(waited, kFirstLook, kSeldomLook));
  }
  mReading.reset();
  Show(*answer);
  LookIn(std::max(kBetweenReadings, kRestFactor * static_cast<double>(answer->taken) / 1e6));
}

void DetailsListPage::Show(const DetailsAnswer& answer) {
  // What was there stays; that it has ended is the window's to say.
  if (answer.state == DetailsState::kEnded) return;
  const auto notice = NoticeOf(answer);
  mHasRows = notice.isEmpty();
  mTable->SetRows(answer.state == DetailsState::kKnown ? mRows.Make(answer)
                                                       : std::vector<DetailsRow>());
  mTable->SetFooter(mHasRows ? CountText(mKind, answer) : QString());
  mTable->SetNotice(notice);
}

QString DetailsListPage::NoticeOf(const DetailsAnswer& answer) const {
  const auto text = [](const char* id) { return LocalizedString(id); };
  switch (answer.state) {
    case DetailsState::kKnown:
      return answer.count == 0 ? text("details_nothing") : QString();
    case DetailsState::kRefused: {
      const auto value = GetPIDPropertyTypedValue(mProcess.pid, "pid_owner");
      const auto* owner = std::get_if<std::string>(&value);
      if (owner == nullptr || owner->empty()) return text("details_refused");
      return text("details_refused_owner").arg(PlainText(*owner));
    }
    case DetailsState::kKeptSecret:
      return text("details_kept_secret");
    case DetailsState::kNone:
      return text("details_none");
    case DetailsState::kFailed:
      return text("details_failed");
    case DetailsState::kEnded:
      break;
  }
  return {};
}

}  // namespace lurkwell
