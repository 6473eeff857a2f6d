// Copyright The Tintmill authors. All rights reserved.

#include "UObject/ObjectHash.h"
#include "UObject/Class.h"

#include <unordered_map>

namespace StandInPrivate
{
namespace
{
struct FOuterAndName
{
	const UObjectBase* Outer;
	uint32 Index;
	int32 Number;

	bool operator==(const FOuterAndName& Other) const { return Outer == Other.Outer && Index == Other.Index && Number == Other.Number; }
};

struct FOuterAndNameHash
{
	std::size_t operator()(const FOuterAndName& Key) const
	{
		std::size_t Hash = std::hash<const void*>()(Key.Outer);
		Hash = Hash * 1000003u + Key.Index;
		return Hash * 1000003u + std::size_t(uint32(Key.Number));
	}
};

struct FObjectHash
{
	std::unordered_map<FOuterAndName, UObject*, FOuterAndNameHash> ByOuter;
	std::unordered_multimap<uint64, UObject*> ByName;
	std::unordered_map<const UObjectBase*, std::unordered_map<uint32, int32>> Numbers;
};

// Never destroyed: objects may outlive the library's statics.
FObjectHash& GetHash()
{
	static FObjectHash* Hash = new FObjectHash;
	return *Hash;
}

FOuterAndName MakeKey(const UObjectBase* Outer, FName Name)
{
	return FOuterAndName{Outer, Name.GetComparisonIndex().ToUnstableInt(), Name.GetNumber()};
}

// The object that its base class is just being constructed for.
UObject* ToObject(UObjectBase* Object)
{
	return reinterpret_cast<UObject*>(Object);
}

uint64 MakeNameKey(FName Name)
{
	return (uint64(Name.GetComparisonIndex().ToUnstableInt()) << 32) | uint32(Name.GetNumber());
}
}

void HashObject(UObjectBase* Object)
{
	FObjectHash& Hash = GetHash();
	Hash.ByOuter[MakeKey(Object->GetOuter(), Object->GetFName())] = ToObject(Object);
	Hash.ByName.emplace(MakeNameKey(Object->GetFName()), ToObject(Object));
}

void UnhashObject(UObjectBase* Object)
{
	FObjectHash& Hash = GetHash();
	const auto Found = Hash.ByOuter.find(MakeKey(Object->GetOuter(), Object->GetFName()));
	if (Found != Hash.ByOuter.end() && Found->second == ToObject(Object))
	{
		Hash.ByOuter.erase(Found);
	}
	const auto Range = Hash.ByName.equal_range(MakeNameKey(Object->GetFName()));
	for (auto It = Range.first; It != Range.second; ++It)
	{
		if (It->second == ToObject(Object))
		{
			Hash.ByName.erase(It);
			break;
		}
	}
	Hash.Numbers.erase(Object);
}

UObject* FindInOuter(const UObject* Outer, FName Name)
{
	FObjectHash& Hash = GetHash();
	const auto Found = Hash.ByOuter.find(MakeKey(Outer, Name));
	return Found != Hash.ByOuter.end() ? Found->second : nullptr;
}

UObject* FindAnywhere(FName Name, const UClass* Class, bool bExactClass)
{
	FObjectHash& Hash = GetHash();
	const auto Range = Hash.ByName.equal_range(MakeNameKey(Name));
	for (auto It = Range.first; It != Range.second; ++It)
	{
		if (Class == nullptr || (bExactClass ? It->second->GetClass() == Class : It->second->IsA(Class)))
		{
			return It->second;
		}
	}
	return nullptr;
}

int32 NextNumber(const UObject* Outer, FName BaseName)
{
	return GetHash().Numbers[Outer][BaseName.GetComparisonIndex().ToUnstableInt()]++;
}
}
