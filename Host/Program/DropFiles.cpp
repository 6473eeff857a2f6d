// Copyright The Tintmill authors. All rights reserved.

#include "Host/Program/DropFiles.h"

#include "Host/Program/Progress.h"
#include "Host/Program/Strings.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Misc/Paths.h"
#include "StandIn/AssetFiles.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/Notices.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
#include <set>
#include <system_error>

namespace TintmillHost
{
namespace
{
/** No look file is larger; what is larger is not even copied. */
constexpr std::uintmax_t MaxBytes = 512u * 1024 * 1024;

/** Folders in folders are followed so deep. */
constexpr int MaxDepth = 16;

std::string Extension(const std::filesystem::path& File)
{
	std::string Text = PathToUtf8(File.extension());
	Text.erase(0, 1);
	return ToLowerCase(Text);
}

std::set<std::string> KnownExtensions()
{
	std::set<std::string> Extensions;
	for (const StandIn::FAssetFileType& Type : StandIn::GetAssetFileTypes())
	{
		if (Type.ClassName == FName(TEXT("TintmillObject")))
		{
			Extensions.insert(ToLowerCase(ToUtf8(Type.Extension)));
		}
	}
	return Extensions;
}

std::string NameFormats()
{
	std::string Names;
	const std::set<std::string> Extensions = KnownExtensions();
	for (const std::string& Each : Extensions)
	{
		Names += (Names.empty() ? "." : Each == *Extensions.rbegin() ? " and ." : ", .") + Each;
	}
	return Names;
}

/** The asset names that the files of a folder take up, in lower case. */
std::set<std::string> FindTakenNames(const std::filesystem::path& Folder)
{
	std::set<std::string> Taken;
	std::error_code Error;
	for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
	{
		Taken.insert(ToLowerCase(ToUtf8(StandIn::MakeAssetName(PathToEngine(It->path().stem())))));
	}
	return Taken;
}

/** One drop of files, while it goes on. */
class FDrop
{
public:
	explicit FDrop(const std::filesystem::path& InTarget)
		: Target(InTarget)
		, Extensions(KnownExtensions())
		, Taken(FindTakenNames(InTarget))
		, Progress("Copying look files into the project")
	{}

	void Add(const std::filesystem::path& Path)
	{
		std::error_code Error;
		const std::filesystem::file_status Status = std::filesystem::status(Path, Error);
		if (std::filesystem::is_directory(Status))
		{
			const size_t NumBefore = Result.Added.size() + Result.Problems.size();
			AddFolder(Path, 0);
			if (Result.Added.size() + Result.Problems.size() == NumBefore)
			{
				Refuse(Path, "there are no look files in this folder; " + NameFormats() + " are read");
			}
		}
		else if (Status.type() == std::filesystem::file_type::not_found)
		{
			Refuse(Path, "there is no such file");
		}
		else if (Extensions.count(Extension(Path)) == 0)
		{
			Refuse(Path, "this is no look file; " + NameFormats() + " are read");
		}
		else
		{
			AddFile(Path);
		}
	}

	FDropResult Result;

private:
	void AddFolder(const std::filesystem::path& Folder, int Depth)
	{
		std::error_code Error;
		std::vector<std::filesystem::path> Entries;
		for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
		{
			Entries.push_back(It->path());
		}
		if (Error)
		{
			Refuse(Folder, "the folder cannot be read (" + Error.message() + ")");
		}
		std::sort(Entries.begin(), Entries.end());
		for (const std::filesystem::path& Entry : Entries)
		{
			if (PathToUtf8(Entry.filename()).starts_with('.'))
			{
				continue;
			}
			if (std::filesystem::is_directory(Entry, Error))
			{
				// Links to folders may lead in circles.
				if (Depth < MaxDepth && !std::filesystem::is_symlink(Entry, Error))
				{
					AddFolder(Entry, Depth + 1);
				}
			}
			else if (Extensions.count(Extension(Entry)) != 0)
			{
				AddFile(Entry);
			}
		}
	}

