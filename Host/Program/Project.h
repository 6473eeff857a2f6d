// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <string>

// The project that the host works on: any folder. With a folder Content in it, that holds the looks, as in an engine project;
// without one the folder itself does. Settings go to Saved/Config/<Platform>/ in the folder.

namespace TintmillHost
{
/** A folder opened as a project. */
class FProject
{
public:
	/** Opens a folder, the demo project for an empty path. Returns an empty string, or one sentence why it could not. */
	std::string Open(const std::filesystem::path& Folder);

	/** Makes the engine use the project: project file, name, and the mount point /Game/. */
	void Mount() const;

	/** The folder's absolute path. */
	const std::filesystem::path& GetFolder() const { return Folder; }

	/** The folder that holds the looks. */
	std::filesystem::path GetContentFolder() const;

	/** The name that people know the project by: its .uproject file's, or the folder's. */
	std::string GetName() const;

private:
	std::filesystem::path FindProjectFile() const;

	std::filesystem::path Folder;
};
}
