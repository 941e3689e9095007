// Linear strands as text files.
#pragma once

#include "front/session/session.h"

namespace zep::front {

// Each asks for a file name and opens the file, or reports that it can't be opened; then nothing is
// computed. All throw end_of_input. Nothing is printed afterwards.

// Write generators and syzygies, level by level under headings, and leave the numbers in X; the
// last one for I_X, then for w_R.
void putlinid(session& z, int identifier);
void putlinom(session& z, int identifier);
void putlinres(session& z, int identifier);

// Write the syzygies of I_X, level by level, and the linear relations of w_R.
void putlinsyz(session& z, int identifier);
void putlinomsyz(session& z, int identifier);

// Write the tables as they are; compute nothing.
void writelinid(session& z, int identifier);
void writelinom(session& z, int identifier);
void writelinres(session& z, int identifier);

}  // namespace zep::front
