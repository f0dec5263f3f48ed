#!/usr/bin/env bash
# clang-tidy, with the checks of .clang-tidy, on our sources. The compile
# commands of a configured build give each file its flags and include folders
# (the Qt headers for src/ui).
#   tools/lint.sh BUILD_DIR            every .cpp of src/
#   tools/lint.sh BUILD_DIR FILE...    these files; those outside src/ or gone are skipped
# Exits 1 on any finding.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:?usage: tools/lint.sh BUILD_DIR [FILE...]}
shift
[ -f "$build/compile_commands.json" ] || {
  echo "lint: $build/compile_commands.json is missing; configure the build first" >&2
  exit 2
}
tidy=$(command -v clang-tidy-14 || command -v clang-tidy) || {
  echo "lint: clang-tidy is not installed" >&2
  exit 2
}
files=()
if [ $# -eq 0 ]; then
  mapfile -t files < <(find src -name '*.cpp' | sort)
else
  for f in "$@"; do
    case "$f" in src/*.cpp) [ -f "$f" ] && files+=("$f") ;; esac
  done
fi
if [ ${#files[@]} -eq 0 ]; then
  echo "lint: no source of src/ to check"
  exit 0
fi
echo "lint: clang-tidy on ${#files[@]} file(s)"
# The build may turn warnings into errors; clang-tidy reports its own findings
# only, not the compiler's warnings, nor GCC options that clang does not know.
if printf '%s\n' "${files[@]}" |
    xargs -P "${JOBS:-$(nproc)}" -n 1 "$tidy" -p "$build" --quiet --use-color=false \
      --extra-arg=-Wno-error --extra-arg=-Wno-unknown-warning-option 2>/dev/null; then
  echo "lint: clean"
else
  echo "lint: findings above" >&2
  exit 1
fi
