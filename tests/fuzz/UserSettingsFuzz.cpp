// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// The user's own settings: the day is shown by them, or one sentence says that they cannot be used; a write keeps the others.
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "platform/Errors.h"
#include "platform/UserSettings.h"

namespace {

constexpr SettingKey Keys[] = {SettingKeys::AyanType,     SettingKeys::RahuKetuMode, SettingKeys::CustAyan,    SettingKeys::KundStyle,
                               SettingKeys::DoneSetup,    SettingKeys::UpagrahaMode, SettingKeys::CalcMangMod, SettingKeys::CalcVarMod,
                               SettingKeys::DayDivisions, SettingKeys::SunriseRule,  SettingKeys::WindowState, SettingKeys::TopPos,
                               SettingKeys::LeftPos,      SettingKeys::Width,        SettingKeys::Height};

QStringList Values(const UserSettings &settings) {
  QStringList values;
  for (const SettingKey &key : Keys)
    values << settings.Value(key) << QString::number(settings.IntValue(key)) << QString::number(settings.BoolValue(key));
  return values;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  FuzzFolder &folder = FuzzFolder::Only();
  folder.BeginSettings(content);
  const int code = folder.RunDaily(content);
  Require(FuzzFolder::Read(folder.SettingsPath()) == content, "showing the day leaves the settings as they are");
  try {
    FileUserSettings settings;
    QStringList before = Values(settings);
    settings.SetValue(SettingKeys::KundStyle, QStringLiteral("2"));
    const QStringList after = Values(FileUserSettings());
    Require(after[9] == QLatin1String("2"), "what is written reads back");
    for (int at = 9; at < 12; ++at) before[at] = after[at];
    Require(after == before, "a write changes no other setting");
  } catch (const StoreError &error) {
    Require(code == 1 && !error.Sentence().isEmpty(), "settings that cannot be read are told in both programs");
  }
  return 0;
}
