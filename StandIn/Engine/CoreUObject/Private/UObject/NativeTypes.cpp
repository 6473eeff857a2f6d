// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NativeTypes.h"
#include "HAL/UnrealMemory.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectRemoval.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UObjectHash.h"

#include <algorithm>
#include <vector>

namespace StandInPrivate
{
namespace
{
struct FNativeType
{
	UObject* Type;
	FString PackageName;
	bool bAwake;
};

struct FNativeTypes
{
	std::vector<FNativeType> Types;
};

FNativeTypes& GetTypes()
{
	static FNativeTypes* Types = new FNativeTypes;
	return *Types;
}

FString GetModuleOf(const FString& PackageName)
{
	return PackageName.StartsWith(TEXT("/Script/")) ? PackageName.RightChop(8) : PackageName;
}

// The package object that types of this name live in. A module without reflected package code gets one here.
UPackage* GetPackageOf(const FString& PackageName)
{
	UPackage* Package = FindNativePackage(PackageName);
	if (Package == nullptr)
	{
		Package = CreatePackage(*PackageName);
		Package->SetPackageFlags(PKG_CompiledIn);
		AddNativeType(Package, PackageName, PackageName);
	}
	return Package;
}

void MarkNative(UObject* Type)
{
	FObjectSystemAccess::GetItem(Type)->SetFlags(EInternalObjectFlags::Native | EInternalObjectFlags::RootSet);
}

void Wake(FNativeType& Entry)
{
	Entry.bAwake = true;
	FObjectSystemAccess::AddObject(Entry.Type);
	MarkNative(Entry.Type);
}

// The objects that the type refers to are gone by now.
void Sleep(FNativeType& Entry)
{
	Entry.bAwake = false;
	FObjectSystemAccess::RemoveObject(Entry.Type);
	if (Entry.Type->IsA(UClass::StaticClass()))
	{
		((UClass*)Entry.Type)->ClassDefaultObject = nullptr;
	}
	else if (Entry.Type->IsA(UPackage::StaticClass()))
	{
		FObjectSystemAccess::ForgetMetaData((UPackage*)Entry.Type);
	}
}

// Gives a type made by static data its class, name and package.
void Place(UObject* Type, UClass* TypeClass, const FString& PackageName, const FString& Name)
{
	FObjectSystemAccess::SetClass(Type, TypeClass);
	FObjectSystemAccess::SetName(Type, FName(*Name));
	FObjectSystemAccess::SetOuter(Type, GetPackageOf(PackageName));
}

bool IsPackage(const UObject* Type)
{
	return Type->GetClass() == UPackage::StaticClass();
}

// Deletes a type whose binary goes away.
void Delete(UObject* Type)
{
	FObjectSystemAccess::RemoveObject(Type);
	Type->~UObject();
	FMemory::Free(Type);
}
}

void AddNativeType(UObject* Type, const FString& PackageName, const FString& Name)
{
	std::vector<FNativeType>& Types = GetTypes().Types;
	for (const FNativeType& Entry : Types)
	{
		if (Entry.Type == Type)
		{
			return;
		}
	}
	if (GUObjectArray.ObjectToObjectItem(Type) != nullptr)
	{
		Types.push_back(FNativeType{Type, PackageName, true});
		MarkNative(Type);
		return;
	}
	FObjectSystemAccess::SetName(Type, FName(*Name));
	Types.push_back(FNativeType{Type, PackageName, false});
	if (UObjectInitialized())
	{
		// Making the package may add types and move the list.
		Place(Type, UClass::StaticClass(), PackageName, Name);
		for (FNativeType& Entry : GetTypes().Types)
		{
			if (!Entry.bAwake && (Entry.Type == Type || Entry.Type == Type->GetOuter()))
			{
				Wake(Entry);
			}
		}
	}
}

bool IsAwake(const UObject* Type)
{
	return GUObjectArray.ObjectToObjectItem(Type) != nullptr;
}

UPackage* FindOrAddNativePackage(const FString& PackageName)
{
	return GetPackageOf(PackageName);
}

UPackage* FindNativePackage(const FString& PackageName)
{
	for (const FNativeType& Entry : GetTypes().Types)
	{
		if (Entry.PackageName == PackageName && Entry.Type->GetClass() != nullptr && IsPackage(Entry.Type))
		{
			return (UPackage*)Entry.Type;
		}
	}
	return nullptr;
}

void WakeAllNativeTypes()
{
	// Classes made before the first start have no class and package yet; the package class comes first for that.
	UClass* PackageClass = UPackage::StaticClass();
	FObjectSystemAccess::SetClass(PackageClass, UClass::StaticClass());
	for (std::size_t Index = 0; Index < GetTypes().Types.size(); ++Index)
	{
		if (!GetTypes().Types[Index].bAwake && GetTypes().Types[Index].Type->GetOuter() == nullptr
			&& GetTypes().Types[Index].Type->GetClass() != PackageClass)
		{
			const FNativeType Entry = GetTypes().Types[Index];
			Place(Entry.Type, UClass::StaticClass(), Entry.PackageName, Entry.Type->GetName());
		}
	}
	for (std::size_t Index = 0; Index < GetTypes().Types.size(); ++Index)
	{
		if (!GetTypes().Types[Index].bAwake)
		{
			Wake(GetTypes().Types[Index]);
		}
	}
}

void SleepAllNativeTypes()
{
	for (FNativeType& Entry : GetTypes().Types)
	{
		Sleep(Entry);
	}
}

TArray<UObject*> WakeNativeTypes(const FString& PackageName)
{
	TArray<UObject*> Woken;
	for (FNativeType& Entry : GetTypes().Types)
	{
		if (!Entry.bAwake && Entry.PackageName == PackageName)
		{
			Wake(Entry);
			Woken.Add(Entry.Type);
		}
	}
	return Woken;
}

void DropNativeTypes(const FString& PackageName)
{
	TArray<UClass*> Classes;
	for (const FNativeType& Entry : GetTypes().Types)
	{
		if (Entry.bAwake && Entry.PackageName == PackageName && Entry.Type->IsA(UClass::StaticClass()))
		{
			Classes.Add((UClass*)Entry.Type);
		}
	}
	DestroyObjectsOfClasses(Classes);
	for (FNativeType& Entry : GetTypes().Types)
	{
		if (Entry.bAwake && Entry.PackageName == PackageName)
		{
			Sleep(Entry);
		}
	}
}

TArray<UClass*> GetAwakeClasses()
{
	TArray<UClass*> Classes;
	for (const FNativeType& Entry : GetTypes().Types)
	{
		if (Entry.bAwake && Entry.Type->IsA(UClass::StaticClass()))
		{
			Classes.Add((UClass*)Entry.Type);
		}
	}
	return Classes;
}

void CheckParentsAreAwake(const UClass* Class)
{
	for (const UClass* Super = Class->GetSuperClass(); Super != nullptr; Super = Super->GetSuperClass())
	{
		UE_CLOG(!IsAwake(Super), LogClass, Fatal,
			TEXT("Class %s of module %s derives from class %s of module %s, which is not loaded. Load that module first."),
			*Class->GetName(), *GetModuleOf(Class->GetOuter()->GetName()), *Super->GetName(), *GetModuleOf(Super->GetOuter()->GetName()));
	}
}

void DeleteNativeTypes(const FString& PackageName)
{
	std::vector<FNativeType>& Types = GetTypes().Types;
	std::vector<UObject*> Gone;
	for (const FNativeType& Entry : Types)
	{
		if (Entry.PackageName == PackageName)
		{
			Gone.push_back(Entry.Type);
		}
	}
	const auto IsOfPackage = [&PackageName](const FNativeType& Entry) { return Entry.PackageName == PackageName; };
	Types.erase(std::remove_if(Types.begin(), Types.end(), IsOfPackage), Types.end());
	for (UObject* Type : Gone)
	{
		Delete(Type);
	}
}
}

void UObjectBase::Register(const TCHAR* PackageName, const TCHAR* Name)
{
	StandInPrivate::AddNativeType((UObject*)this, PackageName, Name);
}
