#!/usr/bin/env bash
# Every product file compiles alone, and all of them as one, for Windows with the extensions of Microsoft's compiler on.
set -uo pipefail
build_dir=$1
work=$build_dir/Results/microsoft
mkdir -p "$work"
flags=(--target=x86_64-w64-mingw32 -fms-extensions -std=c++14 -fno-rtti -fno-exceptions -Wall -Wextra -Wshadow -Wundef
    -Wsuggest-override -Werror -fsyntax-only @"$build_dir/product-flags.txt")
# The headers of the C++ library belong to the compiler that made the build.
while read -r folder; do
    flags+=(-isystem "$folder")
done < <(x86_64-w64-mingw32-g++-posix -E -x c++ -v - </dev/null 2>&1 | sed -n '/^#include </,/^End of/s/^ //p' | grep 'c++')
status=0

mapfile -t sources < <(git ls-files 'Source/*.cpp')
mapfile -t headers < <(git ls-files 'Source/*.h')
printf '#include "%s"\n' "${sources[@]/#/$PWD/}" >"$work/Concatenated.cpp"
for header in "${headers[@]}"; do
    printf '#include "%s"\n' "$PWD/$header" >"$work/$(basename "$header").cpp"
done
for file in "${sources[@]}" "$work"/*.cpp; do
    clang++ "${flags[@]}" -x c++ "$file" || { printf '%s does not compile.\n' "$file"; status=1; }
done
exit $status
