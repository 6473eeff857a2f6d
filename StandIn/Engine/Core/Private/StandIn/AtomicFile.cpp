// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/AtomicFile.h"

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"
#include "Misc/TextCodec.h"
#include "StandIn/AtomicFilePlatform.h"
#include "StandIn/WhileHeld.h"

#include <algorithm>
#include <mutex>
#include <set>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace StandIn
{
namespace
{
typedef StandInPrivate::FAtomicFilePlatform FPlatform;

const char* const TemporaryMark = ".tmp-";

FAtomicFileHook AtomicFileHook = nullptr;

/** Names of this process's temporaries that are being written. */
struct FTemporariesInUse
{
	std::mutex Mutex;
	std::set<std::filesystem::path> Names;
	uint64 Counter = 0;
};

FTemporariesInUse& TemporariesInUse()
{
	static FTemporariesInUse* const InUse = new FTemporariesInUse();
	return *InUse;
}

/** Folders below which nothing is saved, and why. */
struct FRefusals
{
	std::mutex Mutex;
	std::vector<std::pair<FString, FString>> Folders;
};

FRefusals& Refusals()
{
	static FRefusals* const All = new FRefusals();
	return *All;
}

/** Full name with forward slashes. */
FString FullName(const FString& FileName)
{
	FString Name = FPaths::ConvertRelativePathToFull(FileName);
	FPaths::NormalizeFilename(Name);
	return Name;
}

bool RunHook(EAtomicFileStep Step, const FString& FileName, std::string& OutReason)
{
	if (AtomicFileHook && !AtomicFileHook(Step, *FileName))
	{
		OutReason = "injected failure";
		return false;
	}
	return true;
}

/** The file that is really to be replaced: what a symbolic link names, else the file itself. */
bool ResolveTarget(const FString& FileName, std::filesystem::path& OutTarget)
{
	if (!StandInPrivate::ToNativePath(*FileName, OutTarget))
	{
		return false;
	}
	std::error_code Error;
	if (std::filesystem::is_symlink(OutTarget, Error))
	{
		const std::filesystem::path Real = std::filesystem::weakly_canonical(OutTarget, Error);
		if (!Error)
		{
			OutTarget = Real;
		}
	}
	return true;
}

std::filesystem::path TemporaryName(const std::filesystem::path& Target, uint64 Number)
{
	std::filesystem::path Name = Target;
	Name += TemporaryMark + std::to_string(FPlatformProcess::GetCurrentProcessId()) + "-" + std::to_string(Number);
	return Name;
}

/** A temporary that deletes itself unless it has taken the target's place. */
class FTemporary
{
public:
	~FTemporary()
	{
		std::string Ignored;
		std::error_code Error;
		if (bOpen)
		{
			FPlatform::Close(Handle, Ignored);
		}
		if (!Path.empty())
		{
			if (!bReplaced)
			{
				std::filesystem::remove(Path, Error);
			}
			const std::lock_guard<std::mutex> Lock(TemporariesInUse().Mutex);
			TemporariesInUse().Names.erase(Path);
		}
	}

	bool Create(const std::filesystem::path& Target, std::string& OutReason)
	{
		FTemporariesInUse& InUse = TemporariesInUse();
		const std::lock_guard<std::mutex> Lock(InUse.Mutex);
		for (int32 Try = 0; Try < 1000; ++Try)
		{
			const std::filesystem::path Name = TemporaryName(Target, ++InUse.Counter);
			const FPlatform::ECreate Created = FPlatform::Create(Name, Target, Handle, OutReason);
			if (Created == FPlatform::ECreate::Created)
			{
				Path = Name;
				bOpen = true;
				InUse.Names.insert(Path);
				return true;
			}
			if (Created == FPlatform::ECreate::Failed)
			{
				return false;
			}
		}
		return false;
	}

	bool Close(std::string& OutReason)
	{
		bOpen = false;
		return FPlatform::Close(Handle, OutReason);
	}

	bool Replace(const FString& FileName, const std::filesystem::path& Target, std::string& OutReason)
	{
		StandInPrivate::TryWhileHeld([&]() {
			if (!RunHook(EAtomicFileStep::Replace, FileName, OutReason))
			{
				return false;
			}
			const FPlatform::EReplace Result = FPlatform::Replace(Path, Target, OutReason);
			bReplaced = Result == FPlatform::EReplace::Replaced;
			return Result == FPlatform::EReplace::Held;
		});
		return bReplaced;
	}

	FPlatform::FHandle Handle = 0;

private:
	std::filesystem::path Path;
	bool bOpen = false;
	bool bReplaced = false;
};

bool SaveWhole(const FString& FileName, const char* Bytes, int64 NumBytes, std::string& OutReason)
{
	std::filesystem::path Target;
	if (!ResolveTarget(FileName, Target))
	{
		OutReason = "the file name is not valid";
		return false;
	}
	std::error_code Error;
	if (std::filesystem::is_directory(Target, Error))
	{
		OutReason = "it is a folder";
		return false;
	}
	if (IFileManager::Get().IsReadOnly(*FileName))
	{
		OutReason = "the file is read-only";
		return false;
	}
	FTemporary Temporary;
	const int64 Half = NumBytes / 2;
	if (!RunHook(EAtomicFileStep::CreateTemporary, FileName, OutReason) || !Temporary.Create(Target, OutReason)
		|| !FPlatform::Write(Temporary.Handle, Bytes, Half, OutReason) || !RunHook(EAtomicFileStep::Write, FileName, OutReason)
		|| !FPlatform::Write(Temporary.Handle, Bytes + Half, NumBytes - Half, OutReason)
		|| !RunHook(EAtomicFileStep::FlushFile, FileName, OutReason) || !FPlatform::FlushFile(Temporary.Handle, OutReason)
		|| !Temporary.Close(OutReason) || !Temporary.Replace(FileName, Target, OutReason))
	{
		return false;
	}
	const std::filesystem::path Folder = Target.has_parent_path() ? Target.parent_path() : std::filesystem::path(".");
	if (!RunHook(EAtomicFileStep::FlushFolder, FileName, OutReason) || !FPlatform::FlushFolder(Folder, OutReason))
	{
		OutReason += " (the new file is in place but might not outlive a power cut)";
		return false;
	}
	return true;
}

/** Reads "<process>-<number>" behind the mark of a temporary's name; false for anything else. */
bool ReadTemporaryMark(const std::filesystem::path& Name, const std::filesystem::path& Start, uint32& OutProcess)
{
	const std::filesystem::path::string_type& Native = Name.native();
	if (Native.compare(0, Start.native().size(), Start.native()) != 0)
	{
		return false;
	}
	std::string Text;
	for (size_t Index = Start.native().size(); Index < Native.size(); ++Index)
	{
		const uint32 Unit = uint32(Native[Index]);
		Text += Unit < 0x80 ? char(Unit) : '?';
	}
	const size_t Dash = Text.find('-');
	if (Dash == std::string::npos || Dash == 0 || Dash > 9 || Dash + 1 == Text.size()
		|| Text.find_first_not_of("0123456789-") != std::string::npos || Text.find('-', Dash + 1) != std::string::npos)
	{
		return false;
	}
	OutProcess = uint32(std::stoul(Text.substr(0, Dash)));
	return true;
}
}

FAtomicFileHook SetAtomicFileHook(FAtomicFileHook Hook)
{
	const FAtomicFileHook Before = AtomicFileHook;
	AtomicFileHook = Hook;
	return Before;
}

bool SaveFileAtomically(const FString& FileName, const void* Data, int64 NumBytes, FString& OutReason)
{
	if (AreSavesRefused(FileName, OutReason))
	{
		return false;
	}
	std::string Reason;
	const bool bSaved = SaveWhole(FileName, static_cast<const char*>(Data), NumBytes, Reason);
	OutReason = StandInPrivate::DecodeText(reinterpret_cast<const uint8*>(Reason.data()), int64(Reason.size()));
	return bSaved;
}

int32 SweepTemporaries(const FString& FileName)
{
	std::filesystem::path Target;
	if (!ResolveTarget(FileName, Target))
	{
		return 0;
	}
	std::error_code Error;
	std::filesystem::path Start = Target.filename();
	Start += TemporaryMark;
	const std::filesystem::path Folder = Target.has_parent_path() ? Target.parent_path() : std::filesystem::path(".");
	std::vector<std::filesystem::path> LeftOver;
	for (std::filesystem::directory_iterator It(Folder, Error), End; !Error && It != End; It.increment(Error))
	{
		uint32 Process = 0;
		if (!ReadTemporaryMark(It->path().filename(), Start, Process))
		{
			continue;
		}
		const std::lock_guard<std::mutex> Lock(TemporariesInUse().Mutex);
		const bool bOwn = Process == FPlatformProcess::GetCurrentProcessId();
		if (bOwn ? TemporariesInUse().Names.count(It->path()) == 0 : !FPlatformProcess::IsApplicationRunning(Process))
		{
			LeftOver.push_back(It->path());
		}
	}
	return int32(std::count_if(LeftOver.begin(), LeftOver.end(), [](const std::filesystem::path& Path) {
		std::error_code Failed;
		return std::filesystem::remove(Path, Failed);
	}));
}

void RefuseSaves(const FString& Folder, const FString& Reason)
{
	const FString Name = FullName(Folder);
	const std::lock_guard<std::mutex> Lock(Refusals().Mutex);
	Refusals().Folders.emplace_back(Name.EndsWith(TEXT("/")) ? Name : Name + TEXT("/"), Reason);
}

void AllowSaves()
{
	const std::lock_guard<std::mutex> Lock(Refusals().Mutex);
	Refusals().Folders.clear();
}

bool AreSavesRefused(const FString& FileName, FString& OutReason)
{
	const std::lock_guard<std::mutex> Lock(Refusals().Mutex);
	if (Refusals().Folders.empty())
	{
		return false;
	}
	const FString Name = FullName(FileName);
	for (const std::pair<FString, FString>& Refusal : Refusals().Folders)
	{
		if (Name.StartsWith(Refusal.first, ESearchCase::CaseSensitive))
		{
			OutReason = Refusal.second;
			return true;
		}
	}
	return false;
}
}
