#include "app/RecordingSwitch.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <chrono>
#include <string>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "platform/Machine.h"
#include "recording/Recorder.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {
namespace {

constexpr std::chrono::milliseconds kShortPatience{100};

}  // namespace

RecordingSwitch::RecordingSwitch() = default;
RecordingSwitch::~RecordingSwitch() = default;

void RecordingSwitch::Toggle(QWidget* window) {
  if (mRecorder != nullptr) return Stop();
  auto* dialog = new QFileDialog(window, LocalizedString("record_title"), QDir::homePath(),
                                 LocalizedString("record_filter"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  // What is there is gone on with, and nothing else is written over.
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  dialog->setDefaultSuffix(QStringLiteral("lwr"));
  dialog->selectFile(QStringLiteral("processes.lwr"));
  QObject::connect(dialog, &QFileDialog::fileSelected, window,
                   [this](const QString& path) { Begin(path); });
  dialog->open();
}

void RecordingSwitch::Begin(const QString& path) {
  if (mRecorder != nullptr) return;
  std::string words;
  mRecorder = Recorder::Create(QFile::encodeName(path).toStdString(), {}, words);
  if (mRecorder == nullptr) {
    return Complain("record_failed", std::move(words));
  }
  mPath = path;
  AddProcessInformationClient(mRecorder);
  RequestUpdate(mRecorder);
}

/// The user sees the window wait.
void RecordingSwitch::Stop() {
  const auto progress = mRecorder->Close(kShortPatience);
  End();
  if (!progress.isClosed)
    Complain("record_behind", LocalizedString("record_behind_message").toStdString());
}

void RecordingSwitch::End() {
  delete std::exchange(mRecorder, nullptr);
}

void RecordingSwitch::Complain(const char* title, std::string message) {
  AlertText text;
  text.title = LocalizedString(title).toStdString();
  text.message = std::move(message);
  text.otherButton = LocalizedString("alert_ok").toStdString();
  mComplaint = TheMachine().alerts.Ask(text, [](AlertAnswer) {});
}

QString RecordingSwitch::Status() const {
  if (mRecorder == nullptr) return {};
  const auto name = QFileInfo(mPath).fileName();
  const auto trouble = mRecorder->Progress().trouble;
  if (trouble.empty()) return LocalizedString("record_status").arg(name);
  return LocalizedString("record_trouble").arg(name, PlainText(trouble));
}

}  // namespace lurkwell
