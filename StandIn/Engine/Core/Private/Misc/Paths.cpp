// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Paths.h"

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformProcess.h"
#include "Misc/App.h"

#include <string>
#include <vector>

namespace
{
FString& ProjectFilePath()
{
	static FString* const Path = new FString();
	return *Path;
}

bool IsSlash(TCHAR Char)
{
	return Char == '/' || Char == '\\';
}

/** Index of the last slash, or INDEX_NONE. */
int32 FindLastSlash(const FString& Path)
{
	for (int32 Index = Path.Len() - 1; Index >= 0; --Index)
	{
		if (IsSlash(Path[Index]))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Index of the dot of the file name's extension, or INDEX_NONE. */
int32 FindExtensionDot(const FString& Path)
{
	for (int32 Index = Path.Len() - 1; Index >= 0 && !IsSlash(Path[Index]); --Index)
	{
		if (Path[Index] == '.')
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

/** Splits at slashes; the root ("/", "//" or "C:/") is a piece of its own in front. */
std::vector<FString> SplitPath(const FString& Path, FString& OutRoot)
{
	int32 At = 0;
	OutRoot.Empty();
	if (Path.Len() >= 2 && Path[1] == ':')
	{
		OutRoot = Path.Left(2);
		At = 2;
	}
	while (At < Path.Len() && Path[At] == '/')
	{
		OutRoot += TEXT("/");
		++At;
	}
	std::vector<FString> Pieces;
	while (At < Path.Len())
	{
		int32 End = At;
		while (End < Path.Len() && Path[End] != '/')
		{
			++End;
		}
		Pieces.push_back(Path.Mid(At, End - At));
		At = End + 1;
	}
	return Pieces;
}
}

FString FPaths::EngineDir()
{
	static const FString Dir = [] {
		FString Path = FString(FPlatformProcess::BaseDir()) + TEXT("../../");
		CollapseRelativeDirectories(Path);
		return Path;
	}();
	return Dir;
}

FString FPaths::EngineContentDir()
{
	return EngineDir() + TEXT("Content/");
}

FString FPaths::EngineConfigDir()
{
	return EngineDir() + TEXT("Config/");
}

FString FPaths::EnginePluginsDir()
{
	return EngineDir() + TEXT("Plugins/");
}

FString FPaths::EngineSavedDir()
{
	return EngineDir() + TEXT("Saved/");
}

FString FPaths::ProjectDir()
{
	return IsProjectFilePathSet() ? GetPath(ProjectFilePath()) + TEXT("/") : EngineDir();
}

FString FPaths::ProjectContentDir()
{
	return ProjectDir() + TEXT("Content/");
}

FString FPaths::ProjectConfigDir()
{
	return ProjectDir() + TEXT("Config/");
}

FString FPaths::ProjectSavedDir()
{
	return ProjectDir() + TEXT("Saved/");
}

FString FPaths::ProjectIntermediateDir()
{
	return ProjectDir() + TEXT("Intermediate/");
}

FString FPaths::ProjectPluginsDir()
{
	return ProjectDir() + TEXT("Plugins/");
}

FString FPaths::ProjectLogDir()
{
	return ProjectSavedDir() + TEXT("Logs/");
}

FString FPaths::GeneratedConfigDir()
{
	return ProjectSavedDir() + TEXT("Config/");
}

bool FPaths::IsProjectFilePathSet()
{
	return !ProjectFilePath().IsEmpty();
}

FString FPaths::GetProjectFilePath()
{
	return ProjectFilePath();
}

void FPaths::SetProjectFilePath(const FString& NewGameProjectFilePath)
{
	FString Path = NewGameProjectFilePath;
	if (!Path.IsEmpty())
	{
		Path = ConvertRelativePathToFull(Path);
	}
	FApp::SetProjectName(*GetBaseFilename(Path));
	ProjectFilePath() = Path;
}

FString FPaths::GetExtension(const FString& InPath, bool bIncludeDot)
{
	const int32 Dot = FindExtensionDot(InPath);
	return Dot == INDEX_NONE ? FString() : InPath.Mid(bIncludeDot ? Dot : Dot + 1);
}

FString FPaths::GetCleanFilename(const FString& InPath)
{
	return InPath.Mid(FindLastSlash(InPath) + 1);
}

FString FPaths::GetBaseFilename(const FString& InPath, bool bRemovePath)
{
	const FString Name = bRemovePath ? GetCleanFilename(InPath) : InPath;
	const int32 Dot = FindExtensionDot(Name);
	return Dot == INDEX_NONE ? Name : Name.Left(Dot);
}

FString FPaths::GetPath(const FString& InPath)
{
	const int32 Slash = FindLastSlash(InPath);
	return Slash == INDEX_NONE ? FString() : InPath.Left(Slash);
}

FString FPaths::ChangeExtension(const FString& InPath, const FString& InNewExtension)
{
	const int32 Dot = FindExtensionDot(InPath);
	if (Dot == INDEX_NONE)
	{
		return InPath;
	}
	const bool bHasDot = InNewExtension.StartsWith(TEXT("."));
	return InPath.Left(Dot) + (bHasDot || InNewExtension.IsEmpty() ? TEXT("") : TEXT(".")) + InNewExtension;
}

bool FPaths::FileExists(const FString& InPath)
{
	return IFileManager::Get().FileExists(*InPath);
}

bool FPaths::DirectoryExists(const FString& InPath)
{
	return IFileManager::Get().DirectoryExists(*InPath);
}

bool FPaths::IsRelative(const FString& InPath)
{
	const bool bHasDrive = InPath.Len() >= 2 && InPath[1] == ':';
	return !bHasDrive && (InPath.Len() == 0 || !IsSlash(InPath[0]));
}

bool FPaths::IsSamePath(const FString& PathA, const FString& PathB)
{
	FString A = ConvertRelativePathToFull(PathA);
	FString B = ConvertRelativePathToFull(PathB);
	NormalizeDirectoryName(A);
	NormalizeDirectoryName(B);
	return PLATFORM_WINDOWS ? A == B : A.Equals(B);
}

bool FPaths::IsUnderDirectory(const FString& InPath, const FString& InDirectory)
{
	const FString Path = ConvertRelativePathToFull(InPath);
	FString Directory = ConvertRelativePathToFull(InDirectory);
	NormalizeDirectoryName(Directory);
	return Path.StartsWith(Directory + TEXT("/"), PLATFORM_WINDOWS ? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive)
		|| IsSamePath(Path, Directory);
}

void FPaths::NormalizeFilename(FString& InPath)
{
	InPath.ReplaceInline(TEXT("\\"), TEXT("/"));
}

void FPaths::NormalizeDirectoryName(FString& InPath)
{
	NormalizeFilename(InPath);
	if (InPath.Len() > 1 && InPath.EndsWith(TEXT("/")) && !InPath.EndsWith(TEXT("//")) && !InPath.EndsWith(TEXT(":/")))
	{
		InPath = InPath.Left(InPath.Len() - 1);
	}
}

bool FPaths::CollapseRelativeDirectories(FString& InPath)
{
	FString Root;
	FString Normal = InPath;
	NormalizeFilename(Normal);
	const bool bEndsWithSlash = Normal.EndsWith(TEXT("/"));
	std::vector<FString> Kept;
	for (const FString& Piece : SplitPath(Normal, Root))
	{
		if (Piece == TEXT("."))
		{
			continue;
		}
		if (Piece != TEXT(".."))
		{
			Kept.push_back(Piece);
		}
		else if (!Kept.empty())
		{
			Kept.pop_back();
		}
		else
		{
			return false;
		}
	}
	FString Result = Root;
	for (size_t Index = 0; Index < Kept.size(); ++Index)
	{
		Result += Index > 0 ? TEXT("/") : TEXT("");
		Result += Kept[Index];
	}
	InPath = bEndsWithSlash && !Kept.empty() ? Result + TEXT("/") : Result;
	return true;
}

void FPaths::RemoveDuplicateSlashes(FString& InPath)
{
	FString Result;
	for (int32 Index = 0; Index < InPath.Len(); ++Index)
	{
		if (InPath[Index] != '/' || Index == 0 || InPath[Index - 1] != '/')
		{
			Result.AppendChar(InPath[Index]);
		}
	}
	InPath = Result;
}

FString FPaths::ConvertRelativePathToFull(const FString& InPath)
{
	return ConvertRelativePathToFull(FPlatformProcess::BaseDir(), InPath);
}

FString FPaths::ConvertRelativePathToFull(const FString& BasePath, const FString& InPath)
{
	FString Full = InPath;
	NormalizeFilename(Full);
	if (IsRelative(Full))
	{
		Full = Combine(BasePath, Full);
		NormalizeFilename(Full);
	}
	CollapseRelativeDirectories(Full);
	return Full;
}

bool FPaths::MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo)
{
	FString TargetRoot;
	FString SourceRoot;
	const std::vector<FString> Target = SplitPath(ConvertRelativePathToFull(InPath), TargetRoot);
	std::vector<FString> Source = SplitPath(ConvertRelativePathToFull(InRelativeTo), SourceRoot);
	if (TargetRoot != SourceRoot)
	{
		return false;
	}
	if (!FString(InRelativeTo).EndsWith(TEXT("/")) && !Source.empty())
	{
		Source.pop_back();
	}
	size_t Common = 0;
	while (Common < Target.size() && Common < Source.size() && Target[Common].Equals(Source[Common]))
	{
		++Common;
	}
	FString Result;
	for (size_t Index = Common; Index < Source.size(); ++Index)
	{
		Result += TEXT("../");
	}
	for (size_t Index = Common; Index < Target.size(); ++Index)
	{
		Result += Target[Index];
		Result += Index + 1 < Target.size() ? TEXT("/") : TEXT("");
	}
	InPath = Result;
	return true;
}

void FPaths::CombineInternal(FString& OutPath, const TCHAR** Paths, int32 NumPaths)
{
	for (int32 Index = 0; Index < NumPaths; ++Index)
	{
		const FString Piece(Paths[Index]);
		if (Piece.IsEmpty())
		{
			continue;
		}
		if (!OutPath.IsEmpty())
		{
			const bool bEnds = IsSlash(OutPath[OutPath.Len() - 1]);
			const bool bStarts = IsSlash(Piece[0]);
			if (bEnds && bStarts)
			{
				OutPath += Piece.Mid(1);
				continue;
			}
			if (!bEnds && !bStarts)
			{
				OutPath += TEXT("/");
			}
		}
		OutPath += Piece;
	}
}
