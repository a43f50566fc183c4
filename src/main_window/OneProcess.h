#pragma once

#include <QString>
#include <functional>

#include "main_window/CommandTable.h"
#include "platform/ProcessIdentity.h"

class QMenu;

namespace lurkwell {

/// Fills an empty menu with the commands for one process, which need not be selected anywhere, nor
/// have a row. They go to windows and application of `scope`; `report` takes what became of them.
/// Main thread.
void FillMenuOfOne(QMenu& menu, ProcessIdentity process, const CommandScope& scope,
                   const std::function<void(const QString&)>& report);

}  // namespace lurkwell
