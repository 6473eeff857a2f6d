// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigCacheIni.h"

#include "Containers/Set.h"
#include "Misc/CString.h"
#include "Misc/ConfigChanges.h"
#include "Misc/ConfigDocument.h"
#include "Misc/ConfigFileAccess.h"
#include "Misc/ConfigHierarchy.h"
#include "Misc/ConfigStorage.h"
#include "Misc/TextCodec.h"

#include <string>

bool FConfigSection::operator==(const FConfigSection& Other) const
{
	if (Num() != Other.Num())
	{
		return false;
	}
	TArray<FName> Keys;
	GetKeys(Keys);
	for (const FName Key : Keys)
	{
		TArray<FConfigValue> Mine;
		TArray<FConfigValue> Theirs;
		MultiFind(Key, Mine, true);
		Other.MultiFind(Key, Theirs, true);
		if (!(Mine == Theirs))
		{
			return false;
		}
	}
	return true;
}

int32 FConfigSection::Remove(const FName& Key)
{
	const int32 NumRemoved = FConfigSectionMap::Remove(Key);
	if (NumRemoved > 0)
	{
		CloseGaps();
	}
	return NumRemoved;
}

int32 FConfigSection::RemoveSingle(const FName& Key, const FConfigValue& Value)
{
	const int32 NumRemoved = FConfigSectionMap::RemoveSingle(Key, Value);
	if (NumRemoved > 0)
	{
		CloseGaps();
	}
	return NumRemoved;
}

void FConfigSection::CloseGaps()
{
	FConfigSectionMap Closed;
	Closed.Reserve(Num());
	for (const TPair<FName, FConfigValue>& Pair : *this)
	{
		Closed.Add(Pair.Key, Pair.Value);
	}
	static_cast<FConfigSectionMap&>(*this) = MoveTemp(Closed);
}

bool FConfigSection::HasQuotes(const FString& Test)
{
	return Test.Len() > 1 && Test[0] == '"' && Test[Test.Len() - 1] == '"';
}

FConfigFile::FConfigFile()
	: Dirty(false)
	, NoSave(false)
	, SourceConfigFile(nullptr)
{}

FConfigFile::~FConfigFile() {}

FConfigFile::FConfigFile(const FConfigFile& Other) = default;
FConfigFile& FConfigFile::operator=(const FConfigFile& Other) = default;

void FConfigFileAccess::SetHierarchy(FConfigFile& File, const TSharedPtr<FConfigFile>& Hierarchy)
{
	File.SourceOwner = Hierarchy;
	File.SourceConfigFile = Hierarchy.Get();
}

TSharedPtr<StandIn::FConfigDocument>& FConfigFileAccess::Document(FConfigFile& File)
{
	return File.Document;
}

namespace
{
/** Takes the values of all keys that a saved file has out of what the hierarchy has given. */
void RemoveSavedKeys(FConfigFile& File, const StandIn::FConfigDocument& Document)
{
	FConfigSection* Section = nullptr;
	TSet<FString> ChangedSections;
	FString SectionName;
	for (const StandIn::FConfigDocument::FLine& Line : Document.Lines)
	{
		if (Line.Kind == StandIn::FConfigDocument::ELine::Section)
		{
			SectionName = Line.Text;
			Section = File.Find(SectionName);
		}
		else if (Line.Kind == StandIn::FConfigDocument::ELine::Value && Section && Section->FConfigSectionMap::Remove(Line.Key) > 0)
		{
			ChangedSections.Add(SectionName);
		}
	}
	for (const FString& Name : ChangedSections)
	{
		File.Find(Name)->CloseGaps();
	}
}
}

void FConfigFileAccess::ApplySaved(FConfigFile& File, const StandIn::FConfigDocument& Document, const FString& Filename)
{
	const int32 Origin = StandIn::InternConfigOriginFile(Filename);
	FConfigSection* Section = nullptr;
	// The file's lines are the whole value of their key, whatever the hierarchy has for it.
	RemoveSavedKeys(File, Document);
	for (const StandIn::FConfigDocument::FLine& Line : Document.Lines)
	{
		if (Line.Kind == StandIn::FConfigDocument::ELine::Section)
		{
			Section = File.FindOrAddSection(Line.Text);
		}
		else if (Line.Kind == StandIn::FConfigDocument::ELine::Value)
		{
			FConfigValue Value(Line.Text);
			Value.OriginFile = Origin;
			Value.OriginLine = Line.Number;
			Section->Add(Line.Key, Value);
		}
	}
}

bool FConfigFile::Combine(const FString& Filename)
{
	std::string Bytes;
	FString Reason;
	const StandIn::EConfigRead Result = StandIn::ReadConfigBytes(Filename, Bytes, Reason);
	if (Result != StandIn::EConfigRead::Read)
	{
		if (Result != StandIn::EConfigRead::Missing)
		{
			StandIn::NoticeHierarchyFile(Filename, Reason, 0, 0);
		}
		return false;
	}
	const TSharedRef<StandIn::FConfigDocument> Parsed = StandIn::FConfigDocument::Parse(Bytes);
	int32 Count = 0;
	const int32 First = Parsed->FirstUnreadableLine(Count);
	if (Count > 0)
	{
		StandIn::NoticeHierarchyFile(Filename, FString(), First, Count);
	}
	StandIn::ApplyHierarchyDocument(*this, *Parsed, Filename);
	return true;
}

