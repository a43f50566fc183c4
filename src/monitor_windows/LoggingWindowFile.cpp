// The log of a logging window as a file: its own, and where its user wants it.
#include <QDir>
#include <QFileDialog>
#include <QPointer>
#include <utility>

#include "monitor_windows/LogFileName.h"
#include "monitor_windows/LogSaving.h"
#include "monitor_windows/LoggingWindowUI.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {

QString LoggingWindowUI::fileName() const {
  return LogFileName(fName, mStateInfo.pid, TheMachine().clock.CalendarNow());
}

void LoggingWindowUI::openLogFile(LogFiles& logFiles) {
  auto creation = logFiles.Create(fileName().toStdString());
  fHasSaidFileFailed = creation.file == nullptr;
  mStateInfo.logFile = std::move(creation.file);
  if (mStateInfo.logFile == nullptr)
    return say(LocalizedString("logging_note_not_created").arg(PlainText(creation.problem)));
  mStateInfo.logFileName = mStateInfo.logFile->Path();
  appendToFile(LogHeader(mStateInfo));
}

void LoggingWindowUI::appendToFile(const std::string& line) {
  const auto problem = mStateInfo.logFile->Append(line);
  if (problem.empty() || std::exchange(fHasSaidFileFailed, true)) return;
  say(LocalizedString("logging_note_not_written").arg(PlainText(problem)));
}

void LoggingWindowUI::saveAs() {
  auto* dialog = new QFileDialog(fWindow, LocalizedString("logging_save_title"), QDir::homePath(),
                                 LocalizedString("logging_save_filter"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(QStringLiteral("tsv"));
  dialog->selectFile(fileName() + QStringLiteral(".tsv"));
  connect(dialog, &QFileDialog::fileSelected, this, &LoggingWindowUI::saveTo);
  dialog->open();
}

void LoggingWindowUI::saveTo(const QString& target) {
  // A file has more than the table, unless lines are missing in it.
  const bool hasAll = mStateInfo.logFile != nullptr && !fHasSaidFileFailed;
  const auto problem = hasAll ? SaveLogFile(mStateInfo.logFileName, target)
                              : SaveLogRows(LogHeader(mStateInfo), mStateInfo.logTableData, target);
  say(problem.isEmpty()
          ? LocalizedString("logging_note_saved").arg(QDir::toNativeSeparators(target))
          : LocalizedString("logging_note_not_saved").arg(problem));
}

void LoggingWindowUI::showFile() {
  if (mStateInfo.logFile == nullptr) return;
  const auto& file = mStateInfo.logFileName;
  TheMachine().processManager.ShowFile(file, [window = QPointer(this), file] {
    if (window != nullptr)
      window->say(LocalizedString("logging_note_not_shown").arg(PlainText(file)));
  });
}

}  // namespace lurkwell
