// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <functional>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

#include "figures/Case.h"
#include "figures/Value.h"

// A member as it is asked for: "Name(argument,argument)suffix", such as "AddDecValToDate(1.5,1,GetBirthDate).ref".
struct Question {
  QString name;
  QStringList arguments;
  QString suffix;
};

// Answers member strings for a case. Names are registered by topic, one source a topic.
class Members {
 public:
  using Answerer = std::function<Value(Members &, const Question &)>;

  explicit Members(Case &of);

  // The answer as it is printed; "error" for a fault that reaches the caller. Throws UsageError for an unknown member.
  QString Answer(const QString &member);

  Case &Of() { return theCase; }
  clsPlanets &Chart() { return target ? *target : theCase.Chart(); }
  // The birth chart of the two-chart members, whose day's chart is the case's own: the one that "Back(days)." names,
  // else the case's own too.
  clsPlanets &Birth() { return daysBack == 0 ? Chart() : theCase.Back(daysBack); }

  // An argument: a number, a product or quotient or difference of numbers, or a member of this chart.
  Value Argument(const QString &text);
  double Number(const QString &text) { return Argument(text).Number(); }
  int Whole(const QString &text) { return static_cast<int>(Number(text)); }
  QDateTime Date(const QString &text);

  static Question Parse(const QString &member);
  static bool Known(const QString &name);
  static void Register(const QString &name, Answerer answerer);

  // Registers a member function of the chart, or a static one, by its signature. An argument that is changed in
  // the caller's variable is told by the suffix ".ref".
  template <typename Result, typename... Args>
  static void Bind(const QString &name, Result (clsPlanets::*member)(Args...) const) {
    BindCall<Args...>(name, [member](clsPlanets &chart, auto &...args) { return Value((chart.*member)(args...)); });
  }
  template <typename Result, typename... Args>
  static void Bind(const QString &name, Result (*function)(Args...)) {
    BindCall<Args...>(name, [function](clsPlanets &, auto &...args) { return Value(function(args...)); });
  }

 private:
  Value Ask(const QString &member);

  template <typename T>
  std::decay_t<T> Convert(const QString &text) {
    using Plain = std::decay_t<T>;
    if constexpr (std::is_same_v<Plain, QDateTime>)
      return Date(text);
    else if constexpr (std::is_same_v<Plain, QString>)
      return text;
    else
      return static_cast<Plain>(Number(text));
  }

  template <typename... Args, size_t... Index>
  std::tuple<std::decay_t<Args>...> ConvertAll(const QStringList &texts, std::index_sequence<Index...>) {
    return {Convert<Args>(texts.value(static_cast<qsizetype>(Index)))...};
  }

  template <typename... Args, typename Call>
  static void BindCall(const QString &name, Call call) {
    Register(name, [call](Members &members, [[maybe_unused]] const Question &question) {
      auto values = members.ConvertAll<Args...>(question.arguments, std::index_sequence_for<Args...>{});
      Value answer = std::apply([&](auto &...args) { return call(members.Chart(), args...); }, values);
      if (question.suffix != QLatin1String(".ref")) return answer;
      std::apply([&](auto &...args) { (KeepReference<Args>(answer, args), ...); }, values);
      return answer;
    });
  }

  template <typename Arg, typename T>
  static void KeepReference(Value &answer, const T &value) {
    if constexpr (std::is_lvalue_reference_v<Arg> && !std::is_const_v<std::remove_reference_t<Arg>>)
      answer = Value(static_cast<int>(value));
  }

  Case &theCase;
  clsPlanets *target = nullptr;
  int daysBack = 0;
};

// The topics.
void RegisterNumberFigures();
void RegisterPersonFigures();
void RegisterChartFigures();
void RegisterSignFigures();
void RegisterDayFigures();
void RegisterDashaFigures();
void RegisterPageFigures();
void RegisterDignityFigures();
void RegisterAspectFigures();
void RegisterUpagrahaFigures();
void RegisterAshtakavargaFigures();
void RegisterCompatibilityFigures();
void RegisterVakyaFigures();
void RegisterYogaFigures();
void RegisterScoreFigures();