	void AddFile(const std::filesystem::path& File)
	{
		Progress.Step();
		std::error_code Error;
		if (IsSameFolder(File.parent_path(), Target))
		{
			// It is there already, and so is its asset.
			Result.Added.push_back(File);
			return;
		}
		std::string Bytes;
		if (const std::string Problem = Read(File, Bytes); !Problem.empty())
		{
			Refuse(File, Problem);
			return;
		}
		const std::string Name = FindFreeName(File);
		const std::filesystem::path Copy = Target / std::filesystem::path(std::u8string(Name.begin(), Name.end()));
		FString Reason;
		if (!StandIn::SaveFileAtomically(PathToEngine(Copy), Bytes.data(), static_cast<int64>(Bytes.size()), Reason))
		{
			Refuse(File, "the copy in the project could not be written (" + ToUtf8(Reason) + ")");
			return;
		}
		Taken.insert(ToLowerCase(PathToUtf8(Copy.stem())));
		Result.Added.push_back(Copy);
	}

	static std::string Read(const std::filesystem::path& File, std::string& OutBytes)
	{
		std::error_code Error;
		if (!std::filesystem::is_regular_file(File, Error))
		{
			return "this is not an ordinary file";
		}
		const std::uintmax_t Size = std::filesystem::file_size(File, Error);
		if (Error || Size > MaxBytes)
		{
			return Error ? "the file cannot be read (" + Error.message() + ")" : "the file is larger than 512 MiB, too large for a look";
		}
		std::ifstream Stream(File, std::ios::binary);
		if (!Stream)
		{
			return std::string("the file cannot be opened (") + std::strerror(errno) + ")";
		}
		OutBytes.resize(static_cast<size_t>(Size));
		Stream.read(OutBytes.data(), static_cast<std::streamsize>(OutBytes.size()));
		OutBytes.resize(static_cast<size_t>(Stream.gcount()));
		return Stream.bad() || OutBytes.size() != Size ? "the file cannot be read to its end" : "";
	}

	/** "Film stock (v2).CUBE" becomes Film_stock_v2.cube, or Film_stock_v2_2.cube where that name is taken. */
	std::string FindFreeName(const std::filesystem::path& File) const
	{
		const std::string Base = ToUtf8(StandIn::MakeAssetName(PathToEngine(File.stem())));
		std::string Name = Base;
		for (int Number = 2; Taken.count(ToLowerCase(Name)) != 0; ++Number)
		{
			Name = Base + "_" + std::to_string(Number);
		}
		return Name + "." + Extension(File);
	}

	void Refuse(const std::filesystem::path& Path, const std::string& Reason)
	{
		Result.Problems.push_back(PathToUtf8(Path.has_filename() ? Path.filename() : Path) + " was not added: " + Reason + ".");
	}

	std::filesystem::path Target;
	std::set<std::string> Extensions;
	std::set<std::string> Taken;
	FProgress Progress;
};

/** All problems as one sentence. */
std::string Summarize(const std::vector<std::string>& Problems)
{
	if (Problems.size() < 2)
	{
		return Problems.empty() ? std::string() : Problems.front();
	}
	return std::to_string(Problems.size()) + " files were not added; the first one: " + Problems.front();
}
}

FDropResult AddDroppedFiles(const std::vector<std::filesystem::path>& FilesAndFolders, const std::filesystem::path& TargetFolder)
{
	FDrop Drop(TargetFolder);
	for (const std::filesystem::path& Path : FilesAndFolders)
	{
		Drop.Add(Path);
	}
	if (IAssetRegistry* const Registry = IAssetRegistry::Get())
	{
		TArray<FString> Files;
		for (const std::filesystem::path& File : Drop.Result.Added)
		{
			Files.Add(PathToEngine(File));
		}
		Registry->ScanModifiedAssetFiles(Files);
	}
	// Every drop is answered, also by the same words as the last one.
	StandIn::ClearNotice(TEXT("DropFiles"));
	if (!Drop.Result.Problems.empty())
	{
		StandIn::AddNotice(TEXT("DropFiles"), FromUtf8(Summarize(Drop.Result.Problems)));
	}
	return Drop.Result;
}

std::string AddDroppedFiles(const std::vector<std::string>& FilesAndFolders)
{
	FString Content;
	if (!StandIn::FindAssetFolder(TEXT("/Game"), Content))
	{
		return "No project is open.";
	}
	std::vector<std::filesystem::path> Paths;
	for (const std::string& Name : FilesAndFolders)
	{
		Paths.emplace_back(std::u8string(Name.begin(), Name.end()));
	}
	return Summarize(AddDroppedFiles(Paths, std::filesystem::path(*Content)).Problems);
}
}
