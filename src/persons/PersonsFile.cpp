// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "persons/PersonsFile.h"

#include <QCoreApplication>
#include <QDate>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "persons/PersonFields.h"
#include "platform/Errors.h"

namespace {

QString tr(const char *text) { return QCoreApplication::translate("PersonsFile", text); }

// One column of the table, or one name of the object: how it is read from a person and written into one.
struct Field {
  const char *name;
  QString (*get)(const PersonRecord &);          // empty for a number that is not held
  bool (*set)(PersonRecord &, const QString &);  // false for a text that is no number where one is needed
  bool isNumber;
};

template <class Number>
bool SetWhole(Number &target, const QString &text) {
  bool isWhole = false;
  const int number = text.trimmed().toInt(&isWhole);
  if (isWhole) target = number;
  return isWhole;
}

QString NoName() { return tr("the name is missing."); }

QString WholeText(int number) { return QString::number(number); }
QString WholeText(std::optional<int> number) { return number ? QString::number(*number) : QString(); }

#define TEXT_FIELD(label, member)                                                                                                      \
  Field {                                                                                                                              \
    label, [](const PersonRecord &r) { return r.member; }, [](PersonRecord &r, const QString &t) { return r.member = t, true; }, false \
  }
#define WHOLE_FIELD(label, member)                                                    \
  Field {                                                                             \
    label, [](const PersonRecord &r) { return WholeText(r.member); },                 \
        [](PersonRecord &r, const QString &t) { return SetWhole(r.member, t); }, true \
  }

const Field PersonColumns[] = {
    TEXT_FIELD("Name", Name),
    WHOLE_FIELD("Sex", Sex),
    WHOLE_FIELD("Day", Day),
    WHOLE_FIELD("Month", Month),
    WHOLE_FIELD("Year", Year),
    WHOLE_FIELD("Hour", Hour),
    WHOLE_FIELD("Minutes", Minutes),
    WHOLE_FIELD("seconds", seconds),
    WHOLE_FIELD("AMPM", AMPM),
    TEXT_FIELD("City", birth.City),
    TEXT_FIELD("Country", birth.Country),
    WHOLE_FIELD("LatDeg", birth.LatDeg),
    WHOLE_FIELD("LatMT", birth.LatMT),
    TEXT_FIELD("TextNS", birth.TextNS),
    WHOLE_FIELD("LongDeg", birth.LongDeg),
    WHOLE_FIELD("LongMT", birth.LongMT),
    TEXT_FIELD("TextEW", birth.TextEW),
    TEXT_FIELD("GMTDIFF", birth.GMTDIFF),
    TEXT_FIELD("TCorrVal", TCorrVal),
    WHOLE_FIELD("Tcorrinde", Tcorrinde),
};

// All of them empty: no residence.
const Field ResidenceColumns[] = {
    TEXT_FIELD("ResCity", residence->City),       TEXT_FIELD("ResCountry", residence->Country),
    WHOLE_FIELD("ResLatDeg", residence->LatDeg),  WHOLE_FIELD("ResLatMT", residence->LatMT),
    TEXT_FIELD("ResTextNS", residence->TextNS),   WHOLE_FIELD("ResLongDeg", residence->LongDeg),
    WHOLE_FIELD("ResLongMT", residence->LongMT),  TEXT_FIELD("ResTextEW", residence->TextEW),
    TEXT_FIELD("ResGMTDIFF", residence->GMTDIFF),
};

#undef TEXT_FIELD
#undef WHOLE_FIELD

// The name under which a residence stands, where it is not the person's own to the letter.
const QString ResidenceName = QStringLiteral("ResName");

// The column of rows that another program wrote: what the other columns cannot tell of them, as a JSON object, "{}" where they tell all.
// Such a row comes in again as it lay in the store, however strange it is; any other is looked at.
const QString AsStored = QStringLiteral("AsStored");
const QString Bytes = QStringLiteral("bytes");

// Columns that a file made by hand may leave out.
bool MayLack(const char *name) {
  const QLatin1String column(name);
  return column == QLatin1String("seconds") || column == QLatin1String("Sex") || column == QLatin1String("AMPM") ||
         column == QLatin1String("TCorrVal") || column == QLatin1String("Tcorrinde") || column.startsWith(QLatin1String("Res"));
}

using Cells = QHash<QString, QString>;  // by lower-case column

QJsonValue OddValue(const QVariant &stored) {
  if (stored.typeId() != QMetaType::QByteArray) return QJsonValue::fromVariant(stored);
  return QJsonObject{{Bytes, QString::fromLatin1(stored.toByteArray().toBase64())}};
}

// Nothing for what no store can hold.
std::optional<QVariant> OddValue(const QJsonValue &told) {
  if (told.isNull()) return QVariant();
  if (told.isObject()) return QByteArray::fromBase64(told.toObject().value(Bytes).toString().toLatin1());
  return told.isString() || told.isDouble() ? std::optional(told.toVariant()) : std::nullopt;
}

// Empty for a sound person.
QByteArray AsStoredText(const PersonRecord &record) {
  if (record.odd.isEmpty() && PersonsFile::FaultOf(record).isEmpty()) return {};
  QJsonObject odd;
  for (auto entry = record.odd.begin(); entry != record.odd.end(); ++entry) odd.insert(entry.key(), OddValue(entry.value()));
  return QJsonDocument(odd).toJson(QJsonDocument::Compact);
}

// What no store and no file can keep becomes the sign for an unreadable character: half of a character that needs two, and the
// character 0, at which the store engine ends a name when it compares two.
QString Keepable(const QString &text) { return QString::fromUtf8(text.toUtf8()).replace(QChar(u'\0'), QChar(QChar::ReplacementCharacter)); }

// Gives the person, or the fault's sentence.
QString Assemble(const Cells &cells, PersonRecord &record) {
  const QString told = cells.value(AsStored.toLower()).trimmed();
  const QJsonDocument asStored = QJsonDocument::fromJson(told.toUtf8());
  if (!told.isEmpty() && !asStored.isObject()) return tr("'%1' is no JSON object (%2).").arg(told, AsStored);
  const QJsonObject odd = asStored.object();
  // A cell that was changed since then counts as it stands now.
  const auto takeOdd = [&](const QString &column, const QString &text) {
    const auto stored = OddValue(odd.value(column));
    const bool counts = odd.contains(column) && stored && stored->toString() == text;
    if (counts) record.odd.insert(column, *stored);
    return counts;
  };
  const auto take = [&](const Field &field) {
    const QString cell = cells.value(QLatin1String(field.name).toString().toLower()), text = Keepable(cell);
    if (takeOdd(QLatin1String(field.name), cell)) {
      const QVariant stored = record.odd.value(QLatin1String(field.name));
      field.set(record, field.isNumber ? QString::number(stored.toInt()) : stored.toString());
      return QString();
    }
    if (text.isEmpty() && MayLack(field.name) && (told.isEmpty() || field.isNumber)) return QString();
    return field.set(record, text) ? QString() : tr("'%1' is no whole number (%2).").arg(text, QLatin1String(field.name));
  };
  for (const Field &field : PersonColumns)
    if (QString fault = take(field); !fault.isEmpty()) return fault;
  bool livesSomewhere = odd.contains(ResidenceName);
  for (const Field &field : ResidenceColumns)
    livesSomewhere |= odd.contains(QLatin1String(field.name)) || !cells.value(QLatin1String(field.name).toString().toLower()).isEmpty();
  if (livesSomewhere) {
    record.residence.emplace();
    for (const Field &field : ResidenceColumns)
      if (QString fault = take(field); !fault.isEmpty()) return fault;
    if (const auto name = OddValue(odd.value(ResidenceName)); name && odd.contains(ResidenceName)) record.odd.insert(ResidenceName, *name);
  }
  if (!record.odd.contains(QStringLiteral("Name"))) {
    record.Name = record.Name.trimmed();
    if (record.Name.isEmpty()) return NoName();
  }
  if (cells.value(QStringLiteral("ampm")).isEmpty() && !record.odd.contains(QStringLiteral("AMPM")))
    record.AMPM = record.Hour >= 12 ? 2 : 1;
  return told.isEmpty() ? PersonsFile::FaultOf(record) : QString();
}

QString CellText(const PersonRecord &record, const Field &field) {
  const auto odd = record.odd.find(QLatin1String(field.name));
  return odd == record.odd.end() ? field.get(record) : odd->toString();
}

QString PlaceFault(const PlaceRecord &place) {
  const auto isAngle = [](int degrees, int minutes, int most) {
    return degrees >= 0 && degrees <= most && minutes >= 0 && minutes < 60 && (degrees < most || minutes == 0);
  };
  if (!isAngle(place.LatDeg, place.LatMT, 180)) return tr("there is no latitude %1:%2.").arg(place.LatDeg).arg(place.LatMT);
  if (!isAngle(place.LongDeg, place.LongMT, 180)) return tr("there is no longitude %1:%2.").arg(place.LongDeg).arg(place.LongMT);
  if (place.TextNS != QLatin1String("N") && place.TextNS != QLatin1String("S")) return tr("'%1' is neither N nor S.").arg(place.TextNS);
  if (place.TextEW != QLatin1String("E") && place.TextEW != QLatin1String("W")) return tr("'%1' is neither E nor W.").arg(place.TextEW);
  if (!PersonFields::ReadStoredDifference(place.GMTDIFF)) return tr("'%1' is no time difference such as +05.30.").arg(place.GMTDIFF);
  return {};
}

QString Quoted(const QString &cell) {
  const bool isBare =
      !cell.contains(u',') && !cell.contains(u'"') && !cell.contains(u'\n') && !cell.contains(u'\r') && cell.trimmed() == cell;
  return isBare ? cell : u'"' + QString(cell).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

struct Line {
  int number = 0;  // of its start, from 1
  QStringList cells;
  bool isWhole = true;  // false where a quoted cell never ends
};

std::vector<Line> SplitCsv(const QString &text, QChar separator) {
  std::vector<Line> lines;
  Line line{1, {}, true};
  QString cell;
  bool inQuotes = false, wasQuoted = false;
  int number = 1;
  const auto endCell = [&] {
    line.cells << cell;
    cell.clear();
    wasQuoted = false;
  };
  const auto endLine = [&] {
    const bool isBlank = line.cells.isEmpty() && cell.trimmed().isEmpty() && !wasQuoted;
    endCell();
    if (!isBlank) lines.push_back(line);
    line = {number + 1, {}, true};
  };
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (inQuotes) {
      if (c == u'\n') ++number;
      if (c != u'"') {
        cell += c;
      } else if (i + 1 < text.size() && text[i + 1] == u'"') {
        cell += c;
        ++i;
      } else {
        inQuotes = false;
      }
    } else if (c == u'"' && cell.isEmpty()) {
      inQuotes = wasQuoted = true;
    } else if (c == separator) {
      endCell();
    } else if (c == u'\n') {
      endLine();
      ++number;
    } else if (c != u'\r') {
      cell += c;
    }
  }
  line.isWhole = !inQuotes;
  if (!cell.isEmpty() || !line.cells.isEmpty()) endLine();
  return lines;
}

// A table program of another country writes semicolons, and tabs come from the clipboard.
QChar SeparatorOf(const QString &text) {
  const QString heading = text.left(text.indexOf(u'\n'));
  QChar best = u',';
  for (const QChar one : {QChar(u';'), QChar(u'\t')})
    if (heading.count(one) > heading.count(best)) best = one;
  return best;
}

PersonsFile::Contents ReadCsv(const QString &text) {
  const std::vector<Line> lines = SplitCsv(text, SeparatorOf(text));
  if (lines.empty()) throw ConversionError(tr("The file is empty, so there are no persons in it."));
  QStringList columns;
  for (const QString &column : lines.front().cells) columns << column.trimmed().toLower();
  for (const Field &field : PersonColumns)
    if (!MayLack(field.name) && !columns.contains(QLatin1String(field.name).toString().toLower()))
      throw ConversionError(tr("The file is no list of persons: its first line has no column %1.").arg(QLatin1String(field.name)));

  PersonsFile::Contents contents;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    QString fault;
    PersonRecord record;
    if (!lines[i].isWhole) {
      fault = tr("a quotation mark is never closed.");
    } else if (lines[i].cells.size() != columns.size()) {
      fault = tr("it has %1 cells under %2 columns.").arg(lines[i].cells.size()).arg(columns.size());
    } else {
      Cells cells;
      for (qsizetype c = 0; c < columns.size(); ++c) cells.insert(columns[c], lines[i].cells[c]);
      fault = Assemble(cells, record);
    }
    contents.Take(std::move(record), fault, lines[i].number);
  }
  return contents;
}

