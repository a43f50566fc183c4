#pragma once

class QGuiApplication;

namespace lurkwell {

/// Has the desktop's session manager, where there is one, start the program again at the next login
/// with the options it was started with now. The windows come back as after every start. Main
/// thread; once, before the event loop runs.
void RestartWithSession(QGuiApplication& application);

/// The same, but the session manager is told not to start this one again: a picture is soon done.
void NeverRestartWithSession(QGuiApplication& application);

}  // namespace lurkwell
