#!/usr/bin/env bash
# The plug-in's libraries need the engine, each other and the system, and bring no copy of the engine's state of their own.
build_dir=$1
binaries=$build_dir/Engine/Plugins/Tintmill/Binaries/Win64
status=0

# imports_only LIBRARY NAME...: the libraries it names are the given ones and the system's.
imports_only()
{
    local library=$1 found name
    shift
    found=$(x86_64-w64-mingw32-objdump -p "$library" | sed -nE 's/^\s*DLL Name: (.*)$/\1/p' | sort -u)
    for name in "$@"; do
        grep -qxF "$name" <<<"$found" || { echo "$library does not import $name."; status=1; }
    done
    while read -r name; do
        case " $* KERNEL32.dll msvcrt.dll SHELL32.dll " in
            *" $name "*) ;;
            *) echo "$library imports $name, which is neither the engine nor the system."; status=1 ;;
        esac
    done <<<"$found"
}

# Variables that must be there once a process. Functions are no witnesses: what is imported leaves a stub of its name.
engine_state='^(GEditor|GLog|GConfig|_ZN16FEditorDelegates11PreBeginPIEE|_ZN14StandInPrivate10FNameTable.*)$'

# engine_state_of LIBRARY: the names of the engine's state that it defines itself.
engine_state_of()
{
    x86_64-w64-mingw32-nm --defined-only "$1" | awk '{ print $3 }' | grep -E "$engine_state"
}

# has_no_engine_state LIBRARY
has_no_engine_state()
{
    if engine_state_of "$1"; then
        echo "$1 defines these, which belong to the engine."
        status=1
    fi
}

[ "$(engine_state_of "$build_dir/Engine/Binaries/Win64/UE4Editor-Engine.dll" | grep -cE '^(G|_ZN16)')" -eq 4 ] ||
    { echo "The engine's library does not define the variables that this check looks for."; status=1; }
imports_only "$build_dir/Engine/Binaries/Win64/UE4Editor-Engine.dll"
imports_only "$binaries/UE4Editor-Tintmill.dll" UE4Editor-Engine.dll
imports_only "$binaries/UE4Editor-TintmillEditor.dll" UE4Editor-Engine.dll UE4Editor-Tintmill.dll
imports_only "$build_dir/Engine/Binaries/Win64/tintmill-editor.exe" UE4Editor-Engine.dll
has_no_engine_state "$build_dir/Engine/Binaries/Win64/tintmill-editor.exe"
has_no_engine_state "$binaries/UE4Editor-Tintmill.dll"
has_no_engine_state "$binaries/UE4Editor-TintmillEditor.dll"
exit $status
