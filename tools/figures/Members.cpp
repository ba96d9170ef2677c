// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "figures/Members.h"

#include <QRegularExpression>

#include "platform/Errors.h"
#include "platform/Numbers.h"

namespace {

QHash<QString, Members::Answerer> &Registry() {
  static QHash<QString, Members::Answerer> registry;
  return registry;
}

// The charts beside the case's own, by the prefix of the member string.
clsPlanets *ChartByPrefix(Case &of, const QString &prefix) {
  if (prefix == QLatin1String("Copy")) return &of.Copy();
  if (prefix == QLatin1String("Recalc")) return &of.Recalculated();
  if (prefix == QLatin1String("Stale")) return &of.Stale();
  if (prefix == QLatin1String("Refilled")) return &of.Refilled();
  return nullptr;
}

QStringList SplitAtCommas(const QString &text) {
  QStringList parts;
  int depth = 0;
  QString part;
  for (const QChar c : text) {
    if (c == QLatin1Char('(')) ++depth;
    if (c == QLatin1Char(')')) --depth;
    if (c == QLatin1Char(',') && depth == 0) {
      parts << part;
      part.clear();
    } else {
      part += c;
    }
  }
  if (!part.isEmpty() || !parts.isEmpty()) parts << part;
  return parts;
}

}  // namespace

Members::Members(Case &of) : theCase(of) {
  static const bool registered = [] {
    RegisterNumberFigures();
    RegisterPersonFigures();
    RegisterChartFigures();
    RegisterSignFigures();
    RegisterDayFigures();
    RegisterDashaFigures();
    RegisterPageFigures();
    RegisterDignityFigures();
    RegisterAspectFigures();
    RegisterUpagrahaFigures();
    RegisterAshtakavargaFigures();
    RegisterCompatibilityFigures();
    RegisterVakyaFigures();
    RegisterYogaFigures();
    RegisterScoreFigures();
    return true;
  }();
  (void)registered;
}

void Members::Register(const QString &name, Answerer answerer) { Registry().insert(name, std::move(answerer)); }

bool Members::Known(const QString &name) {
  if (Registry().contains(name)) return true;
  const qsizetype dot = name.indexOf(QLatin1Char('.'));
  return dot > 0 && QStringList{"Copy", "Recalc", "Stale", "Refilled"}.contains(name.left(dot)) && Registry().contains(name.mid(dot + 1));
}

Question Members::Parse(const QString &member) {
  Question question;
  const qsizetype open = member.indexOf(QLatin1Char('('));
  if (open < 0) {
    // A caption without arguments; what follows a blank is its suffix.
    const qsizetype blank = member.indexOf(QLatin1Char(' '));
    question.name = blank < 0 ? member : member.left(blank);
    if (blank >= 0) question.suffix = member.mid(blank);
    return question;
  }
  int depth = 0;
  qsizetype close = open;
  for (; close < member.size(); ++close) {
    if (member[close] == QLatin1Char('(')) ++depth;
    if (member[close] == QLatin1Char(')') && --depth == 0) break;
  }
  question.name = member.left(open);
  question.arguments = SplitAtCommas(member.mid(open + 1, close - open - 1));
  question.suffix = member.mid(close + 1);
  return question;
}

Value Members::Ask(const QString &member) {
  Question question = Parse(member);
  if (question.name == QLatin1String("Back")) {
    const int before = std::exchange(daysBack, question.arguments.value(0).toInt());
    try {
      Value answer = Ask(question.suffix.mid(1));
      daysBack = before;
      return answer;
    } catch (...) {
      daysBack = before;
      throw;
    }
  }
  if (Registry().contains(question.name)) return Registry().value(question.name)(*this, question);
  const qsizetype dot = question.name.indexOf(QLatin1Char('.'));
  clsPlanets *other = dot > 0 ? ChartByPrefix(theCase, question.name.left(dot)) : nullptr;
  question.name = question.name.mid(dot + 1);
  if (!other || !Registry().contains(question.name)) throw UsageError(QStringLiteral("There is no member '%1'.").arg(member));
  clsPlanets *const before = std::exchange(target, other);
  const auto restore = [&] { target = before; };
  try {
    Value answer = Registry().value(question.name)(*this, question);
    restore();
    return answer;
  } catch (...) {
    restore();
    throw;
  }
}

QString Members::Answer(const QString &member) {
  try {
    return Ask(member).Text();
  } catch (const UsageError &) {
    throw;
  } catch (const Error &) {
    return QStringLiteral("error");
  }
}

Value Members::Argument(const QString &text) {
  bool ok = false;
  const double number = text.toDouble(&ok);
  if (ok) return Value(number);
  static const QRegularExpression product(QStringLiteral("^(\\d+)\\*(\\d+)/(\\d+)$"));
  const QRegularExpressionMatch match = product.match(text);
  if (match.hasMatch()) return Value(match.captured(1).toDouble() * match.captured(2).toDouble() / match.captured(3).toDouble());
  const qsizetype minus = text.indexOf(QLatin1String(")-"));
  if (minus > 0) return Value(Number(text.left(minus + 1)) - Number(text.mid(minus + 2)));
  return Ask(text);
}

QDateTime Members::Date(const QString &text) {
  static const QRegularExpression form(QStringLiteral("^(\\d{4}-\\d\\d-\\d\\d)(?: (\\d\\d:\\d\\d:\\d\\d))?([+-]\\d+)?h?$"));
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return Argument(text).Date();
  const QTime time = match.captured(2).isEmpty() ? QTime(0, 0) : QTime::fromString(match.captured(2), QStringLiteral("HH:mm:ss"));
  const QDateTime date(QDate::fromString(match.captured(1), Qt::ISODate), time, Qt::UTC);
  return date.addSecs(3600LL * match.captured(3).toInt());
}