QString TextOf(const QJsonValue &value) {
  if (value.isObject()) return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
  return value.isDouble() ? QString::number(value.toDouble(), 'g', 15) : value.toString();
}

// The lines on which the objects inside the first list begin, from 1.
std::vector<int> LinesOfObjects(const QByteArray &content) {
  std::vector<int> lines;
  int line = 1, depth = 0, listDepth = 0;
  bool inText = false;
  for (qsizetype i = 0; i < content.size(); ++i) {
    const char c = content[i];
    if (c == '\n') ++line;
    if (inText) {
      if (c == '\\') ++i;
      inText = c != '"';
    } else if (c == '"') {
      inText = true;
    } else if (c == '{' || c == '[') {
      ++depth;
      if (c == '[' && listDepth == 0) listDepth = depth;
      if (listDepth > 0 && depth == listDepth + 1) lines.push_back(line);
    } else if (c == '}' || c == ']') {
      --depth;
    }
  }
  return lines;
}

PersonsFile::Contents ReadJson(const QByteArray &content) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(content, &error);
  if (error.error != QJsonParseError::NoError) {
    const auto line = content.left(error.offset).count('\n') + 1;
    throw ConversionError(tr("The file cannot be read: line %1 is not sound JSON (%2).").arg(QString::number(line), error.errorString()));
  }
  const QJsonValue list = document.isArray() ? QJsonValue(document.array()) : document.object().value(QStringLiteral("persons"));
  if (!list.isArray()) throw ConversionError(tr("The file is no list of persons: it holds no \"persons\"."));

  PersonsFile::Contents contents;
  const std::vector<int> lines = LinesOfObjects(content);
  std::size_t number = 0;
  for (const QJsonValue value : list.toArray()) {
    const int line = number < lines.size() ? lines[number] : 0;
    ++number;
    Cells cells;
    const QJsonObject person = value.toObject();
    for (auto entry = person.begin(); entry != person.end(); ++entry) cells.insert(entry.key().toLower(), TextOf(entry.value()));
    PersonRecord record;
    const QString fault = Assemble(cells, record);
    contents.Take(std::move(record), fault, line);
  }
  return contents;
}

}  // namespace

