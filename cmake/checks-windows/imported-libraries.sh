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
        case " $* KERNEL32.dll msvcrt.dll " in
            *" $name "*) ;;
            *) echo "$library imports $name, which is neither the engine nor the system."; status=1 ;;
        esac
    done <<<"$found"
}

# has_no_own LIBRARY SYMBOL...: none of the symbols is defined in it, only imported.
has_no_own()
{
    local library=$1 symbol
    shift
    for symbol in "$@"; do
        if x86_64-w64-mingw32-nm --defined-only "$library" | awk '{ print $3 }' | grep -qxE "$symbol"; then
            echo "$library defines $symbol, which belongs to the engine."
            status=1
        fi
    done
}

engine_state=(GEditor GLog GConfig _ZN14FModuleManager3GetEv '_ZN5FNameC[12]EPKwN?.*' '.*NameTable.*' _ZN16FDelegateHandle14GenerateNewIDEv)
imports_only "$build_dir/Engine/Binaries/Win64/UE4Editor-Engine.dll"
imports_only "$binaries/UE4Editor-Tintmill.dll" UE4Editor-Engine.dll
imports_only "$binaries/UE4Editor-TintmillEditor.dll" UE4Editor-Engine.dll UE4Editor-Tintmill.dll
has_no_own "$binaries/UE4Editor-Tintmill.dll" "${engine_state[@]}"
has_no_own "$binaries/UE4Editor-TintmillEditor.dll" "${engine_state[@]}"
exit $status
