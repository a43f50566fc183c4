#include "main_window/AskForPid.h"

#include "main_window/AskForText.h"
#include "platform/Machine.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessTable.h"
#include "resources/Resources.h"

namespace lurkwell {

std::int32_t AskForPid(QWidget* parent, const std::function<bool(std::int32_t)>& isThere) {
  std::int32_t pid = kInvalidPID;
  const auto complaint = [&](const QString& text) {
    const int highest = TheMachine().processTable.MaximumPid();
    bool isNumber = false;
    pid = text.toInt(&isNumber);
    if (!isNumber || pid < 0 || pid > highest)
      return LocalizedString("main_window_by_id_no_number").arg(highest);
    return isThere(pid) ? QString() : LocalizedString("main_window_by_id_not_found").arg(pid);
  };
  const auto text = AskForText(parent,
                               {LocalizedString("main_window_by_id_title"),
                                LocalizedString("main_window_by_id_label"),
                                LocalizedString("main_window_by_id_find"),
                                {}},
                               complaint);
  return text.isEmpty() ? kInvalidPID : pid;
}

}  // namespace lurkwell
