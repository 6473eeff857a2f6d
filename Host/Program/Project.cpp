// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Project.h"

#include "Host/Program/Strings.h"

#include "Misc/App.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"

#include <system_error>

namespace TintmillHost
{
std::string FProject::Open(const std::filesystem::path& InFolder)
{
	const std::filesystem::path Wanted = InFolder.empty() ? std::filesystem::path(TINTMILL_DEMO_PROJECT) : InFolder;
	std::error_code Error;
	const std::filesystem::file_status Status = std::filesystem::status(Wanted, Error);
	if (!std::filesystem::exists(Status))
	{
		return "There is no project folder " + Wanted.string() + ": give the folder that holds your look files with --project.";
	}
	if (!std::filesystem::is_directory(Status))
	{
		return Wanted.string() + " is not a folder: give the folder that holds your look files with --project.";
	}
	std::filesystem::directory_iterator(Wanted, Error);
	if (Error)
	{
		return "The project folder " + Wanted.string() + " cannot be read: " + Error.message() + ".";
	}
	Folder = std::filesystem::canonical(Wanted, Error);
	return {};
}

void FProject::Mount() const
{
	FPaths::SetProjectFilePath(FromUtf8(FindProjectFile().string()));
	FApp::SetProjectName(*FromUtf8(GetName().substr(0, 63)));
	StandIn::RegisterMountPoint(TEXT("/Game/"), FromUtf8(GetContentFolder().string()) + TEXT("/"));
}

std::filesystem::path FProject::GetContentFolder() const
{
	std::error_code Error;
	const std::filesystem::path Content = Folder / "Content";
	return std::filesystem::is_directory(Content, Error) ? Content : Folder;
}

std::string FProject::GetName() const
{
	return FindProjectFile().stem().string();
}

std::filesystem::path FProject::FindProjectFile() const
{
	std::error_code Error;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Folder, Error))
	{
		if (Entry.path().extension() == ".uproject")
		{
			return Entry.path();
		}
	}
	return Folder / (Folder.filename().string() + ".uproject");
}
}
