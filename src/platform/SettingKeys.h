// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

// One per-user setting: where it lies and what it is when nothing was stored.
struct SettingKey {
  const char *section;
  const char *key;
  const char *fallback;
};

// Every per-user setting with its default, so that no key is spelled twice.
struct SettingKeys {
  static constexpr SettingKey AyanType{"Init", "AyanType", "1"};  // ayanamsha: 1 Lahiri ... 13 custom
  static constexpr int CustomAyanType = 13;
  static constexpr SettingKey RahuKetuMode{"Init", "RahuKetuMode", "1"};  // 1 mean node, 2 true node
  static constexpr SettingKey CustAyan{"Init", "CustAyan", "00.00"};      // custom ayanamsha, decimal degrees
  static constexpr SettingKey KundStyle{"Init", "KundStyle", "0"};        // 0 North, 1 East, 2 South Indian

  static constexpr SettingKey DoneSetup{"Settings", "DoneSetup", "False"};  // the first-run wizard was shown
  static constexpr SettingKey UpagrahaMode{"Settings", "UpagrahaMode", "1"};
  static constexpr SettingKey CalcMangMod{"Settings", "CalcMangMod", "1"};
  static constexpr SettingKey CalcVarMod{"Settings", "CalcVarMod", "1"};

  static constexpr SettingKey DayDivisions{"Settings", "DayDivisions", "1"};  // Rahu Kaal and the like: 1 the program's own rule, 2 exact
  static constexpr SettingKey SunriseRule{"Settings", "SunriseRule", "1"};    // of the exact day: 1 disc centre, 2 upper limb

  // Window place of the main screen, pixels; an empty text means "never stored".
  static constexpr SettingKey WindowState{"InitPosition", "WindowState", ""};
  static constexpr SettingKey TopPos{"InitPosition", "TopPos", ""};
  static constexpr SettingKey LeftPos{"InitPosition", "LeftPos", ""};
  static constexpr SettingKey Width{"InitPosition", "Width", ""};
  static constexpr SettingKey Height{"InitPosition", "Height", ""};
};
