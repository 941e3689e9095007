#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a source below front/ writes on standard output or standard error: computations tell a
# reporter what goes on, displays write on a stream that they are given.
#   quiet_floors.sh TOP
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/checks.sh"

# Those that end the process, when there is nobody left who could be told.
cat >"$work/loud" <<'END'
base/paranoid.cpp
END

streams='\<w?(cout|cerr|clog)\>|\<(stdout|stderr|STDOUT_FILENO|STDERR_FILENO)\>'
calls='\<(v?f?w?printf|v?dprintf|f?puts|f?putc|putchar|perror|psignal|fwrite)(_unlocked)? *\('
calls+='|std::v?print(ln)?\>|(^|[^:[:alnum:]_>.])::write *\('
header='#include <(iostream|cstdio|stdio\.h|print|syncstream|syslog\.h)>'

# printing_files FOLDER...: the sources there that write where nobody has told them to.
printing_files() {
  local file
  find "$@" \( -name '*.h' -o -name '*.cpp' \) | sort | while read -r file; do
    # Comments may speak of everything.
    if sed 's|//.*||' "$file" | grep -qE "$streams|$calls|$header"; then echo "$file"; fi
  done
}

# Every way to print is seen, and nothing else.
mkdir -p "$work/loud_room" "$work/quiet_room"
number=0
while read -r line; do
  number=$((number + 1))
  printf '%s\n' "$line" >"$work/loud_room/$number.cpp"
done <<'END'
std::cout << n;
using std::cerr; cerr << n;
std::clog<<n;
std::wcout << n;
std::printf("%d", n);
fprintf(stderr, "%d", n);
puts ("n");
std::fputs("n", to);
std::putchar('n');
::write(1, text, size);
std::ostream& out = *stream_for(stdout);
std::println("n");
#include <iostream>
#include <cstdio>
END
seen=$(printing_files "$work/loud_room" | wc -l)
[ "$seen" -eq "$number" ] || complain "only $seen of $number ways to print are seen"
cat >"$work/quiet_room/quiet.cpp" <<'END'
#include <ostream>
// std::cout is not for us, nor is printf("%d", n).
void put(std::ostream& out, int n) { out << n; }
void sprint(int accounts) { out.put('n').write(text, size); snprintf(text, size, "%d", accounts); }
END
[ -z "$(printing_files "$work/quiet_room")" ] || complain 'a source that prints nothing is accused'

cd "$1"
mapfile -t floors < <(sed -n 's|^//     ||p' base/floors.h | tr ' ' '\n' | sed 's|/.*||' |
  grep -vx front | sort -u)
[ "${#floors[@]}" -gt 1 ] || complain 'base/floors.h names no floors'
printing_files "${floors[@]}" >"$work/found"

printing=$(comm -23 "$work/found" "$work/loud")
[ -z "$printing" ] || complain 'below front/, but they print:'$'\n'"$printing"
silent=$(comm -13 "$work/found" "$work/loud")
[ -z "$silent" ] || complain 'these may print, but do not:'$'\n'"$silent"
exit "$failed"
