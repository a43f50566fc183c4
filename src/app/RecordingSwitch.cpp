#include "app/RecordingSwitch.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <string>
#include <utility>

#include "consolidator/PI_Consolidator.h"
#include "platform/Machine.h"
#include "recording/Recorder.h"
#include "resources/Resources.h"
#include "windows/PropertyText.h"

namespace lurkwell {

RecordingSwitch::RecordingSwitch() = default;
RecordingSwitch::~RecordingSwitch() = default;

void RecordingSwitch::Toggle(QWidget* window) {
  if (mRecorder != nullptr) return End();
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
    AlertText text;
    text.title = LocalizedString("record_failed").toStdString();
    text.message = std::move(words);
    text.otherButton = "OK";
    mComplaint = TheMachine().alerts.Ask(text, [](AlertAnswer) {});
    return;
  }
  mPath = path;
  AddProcessInformationClient(mRecorder);
  RequestUpdate(mRecorder);
}

void RecordingSwitch::End() {
  delete std::exchange(mRecorder, nullptr);
}

QString RecordingSwitch::Status() const {
  if (mRecorder == nullptr) return {};
  const auto name = QFileInfo(mPath).fileName();
  const auto trouble = mRecorder->Progress().trouble;
  if (trouble.empty()) return LocalizedString("record_status").arg(name);
  return LocalizedString("record_trouble").arg(name, PlainText(trouble));
}

}  // namespace lurkwell
