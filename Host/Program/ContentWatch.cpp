// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/ContentWatch.h"

#include "Host/Program/ScanProgress.h"
#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/LookFiles.h"
#include "StandIn/Notices.h"
#include "TintmillObject.h"
#include "UObject/UObjectIterator.h"

#include <system_error>
#include <utility>

namespace TintmillHost
{
namespace
{
/** Between two looks at files that have changed. */
constexpr double LookSeconds = 0.1;

/** A file that stays the same for so long has been written. */
constexpr double SettledSeconds = 0.2;

/** Between two looks at the files of loaded looks where nobody tells that they are written. */
constexpr double LoadedSeconds = 1.0;

/** More files than these are missed faster by a look at all folders. */
constexpr int32 MaxSingleFiles = 16;

const TCHAR* const EmptyKey = TEXT("Content.Empty");

bool HasLooks()
{
	FARFilter Filter;
	Filter.ClassNames.Add(UTintmillObject::StaticClass()->GetFName());
	bool bHasLooks = false;
	IAssetRegistry::GetChecked().EnumerateAssets(Filter, [&bHasLooks](const FAssetData&) {
		bHasLooks = true;
		return false;
	});
	return bHasLooks;
}

bool IsLeftOut(const std::filesystem::path& Folder)
{
	try
	{
		return StandIn::IsLeftOutOfAssets(PathToEngine(Folder));
	}
	catch (const std::system_error&)
	{
		return true;
	}
}
}

FContentWatch::FContentWatch(const std::filesystem::path& ContentFolder, std::unique_ptr<IFolderWatch> InWatch)
	: Folder(ContentFolder)
	, Watch(InWatch ? std::move(InWatch) : WatchFolder(ContentFolder, &IsLeftOut))
{
	SayWhetherEmpty();
}

FContentWatch::~FContentWatch()
{
	StandIn::ClearNotice(EmptyKey);
}

TArray<UTintmillObject*> FContentWatch::Poll(double Seconds)
{
	FFolderChanges Changes = Watch->Take(Seconds);
	for (const std::filesystem::path& File : Changes.Files)
	{
		Note(File);
	}
	bEverything |= Changes.bEverything;
	QuietSeconds = Changes.bEverything || !Changes.Files.empty() ? 0.0 : QuietSeconds + Seconds;
	SecondsSinceLookAtLoaded += Seconds;
	if (Changes.bEverything || (!Watch->TellsOfWrites() && SecondsSinceLookAtLoaded >= LoadedSeconds))
	{
		SecondsSinceLookAtLoaded = 0.0;
		LookAtLoadedFiles();
	}
	SecondsSinceLook += Seconds;
	if ((Pending.empty() && !bEverything) || SecondsSinceLook < LookSeconds)
	{
		return {};
	}
	const TArray<FString> Settled = TakeSettledFiles(std::exchange(SecondsSinceLook, 0.0));
	TellRegistry(Settled);
	SayWhetherEmpty();
	return StandIn::PollLookFiles(Settled);
}

FContentWatch::FStamp FContentWatch::FStamp::Of(const std::filesystem::path& File)
{
	FStamp Stamp;
	std::error_code Error;
	Stamp.bExists = std::filesystem::is_regular_file(File, Error);
	if (Stamp.bExists)
	{
		Stamp.Size = std::filesystem::file_size(File, Error);
		Stamp.Time = std::filesystem::last_write_time(File, Error);
	}
	return Stamp;
}

void FContentWatch::Note(const std::filesystem::path& File)
{
	try
	{
		StandIn::FAssetFile Asset;
		if (StandIn::DescribeAssetFile(PathToEngine(File), Asset))
		{
			Pending[File] = {FStamp::Of(File)};
		}
	}
	catch (const std::system_error&)
	{
		// A name that is no text cannot be an asset's.
	}
}

void FContentWatch::LookAtLoadedFiles()
{
	std::map<std::filesystem::path, FStamp> Now;
	for (TObjectIterator<UTintmillObject> It; It; ++It)
	{
		const FString FileName = StandIn::GetLookFileName(*It);
		if (FileName.IsEmpty())
		{
			continue;
		}
		const std::filesystem::path File(*FileName);
		const FStamp Stamp = FStamp::Of(File);
		const auto Known = LoadedFiles.find(File);
		// One that was not known may have changed since it was read; asking costs nothing if it has not.
		if (Known == LoadedFiles.end() || Known->second != Stamp)
		{
			Note(File);
		}
		Now[File] = Stamp;
	}
	LoadedFiles = std::move(Now);
}

TArray<FString> FContentWatch::TakeSettledFiles(double Seconds)
{
	TArray<FString> Settled;
	for (auto It = Pending.begin(); It != Pending.end();)
	{
		FPending& File = It->second;
		const FStamp Stamp = FStamp::Of(It->first);
		File.UnchangedSeconds = Stamp == File.Stamp ? File.UnchangedSeconds + Seconds : 0.0;
		File.Stamp = Stamp;
		if (File.UnchangedSeconds < SettledSeconds)
		{
			++It;
			continue;
		}
		Settled.Add(PathToEngine(It->first));
		It = Pending.erase(It);
	}
	return Settled;
}

void FContentWatch::TellRegistry(const TArray<FString>& Files)
{
	IAssetRegistry& Registry = IAssetRegistry::GetChecked();
	TArray<FString> Present;
	TArray<FString> Gone;
	for (const FString& File : Files)
	{
		(FPaths::FileExists(File) ? Present : Gone).Add(File);
	}
	// What a folder lists of another name in place of one that is gone takes a look at the whole folder.
	bEverything |= Gone.Num() > MaxSingleFiles;
	if (!bEverything)
	{
		Present.Append(Gone);
	}
	if (Present.Num() > 0)
	{
		Registry.ScanModifiedAssetFiles(Present);
	}
	// A look at everything must not find what is still being written.
	if (bEverything && Pending.empty() && QuietSeconds >= SettledSeconds)
	{
		bEverything = false;
		const FScanProgress Progress;
		Registry.ScanPathsSynchronous({TEXT("/Game")}, true);
	}
}

void FContentWatch::SayWhetherEmpty() const
{
	if (HasLooks())
	{
		StandIn::ClearNotice(EmptyKey);
		return;
	}
	StandIn::AddNotice(EmptyKey,
		FString::Printf(
			TEXT("There are no looks in %s yet: copy look files (such as .cube or .clf) into this folder, or drop them onto the "
				 "editor's window."),
			*FromUtf8(PathToUtf8(Folder))));
}
}
