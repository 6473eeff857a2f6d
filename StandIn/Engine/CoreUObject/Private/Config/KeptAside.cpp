// Copyright The Tintmill authors. All rights reserved.

#include "Config/KeptAside.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "HAL/FileManager.h"
#include "Misc/FileHelper.h"
#include "StandIn/AtomicFile.h"

namespace StandInPrivate
{
namespace
{
// Keys with unread text, by file.
TMap<FString, TSet<FString>>& GetUnreadKeys()
{
	static TMap<FString, TSet<FString>>* Keys = new TMap<FString, TSet<FString>>;
	return *Keys;
}

FString MakeUnreadKey(const FString& Section, const FString& Key)
{
	return Section + TEXT("|") + Key;
}

// Name of the copy; bOutExists says that it is there with this content.
FString FindCopyName(const FString& FileName, const TArray<uint8>& Content, bool& bOutExists)
{
	for (int32 Number = 1;; ++Number)
	{
		const FString Candidate = FString::Printf(TEXT("%s.kept-%d"), *FileName, Number);
		if (!IFileManager::Get().FileExists(*Candidate))
		{
			bOutExists = false;
			return Candidate;
		}
		TArray<uint8> Other;
		if (FFileHelper::LoadFileToArray(Other, *Candidate) && Other == Content)
		{
			bOutExists = true;
			return Candidate;
		}
	}
}
}

void NoteUnreadText(const FString& FileName, const FString& Section, const FString& Key)
{
	GetUnreadKeys().FindOrAdd(FileName).Add(MakeUnreadKey(Section, Key));
}

bool HasUnreadText(const FString& FileName, const FString& Section, const FString& Key)
{
	const TSet<FString>* Keys = GetUnreadKeys().Find(FileName);
	return Keys != nullptr && Keys->Contains(MakeUnreadKey(Section, Key));
}

void ForgetUnreadText(const FString& FileName, const FString& Section, const FString& Key)
{
	if (TSet<FString>* Keys = GetUnreadKeys().Find(FileName))
	{
		Keys->Remove(MakeUnreadKey(Section, Key));
	}
}

FString GetKeptAsideName(const FString& FileName)
{
	TArray<uint8> Content;
	bool bExists = false;
	FFileHelper::LoadFileToArray(Content, *FileName);
	return FindCopyName(FileName, Content, bExists);
}

bool KeepAside(const FString& FileName, FString& OutCopy, FString& OutReason)
{
	if (IFileManager::Get().FileExists(*FileName))
	{
		TArray<uint8> Content;
		if (!FFileHelper::LoadFileToArray(Content, *FileName))
		{
			OutReason = TEXT("it cannot be read");
			return false;
		}
		bool bExists = false;
		OutCopy = FindCopyName(FileName, Content, bExists);
		if (!bExists && !StandIn::SaveFileAtomically(OutCopy, Content.GetData(), Content.Num(), OutReason))
		{
			return false;
		}
	}
	GetUnreadKeys().Remove(FileName);
	return true;
}
}
