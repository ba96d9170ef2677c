// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <set>

/// The topics that a daily report is made of, and the ones that are wanted.
class ReportTopics {
 public:
  struct Topic {
    const char *key;
    const char *text;  ///< translated in the context "frmDayPrint"
  };

  static constexpr const char *MainKey = "Main";
  static constexpr const char *MainText = QT_TRANSLATE_NOOP("frmDayPrint", "Topic List");
  static const std::array<Topic, 12> &List();

  static ReportTopics All();
  /// From keys in any case; an empty list is all topics. Throws UsageError that names an unknown key and the known ones.
  static ReportTopics FromKeys(const QStringList &keys);

  void Set(const QString &key, bool wanted);
  bool Has(const char *key) const { return keys_.count(QLatin1String(key)) > 0; }
  bool HasPrediction() const;

 private:
  std::set<QString> keys_;
};
