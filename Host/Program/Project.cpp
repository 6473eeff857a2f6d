// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/Project.h"

#include "Host/Program/Strings.h"

#include "Misc/App.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/Notices.h"

#include <iostream>
#include <system_error>

namespace TintmillHost
{
namespace
{
constexpr const char* WhatToGive = "give the folder that holds your look files with --project.";

/** The longest name of a project that the engine takes, in UTF-8. */
constexpr size_t MaxNameLength = 63;

/** The beginning of a text, cut between two characters. */
std::string CutText(std::string Text, size_t MaxLength)
{
	if (Text.size() > MaxLength)
	{
		while (MaxLength > 0 && (static_cast<unsigned char>(Text[MaxLength]) & 0xC0) == 0x80)
		{
			--MaxLength;
		}
		Text.resize(MaxLength);
	}
	return Text;
}
}

std::string FProject::Open(const std::filesystem::path& FolderOrFile)
{
	std::filesystem::path Wanted = FolderOrFile.empty() ? std::filesystem::path(TINTMILL_DEMO_PROJECT) : FolderOrFile;
	std::filesystem::path Preferred;
	std::error_code Error;
	std::filesystem::file_status Status = std::filesystem::status(Wanted, Error);
	if (std::filesystem::is_regular_file(Status) && Wanted.extension() == ".uproject")
	{
		Wanted = std::filesystem::absolute(Wanted, Error);
		Preferred = Wanted.filename();
		Wanted = Wanted.parent_path();
		Status = std::filesystem::status(Wanted, Error);
	}
	const std::string Name = PathToUtf8(Wanted);
	if (Status.type() == std::filesystem::file_type::not_found)
	{
		return "There is no project folder " + Name + ": " + WhatToGive;
	}
	if (Status.type() == std::filesystem::file_type::none)
	{
		return "The project folder " + Name + " cannot be reached: " + Error.message() + ".";
	}
	if (!std::filesystem::is_directory(Status))
	{
		return Name + " is not a folder: " + WhatToGive;
	}
	std::filesystem::directory_iterator(Wanted, Error);
	if (Error)
	{
		return "The project folder " + Name + " cannot be read: " + Error.message() + ".";
	}
	Folder = std::filesystem::canonical(Wanted, Error);
	FindProjectFile(Preferred);
	TakeLock();
	return {};
}

void FProject::Mount() const
{
	FPaths::SetProjectFilePath(PathToEngine(ProjectFile));
	FApp::SetProjectName(*FromUtf8(CutText(GetName(), MaxNameLength)));
	// In a plain folder of looks, the settings are among them.
	StandIn::RegisterMountPoint(TEXT("/Game/"), PathToEngine(GetContentFolder()), {PathToEngine(Folder / "Saved")});
	StandIn::AllowSaves();
	if (!ReadOnlySentence.empty())
	{
		StandIn::RefuseSaves(PathToEngine(Folder), FromUtf8(ReadOnlyReason));
		StandIn::AddNotice(TEXT("Project.ReadOnly"), FromUtf8(ReadOnlySentence));
		std::cerr << ReadOnlySentence << '\n';
	}
}

void FProject::Close()
{
	Lock.reset();
}

bool FProject::IsDemo() const
{
	return IsSameFolder(Folder, TINTMILL_DEMO_PROJECT);
}

std::filesystem::path FProject::GetDemoTour()
{
	return std::filesystem::path(TINTMILL_DEMO_PROJECT).parent_path() / "Tours" / "demo.tour";
}

std::filesystem::path FProject::GetContentFolder() const
{
	std::error_code Error;
	const std::filesystem::path Content = Folder / "Content";
	return std::filesystem::is_directory(Content, Error) ? Content : Folder;
}

std::string FProject::GetName() const
{
	return PathToUtf8(ProjectFile.stem());
}

void FProject::FindProjectFile(const std::filesystem::path& Preferred)
{
	if (!Preferred.empty())
	{
		ProjectFile = Folder / Preferred;
		return;
	}
	ProjectFile.clear();
	std::error_code Error;
	for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
	{
		// Of several, the first by name, in whatever order the system lists them.
		if (It->path().extension() == ".uproject" && (ProjectFile.empty() || It->path() < ProjectFile))
		{
			ProjectFile = It->path();
		}
	}
	if (ProjectFile.empty())
	{
		const std::filesystem::path Name = Folder.has_filename() ? Folder.filename() : std::filesystem::path("Root");
		ProjectFile = Folder / Name;
		ProjectFile += ".uproject";
	}
}

void FProject::TakeLock()
{
	std::string Why;
	Lock = std::make_unique<FProjectLock>();
	ReadOnlySentence.clear();
	ReadOnlyReason.clear();
	switch (Lock->Take(Folder, Why))
	{
	case EProjectLock::HeldByOther:
		ReadOnlyReason = "the project is open in another editor";
		ReadOnlySentence = "The project " + GetName()
			+ " is open in another Tintmill editor; this one shows it and saves nothing. Close the other one and "
			  "start again to save.";
		break;
	case EProjectLock::NotWritable:
		ReadOnlyReason = "the project's folder cannot be written to: " + Why;
		ReadOnlySentence = "Nothing can be saved in the project's folder " + PathToUtf8(Folder) + " (" + Why
			+ "), so changes last until the editor is closed.";
		break;
	case EProjectLock::Held:
		break;
	}
}
}
