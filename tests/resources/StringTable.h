#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

#include "resources/Resources.h"

namespace lurkwell {

/// The source of a language's texts; empty when it cannot be read.
struct StringTable {
  /// In their order.
  QStringList ids;
  /// By id; several where a number chooses one.
  QHash<QString, QStringList> forms;

  static StringTable Of(const QString& language) {
    QFile file(SOURCE_FOLDER "/resources/strings/lurkwell_" + language + ".ts");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader reader(&file);
    StringTable table;
    bool hasForms = false;
    while (!reader.atEnd()) {
      if (reader.readNext() != QXmlStreamReader::StartElement) continue;
      if (reader.name() == u"message") {
        table.ids += reader.attributes().value("id").toString();
        hasForms = reader.attributes().value("numerus") == u"yes";
      } else if (reader.name() == (hasForms ? u"numerusform" : u"translation")) {
        table.forms[table.ids.last()] += reader.readElementText();
      }
    }
    return reader.hasError() ? StringTable() : table;
  }
};

/// That each item of each menu can be reached by a letter that no other of its menu has.
inline void ExpectLettersOfMenus(const QStringList& ids) {
  QHash<QString, QSet<QChar>> lettersOfMenu;
  for (const QString& id : ids) {
    if (!id.startsWith("menu_")) continue;
    const QString menu = id.count('_') == 1 ? "the menu bar" : id.section('_', 1, 1);
    const QString text = LocalizedString(id.toUtf8());
    const auto at = text.indexOf('&');
    ASSERT_TRUE(at >= 0 && at + 1 < text.size() && text.count('&') == 1) << qPrintable(text);
    const QChar letter = text[at + 1].toLower();
    EXPECT_TRUE(letter.isLetter()) << qPrintable(text);
    EXPECT_FALSE(lettersOfMenu[menu].contains(letter)) << qPrintable(menu + ": " + text);
    lettersOfMenu[menu].insert(letter);
  }
  EXPECT_EQ(lettersOfMenu.size(), 11);
}

}  // namespace lurkwell
