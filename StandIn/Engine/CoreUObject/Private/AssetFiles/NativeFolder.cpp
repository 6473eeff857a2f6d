// Copyright The Tintmill authors. All rights reserved.

#include "AssetFiles/NativeFolder.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace StandInPrivate
{
namespace
{
bool ToText(const std::filesystem::path& Path, FString& OutText)
{
	try
	{
		const std::basic_string<TCHAR> Text = Path.generic_string<TCHAR>();
		OutText = FString(int32(Text.size()), Text.data());
		return true;
	}
	catch (const std::system_error&)
	{
		return false;
	}
}

bool ToPath(const FString& Text, std::filesystem::path& OutPath)
{
	try
	{
		OutPath = std::filesystem::path(*Text);
		return true;
	}
	catch (const std::system_error&)
	{
		return false;
	}
}
}

bool ListFolder(const FString& Folder, FFolderContent& OutContent)
{
	std::filesystem::path Path;
	std::error_code Error;
	if (!ToPath(Folder, Path))
	{
		return false;
	}
	std::filesystem::directory_iterator It(Path, Error);
	const std::filesystem::directory_iterator End;
	while (!Error && It != End)
	{
		std::error_code EntryError;
		FString Name;
		if (!ToText(It->path().filename(), Name))
		{
			++OutContent.NumUnreadableNames;
		}
		else if (It->is_directory(EntryError))
		{
			OutContent.Folders.Add(Name);
		}
		else if (It->is_regular_file(EntryError))
		{
			OutContent.Files.Add(Name);
		}
		It.increment(Error);
	}
	const auto Less = [](const FString& A, const FString& B) { return A.Compare(B) < 0; };
	OutContent.Files.Sort(Less);
	OutContent.Folders.Sort(Less);
	return !Error;
}

FString GetRealFolder(const FString& Folder)
{
	std::filesystem::path Path;
	std::error_code Error;
	FString Result;
	if (ToPath(Folder, Path))
	{
		const std::filesystem::path RealPath = std::filesystem::canonical(Path, Error);
		if (Error || !ToText(RealPath, Result))
		{
			Result.Reset();
		}
	}
	return Result;
}
}
