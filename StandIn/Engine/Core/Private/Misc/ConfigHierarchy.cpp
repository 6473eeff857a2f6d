// Copyright The Tintmill authors. All rights reserved.

#include "Misc/ConfigHierarchy.h"

#include "Misc/ConfigStorage.h"
#include "Misc/Paths.h"

#include <unordered_map>
#include <vector>

namespace StandIn
{
namespace
{
struct FHierarchyKeyHash
{
	size_t operator()(const FName& Name) const { return GetTypeHash(Name); }
};

struct FHierarchyValueHash
{
	size_t operator()(const FString& Value) const { return GetTypeHash(Value); }
};

struct FHierarchyValueEqual
{
	bool operator()(const FString& A, const FString& B) const { return A.Equals(B); }
};

/** A section while a file is laid over it; no operator looks at more than the values it touches. */
class FHierarchySection
{
public:
	explicit FHierarchySection(const FConfigSection& Section)
	{
		for (const TPair<FName, FConfigValue>& Pair : Section)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	void Apply(const FConfigDocument::FLine& Line, int32 Origin)
	{
		FConfigValue Value(Line.Text);
		Value.OriginFile = Origin;
		Value.OriginLine = Line.Number;
		const TCHAR Operator = Line.KeyText[0];
		const FName OperatorKey(*Line.KeyText.Mid(1));
		switch (Operator)
		{
		case '!':
			RemoveAll(OperatorKey);
			break;
		case '-':
			RemoveOne(OperatorKey, Value);
			break;
		case '.':
			Add(OperatorKey, Value);
			break;
		case '+':
			AddUnique(OperatorKey, Value);
			break;
		case '@':
		case '*':
			UE_LOG(
				LogConfig, Warning, TEXT("Keyed struct arrays are not in this stand-in; line %d is skipped: %s"), Line.Number, *Line.Raw);
			break;
		default:
			Set(Line.Key, Value);
			break;
		}
	}

	void CopyTo(FConfigSection& Section) const
	{
		Section.Empty();
		for (const FEntry& Entry : Entries)
		{
			if (Entry.bAlive)
			{
				Section.Add(Entry.Key, Entry.Value);
			}
		}
	}

private:
	struct FEntry
	{
		FName Key;
		FConfigValue Value;
		bool bAlive;
	};

	struct FKey
	{
		/** Places of all values, dead ones too, in order. */
		std::vector<size_t> Places;
		/** Places of the living values by their text. */
		std::unordered_map<FString, std::vector<size_t>, FHierarchyValueHash, FHierarchyValueEqual> ByValue;
	};

	void Add(FName Name, const FConfigValue& Value)
	{
		FKey& Key = Keys[Name];
		Key.Places.push_back(Entries.size());
		Key.ByValue[Value.GetSavedValue()].push_back(Entries.size());
		Entries.push_back(FEntry{Name, Value, true});
	}

	void AddUnique(FName Name, const FConfigValue& Value)
	{
		if (Keys[Name].ByValue[Value.GetSavedValue()].empty())
		{
			Add(Name, Value);
		}
	}

	void RemoveOne(FName Name, const FConfigValue& Value)
	{
		std::vector<size_t>& Places = Keys[Name].ByValue[Value.GetSavedValue()];
		if (!Places.empty())
		{
			Entries[Places.back()].bAlive = false;
			Places.pop_back();
		}
	}

	void RemoveAll(FName Name)
	{
		FKey& Key = Keys[Name];
		for (const size_t Place : Key.Places)
		{
			Entries[Place].bAlive = false;
		}
		Key = FKey();
	}

	/** Replaces the last value of the key, or adds the first. */
	void Set(FName Name, const FConfigValue& Value)
	{
		FKey& Key = Keys[Name];
		while (!Key.Places.empty() && !Entries[Key.Places.back()].bAlive)
		{
			Key.Places.pop_back();
		}
		if (Key.Places.empty())
		{
			Add(Name, Value);
			return;
		}
		const size_t Place = Key.Places.back();
		std::vector<size_t>& Same = Key.ByValue[Entries[Place].Value.GetSavedValue()];
		for (size_t Index = Same.size(); Index-- > 0;)
		{
			if (Same[Index] == Place)
			{
				Same.erase(Same.begin() + std::ptrdiff_t(Index));
				break;
			}
		}
		Entries[Place].Value = Value;
		Key.ByValue[Value.GetSavedValue()].push_back(Place);
	}

	std::vector<FEntry> Entries;
	std::unordered_map<FName, FKey, FHierarchyKeyHash> Keys;
};
}

void ApplyHierarchyDocument(FConfigFile& File, const FConfigDocument& Document, const FString& Filename)
{
	const int32 Origin = InternConfigOriginFile(Filename);
	std::unordered_map<FString, FHierarchySection, FHierarchyValueHash> Sections;
	FHierarchySection* Section = nullptr;
	for (const FConfigDocument::FLine& Line : Document.Lines)
	{
		if (Line.Kind == FConfigDocument::ELine::Section)
		{
			Section = &Sections.try_emplace(Line.Text, *File.FindOrAddSection(Line.Text)).first->second;
		}
		else if (Line.Kind == FConfigDocument::ELine::Value)
		{
			Section->Apply(Line, Origin);
		}
	}
	for (const auto& Pair : Sections)
	{
		Pair.second.CopyTo(*File.FindOrAddSection(Pair.first));
	}
}

TSharedPtr<FConfigFile> ReadConfigHierarchy(const FString& BaseIniName)
{
	const TSharedRef<FConfigFile> Hierarchy = MakeShared<FConfigFile>();
	const bool bHasBase = Hierarchy->Combine(FPaths::EngineConfigDir() + TEXT("Base") + BaseIniName + TEXT(".ini"));
	const bool bHasDefault = Hierarchy->Combine(FPaths::ProjectConfigDir() + TEXT("Default") + BaseIniName + TEXT(".ini"));
	return bHasBase || bHasDefault ? TSharedPtr<FConfigFile>(Hierarchy) : TSharedPtr<FConfigFile>();
}
}
