# Shell functions that run programs for Windows under Wine, with a prefix inside the build tree and no trace outside of it.

# wine_program NAME: where Debian keeps one of Wine's own programs.
wine_program()
{
    local candidate
    for candidate in "/usr/lib/wine/$1" "$(command -v "$1")"; do
        [ -x "$candidate" ] && { printf '%s\n' "$candidate"; return 0; }
    done
    printf 'Wine is not on this machine: there is no %s. Run ./test --windows, which installs what it needs.\n' "$1" >&2
    return 1
}

# start_wine BUILD: sets Wine up for the caller's programs and ends its server with the caller. A program that crashes ends with a
# status of its own; Wine's debugger would hide it.
start_wine()
{
    wine=$(wine_program wine64) || exit 2
    wine_server=$(wine_program wineserver64) || exit 2
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=;winedbg.exe=d' WINESERVER=$wine_server
    WINEPREFIX=$(realpath "$1")/wine
    unset DISPLAY WAYLAND_DISPLAY
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        timeout 300 "$wine" wineboot --init >"$1/wineboot.log" 2>&1
        "$wine_server" -w
    fi
    "$wine_server" -p
    trap '"$wine_server" -k' EXIT
}

# run_in_wine PROGRAM [ARGUMENT...]: runs it with a time limit; its exit status is the caller's. Not for pipes: what Wine starts in the
# background keeps them open.
run_in_wine()
{
    timeout 600 "$wine" "$@"
}
