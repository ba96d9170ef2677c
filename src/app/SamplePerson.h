// SPDX-FileCopyrightText: 2026 Brivanta Works
// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once

#include "analysis/BirthRecord.h"

// The person who is shown while the store holds nobody.
BirthRecord SamplePerson();
