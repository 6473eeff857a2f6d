// Copyright The Tintmill authors. All rights reserved.

#include "Config/ConfigImport.h"
#include "Config/KeptAside.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Properties/ImportProblems.h"
#include "Properties/ValueText.h"
#include "StandIn/ConfigOrigin.h"
#include "StandIn/Notices.h"

namespace StandInPrivate
{
namespace
{
// Bad lines of one key that get a notice of their own; one more notice counts the rest.
const int32 MaxNoticesAKey = 100;

// Reads the lines of one key and tells of those that could not be read whole.
class FKeyReader
{
public:
	FKeyReader(UObject* InObject, const FString& InFileName, const FString& InSection, const FString& InKey)
		: Object(InObject)
		, FileName(InFileName)
		, Section(InSection)
		, Key(InKey)
		, NumBadLines(0)
		, bUnreadText(false)
		, bLastIsSavedFile(false)
	{
		GConfig->GetArray(*Section, *Key, Values, FileName);
		if (Values.Num() > 0)
		{
			ClearOldNotices();
			StandIn::GetConfigOrigins(*Section, *Key, Origins, FileName);
			ForgetUnreadText(FileName, Section, Key);
		}
	}

	~FKeyReader()
	{
		if (NumBadLines > MaxNoticesAKey)
		{
			StandIn::AddNotice(FString::Printf(TEXT("Config|%s|%s|%s"), *FileName, *Section, *Key),
				FString::Printf(TEXT("%s: %d more lines of %s could not be read whole.%s"), *FileName, NumBadLines - MaxNoticesAKey, *Key,
					*DescribeCopy()));
		}
		if (bUnreadText)
		{
			NoteUnreadText(FileName, Section, Key);
		}
	}

	FKeyReader(const FKeyReader&) = delete;
	FKeyReader& operator=(const FKeyReader&) = delete;

	int32 Num() const { return Values.Num(); }

	// The line with a value.
	int32 FindLine(const FString& Value) const
	{
		const int32 Line = Values.IndexOfByPredicate([&Value](const FString& Candidate) { return Candidate.Equals(Value); });
		check(Line != INDEX_NONE);
		return Line;
	}

	// Reads one line into a value.
	void Import(int32 Line, const FProperty* ValueProperty, void* Data)
	{
		FImportProblems Problems;
		const TCHAR* Rest = ValueProperty->ImportText(*Values[Line], Data, PPF_None, Object);
		if (Rest != nullptr && *(Rest = SkipBlanks(Rest)) != 0)
		{
			Problems.Phrases.Add(FString::Printf(TEXT("\"%s\" behind the value of %s was ignored"), *Excerpt(Rest), *Key));
		}
		if (Problems.Phrases.Num() > 0)
		{
			Tell(Line, FString::Join(Problems.Phrases, TEXT("; ")));
		}
	}

	// Tells that a line could not be read whole.
	void Tell(int32 Line, const FString& What)
	{
		const StandIn::FConfigOrigin Origin = Origins.IsValidIndex(Line) ? Origins[Line] : StandIn::FConfigOrigin();
		if (!Origin.File.Equals(LastOriginFile))
		{
			LastOriginFile = Origin.File;
			bLastIsSavedFile = FPaths::IsSamePath(Origin.File, FileName);
		}
		const bool bInSavedFile = Origin.Line > 0 && bLastIsSavedFile;
		bUnreadText |= bInSavedFile;
		if (++NumBadLines <= MaxNoticesAKey)
		{
			const FString Place = Origin.Line > 0 ? Origin.ToString() : FString::Printf(TEXT("[%s] %s"), *Section, *Key);
			StandIn::AddNotice(
				FString::Printf(TEXT("Config|%s|%s|%s|%d"), *FileName, *Section, *Key, Origin.Line > 0 ? Origin.Line : -Line),
				FString::Printf(TEXT("%s: %s.%s"), *Place, *What, bInSavedFile ? *DescribeCopy() : TEXT("")));
		}
	}

private:
	// What was told when the key was read before does not count any more.
	void ClearOldNotices()
	{
		const FString Prefix = FString::Printf(TEXT("Config|%s|%s|%s"), *FileName, *Section, *Key);
		TArray<FString> OldKeys;
		for (const StandIn::FNotice& Notice : StandIn::GetNotices())
		{
			if (Notice.Key.Equals(Prefix) || Notice.Key.StartsWith(Prefix + TEXT("|"), ESearchCase::CaseSensitive))
			{
				OldKeys.Add(Notice.Key);
			}
		}
		for (const FString& OldKey : OldKeys)
		{
			StandIn::ClearNotice(OldKey);
		}
	}

