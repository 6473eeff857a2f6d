# Shell functions that ./run and ./test share: what a fresh Debian machine lacks, and one build.

# What the build and its programs need beyond a bare Debian 12.
PACKAGES=(
    build-essential cmake ninja-build pkg-config ccache
    libopencolorio-dev libcairo2-dev libpango1.0-dev libsdl2-dev libcli11-dev fonts-roboto-unhinted
)

# What the tests need on top.
TEST_PACKAGES=(
    libgtest-dev libgmock-dev librapidcheck-dev libbenchmark-dev clang clang-format binutils xvfb xdotool
)

# What ./test --windows needs on top of both: the cross-compiler, Wine, and the tests' library as source.
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix wine wine64 googletest)

# say TEXT: one line on what goes on.
say()
{
    printf '== %s\n' "$*" >&2
}

# install_packages [PACKAGE...]: installs what is missing of PACKAGES and the arguments; asks nothing.
install_packages()
{
    local missing=() package
    for package in "${PACKAGES[@]}" "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    local sudo=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { say "Packages are missing and neither root nor sudo is here. Install: ${missing[*]}"; exit 2; }
        sudo=(sudo)
    fi
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    local log
    log=$(mktemp)
    if ! { "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq &&
        "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
        cat "$log" >&2
        say "The packages could not be installed. Install them by hand: ${missing[*]}"
        exit 2
    fi
    rm -f "$log"
}

# configure PRESET: lays out build/PRESET, or brings it up to date; the log only when something fails.
configure()
{
    local log=build/$1/configure.log
    mkdir -p "build/$1"
    say "Configuring build/$1"
    cmake --preset "$1" >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
}

# build PRESET TARGET...: configures where needed and builds; progress on one line, the log only when something fails.
build()
{
    local preset=$1 log=build/$1/build.log
    shift
    [ -f "build/$preset/build.ninja" ] || configure "$preset"
    say "Building $* in build/$preset"
    if [ -t 2 ]; then
        ninja -C "build/$preset" "$@" >&2
    else
        progress_lines "$log" ninja -C "build/$preset" "$@"
    fi
}

# progress_lines LOG COMMAND...: runs the command, prints a line at every tenth of its steps, all of its output if it fails.
progress_lines()
{
    local log=$1 status=()
    shift
    # Read in the same list: the next command, be it "true", would put its own status in the pipeline's place.
    NINJA_STATUS='[%f/%t] ' "$@" 2>&1 | tee "$log" | awk '
        match($0, /^\[[0-9]+\/[0-9]+\]/) {
            split(substr($0, 2, RLENGTH - 2), step, "/")
            tenth = int(10 * step[1] / step[2])
            if (tenth != last) { print "   " step[1] " of " step[2]; fflush(); last = tenth }
        }' >&2 && status=(0) || status=("${PIPESTATUS[@]}")
    if [ "${status[0]}" -ne 0 ]; then
        grep -v '^\[[0-9]*/[0-9]*\] \(Building\|Linking\|Generating\)' "$log" >&2 || true
        exit "${status[0]}"
    fi
}
