// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "Host/Program/ProjectLock.h"

#include <filesystem>
#include <memory>
#include <string>

// The project that the host works on: any folder. With a folder Content in it, that holds the looks, as in an engine project;
// without one the folder itself does. Settings go to Saved/Config/<Platform>/ in the folder. Where another editor has the project
// open, or nothing can be written, the project is shown and nothing is saved.

namespace TintmillHost
{
/** A folder opened as a project. */
class FProject
{
public:
	/** Opens a folder, or that of a .uproject file; the demo project for an empty path. Returns "", or one sentence why it could not. */
	std::string Open(const std::filesystem::path& FolderOrFile);

	/** Makes the engine use the project: project file, name, and the mount point /Game/; says so if nothing can be saved. */
	void Mount() const;

	/** Lets other editors have the project. */
	void Close();

	/** One sentence why nothing is saved; empty if it is. */
	const std::string& GetReadOnlySentence() const { return ReadOnlySentence; }

	/** Whether the demo project is open. */
	bool IsDemo() const;

	/** The tour that shows the whole program on the demo project. */
	static std::filesystem::path GetDemoTour();

	/** The folder's absolute path. */
	const std::filesystem::path& GetFolder() const { return Folder; }

	/** The folder that holds the looks. */
	std::filesystem::path GetContentFolder() const;

	/** The name that people know the project by: its .uproject file's, or the folder's. */
	std::string GetName() const;

private:
	void FindProjectFile(const std::filesystem::path& Preferred);
	void TakeLock();

	std::filesystem::path Folder;
	std::filesystem::path ProjectFile;
	std::unique_ptr<FProjectLock> Lock;
	std::string ReadOnlySentence;

	/** The same in a few words. */
	std::string ReadOnlyReason;
};
}
