// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigChanges.h"

#include <unordered_map>
#include <unordered_set>

namespace StandIn
{
namespace
{
struct FNameHash
{
	size_t operator()(const FName& Name) const { return GetTypeHash(Name); }
};

struct FStringHash
{
	size_t operator()(const FString& String) const { return GetTypeHash(String); }
};

/** The values of a key in a section that may be missing. */
TArray<FConfigValue> ValuesOf(const FConfigSection* Section, FName Key)
{
	TArray<FConfigValue> Values;
	if (Section)
	{
		Section->MultiFind(Key, Values, true);
	}
	return Values;
}

bool SameValues(const TArray<FConfigValue>& A, const TArray<FConfigValue>& B)
{
	if (A.Num() != B.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < A.Num(); ++Index)
	{
		if (A[Index] != B[Index])
		{
			return false;
		}
	}
	return true;
}

/** Adds the changes of the keys that occur in one section and were not seen before. */
void FindKeyChanges(const FConfigSection& Keys, const FConfigSection* Known, const FConfigSection* Now, const FConfigSection* Hierarchy,
	std::unordered_set<FName, FNameHash>& Seen, FConfigSectionChange& Out)
{
	for (const TPair<FName, FConfigValue>& Pair : Keys)
	{
		if (!Seen.insert(Pair.Key).second)
		{
			continue;
		}
		const TArray<FConfigValue> NowValues = ValuesOf(Now, Pair.Key);
		if (SameValues(ValuesOf(Known, Pair.Key), NowValues))
		{
			continue;
		}
		FConfigKeyChange Change;
		Change.Key = Pair.Key;
		if (!SameValues(ValuesOf(Hierarchy, Pair.Key), NowValues))
		{
			for (const FConfigValue& Value : NowValues)
			{
				Change.Values.Add(Value.GetSavedValue());
			}
		}
		Out.Keys.push_back(Change);
	}
}

/** A key's change while it is being applied. */
struct FPendingKey
{
	const FConfigKeyChange* Change = nullptr;
	/** Index of the key's last line in the file, or INDEX_NONE. */
	int32 LastLine = INDEX_NONE;
	int32 NumWritten = 0;
};

/** A section's changes while they are being applied. */
struct FPendingSection
{
	const FConfigSectionChange* Change = nullptr;
	std::unordered_map<FName, FPendingKey, FNameHash> Keys;
	/** Index of the last line of the section that is not blank, its heading at least; INDEX_NONE when it has none. */
	int32 LastLine = INDEX_NONE;
};

/** Applies changes to the lines of one file, in one walk over them. */
class FConfigLineEditor
{
public:
	explicit FConfigLineEditor(FConfigDocument& InDocument)
		: Document(InDocument)
	{}

	void Apply(const std::vector<FConfigSectionChange>& Changes)
	{
		for (const FConfigSectionChange& Change : Changes)
		{
			FPendingSection& Pending = Sections[Change.Section];
			Pending.Change = &Change;
			for (const FConfigKeyChange& Key : Change.Keys)
			{
				Pending.Keys[Key.Key].Change = &Key;
			}
		}
		FindPlaces();
		Rewrite();
		AddNewSections(Changes);
		Document.Lines.swap(Out);
	}

private:
	typedef FConfigDocument::ELine ELine;
	typedef FConfigDocument::FLine FLine;

	FPendingSection* FindSection(const FString& Name)
	{
		const auto Found = Sections.find(Name);
		return Found == Sections.end() ? nullptr : &Found->second;
	}

	static FPendingKey* FindKey(FPendingSection* Section, const FLine& Line)
	{
		if (!Section || Line.Kind != ELine::Value)
		{
			return nullptr;
		}
		const auto Found = Section->Keys.find(Line.Key);
		return Found == Section->Keys.end() ? nullptr : &Found->second;
	}

	void FindPlaces()
	{
		FPendingSection* Section = nullptr;
		for (size_t Index = 0; Index < Document.Lines.size(); ++Index)
		{
			const FLine& Line = Document.Lines[Index];
			Section = Line.Kind == ELine::Section ? FindSection(Line.Text) : Section;
			if (Section && Line.Kind != ELine::Blank && Line.Kind != ELine::Unreadable)
			{
				Section->LastLine = int32(Index);
			}
			if (FPendingKey* const Key = FindKey(Section, Line))
			{
				Key->LastLine = int32(Index);
			}
		}
	}

	void Rewrite()
	{
		FPendingSection* Section = nullptr;
		for (size_t Index = 0; Index < Document.Lines.size(); ++Index)
		{
			FLine& Line = Document.Lines[Index];
			if (Line.Kind == ELine::Section)
			{
				CloseSection();
				Section = FindSection(Line.Text);
				OpenHeading = int32(Out.size());
			}
			if (FPendingKey* const Key = FindKey(Section, Line))
			{
				RewriteKeyLine(*Key, Line, int32(Index));
			}
			else if (Line.Kind != ELine::Unreadable)
			{
				Out.push_back(Line);
			}
			if (Section && Section->LastLine == int32(Index))
			{
				AddNewKeys(*Section);
			}
		}
		CloseSection();
	}

