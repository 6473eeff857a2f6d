#!/usr/bin/env bash
# Every public header of the stand-in compiles alone in the product's language level.
set -uo pipefail
build_dir=$1
git ls-files 'StandIn/Engine/*/Public/*.h' 'StandIn/Tintmill/Public/*.h' |
    xargs -P 2 -I '{}' sh -c '
        printf "#include \"%s/%s\"\n" "$PWD" "$1" | '"${CXX:-g++}"' -std=c++14 -fno-rtti -fno-exceptions -Wall -Wextra -Wshadow \
            -Wundef -Wsuggest-override -Werror -fsyntax-only @"$0"/product-flags.txt -x c++ - || { echo "$1 does not compile alone"; exit 1; }
    ' "$build_dir" '{}'
