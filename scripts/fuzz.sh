#!/usr/bin/env bash
# Runs a fuzzing campaign on one target: scripts/fuzz.sh TARGET SECONDS
# TARGET is vcard, link, lookup or settings (see fuzz/). The targets
# are built with clang, ASan and UBSan in build-fuzz/ (or
# $QUIETON_FUZZ_BUILD_DIR). Inputs found to be new go to build-fuzz/corpus/
# TARGET; the seed corpus fuzz/TARGET/corpus is read, not written. A finding
# (crash, sanitizer report, broken property, hang) is saved in
# build-fuzz/findings/TARGET/ and ends the run with a non-zero status; copy it
# into the seed corpus once it is fixed.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
if [ $# -ne 2 ]; then
    echo "usage: $0 TARGET SECONDS" >&2
    exit 2
fi
target="$1"
seconds="$2"
[ -d "$root/fuzz/$target/corpus" ] || { echo "no fuzz target '$target'" >&2; exit 2; }
"$root/scripts/deps.sh" fuzz
build="${QUIETON_FUZZ_BUILD_DIR:-$root/build-fuzz}"
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
mkdir -p "$build"
# Two campaigns may start at once: one builds at a time.
flock "$build/.build-lock" bash -c '
    cmake -S "$1" -B "$2" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUIETON_FUZZ=ON \
        -DCMAKE_C_COMPILER=clang-14 -DCMAKE_CXX_COMPILER=clang++-14 "${@:4}" >/dev/null
    cmake --build "$2" --target "fuzz_$3"' _ "$root" "$build" "$target" "${launcher[@]}"
mkdir -p "$build/corpus/$target" "$build/findings/$target"
cd "$build/findings/$target"
# The settings target writes a file per input: on a memory file system when there is one.
[ -z "${TMPDIR:-}" ] && [ -w /dev/shm ] && export TMPDIR=/dev/shm
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}"
exec "$build/fuzz/fuzz_$target" -max_total_time="$seconds" -max_len=16384 -timeout=10 -rss_limit_mb=2048 \
    -close_fd_mask=1 -print_final_stats=1 -artifact_prefix="$build/findings/$target/" \
    "$build/corpus/$target" "$root/fuzz/$target/corpus"
