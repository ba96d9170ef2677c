// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "platform/Errors.h"

// A user store that cannot be opened, or should not be trusted, while a sound copy of it is kept. The sentence tells of when the copy is.
class RestorableError : public StoreError {
 public:
  // Unusable: there is nothing to go on with but the copy. Doubtful: the store opens, but its bytes changed and no save did it.
  enum class State { Unusable, Doubtful };

  RestorableError(QString text, Kind reason, State storeState) : StoreError(std::move(text), reason), state(storeState) {}

  State StoreState() const { return state; }

 private:
  State state;
};
