// SPDX-License-Identifier: GPL-3.0-or-later
// Descriptors of files. The system's part of opening them, apart from the streams.
#pragma once

#include <string>

#include "base/floors.h"

namespace zep::front {

// What becomes of the contents of a result file that exists.
enum class existing_contents { drop, keep };

// A descriptor of a file to be read, or -1. A folder can't be opened, nor can a name with a NUL,
// which the system would take for its end. The other end of a pipe is waited for for a second.
int open_source(const std::string& name);

// A descriptor of a file to be written, or -1. Creates the file, readable for all and writable for
// owner and group unless the process's mask forbids it, or opens the one that exists, at its start
// or, if its contents are kept, at its end. A pipe can't be opened when nobody reads it within a
// second.
int open_result(const std::string& name, existing_contents existing);

}  // namespace zep::front
