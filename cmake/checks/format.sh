#!/usr/bin/env bash
# Every source file is laid out as .clang-format says.
git ls-files '*.h' '*.cpp' | grep -v '/Golden/' | xargs clang-format --dry-run -Werror 2>&1 | grep -E 'error|warning' | head -20
exit "${PIPESTATUS[2]}"
