# SPDX-License-Identifier: AGPL-3.0-or-later
# Sourced by sanitize.sh and fuzz.sh: the one instrumented build folder they share, and how the
# sanitizer runtimes report.

# clang with AddressSanitizer, UndefinedBehaviorSanitizer and libFuzzer's coverage hooks on the
# core, its tools and the test areas that don't link the widgets. The sanitizer step builds the
# tests there and the fuzz step only adds the fuzz executables, so the core compiles once.
instrumented_build="$here/build-san"
configure_instrumented() {
  if [ ! -f "$instrumented_build/build.ninja" ]; then
    cmake -S "$here" -B "$instrumented_build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
      -DORBANTA_FUZZ=ON -DORBANTA_BENCH=OFF
  fi
}

# Every report ends the program with a failure; leaks are reported at exit; stacks are symbolized.
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:halt_on_error=1:check_initialization_order=1:strict_init_order=1:detect_stack_use_after_return=1:print_summary=1"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1:report_error_type=1"
if command -v llvm-symbolizer >/dev/null; then
  export ASAN_SYMBOLIZER_PATH=$(command -v llvm-symbolizer)
fi
