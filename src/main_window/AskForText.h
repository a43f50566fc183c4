#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace lurkwell {

/// What the user reads beside the field that he types into.
struct TextQuestion {
  QString title;
  QString label;
  QString agree;
  /// Stands in the field, selected.
  QString first;
};

/// Asks for a text of one line and waits for it; empty when there is none. While `complaint` has
/// something to say about what was typed, the question stays open and says it. Main thread.
QString AskForText(QWidget* parent, const TextQuestion& question,
                   const std::function<QString(const QString&)>& complaint);

}  // namespace lurkwell
