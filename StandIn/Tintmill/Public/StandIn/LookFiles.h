// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Containers/Array.h"

// Looks come from LUT files: .cube, .clf, .ctf, .3dl, .spi1d, .spi3d, .csp. A file is read when its asset is loaded and again when
// a poll finds that it changed, never while a picture is drawn. A file that cannot be used makes one notice and leaves every
// picture as it is; when it has been mended, the next poll takes it. A file that is deleted makes one only where the look is shown.

class UTintmillObject;

namespace StandIn
{
/** What an asset's look file is good for. */
enum class ELookState : uint8
{
	/** The asset has no file: the look of a new asset, which changes nothing. */
	None,
	/** The look can be applied. */
	Ready,
	/** The file cannot be used; the reason says why. */
	Unusable
};

/** Reads an asset's look from a file, in place of the one it had; false, with a notice, when the file cannot be used. */
TINTMILL_API bool LoadLookFile(UTintmillObject* Asset, const FString& FileName);

/** Looks at the files of all living look assets, reads those that changed, and returns the assets whose look is now another. */
TINTMILL_API TArray<UTintmillObject*> PollLookFiles();

/** The same for the assets of some files alone, by their full names; the others are not looked at. */
TINTMILL_API TArray<UTintmillObject*> PollLookFiles(const TArray<FString>& FileNames);

/** Returns what the asset's look is good for. */
TINTMILL_API ELookState GetLookState(const UTintmillObject* Asset);

/** Returns a number that is another whenever the asset's look is another or can be used no more; 0 while it has none. */
TINTMILL_API uint64 GetLookRevision(const UTintmillObject* Asset);

/** Returns why the asset's look cannot be used, "Teal.cube(17): reason"; empty when it can. */
TINTMILL_API FString GetLookProblem(const UTintmillObject* Asset);

/** Makes the notice of why the asset's look cannot be used, unless it stands already; none when it can. */
TINTMILL_API void TellLookProblem(const UTintmillObject* Asset);

/** Returns the file that the asset's look is read from; empty when it has none. */
TINTMILL_API FString GetLookFileName(const UTintmillObject* Asset);

/** Returns the key of the notices about an asset's look file. */
TINTMILL_API FString GetLookNoticeKey(const UTintmillObject* Asset);

/** Applies an asset's look at full intensity to pixels of red, green, blue, alpha; false, with the pixels untouched, when it cannot be used. */
TINTMILL_API bool ApplyLookToPixels(const UTintmillObject* Asset, uint8* Pixels, int32 PixelCount);
}
