#include "main_window/AskForPid.h"

#include <QInputDialog>

#include "platform/Machine.h"
#include "platform/ProcessIdentity.h"
#include "platform/ProcessTable.h"
#include "resources/Resources.h"

namespace lurkwell {

std::int32_t AskForPid(QWidget* parent) {
  bool accepted = false;
  const int pid = QInputDialog::getInt(parent, LocalizedString("main_window_by_id_title"),
                                       LocalizedString("main_window_by_id_label"), 1, 0,
                                       TheMachine().processTable.MaximumPid(), 1, &accepted);
  return accepted ? pid : kInvalidPID;
}

}  // namespace lurkwell
