// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigStorage.h"

#include "HAL/FileManager.h"
#include "HAL/NativePath.h"
#include "Misc/ConfigChanges.h"
#include "Misc/Paths.h"
#include "Misc/TextCodec.h"
#include "StandIn/AtomicFile.h"
#include "StandIn/AtomicFilePlatform.h"
#include "StandIn/ConfigOrigin.h"
#include "StandIn/Notices.h"
#include "StandIn/WhileHeld.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace StandIn
{
namespace
{
/** No ini file of a person is larger. */
const std::uintmax_t MaxConfigBytes = 256 * 1024 * 1024;

TArray<FString>& OriginFiles()
{
	static TArray<FString>* const Files = new TArray<FString>();
	return *Files;
}

FString ReasonText(const std::string& Text)
{
	return StandInPrivate::DecodeText(reinterpret_cast<const uint8*>(Text.data()), int64(Text.size()));
}

FString ReadNoticeKey(const FString& Filename)
{
	return TEXT("Config.Read:") + Filename;
}

FString SaveNoticeKey(const FString& Filename)
{
	return TEXT("Config.Save:") + Filename;
}

FString AsideName(const FString& Filename, int32 Number)
{
	return FString::Printf(TEXT("%s.unreadable-%d"), *Filename, Number);
}

/** Whether anything, file or other, has this name. */
bool NameIsTaken(const FString& Filename)
{
	std::filesystem::path Path;
	std::error_code Error;
	return StandInPrivate::ToNativePath(*Filename, Path) && std::filesystem::exists(std::filesystem::symlink_status(Path, Error));
}

/** The first free name aside, or the name of an earlier copy of the same bytes. */
FString FindAsideName(const FString& Filename, const std::string* Bytes, bool& bOutIsKept)
{
	bOutIsKept = false;
	for (int32 Number = 1;; ++Number)
	{
		const FString Name = AsideName(Filename, Number);
		if (!NameIsTaken(Name))
		{
			return Name;
		}
		std::string Earlier;
		FString Reason;
		if (Bytes && ReadConfigBytes(Name, Earlier, Reason) == EConfigRead::Read && Earlier == *Bytes)
		{
			bOutIsKept = true;
			return Name;
		}
	}
}

/** Renames a file that cannot be read. */
bool MoveAside(const FString& Filename, FString& OutName, FString& OutReason)
{
	std::filesystem::path From;
	std::filesystem::path To;
	std::error_code Error;
	bool bIsKept = false;
	OutName = FindAsideName(Filename, nullptr, bIsKept);
	if (!StandInPrivate::ToNativePath(*Filename, From) || !StandInPrivate::ToNativePath(*OutName, To))
	{
		OutReason = TEXT("the file name is not valid");
		return false;
	}
	std::filesystem::rename(From, To, Error);
	OutReason = Error ? ReasonText(Error.message()) : FString();
	return !Error;
}

FString LinesAre(int32 FirstLine, int32 NumLines)
{
	return NumLines == 1 ? FString::Printf(TEXT("line %d is not text and is ignored"), FirstLine)
						 : FString::Printf(TEXT("%d lines, the first is line %d, are not text and are ignored"), NumLines, FirstLine);
}

/**
	 * Keeps a copy of a file with unreadable lines, once, and tells a person: on loading in any case, on saving when the copy
	 * could only be made now. False when there is no copy.
	 */
bool KeepUnreadable(const FString& Filename, const FConfigDocument& Document, bool bLoading)
{
	int32 NumLines = 0;
	const int32 FirstLine = Document.FirstUnreadableLine(NumLines);
	if (NumLines == 0)
	{
		return true;
	}
	bool bIsKept = false;
	FString Reason;
	const FString Aside = FindAsideName(Filename, &Document.Bytes, bIsKept);
	if (bIsKept && !bLoading)
	{
		return true;
	}
	bIsKept = bIsKept || SaveFileAtomically(Aside, Document.Bytes.data(), int64(Document.Bytes.size()), Reason);
	if (bIsKept || bLoading)
	{
		const FString Done = bIsKept
			? FString::Printf(TEXT("the file as it was is kept as %s"), *Aside)
			: FString::Printf(TEXT("the file could not be copied to %s (%s), so it will not be saved over"), *Aside, *Reason);
		ClearNotice(ReadNoticeKey(Filename));
		AddNotice(
			ReadNoticeKey(Filename), FString::Printf(TEXT("%s:%d: %s; %s."), *Filename, FirstLine, *LinesAre(FirstLine, NumLines), *Done));
	}
	return bIsKept;
}

bool FailSave(const FString& Filename, const FString& Reason)
{
	AddNotice(SaveNoticeKey(Filename),
		FString::Printf(TEXT("The settings could not be saved to %s: %s. They stay in use and are saved with the next change once "
							 "this is put right."),
			*Filename, *Reason),
		ENoticeKind::Error);
	return false;
}

/** The lines that a save edits. */
struct FLinesToEdit
{
	TSharedPtr<FConfigDocument> Lines;
	bool bAreOnDisk = false;
};

/** Finds the lines to edit: those on disk now, or those last known when the file has gone; false when it must not be written. */
bool FindLinesToEdit(const FString& Filename, const TSharedPtr<FConfigDocument>& Last, FLinesToEdit& Out, FString& OutReason)
{
	std::string Bytes;
	const EConfigRead Result = ReadConfigBytes(Filename, Bytes, OutReason);
	Out.bAreOnDisk = Result == EConfigRead::Read;
	if (Out.bAreOnDisk && !(Last.IsValid() && Bytes == Last->Bytes))
	{
		Out.Lines = FConfigDocument::Parse(std::move(Bytes));
	}
	else
	{
		Out.Lines = Last.IsValid() ? Last : TSharedPtr<FConfigDocument>(FConfigDocument::Parse(std::string()));
	}
	if (Out.bAreOnDisk && !KeepUnreadable(Filename, *Out.Lines, false))
	{
		OutReason = TEXT("the file there has lines that are not text, and it could not be copied aside");
		return false;
	}
	FString Aside;
	FString Why;
	if (Result == EConfigRead::Held)
	{
		return false;
	}
	if (Result == EConfigRead::Failed && !MoveAside(Filename, Aside, Why))
	{
		OutReason = FString::Printf(TEXT("the file there cannot be read (%s) and cannot be renamed (%s)"), *OutReason, *Why);
		return false;
	}
	return true;
}
}

int32 InternConfigOriginFile(const FString& Filename)
{
	if (Filename.IsEmpty())
	{
		return INDEX_NONE;
	}
	TArray<FString>& Files = OriginFiles();
	for (int32 Index = 0; Index < Files.Num(); ++Index)
	{
		if (Files[Index].Equals(Filename))
		{
			return Index;
		}
	}
	return Files.Add(Filename);
}

FConfigOrigin GetConfigOrigin(const FConfigValue& Value)
{
	FConfigOrigin Origin;
	if (OriginFiles().IsValidIndex(Value.OriginFile))
	{
		Origin.File = OriginFiles()[Value.OriginFile];
		Origin.Line = Value.OriginLine;
	}
	return Origin;
}

int32 GetConfigOrigins(const TCHAR* Section, const TCHAR* Key, TArray<FConfigOrigin>& OutOrigins, const FString& Filename)
{
	OutOrigins.Empty();
	FConfigFile* const File = GConfig ? GConfig->Find(Filename, false) : nullptr;
	const FConfigSection* const Found = File ? File->Find(Section) : nullptr;
	TArray<FConfigValue> Values;
	if (Found)
	{
		Found->MultiFind(FName(Key), Values, true);
	}
	for (const FConfigValue& Value : Values)
	{
		OutOrigins.Add(GetConfigOrigin(Value));
	}
	return OutOrigins.Num();
}

EConfigRead ReadConfigBytes(const FString& Filename, std::string& OutBytes, FString& OutReason)
{
	std::filesystem::path Path;
	std::error_code Error;
	OutBytes.clear();
	if (!StandInPrivate::ToNativePath(*Filename, Path))
	{
		return EConfigRead::Missing;
	}
	const std::filesystem::file_status Status = std::filesystem::status(Path, Error);
	if (Status.type() == std::filesystem::file_type::not_found)
	{
		return EConfigRead::Missing;
	}
	if (Error || Status.type() != std::filesystem::file_type::regular)
	{
		OutReason = Error ? ReasonText(Error.message()) : FString(TEXT("it is not a file"));
		return EConfigRead::Failed;
	}
	const std::uintmax_t Size = std::filesystem::file_size(Path, Error);
	if (!Error && Size > MaxConfigBytes)
	{
		OutReason = TEXT("it is larger than 256 MiB");
		return EConfigRead::Failed;
	}
	std::ifstream File;
	int OpenError = 0;
	bool bHeld = false;
	StandInPrivate::TryWhileHeld([&]() {
		errno = 0;
		File.open(Path, std::ios::binary);
		OpenError = errno;
		bHeld = !File && StandInPrivate::FAtomicFilePlatform::IsHeld(Path);
		return bHeld;
	});
	if (!File)
	{
		OutReason = bHeld ? FString(TEXT("another program keeps it open for itself")) : ReasonText(std::strerror(OpenError));
		return bHeld ? EConfigRead::Held : EConfigRead::Failed;
	}
	OutBytes.resize(Error ? 0 : size_t(Size));
	File.read(OutBytes.data(), std::streamsize(OutBytes.size()));
	OutBytes.resize(size_t(File.gcount()));
	if (File.bad())
	{
		OutReason = TEXT("it cannot be read");
		return EConfigRead::Failed;
	}
	return EConfigRead::Read;
}

void NoticeHierarchyFile(const FString& Filename, const FString& Reason, int32 FirstLine, int32 NumLines)
{
	const FString Text = NumLines > 0
		? FString::Printf(TEXT("%s:%d: %s; correct the file."), *Filename, FirstLine, *LinesAre(FirstLine, NumLines))
		: FString::Printf(
			TEXT("The settings in %s cannot be read: %s; they are not used until the file is put right."), *Filename, *Reason);
	AddNotice(ReadNoticeKey(Filename), Text);
}

TSharedRef<FConfigDocument> LoadConfigDocument(const FString& Filename)
{
	SweepTemporaries(Filename);
	std::string Bytes;
	FString Reason;
	const EConfigRead Result = ReadConfigBytes(Filename, Bytes, Reason);
	if (Result == EConfigRead::Failed)
	{
		bool bIsKept = false;
		AddNotice(ReadNoticeKey(Filename),
			FString::Printf(TEXT("The settings in %s cannot be read: %s; they are not used, and before anything is saved there it is "
								 "renamed to %s."),
				*Filename, *Reason, *FindAsideName(Filename, nullptr, bIsKept)));
	}
	if (Result == EConfigRead::Held)
	{
		AddNotice(ReadNoticeKey(Filename),
			FString::Printf(TEXT("The settings in %s cannot be read: %s; they are not used until the next start, and what is saved "
								 "meanwhile is added to them."),
				*Filename, *Reason));
	}
	const TSharedRef<FConfigDocument> Document = FConfigDocument::Parse(std::move(Bytes));
	KeepUnreadable(Filename, *Document, true);
	return Document;
}

bool SaveConfigDocument(const FString& Filename, TSharedPtr<FConfigDocument>& InOutDocument, const FConfigFile& Known,
	const FConfigFile& Now, const FConfigFile* Hierarchy, bool& bOutChangedByOthers)
{
	bOutChangedByOthers = false;
	const std::vector<FConfigSectionChange> Changes = FindConfigChanges(Known, Now, Hierarchy);
	if (Changes.empty())
	{
		ClearNotice(SaveNoticeKey(Filename));
		return true;
	}
	FLinesToEdit Found;
	FString Reason;
	if (AreSavesRefused(Filename, Reason))
	{
		return FailSave(Filename, Reason);
	}
	if (!FindLinesToEdit(Filename, InOutDocument, Found, Reason))
	{
		return FailSave(Filename, Reason);
	}
	FConfigDocument Edited = *Found.Lines;
	ApplyConfigChanges(Edited, Changes);
	const std::string Bytes = Edited.Render();
	if (!Found.bAreOnDisk || Bytes != Found.Lines->Bytes)
	{
		const FString Folder = FPaths::GetPath(Filename);
		if (!Folder.IsEmpty() && !IFileManager::Get().MakeDirectory(*Folder, true))
		{
			return FailSave(Filename, TEXT("its folder cannot be made"));
		}
		if (!SaveFileAtomically(Filename, Bytes.data(), int64(Bytes.size()), Reason))
		{
			return FailSave(Filename, Reason);
		}
	}
	ClearNotice(SaveNoticeKey(Filename));
	bOutChangedByOthers = Found.Lines != InOutDocument;
	InOutDocument = FConfigDocument::Parse(Bytes);
	return true;
}
}
