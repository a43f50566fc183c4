// The log of a logging window as a file: its own, and where its user wants it.
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QPointer>
#include <QSaveFile>
#include <cstdint>
#include <deque>
#include <string>
#include <utility>

#include "monitor_windows/LoggingWindowUI.h"
#include "platform/Clock.h"
#include "platform/Machine.h"
#include "platform/ProcessManager.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

/// What the file of a log is called, without its end: "PROGRAM-PID-YYYYMMDD-HHMMSS" in local time,
/// so that files sort by program and time. Of a program's name, as it is shown, what no file
/// manager or shell trips over is kept, and not much of it.
QString LogFileName(const QString& program, std::int32_t pid, TimeValue now) {
  constexpr int kMostCharacters = 40;
  QString name;
  for (const QChar c : program.left(kMostCharacters)) {
    const bool isKept = c.isLetterOrNumber() || c == QLatin1Char('.') || c == QLatin1Char('_') ||
                        c == QLatin1Char('-');
    name += isKept ? c : QLatin1Char('_');
  }
  // Neither a hidden file nor an option.
  if (name.isEmpty() || name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char('-')))
    name.prepend(QLatin1Char('_'));
  const auto time = QDateTime::fromSecsSinceEpoch(now.seconds);
  return name + QLatin1Char('-') + QString::number(pid) + QLatin1Char('-') +
         time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
}

// A log goes to a file that the user has chosen, in place of what it held; whole, or not at all.
// Empty when it is there, else why not, in the system's words.

/// All that a log's own file has.
QString SaveLogFile(const std::string& logFile, const QString& target) {
  QFile source(QFile::decodeName(logFile.c_str()));
  if (!source.open(QIODevice::ReadOnly)) return source.errorString();
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  constexpr qint64 kPart = 1 << 20;
  while (!source.atEnd()) {
    const auto part = source.read(kPart);
    if (part.isEmpty()) return source.errorString();
    if (file.write(part) != part.size()) return file.errorString();
  }
  return file.commit() ? QString() : file.errorString();
}

/// The rows that a window without a file has.
QString SaveLogRows(const std::string& header, const std::deque<LoggedRow>& rows,
                    const QString& target) {
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  const auto write = [&file](const std::string& line) {
    file.write(line.data(), static_cast<qint64>(line.size()));
    file.write("\n", 1);
  };
  write(header);
  for (const auto& row : rows) write(row.line);
  return file.commit() ? QString() : file.errorString();
}

}  // namespace

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
