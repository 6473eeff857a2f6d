// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Host/Program/FolderWatch.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>

class UTintmillObject;

// Keeps the editor's assets as the content folder is: files that come are listed, files that go are not, looks whose files change
// are read again. A file that is still being written is left alone until it has stayed the same for a moment. While nothing
// happens it costs one question to the system. A content folder without looks makes one notice on what to do.

namespace TintmillHost
{
/** Follows the content folder of the mount point /Game/ while it lives; the asset registry must be there. */
class FContentWatch
{
public:
	/** Watches a folder; without a watch of the caller's choice, in the best way that the system has. */
	explicit FContentWatch(const std::filesystem::path& ContentFolder, std::unique_ptr<IFolderWatch> InWatch = nullptr);
	~FContentWatch();

	/** To be called every frame, with the seconds since the last call; returns the looks that are others now. */
	TArray<UTintmillObject*> Poll(double Seconds);

private:
	/** What tells whether a file has stayed the same. */
	struct FStamp
	{
		bool bExists = false;
		std::uintmax_t Size = 0;
		std::filesystem::file_time_type Time;

		static FStamp Of(const std::filesystem::path& File);
		bool operator==(const FStamp& Other) const = default;
	};

	struct FPending
	{
		FStamp Stamp;
		double UnchangedSeconds = 0.0;
	};

	void Note(const std::filesystem::path& File);
	void LookAtLoadedFiles();
	TArray<FString> TakeSettledFiles(double Seconds);
	void TellRegistry(const TArray<FString>& Files);

	void SayWhetherEmpty() const;

	std::filesystem::path Folder;
	std::unique_ptr<IFolderWatch> Watch;
	std::map<std::filesystem::path, FPending> Pending;
	std::map<std::filesystem::path, FStamp> LoadedFiles;
	double QuietSeconds = 0.0;
	double SecondsSinceLook = 0.0;
	double SecondsSinceLookAtLoaded = 0.0;
	bool bEverything = false;
};
}
