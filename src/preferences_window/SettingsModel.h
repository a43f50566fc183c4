#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <vector>

#include "preferences/SettingTable.h"

namespace lurkwell {

/// What people call the setting, a few words. Main thread.
QString TitleOf(const Setting& setting);

/// What the setting is for, a sentence; empty without a text. Main thread.
QString MeaningOf(const Setting& setting);

/// Every setting there is, a row each in the catalogue's order: what is stored, the default, and
/// what it is for. Values are edited here, switches as check boxes, all others as text. Main thread
/// only.
class SettingsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// The first column shows the setting's title; its key is there as kKeyRole.
  enum Column { kTitle, kValue, kDefault, kKind, kEffect, kMeaning, kColumns };

  static constexpr int kKeyRole = Qt::UserRole;
  /// What a filter looks at.
  static constexpr int kFilterRole = Qt::UserRole + 1;

  explicit SettingsModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Stores a value that fits and tells those concerned; refuses any other.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  /// Whether there is something to remove. The program's own records are left to it.
  bool CanReset(int row) const;
  /// Resets those of the rows that can be, together.
  void Reset(const QList<int>& rows);

  /// Looks whether anything is different now; others change settings too.
  void Refresh();

  /// What the user should know about a row.
  QString NoteOf(int row) const;

 Q_SIGNALS:
  void refused(const QString& problem);
  void changed();

 private:
  static const Setting& EntryAt(int row);
  bool Change(const Setting& entry, const QString& text);
  QString FilteredText(const QModelIndex& index) const;
  QVariant ValueData(int row, int role) const;

  /// What is stored, as texts; null for nothing.
  std::vector<QString> fStored;
};

}  // namespace lurkwell
