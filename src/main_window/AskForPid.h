#pragma once

#include <QWidget>
#include <cstdint>

namespace lurkwell {

/// A pid that the user types into a small dialog over `parent`; kInvalidPID when he thinks better
/// of it. Main thread; returns when the dialog is gone.
std::int32_t AskForPid(QWidget* parent);

}  // namespace lurkwell
