#pragma once

#include <QString>

namespace lurkwell::classic {

/// What the programs around the Classic environment call each other on the session bus.
inline const QString kNubService = QStringLiteral("com.velquarin.ClassicProcessInfoNub");
inline const QString kEnvironmentService = QStringLiteral("com.velquarin.ClassicEnvironment");

/// Every program's events arrive here, by the method Deliver(class, id, parameters), "ssa(ssv)":
/// codes are texts of four characters, a parameter is its keyword, its type and its value.
inline const QString kEventPath = QStringLiteral("/com/velquarin/Events");
inline const QString kEventInterface = QStringLiteral("com.velquarin.Events");

/// The environment's own object. It answers
///
///   Applications() -> a(uussus)
///     its guests: serial number (high, low), name, type, mode, signature; numbers of processes of
///     the kernel's, which are their start and pid, are not for guests
///
///   Records() -> ay
///     the same as records of 396 bytes, with sizes and ticks
///
///   Register(name, signature) -> (u, u)
///     makes the calling program a guest while it is on the bus
///
/// and signals ApplicationsChanged(). Names in records are Mac Roman.
inline const QString kEnvironmentPath = QStringLiteral("/com/velquarin/ClassicEnvironment");
inline const QString kEnvironmentInterface = kEnvironmentService;

}  // namespace lurkwell::classic
