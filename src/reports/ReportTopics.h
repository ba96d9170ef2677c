// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <set>
#include <span>

// The topics that a daily report is made of, and the ones that are wanted.
class ReportTopics {
 public:
  struct Topic {
    const char *key;
    const char *text;  // translated in the context "frmDayPrint"
  };
  // Topics that are ticked together. Those of the daily report are wanted unless they are unticked, the study pages when ticked.
  struct Group {
    const char *key;
    const char *text;  // translated in the context "frmDayPrint"
    bool wantedAtFirst;
    std::span<const Topic> topics;
  };

  static std::span<const Group> Groups();

  // The topics that are wanted at first.
  static ReportTopics Usual();
  // From keys in any case, of topics or of whole groups; an empty list is the usual topics. Throws UsageError that names an unknown
  // key and the known ones.
  static ReportTopics FromKeys(const QStringList &chosenKeys);
  // The keys of a group's topics, parted by commas.
  static QString KeysOf(const Group &group);

  void Set(const QString &key, bool wanted);
  bool Has(const char *key) const { return keys.count(QLatin1String(key)) > 0; }
  bool HasPrediction() const;
  bool operator==(const ReportTopics &) const = default;

 private:
  std::set<QString> keys;
};
