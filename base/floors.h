// SPDX-License-Identifier: GPL-3.0-or-later
// The floors of the house, from the ground up: a folder each, with a namespace of its name.
//
// What is named on a floor may be used on those above it without the floor's name. A file includes
// files of its own floor and of those below; tests/floors.sh reads the order from here.
//
//     base
//     arith
//     linalg/kernels
//     linalg
//     points/ring
//     points/walk
//     points/ideal
//     points/module
//     points/koszul
//     points/strand
//     points/record
//     text
//     front/terminal
//     front/session
//     front/files
//     front/process
//     front/commands
//     front
//     reference
#pragma once

namespace zep::base {}
namespace zep::arith {
using namespace base;
}
namespace zep::linalg {
using namespace arith;
}
namespace zep::points {
using namespace linalg;
}
namespace zep::text {
using namespace points;
}
namespace zep::front {
using namespace text;
}
// For tests only: what faster forms have replaced, and the tests themselves.
namespace zep::reference {
using namespace points;
}
namespace zep::tests {
using namespace reference;
using namespace front;
}  // namespace zep::tests
