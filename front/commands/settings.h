// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of the ring and of the program, and the commands that show or change them.
//
// A change of characteristic, dimension or ordering deletes every identifier: schemes are never
// converted to a new ring.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// Prints dimension, ring and ordering, and Line.
void show_settings();

// Prints the welcome banner.
void hello();

// Each reads what it needs, answers on standard output, and throws end_of_input where the input
// ends; then the setting stays as it was, but set_dim has deleted the identifiers before it asks
// for names.
void characteristic(session& z);
void set_dim(session& z);
void identifiers(session& z);
void range(session& z);

void deglex(session& z);
void degrevlex(session& z);

// Refusals of commands that another program answers.
void root();
void cyclotom();

}  // namespace zep::front
