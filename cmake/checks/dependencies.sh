#!/usr/bin/env bash
# Dependencies point one way: the product names only the engine and the runtime module, the stand-in neither product nor host.
status=0

# forbid WHAT PATTERN PATH...: no line of the paths matches.
forbid()
{
    local what=$1 pattern=$2
    shift 2
    if git grep -nE "$pattern" -- "$@"; then
        printf '%s\n' "$what"
        status=1
    fi
}

forbid 'Source/ must not know the stand-in or the build around it.' '[Ss]tand-?[Ii]n|CMake|[^A-Za-z]Host/' 'Source/'
forbid 'The stand-in must not include the host or the product.' \
    '#include "(Host/|TintmillEditor|.*AssetTypeActions_Tintmill|.*TintmillObjectFactory|.*STintmillWidget|ViewportCapture)' 'StandIn/'
forbid 'The stand-in engine must not include the runtime module.' '#include "Tintmill' 'StandIn/Engine'
forbid 'Only the look pass uses OpenColorIO in the stand-in.' '#include <OpenColorIO' 'StandIn/' ':!StandIn/Tintmill/Private/LookPass'
forbid 'The stand-in engine needs the standard library alone.' '#include <(cairo|pango|SDL|CLI|gtest)' 'StandIn/Engine'
exit $status
