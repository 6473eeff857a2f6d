// Copyright The Tintmill authors. All rights reserved.

#include "FolderStamps.h"
#include "StandIn/AssetFiles.h"

#include <algorithm>
#include <chrono>

namespace AssetRegistryPrivate
{
namespace
{
// No file system's clock is coarser.
const std::chrono::seconds ClockStep(2);

FString DescribeTypes()
{
	FString Types;
	for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
	{
		Types += Type.Extension + TEXT(":") + Type.ClassName.ToString() + TEXT(";");
	}
	return Types;
}

bool HasLinks(const std::filesystem::path& Folder)
{
	std::error_code Error;
	for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
	{
		if (It->is_symlink(Error))
		{
			return true;
		}
	}
	return static_cast<bool>(Error);
}
}
}

void FFolderStamps::Remember(const FString& Folder, const TArray<FString>& Folders, std::filesystem::file_time_type ScanStart)
{
	Scans.erase(
		std::remove_if(Scans.begin(), Scans.end(), [&Folder](const FScan& Scan) { return Scan.Folder.Equals(Folder); }), Scans.end());
	FScan New{Folder, AssetRegistryPrivate::DescribeTypes(), {}};
	for (const FString& Name : Folders)
	{
		std::error_code Error;
		// Windows knows no folder under a name with a slash at its end.
		const std::filesystem::path Path(*Name);
		FStamp Stamp{Path.has_filename() ? Path : Path.parent_path(), {}};
		Stamp.Time = std::filesystem::last_write_time(Stamp.Path, Error);
		if (Error || Stamp.Time + AssetRegistryPrivate::ClockStep > ScanStart || AssetRegistryPrivate::HasLinks(Stamp.Path))
		{
			return;
		}
		New.Stamps.push_back(std::move(Stamp));
	}
	Scans.push_back(std::move(New));
}

bool FFolderStamps::IsUnchanged(const FString& Folder) const
{
	const auto Scan =
		std::find_if(Scans.begin(), Scans.end(), [&Folder](const FScan& Candidate) { return Candidate.Folder.Equals(Folder); });
	return Scan != Scans.end() && Scan->Types.Equals(AssetRegistryPrivate::DescribeTypes())
		&& std::all_of(Scan->Stamps.begin(), Scan->Stamps.end(), [](const FStamp& Stamp) {
			   std::error_code Error;
			   return std::filesystem::last_write_time(Stamp.Path, Error) == Stamp.Time && !Error;
		   });
}
