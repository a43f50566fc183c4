#pragma once

#include <QString>
#include <memory>
#include <string>

#include "platform/Alerts.h"

class QWidget;

namespace lurkwell {

class Recorder;

/// Records the processes while the windows are there. Main thread.
class RecordingSwitch {
 public:
  RecordingSwitch();
  ~RecordingSwitch();
  RecordingSwitch(const RecordingSwitch&) = delete;
  RecordingSwitch& operator=(const RecordingSwitch&) = delete;

  /// Ends the recording, or asks for a file and begins one.
  void Toggle(QWidget* window);
  /// Begins, or says in an alert why not. A recording that is there is gone on with.
  void Begin(const QString& path);
  /// Waits five seconds at most for what is still to be written. Before the consolidator's clients
  /// go.
  void End();

  /// What is to be said about it; empty while nothing is recorded.
  QString Status() const;

 private:
  void Stop();
  void Complain(const char* title, std::string message);

  /// One of the consolidator's clients; null while nothing is recorded.
  Recorder* mRecorder = nullptr;
  QString mPath;
  std::unique_ptr<Alert> mComplaint;
};

}  // namespace lurkwell
