// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The page that shows what a run did: a picture with a caption for every step and the log, in one file that needs no other.

namespace TintmillHost
{
/** Collects the steps of a run and writes them as one HTML file with the pictures inside. */
class FGalleryPage
{
public:
	/** Adds a picture (a PNG file) with its caption. */
	void AddPicture(const std::string& Caption, const std::filesystem::path& Picture);

	/** Adds two pictures of one size that are compared with a slider. */
	void AddComparison(const std::string& Caption, const std::filesystem::path& Without, const std::filesystem::path& With);

	/** Whether nothing was added yet. */
	bool IsEmpty() const { return Steps.empty(); }

	/** Writes the page; Log is shown below the pictures. Returns an empty string, or one sentence why it could not. */
	std::string Write(const std::filesystem::path& File, const std::string& Title, const std::string& Log) const;

private:
	struct FStep
	{
		std::string Caption;
		std::filesystem::path Picture;
		std::filesystem::path Without;
	};

	std::vector<FStep> Steps;
};
}
