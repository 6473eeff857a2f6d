#!/usr/bin/env bash
# run-suites.sh BUILD [NAME...]: runs the test programs of a build and the checks of its platform, sums up in one line.
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
build_dir=$1
shift

# run_program PROGRAM [ARGUMENT...]; the checks of the platform lie in $checks.
if [ -d "$build_dir/Engine/Binaries/Win64" ]; then
    source cmake/wine.sh
    start_wine "$build_dir"
    checks=cmake/checks-windows
    run_program() { run_in_wine "$build_dir/Engine/Binaries/Win64/$1.exe" "${@:2}"; }
else
    checks=cmake/checks
    run_program() { timeout 600 "$build_dir/Engine/Binaries/Linux/$1" "${@:2}"; }
fi

passed=0
failed=0
failures=()

# wanted NAME: whether the caller asked for it.
wanted()
{
    local word
    [ ${#selection[@]} -eq 0 ] && return 0
    for word in "${selection[@]}"; do
        [[ "${1,,}" == *"${word,,}"* ]] && return 0
    done
    return 1
}

# count PASSED FAILED NAME
count()
{
    passed=$((passed + $1))
    failed=$((failed + $2))
    [ "$2" -eq 0 ] || failures+=("$3")
    printf '%-28s %5d passed, %d failed\n' "$3" "$1" "$2"
}

# suite NAME: one GoogleTest program; a crash counts as a failure of its own.
suite()
{
    local name=$1 log="$build_dir/Results/$1.log" status ok bad
    run_program "$name" --gtest_brief=0 --gtest_output="xml:$build_dir/Results/$name.xml" </dev/null >"$log" 2>&1
    status=$?
    sed -i 's/\r$//' "$log"
    ok=$(grep -c '^\[       OK \]' "$log")
    bad=$(grep -c '^\[  FAILED  \] .* (.* ms)$' "$log")
    # A program that ends early has failed, whatever its status says.
    grep -q '^\[==========\] .* ran\.' "$log" || [ "$status" -ne 0 ] || status=1
    if [ "$status" -ne 0 ] && [ "$bad" -eq 0 ]; then
        bad=1
        printf 'The program %s ended with status %d:\n' "$name" "$status"
        tail -n 15 "$log"
    elif [ "$bad" -ne 0 ]; then
        grep -B 12 '^\[  FAILED  \] .* (.* ms)$' "$log"
        [ "$status" -eq 1 ] || printf 'The program %s ended early, with status %d.\n' "$name" "$status"
    elif [ "$ok" -eq 0 ]; then
        bad=1
        printf 'The program %s has run no test.\n' "$name"
    fi
    count "$ok" "$bad" "$name"
}

# check NAME SCRIPT: a check of the sources that prints what it found.
check()
{
    if "$2" "$build_dir"; then
        count 1 0 "$1"
    else
        count 0 1 "$1"
    fi
}

selection=("$@")
mkdir -p "$build_dir/Results"
if [ ! -s "$build_dir/suites.txt" ]; then
    printf 'There are no test programs in %s: it was configured without GoogleTest. Run ./test, which installs it.\n' "$build_dir"
    exit 2
fi

while read -r name; do
    wanted "$name" && suite "$name"
done <"$build_dir/suites.txt"

for script in "$checks"/*.sh; do
    name="check $(basename "$script" .sh)"
    wanted "$name" && check "$name" "$script"
done

[ ${#failures[@]} -eq 0 ] || printf 'Failed: %s\n' "${failures[*]}"
printf '%d passed, %d failed\n' "$passed" "$failed"
[ "$failed" -eq 0 ] && [ "$passed" -gt 0 ]
