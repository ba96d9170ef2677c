// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
// LANGS.Dat, the list of languages: brought in line with the text files at start, then read by both programs.
#include <functional>

#include "content/Languages.h"
#include "fuzz/Fuzz.h"
#include "fuzz/FuzzFolder.h"
#include "platform/DataFiles.h"
#include "platform/Errors.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  FuzzFolder &folder = FuzzFolder::Only();
  folder.Begin("COMMON/LANGS.Dat", content);
  const QString path = folder.File("COMMON/LANGS.Dat");
  const auto leavesWhatItRefuses = [&](const std::function<void()> &work) {
    const QByteArray before = FuzzFolder::Read(path);
    try {
      work();
    } catch (const StoreError &error) {
      Require(!error.Sentence().isEmpty(), "the fault has a sentence");
      Require(FuzzFolder::Read(path) == before, "a store that is refused is left as it is");
    }
  };
  // The first may change the list, and what it has changed may still lack something that only the second asks for.
  bool isChecked = false;
  leavesWhatItRefuses([&] {
    DataFiles::CheckLanguages(folder.Paths());
    isChecked = true;
  });
  leavesWhatItRefuses([&] {
    for (const LanguageRow &language : OfferedLanguages(folder.Paths())) {
      Require(!isChecked || DataFiles::LanguageFileExists(folder.Paths(), language.Directory), "a language that is offered has its texts");
      Require(FindLanguage(folder.Paths(), language.Name).has_value(), "a language that is offered is found by its name");
    }
  });
  folder.RunDaily(content);
  return 0;
}