PersonsFile::Format PersonsFile::FormatOf(const QString &path) {
  return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive) ? Format::Json : Format::Csv;
}

QString PersonsFile::FaultOf(const PersonRecord &record) {
  if (record.Name.trimmed().isEmpty()) return NoName();
  if (record.Year < 1 || !QDate(record.Year, record.Month, record.Day).isValid())
    return tr("there is no %1 %2 %3.")
        .arg(QString::number(record.Day),
             PersonFields::MonthName(record.Month).isEmpty() ? QString::number(record.Month) : PersonFields::MonthName(record.Month),
             QString::number(record.Year));
  if (record.Hour < 0 || record.Hour > 23 || record.Minutes < 0 || record.Minutes > 59 || record.seconds < 0 || record.seconds > 59)
    return tr("there is no time %1.").arg(PersonFields::TimeText(record.Hour, record.Minutes));
  if (record.Sex != 1 && record.Sex != 2) return tr("the sex is neither 1 (male) nor 2 (female).");
  if (QString fault = PlaceFault(record.birth); !fault.isEmpty()) return fault;
  return record.residence ? PlaceFault(*record.residence) : QString();
}

void PersonsFile::Contents::Take(PersonRecord &&record, const QString &fault, int line) {
  if (!fault.isEmpty()) {
    faults << tr("Line %1: %2").arg(QString::number(line), fault);
    return;
  }
  using PersonFields::NorthPole;
  const auto isBeyond = [](const PlaceRecord &place) { return place.LatDeg > NorthPole || (place.LatDeg == NorthPole && place.LatMT > 0); };
  if (isBeyond(record.birth) || (record.residence && isBeyond(*record.residence)))
    doubts << tr("Line %1 came in; its latitude is beyond 090:00.").arg(line);
  persons.push_back(std::move(record));
}

