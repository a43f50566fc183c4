#pragma once

#include <functional>

#include "app/CommandLine.h"

class QGuiApplication;

namespace lurkwell {

class MainWindow;

/// Runs the program with its windows until the user quits, on the installed machine, whose run loop
/// must be Qt's; or, for a picture, shows the wanted window, waits for two updates of the table,
/// writes the file and ends. A QApplication exists. Gives the exit status.
/// `furnish`, if there is one, is called once the windows are made.
int RunWindowMode(const CommandLine& commandLine,
                  const std::function<void(MainWindow&)>& furnish = {});

/// Makes the program's windows light or dark, whatever the desktop has; nothing for kSystem.
void ApplyTheme(CommandLine::Theme theme);

/// Has the desktop's session manager, where there is one, start the program again at the next login
/// with the options it was started with now. The windows come back as after every start. Main
/// thread; once, before the event loop runs.
void RestartWithSession(QGuiApplication& application);

/// The same, but the session manager is told not to start this one again: a picture is soon done.
void NeverRestartWithSession(QGuiApplication& application);

}  // namespace lurkwell
