// Copyright The Tintmill authors. All rights reserved.

#include "Host/TourRun/TourFiles.h"

#include "Host/Console/Console.h"
#include "Host/Gallery/Packing.h"
#include "Host/Program/Strings.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

namespace TintmillHost
{
namespace
{
/** The file of a name below a folder. Throws FCommandError for names that lead out of it. */
std::filesystem::path FindPlace(const std::filesystem::path& Folder, const std::string& Name)
{
	const std::filesystem::path Relative = PathFromUtf8(Name);
	const bool bLeadsOut = std::find(Relative.begin(), Relative.end(), "..") != Relative.end();
	if (Relative.empty() || Relative.has_root_path() || bLeadsOut)
	{
		throw FCommandError("'" + Name + "' is no file below " + Folder.string() + "; give a name like Looks/Mine.cube.");
	}
	return Folder / Relative;
}

void SavePaths(std::ostream& Stream, const std::vector<std::filesystem::path>& Paths)
{
	PackNumber(Stream, static_cast<double>(Paths.size()));
	for (const std::filesystem::path& Path : Paths)
	{
		PackText(Stream, Path.string());
	}
}

std::vector<std::filesystem::path> LoadPaths(std::istream& Stream)
{
	std::vector<std::filesystem::path> Paths;
	const double Count = UnpackNumber(Stream);
	for (double Index = 0.0; Stream && Index < Count; ++Index)
	{
		Paths.push_back(PathFromUtf8(UnpackText(Stream)));
	}
	return Paths;
}
}

void FTourFiles::Write(const std::filesystem::path& Folder, const std::string& Name, const std::string& Bytes)
{
	const std::filesystem::path File = FindPlace(Folder, Name);
	const bool bOurs = std::find(Files.begin(), Files.end(), File) != Files.end();
	std::error_code Error;
	if (!bOurs && std::filesystem::exists(std::filesystem::symlink_status(File, Error)))
	{
		throw FCommandError("The file " + File.string() + " is there already; a tour writes only files of its own.");
	}

	std::vector<std::filesystem::path> Missing;
	for (std::filesystem::path Parent = File.parent_path(); !Parent.empty() && !std::filesystem::exists(Parent, Error);
		 Parent = Parent.parent_path())
	{
		Missing.push_back(Parent);
	}
	std::filesystem::create_directories(File.parent_path(), Error);
	Folders.insert(Folders.begin(), Missing.begin(), Missing.end());
	std::ofstream Stream(File, std::ios::binary);
	if (Stream && !bOurs)
	{
		Files.push_back(File);
	}
	Stream << Bytes;
	if (!Stream.flush())
	{
		throw FCommandError("The file " + File.string() + " cannot be written: " + std::strerror(errno) + ".");
	}
}

void FTourFiles::Expect(const std::filesystem::path& Folder, const std::string& Name)
{
	const std::filesystem::path File = FindPlace(Folder, Name);
	std::error_code Error;
	if (std::filesystem::exists(std::filesystem::symlink_status(File, Error)))
	{
		throw FCommandError("The file " + File.string() + " is there already, so a tour cannot make it.");
	}
	Files.push_back(File);
}

void FTourFiles::Remove(const std::filesystem::path& Folder, const std::string& Name)
{
	const std::filesystem::path File = FindPlace(Folder, Name);
	const auto Found = std::find(Files.begin(), Files.end(), File);
	if (Found == Files.end())
	{
		throw FCommandError("The file " + File.string() + " was not written by this tour, so the tour leaves it alone.");
	}
	Files.erase(Found);
	std::error_code Error;
	std::filesystem::remove(File, Error);
	if (Error)
	{
		throw FCommandError("The file " + File.string() + " cannot be taken away: " + Error.message() + ".");
	}
}

void FTourFiles::RemoveAll()
{
	std::error_code Error;
	for (const std::filesystem::path& File : Files)
	{
		std::filesystem::remove(File, Error);
	}
	for (const std::filesystem::path& Folder : Folders)
	{
		// Stays if somebody else has put something into it.
		std::filesystem::remove(Folder, Error);
	}
	Files.clear();
	Folders.clear();
}

void FTourFiles::HandOver(std::ostream& Stream)
{
	SavePaths(Stream, Files);
	SavePaths(Stream, Folders);
	Files.clear();
	Folders.clear();
}

void FTourFiles::TakeOver(std::istream& Stream)
{
	Files = LoadPaths(Stream);
	Folders = LoadPaths(Stream);
}
}
