#!/usr/bin/env bash
# Every product file compiles alone, and all of them as one, under both compilers with the product's strictest flags.
set -uo pipefail
build_dir=$1
work=$build_dir/Results/strict
# Nothing of an earlier run: a header that has gone would be compiled for ever.
rm -rf "$work"
mkdir -p "$work"
flags=(-std=c++14 -fno-rtti -fno-exceptions -Wall -Wextra -Wshadow -Wundef -Wsuggest-override -Werror -fsyntax-only
    @"$build_dir/product-flags.txt")
status=0

# compile COMPILER FILE
compile()
{
    "$1" "${flags[@]}" -x c++ "$2" || { printf '%s does not compile with %s\n' "$2" "$1"; return 1; }
}

mapfile -t sources < <(git ls-files 'Source/*.cpp')
mapfile -t headers < <(git ls-files 'Source/*.h')
printf '#include "%s"\n' "${sources[@]/#/$PWD/}" >"$work/Concatenated.cpp"
for header in "${headers[@]}"; do
    printf '#include "%s"\n' "$PWD/$header" >"$work/$(basename "$header").cpp"
done
for compiler in g++ clang++; do
    for file in "${sources[@]}" "$work"/*.cpp; do
        compile "$compiler" "$file" || status=1
    done
done
exit $status