QByteArray PersonsFile::Write(const std::vector<PersonRecord> &persons, Format format) {
  if (format == Format::Json) {
    QByteArray text("{\"persons\": [");
    for (std::size_t i = 0; i < persons.size(); ++i) {
      QJsonObject person;
      const auto insert = [&](const Field &field) {
        const QString value = CellText(persons[i], field);
        bool isWhole = false;
        const int number = value.toInt(&isWhole);
        const bool isOdd = persons[i].odd.contains(QLatin1String(field.name));
        if (!value.isEmpty() || !field.isNumber || isOdd)
          person.insert(QLatin1String(field.name), field.isNumber && isWhole && !isOdd ? QJsonValue(number) : QJsonValue(value));
      };
      for (const Field &field : PersonColumns) insert(field);
      if (persons[i].residence)
        for (const Field &field : ResidenceColumns) insert(field);
      if (const QByteArray asStored = AsStoredText(persons[i]); !asStored.isEmpty())
        person.insert(AsStored, QJsonDocument::fromJson(asStored).object());
      text += (i == 0 ? "\n" : ",\n") + QJsonDocument(person).toJson(QJsonDocument::Compact);
    }
    return text + "\n]}\n";
  }
  QByteArrayList asStored;
  for (const PersonRecord &person : persons) asStored << AsStoredText(person);
  const bool hasOdd = std::any_of(asStored.begin(), asStored.end(), [](const QByteArray &one) { return !one.isEmpty(); });
  QStringList heading;
  for (const Field &field : PersonColumns) heading << QLatin1String(field.name);
  for (const Field &field : ResidenceColumns) heading << QLatin1String(field.name);
  if (hasOdd) heading << AsStored;
  // The mark at the start tells table programs that the text is UTF-8.
  QByteArray text = "\xEF\xBB\xBF" + heading.join(u',').toUtf8() + "\r\n";
  for (std::size_t i = 0; i < persons.size(); ++i) {
    const PersonRecord &person = persons[i];
    QStringList cells;
    for (const Field &field : PersonColumns) cells << Quoted(CellText(person, field));
    for (const Field &field : ResidenceColumns) cells << (person.residence ? Quoted(CellText(person, field)) : QString());
    if (hasOdd) cells << Quoted(QString::fromUtf8(asStored[static_cast<qsizetype>(i)]));
    text += cells.join(u',').toUtf8() + "\r\n";
  }
  return text;
}

PersonsFile::Contents PersonsFile::Read(const QByteArray &content, Format format) {
  if (format == Format::Json) return ReadJson(content);
  QString text = QString::fromUtf8(content);
  if (text.startsWith(QChar(0xFEFF))) text.remove(0, 1);
  return ReadCsv(text);
}
