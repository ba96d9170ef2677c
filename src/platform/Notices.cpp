// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#include "platform/Notices.h"

#include <cstdio>
#include <utility>

namespace {

void WriteLine(const Notice &notice) {
  QString line = notice.title.isEmpty() ? notice.text : notice.title + QStringLiteral(": ") + notice.text;
  std::fprintf(stderr, "%s\n", line.simplified().toUtf8().constData());
}

Notices::Handler &Current() {
  static Notices::Handler handler;
  return handler;
}

}  // namespace

void Notices::Show(const Notice &notice) {
  // A copy, since a handler that opens a box may lead to another Install while it runs.
  if (const Handler handler = Current())
    handler(notice);
  else
    WriteLine(notice);
}

Notices::Handler Notices::Install(Handler handler) { return std::exchange(Current(), std::move(handler)); }

NoticeRecorder::NoticeRecorder() : former(Notices::Install([this](const Notice &notice) { seen.push_back(notice); })) {}

NoticeRecorder::~NoticeRecorder() { Notices::Install(std::move(former)); }
