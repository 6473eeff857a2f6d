#!/usr/bin/env bash
# The module's library exports its factory and the generated accessors, and no other symbol of the product.
build_dir=$1
library=$build_dir/Engine/Plugins/Tintmill/Binaries/Linux/libUE4Editor-TintmillEditor.so
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
found=$(nm -D --defined-only "$library" | c++filt | sed -E 's/^[0-9a-f]+ . //' |
    grep -E 'Tintmill|TML|InitializeModule' | grep -vE 'TintmillObject\b[^F]*::|FTintmillDisplay|^(typeinfo|vtable)' | sort)
if ! diff <(sort <<<"$expected") <(printf '%s\n' "$found"); then
    echo "The exported symbols of $library are not the expected ones (< expected, > found)."
    exit 1
fi