	void RewriteKeyLine(FPendingKey& Key, const FLine& Line, int32 Index)
	{
		const TArray<FString>& Values = Key.Change->Values;
		const FString KeyText = Line.KeyText;
		if (Key.NumWritten >= Values.Num())
		{
			bLostLines = true;
		}
		else
		{
			const FString& Value = Values[Key.NumWritten++];
			Out.push_back(Line.Text.Equals(Value) ? Line : FConfigDocument::MakeValueLine(KeyText, Line.Key, Value));
		}
		while (Index == Key.LastLine && Key.NumWritten < Values.Num())
		{
			AddLine(FConfigDocument::MakeValueLine(KeyText, Line.Key, Values[Key.NumWritten++]));
		}
	}

	/** Adds the lines of the keys that the section did not have. */
	void AddNewKeys(FPendingSection& Section)
	{
		for (const FConfigKeyChange& Change : Section.Change->Keys)
		{
			if (Section.Keys[Change.Key].LastLine == INDEX_NONE)
			{
				for (const FString& Value : Change.Values)
				{
					AddLine(FConfigDocument::MakeValueLine(Change.Key.ToString(), Change.Key, Value));
				}
			}
		}
	}

	void AddLine(const FLine& Line)
	{
		Out.push_back(Line);
		bAddedLines = true;
	}

	/** Drops a heading that has lost all that stood below it; puts a blank line below what was added. */
	void CloseSection()
	{
		bool bHasContent = false;
		for (size_t Index = size_t(OpenHeading + 1); bLostLines && Index < Out.size(); ++Index)
		{
			bHasContent = bHasContent || Out[Index].Kind != ELine::Blank;
		}
		if (OpenHeading != INDEX_NONE && bLostLines && !bHasContent)
		{
			Out.resize(size_t(OpenHeading));
		}
		else if ((bAddedLines || bLostLines) && !Out.empty() && Out.back().Kind != ELine::Blank)
		{
			Out.push_back(FLine());
		}
		bLostLines = false;
		bAddedLines = false;
	}

	void AddNewSections(const std::vector<FConfigSectionChange>& Changes)
	{
		for (const FConfigSectionChange& Change : Changes)
		{
			FPendingSection& Section = Sections[Change.Section];
			bool bHasValues = false;
			for (const FConfigKeyChange& Key : Change.Keys)
			{
				bHasValues = bHasValues || Key.Values.Num() > 0;
			}
			if (Section.LastLine != INDEX_NONE || !bHasValues)
			{
				continue;
			}
			if (!Out.empty() && Out.back().Kind != ELine::Blank)
			{
				Out.push_back(FLine());
			}
			Out.push_back(FConfigDocument::MakeSectionLine(Change.Section));
			AddNewKeys(Section);
			Out.push_back(FLine());
		}
	}

	FConfigDocument& Document;
	std::unordered_map<FString, FPendingSection, FStringHash> Sections;
	std::vector<FLine> Out;
	/** Index in Out of the heading that is being written below, or INDEX_NONE. */
	int32 OpenHeading = INDEX_NONE;
	bool bLostLines = false;
	bool bAddedLines = false;
};
}

std::vector<FConfigSectionChange> FindConfigChanges(const FConfigFile& Known, const FConfigFile& Now, const FConfigFile* Hierarchy)
{
	std::vector<FConfigSectionChange> Changes;
	const auto AddSection = [&](const FString& Name, const FConfigSection* KnownSection, const FConfigSection* NowSection) {
		FConfigSectionChange Change;
		Change.Section = Name;
		std::unordered_set<FName, FNameHash> Seen;
		const FConfigSection* const HierarchySection = Hierarchy ? Hierarchy->Find(Name) : nullptr;
		for (const FConfigSection* Keys : {NowSection, KnownSection})
		{
			if (Keys)
			{
				FindKeyChanges(*Keys, KnownSection, NowSection, HierarchySection, Seen, Change);
			}
		}
		if (!Change.Keys.empty())
		{
			Changes.push_back(Change);
		}
	};
	for (const TPair<FString, FConfigSection>& Pair : Now)
	{
		AddSection(Pair.Key, Known.Find(Pair.Key), &Pair.Value);
	}
	for (const TPair<FString, FConfigSection>& Pair : Known)
	{
		if (!Now.Contains(Pair.Key))
		{
			AddSection(Pair.Key, &Pair.Value, nullptr);
		}
	}
	return Changes;
}

void AbsorbConfigChanges(FConfigFile& File, const FConfigFile& Other)
{
	for (const FConfigSectionChange& Change : FindConfigChanges(File, Other, nullptr))
	{
		FConfigSection* const Section = File.FindOrAddSection(Change.Section);
		for (const FConfigKeyChange& Key : Change.Keys)
		{
			TArray<FConfigValue> Values;
			if (const FConfigSection* const Source = Other.Find(Change.Section))
			{
				Source->MultiFind(Key.Key, Values, true);
			}
			Section->Remove(Key.Key);
			for (const FConfigValue& Value : Values)
			{
				Section->Add(Key.Key, Value);
			}
		}
	}
}

void ApplyConfigChanges(FConfigDocument& Document, const std::vector<FConfigSectionChange>& Changes)
{
	FConfigLineEditor(Document).Apply(Changes);
}
}
