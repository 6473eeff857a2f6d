// Copyright The Tintmill authors. All rights reserved.

#include "FileHelpers.h"

#include "Editor.h"
#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY_STATIC(LogFileHelpers, Log, All);

namespace
{
/** Gives the long package name of a map and the path of its file; false for a file that lies outside of the content. */
bool ResolveMap(const FString& Map, FString& OutPackageName, FString& OutFilename)
{
	const FString ContentDir = FPaths::ConvertRelativePathToFull(FPaths::ProjectContentDir());
	const FString GameRoot = TEXT("/Game/");
	const FString Extension = TEXT(".umap");
	if (Map.StartsWith(GameRoot))
	{
		OutPackageName = Map;
		OutFilename = ContentDir + Map.Mid(GameRoot.Len()) + Extension;
		return true;
	}
	OutFilename = FPaths::ConvertRelativePathToFull(Map);
	if (!OutFilename.StartsWith(ContentDir) || !OutFilename.EndsWith(Extension))
	{
		return false;
	}
	const FString Relative = OutFilename.Mid(ContentDir.Len());
	OutPackageName = GameRoot + Relative.Left(Relative.Len() - Extension.Len());
	return true;
}
}

bool FEditorFileUtils::LoadMap(const FString& Filename, bool LoadAsTemplate, const bool)
{
	FString PackageName;
	FString MapFilename;
	if (!ResolveMap(Filename, PackageName, MapFilename) || !FPaths::FileExists(MapFilename))
	{
		UE_LOG(LogFileHelpers, Warning, TEXT("The map '%s' was not opened: there is no such .umap file below the project's content."),
			*Filename);
		return false;
	}
	check(GEditor);
	if (LoadAsTemplate)
	{
		GEditor->NewMap();
	}
	else
	{
		GEditor->LoadMapPackage(PackageName);
	}
	FEditorDelegates::OnMapOpened.Broadcast(MapFilename, LoadAsTemplate);
	return true;
}