	const FString& DescribeCopy()
	{
		if (CopySentence.Len() == 0)
		{
			CopySentence =
				FString::Printf(TEXT(" The file will be copied to %s before these settings are saved again."), *GetKeptAsideName(FileName));
		}
		return CopySentence;
	}

	UObject* Object;
	const FString FileName;
	const FString Section;
	const FString Key;
	TArray<FString> Values;
	TArray<StandIn::FConfigOrigin> Origins;
	int32 NumBadLines;
	bool bUnreadText;
	FString CopySentence;
	FString LastOriginFile;
	bool bLastIsSavedFile;
};

FString GetElementKey(const FProperty* Property, int32 Index)
{
	return Property->ArrayDim > 1 ? FString::Printf(TEXT("%s[%d]"), *Property->GetName(), Index) : Property->GetName();
}
}

void GetConfigPlace(const UClass* Class, const FProperty* Property, const TCHAR* FileName, FString& OutFileName, FString& OutSection)
{
	const UClass* Owner = Property->HasAnyPropertyFlags(CPF_GlobalConfig) ? Property->GetOwnerClass() : Class;
	OutFileName = FileName != nullptr ? FString(FileName) : Owner->GetConfigName();
	OutSection = Owner->GetPathName();
}

void ImportConfigProperty(UObject* Object, const FProperty* Property, const FString& FileName, const FString& Section)
{
	if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
	{
		FKeyReader Reader(Object, FileName, Section, Property->GetName());
		if (Reader.Num() > 0)
		{
			FScriptArrayHelper_InContainer Helper(ArrayProperty, Object);
			Helper.EmptyAndAddValues(Reader.Num());
			for (int32 Line = 0; Line < Reader.Num(); ++Line)
			{
				Reader.Import(Line, ArrayProperty->Inner, Helper.GetRawPtr(Line));
			}
		}
		return;
	}
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		const FString Key = GetElementKey(Property, Index);
		FString Value;
		if (!GConfig->GetString(*Section, *Key, Value, FileName))
		{
			continue;
		}
		FKeyReader Reader(Object, FileName, Section, Key);
		const int32 Line = Reader.FindLine(Value);
		Reader.Import(Line, Property, Property->ContainerPtrToValuePtr<void>(Object, Index));
		for (int32 Other = 0; Other < Reader.Num(); ++Other)
		{
			if (Other != Line)
			{
				Reader.Tell(Other, FString::Printf(TEXT("%s is set more than once and this line was not used"), *Key));
			}
		}
	}
}

void ExportConfigProperty(
	const UObject* Object, const FProperty* Property, const FString& FileName, const FString& Section, FConfigCacheIni& Config)
{
	UObject* Parent = const_cast<UObject*>(Object);
	if (const FArrayProperty* ArrayProperty = CastField<FArrayProperty>(Property))
	{
		FScriptArrayHelper_InContainer Helper(ArrayProperty, Object);
		TArray<FString> Values;
		Values.Reserve(Helper.Num());
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			FString Value;
			ArrayProperty->Inner->ExportTextItem(Value, Helper.GetRawPtr(Index), nullptr, Parent, PPF_None);
			Values.Add(MoveTemp(Value));
		}
		if (Values.Num() > 0)
		{
			Config.SetArray(*Section, *Property->GetName(), Values, FileName);
		}
		else
		{
			Config.RemoveKey(*Section, *Property->GetName(), FileName);
		}
		return;
	}
	for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
	{
		FString Value;
		Property->ExportTextItem(Value, Property->ContainerPtrToValuePtr<void>(Object, Index), nullptr, Parent, PPF_None);
		Config.SetString(*Section, *GetElementKey(Property, Index), *Value, FileName);
	}
}
}