void FConfigFile::CombineFromBuffer(const FString& Buffer)
{
	StandIn::ApplyHierarchyDocument(*this, *StandIn::FConfigDocument::Parse(StandInPrivate::ToUtf8(Buffer)), FString());
}

void FConfigFile::ProcessInputFileContents(const FString& Contents)
{
	FConfigFileAccess::ApplySaved(*this, *StandIn::FConfigDocument::Parse(StandInPrivate::ToUtf8(Contents)), FString());
}

void FConfigFile::Read(const FString& Filename)
{
	Empty();
	if (SourceConfigFile)
	{
		for (const TPair<FString, FConfigSection>& Pair : *SourceConfigFile)
		{
			Add(Pair.Key, Pair.Value);
		}
	}
	Document = StandIn::LoadConfigDocument(Filename);
	FConfigFileAccess::ApplySaved(*this, *Document, Filename);
	Dirty = false;
}

void FConfigFileAccess::MakeKnown(const FConfigFile& File, const FString& Filename, FConfigFile& OutKnown)
{
	if (File.SourceConfigFile)
	{
		OutKnown = *File.SourceConfigFile;
	}
	if (File.Document.IsValid())
	{
		ApplySaved(OutKnown, *File.Document, Filename);
	}
}

bool FConfigFile::Write(const FString& Filename, bool bDoRemoteWrite, const FString& InitialText)
{
	(void)bDoRemoteWrite;
	(void)InitialText;
	if (!Dirty || NoSave)
	{
		return true;
	}
	FConfigFile Known;
	FConfigFileAccess::MakeKnown(*this, Filename, Known);
	bool bChangedByOthers = false;
	if (!StandIn::SaveConfigDocument(Filename, Document, Known, *this, SourceConfigFile, bChangedByOthers))
	{
		return false;
	}
	if (bChangedByOthers)
	{
		// What others have written in the meantime counts from now on; else the next save would take it out again.
		FConfigFile OnDisk;
		FConfigFileAccess::MakeKnown(*this, Filename, OnDisk);
		StandIn::AbsorbConfigChanges(*this, OnDisk);
	}
	Dirty = false;
	return true;
}

FConfigSection* FConfigFile::FindOrAddSection(const FString& InName)
{
	FConfigSection* const Section = Find(InName);
	return Section ? Section : &Add(InName, FConfigSection());
}

bool FConfigFile::GetString(const TCHAR* Section, const TCHAR* Key, FString& Value) const
{
	const FConfigSection* const Found = Find(Section);
	const FConfigValue* const Present = Found ? Found->Find(FName(Key)) : nullptr;
	if (!Present)
	{
		return false;
	}
	Value = Present->GetValue();
	return true;
}

bool FConfigFile::GetInt(const TCHAR* Section, const TCHAR* Key, int32& Value) const
{
	FString Text;
	if (!GetString(Section, Key, Text))
	{
		return false;
	}
	Value = FCString::Atoi(*Text);
	return true;
}

bool FConfigFile::GetInt64(const TCHAR* Section, const TCHAR* Key, int64& Value) const
{
	FString Text;
	if (!GetString(Section, Key, Text))
	{
		return false;
	}
	Value = FCString::Atoi64(*Text);
	return true;
}

bool FConfigFile::GetFloat(const TCHAR* Section, const TCHAR* Key, float& Value) const
{
	FString Text;
	if (!GetString(Section, Key, Text))
	{
		return false;
	}
	Value = FCString::Atof(*Text);
	return true;
}

bool FConfigFile::GetBool(const TCHAR* Section, const TCHAR* Key, bool& Value) const
{
	FString Text;
	if (!GetString(Section, Key, Text))
	{
		return false;
	}
	Value = FCString::ToBool(*Text);
	return true;
}

int32 FConfigFile::GetArray(const TCHAR* Section, const TCHAR* Key, TArray<FString>& Value) const
{
	Value.Empty();
	TArray<FConfigValue> Found;
	if (const FConfigSection* const Present = Find(Section))
	{
		Present->MultiFind(FName(Key), Found, true);
	}
	for (const FConfigValue& Element : Found)
	{
		Value.Add(Element.GetValue());
	}
	return Value.Num();
}

void FConfigFile::SetString(const TCHAR* Section, const TCHAR* Key, const TCHAR* Value)
{
	FConfigSection* const Found = FindOrAddSection(Section);
	FConfigValue* const Present = Found->Find(FName(Key));
	if (!Present)
	{
		Found->Add(FName(Key), FConfigValue(Value));
		Dirty = true;
	}
	else if (!Present->GetSavedValue().Equals(Value))
	{
		*Present = FConfigValue(Value);
		Dirty = true;
	}
}

void FConfigFile::SetArray(const TCHAR* Section, const TCHAR* Key, const TArray<FString>& Value)
{
	TArray<FString> Present;
	GetArray(Section, Key, Present);
	bool bSame = Present.Num() == Value.Num();
	for (int32 Index = 0; bSame && Index < Value.Num(); ++Index)
	{
		bSame = Present[Index].Equals(Value[Index]);
	}
	if (bSame)
	{
		return;
	}
	FConfigSection* const Found = FindOrAddSection(Section);
	Found->Remove(FName(Key));
	for (const FString& Element : Value)
	{
		Found->Add(FName(Key), FConfigValue(Element));
	}
	Dirty = true;
}
