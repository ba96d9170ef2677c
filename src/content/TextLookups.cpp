// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// A chart hands out the words of its language, found by table, head and category.
#include "engine/clsPlanets.h"
#include "platform/Errors.h"
#include "platform/Notices.h"

namespace {

const QString ItemNotFound = QStringLiteral("Item Not Found");

void ShowNotFound(const QString &rest) { Notices::Show({Notice::Kind::Information, QString(), ItemNotFound + rest}); }

QString InCategory(const QString &head, const QString &category) { return QStringLiteral(" '%1' in  '%2'").arg(head, category); }

TextDb &Opened(const std::shared_ptr<TextDb> &textDb) {
  if (!textDb) throw StoreError(QStringLiteral("No language is open, so no word can be looked up."));
  return *textDb;
}

// A lookup of the families that hand the field on as it is: a row without a text is a fault.
QString AsTheField(const std::shared_ptr<TextDb> &textDb, const char *table, const QString &head, const QString &category,
                   const QString &notFound) {
  const TextRow row = Opened(textDb).Find(QLatin1String(table), head, category);
  if (!row.found) {
    ShowNotFound(notFound);
    return {};
  }
  if (row.isNull)
    throw StoreError(QStringLiteral("The text '%1' of table %2 is empty in the language's data file.").arg(head, QLatin1String(table)));
  return row.val;
}

}  // namespace

void clsPlanets::setTextDB(std::shared_ptr<TextDb> textDatabase, std::shared_ptr<Database> personDatabase) {
  textDb = std::move(textDatabase);
  clsPerson().SetDB(std::move(personDatabase));
}

QString clsPlanets::GetTextBetween(const QString &table, const QString &head, const QString &category) const {
  const TextRow row = Opened(textDb).Find(table, head, category);
  if (!row.found) ShowNotFound(InCategory(head, category));
  return row.val;
}

QString clsPlanets::GetGenText(const QString &key) const { return GetTextBetween(QStringLiteral("cnvt"), key, QStringLiteral("Gen")); }

QString clsPlanets::GetHeadValue(int kind, const QString &head, const QString &category) const {
  switch (kind) {
    case 1: return GetTextBetween(QStringLiteral("CNVT"), head, category);
    case 2: return GetYogaText(head);
    case 3: return GetVPhalaText(head);
    case 4: return GetTextBetween(QStringLiteral("MarMatch"), head, QString());
    case 5: return GetConjText(head);
    case 6: return GetFortuneText(head, category);
    case 7: return GetYogNameText(head);
    case 8: return GetNakshatraText(head, category);
    case 9: return GetBhavaText(head, category);
    case 10: return GetMuhuText(head, category);
    case 11: return GetDailyText(head, category);
    case 12: return GetTextBetween(QStringLiteral("Transits"), head, QString());
    default: return {};
  }
}

QString clsPlanets::GetHeadValue(int kind, int head, const QString &category) const {
  return GetHeadValue(kind, QString::number(head), category);
}

QString clsPlanets::GetYogaText(const QString &head) const {
  return AsTheField(textDb, "YOGAS", head, QString(), QStringLiteral(" '%1' in  '").arg(head));
}

QString clsPlanets::GetVPhalaText(const QString &head) const {
  return AsTheField(textDb, "VPHALA", head, QString(), QStringLiteral(" '%1'").arg(head));
}

QString clsPlanets::GetConjText(const QString &head) const {
  return AsTheField(textDb, "ASP", head, QString(), InCategory(head, QString()));
}

QString clsPlanets::GetFortuneText(const QString &head, const QString &category) const {
  return AsTheField(textDb, "FORTUNE", head, category, InCategory(head, category));
}

QString clsPlanets::GetYogNameText(const QString &head) const {
  return AsTheField(textDb, "YOGNAME", head, QString(), QStringLiteral(" '%1'").arg(head));
}

QString clsPlanets::GetNakshatraText(const QString &head, const QString &category) const {
  return AsTheField(textDb, "Nakshatra", head, category, InCategory(head, category));
}

QString clsPlanets::GetBhavaText(const QString &head, const QString &category) const {
  return AsTheField(textDb, "Bhava", head, category, InCategory(head, category));
}

QString clsPlanets::GetMuhuText(const QString &head, const QString &category) const {
  return AsTheField(textDb, "Muhu", head, category, InCategory(head, category));
}

// The daily paragraphs never stop a page: a failing store gives an empty paragraph without a word.
QString clsPlanets::GetDailyText(const QString &head, const QString &category) const {
  try {
    const TextRow row = Opened(textDb).Find(QStringLiteral("Daily"), head, category);
    if (!row.found) ShowNotFound(InCategory(head, category));
    return row.val;
  } catch (const StoreError &) {
    return {};
  }
}
