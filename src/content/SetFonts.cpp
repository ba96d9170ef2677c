// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "content/SetFonts.h"

#include <QWidget>
#include <map>

#include "chart/Kundali.h"
#include "engine/clsPlanets.h"

QFont SetFonts::Face(double points) {
  QFont font;
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  font.setPointSizeF(points > 0 ? points : 10);
  return font;
}

QFont SetFonts::Face(double points, bool bold) {
  QFont font = Face(points);
  font.setBold(bold);
  return font;
}

QFont SetFonts::HeadFont() const { return Face(language.HeaderSize, language.HeadBold); }
QFont SetFonts::NormalFont() const { return Face(language.NormalSize, false); }
QFont SetFonts::SubHeadFont() const { return Face(language.SubHeadSize, language.SubHeadBold); }
QFont SetFonts::SmallFont() const { return Face(language.SmallSize, false); }
QFont SetFonts::KundaliFont() const { return Face(language.KundliSize, false); }

void SetFonts::SetHeadFont(QWidget &target) const { target.setFont(HeadFont()); }
void SetFonts::SetSubHeadFont(QWidget &target) const { target.setFont(SubHeadFont()); }
void SetFonts::SetKundaliFont(Kundali &control) const { control.SetPlanetFont(KundaliFont()); }

// These two leave bold as the target has it.
void SetFonts::SetNormalFont(QWidget &target) const {
  QFont font = NormalFont();
  font.setBold(target.font().bold());
  target.setFont(font);
}

void SetFonts::SetSmallFont(QWidget &target) const {
  QFont font = SmallFont();
  font.setBold(target.font().bold());
  target.setFont(font);
}

QString SetFonts::GetSymbol(int kind, const clsPlanets &chart) {
  static const std::map<int, QString> Signs{{1, ":"}, {2, ":"}, {3, "/"}, {4, "-"}, {5, "+"}};
  static std::map<QString, QString> remembered;
  const auto sign = Signs.find(kind);
  if (sign == Signs.end()) return {};
  const auto found = remembered.find(sign->second);
  if (found != remembered.end()) return found->second;
  return remembered[sign->second] = chart.GetHeadValue(1, sign->second, QStringLiteral("Symbols"));
}
