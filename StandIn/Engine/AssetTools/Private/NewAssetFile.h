// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "StandIn/AssetFiles.h"

// The engine keeps a new asset in memory until it is saved. Here an asset of a kind that is kept in files of its own
// (StandIn/AssetFiles.h) has its file from the start, so that there is no asset without one.

class UClass;
class UObject;

/** The file of an asset that is being made; there is none for a class that starts without. */
class FNewAssetFile
{
public:
	/** Writes the file that an asset of a class starts with; false, with a notice and no file, when it cannot be written. */
	bool Write(const FString& PackageName, const UClass* Class);

	/** Lets the asset be filled from its file. */
	void GiveTo(UObject* Asset) const;

	/** Takes the file away again. */
	void Delete();

private:
	StandIn::FAssetFileType Type;
	FString FileName;
};
