#pragma once

#include <QWidget>
#include <cstdint>
#include <functional>

namespace lurkwell {

/// A pid that the user types into a small dialog over `parent`; kInvalidPID when he thinks better
/// of it. What is no pid, or not one of a process that `isThere` knows, is said in the dialog,
/// which stays with what was typed. Main thread; returns when the dialog is gone.
std::int32_t AskForPid(QWidget* parent, const std::function<bool(std::int32_t)>& isThere);

}  // namespace lurkwell
