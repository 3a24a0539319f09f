# SPDX-License-Identifier: AGPL-3.0-or-later
# Sourced by sanitize.sh and fuzz.sh: how the sanitizer runtimes report.
# Every report ends the program with a failure; leaks are reported at exit; stacks are symbolized.
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:halt_on_error=1:check_initialization_order=1:strict_init_order=1:detect_stack_use_after_return=1:print_summary=1"
export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1:report_error_type=1"
if command -v llvm-symbolizer >/dev/null; then
  export ASAN_SYMBOLIZER_PATH=$(command -v llvm-symbolizer)
fi
