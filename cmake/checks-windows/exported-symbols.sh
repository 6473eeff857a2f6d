#!/usr/bin/env bash
# The module's library exports its factory and the generated accessors, and no other symbol of the product.
build_dir=$1
library=$build_dir/Engine/Plugins/Tintmill/Binaries/Win64/UE4Editor-TintmillEditor.dll
expected='InitializeModule
UClass* StaticClass<UTintmillLevelViewportSettings>()
UClass* StaticClass<UTintmillObjectFactoryNew>()
UScriptStruct* StaticStruct<FTMLPerViewportDisplaySettingPair>()
FTMLPerViewportDisplaySettingPair::StaticStruct()
Get_Z_Construct_UScriptStruct_FTMLPerViewportDisplaySettingPair_Hash()
Z_Construct_UClass_UTintmillLevelViewportSettings()
Z_Construct_UClass_UTintmillLevelViewportSettings_NoRegister()
Z_Construct_UClass_UTintmillObjectFactoryNew()
Z_Construct_UClass_UTintmillObjectFactoryNew_NoRegister()
Z_Construct_UScriptStruct_FTMLPerViewportDisplaySettingPair()'

# The names in the export table stand in the last list of that heading, one a line behind "[ number]".
found=$(x86_64-w64-mingw32-objdump -p "$library" | sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/p' |
    sed -nE 's/^\s*\[ *[0-9]+\] (\S+)$/\1/p' | c++filt |
    grep -E 'Tintmill|TML|InitializeModule' | sort)
if ! diff <(sort <<<"$expected") <(printf '%s\n' "$found"); then
    echo "The exported symbols of $library are not the expected ones (< expected, > found)."
    exit 1
fi
