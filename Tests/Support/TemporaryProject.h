// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include <filesystem>
#include <fstream>
#include <string>

/** A project in a folder of its own, the process's project until this object goes; the folder goes with it. */
class FTemporaryProject
{
public:
	/** Makes the project; the name must differ from test to test of one program. */
	explicit FTemporaryProject(const std::string& Name)
		: Folder(std::filesystem::temp_directory_path() / ("TintmillTest-" + Name))
		, ProjectBefore(FPaths::GetProjectFilePath())
	{
		std::filesystem::remove_all(Folder);
		std::filesystem::create_directories(Folder);
		Write("Test.uproject", "{ \"FileVersion\": 3, \"EngineAssociation\": \"4.27\" }");
		FPaths::SetProjectFilePath(UTF8_TO_TCHAR((Folder / "Test.uproject").generic_string().c_str()));
	}

	~FTemporaryProject()
	{
		FPaths::SetProjectFilePath(ProjectBefore);
		std::error_code Ignored;
		std::filesystem::remove_all(Folder, Ignored);
	}

	FTemporaryProject(const FTemporaryProject&) = delete;
	FTemporaryProject& operator=(const FTemporaryProject&) = delete;

	/** Writes a file below the project's folder, with the folders that it needs. */
	void Write(const std::string& RelativePath, const std::string& Text) const
	{
		std::filesystem::create_directories((Folder / RelativePath).parent_path());
		std::ofstream(Folder / RelativePath, std::ios::binary) << Text;
	}

	/** Returns the path of a file below the project's folder. */
	FString Path(const std::string& RelativePath) const { return FString(UTF8_TO_TCHAR((Folder / RelativePath).generic_string().c_str())); }

private:
	std::filesystem::path Folder;
	FString ProjectBefore;
};
