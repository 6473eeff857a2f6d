// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include "Support/TestFolder.h"
#include <string>

/** A project in a folder of its own, the process's project until this object goes; the folder goes with it. */
class FTemporaryProject
{
public:
	FTemporaryProject()
		: ProjectBefore(FPaths::GetProjectFilePath())
	{
		Folder.Write("Test.uproject", "{ \"FileVersion\": 3, \"EngineAssociation\": \"4.27\" }");
		FPaths::SetProjectFilePath(Folder.Path("Test.uproject"));
	}

	~FTemporaryProject() { FPaths::SetProjectFilePath(ProjectBefore); }

	FTemporaryProject(const FTemporaryProject&) = delete;
	FTemporaryProject& operator=(const FTemporaryProject&) = delete;

	/** Writes a file below the project's folder, with the folders that it needs. */
	void Write(const std::string& RelativePath, const std::string& Text) const { Folder.Write(RelativePath, Text); }

	/** Returns the path of a file below the project's folder. */
	FString Path(const std::string& RelativePath) const { return Folder.Path(RelativePath); }

private:
	FTestFolder Folder;
	FString ProjectBefore;
};
