// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/UnrealString.h"

#include <filesystem>
#include <vector>

// Spares scans that would find nothing new: a folder's time of change tells of files that came, went or were renamed. What
// happened shortly before a scan may have the same time as the scan and is not relied on, and neither are folders with links.

/** When the folders below scanned ones had changed last. */
class FFolderStamps
{
public:
	/** A moment before a scan begins. */
	static std::filesystem::file_time_type Now() { return std::filesystem::file_time_type::clock::now(); }

	/** Notes the folders that a scan of Folder met; the scan began at ScanStart. */
	void Remember(const FString& Folder, const TArray<FString>& Folders, std::filesystem::file_time_type ScanStart);

	/** Says whether a scan of Folder would find what the last one found. */
	bool IsUnchanged(const FString& Folder) const;

	/** Has every folder scanned again. */
	void Forget() { Scans.clear(); }

private:
	struct FStamp
	{
		std::filesystem::path Path;
		std::filesystem::file_time_type Time;
	};

	struct FScan
	{
		FString Folder;
		/** Which files were assets then. */
		FString Types;
		std::vector<FStamp> Stamps;
	};

	std::vector<FScan> Scans;
};
