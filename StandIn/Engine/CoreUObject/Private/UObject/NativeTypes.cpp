// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NativeTypes.h"
#include "HAL/UnrealMemory.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectRemoval.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/UObjectHash.h"

#include <algorithm>
#include <cstdlib>
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

template <typename FunctionType>
struct FQueuedType
{
	FunctionType Construct;
	FString PackageName;
	bool bDone;
};

struct FNativeTypes
{
	std::vector<FNativeType> Types;
	std::vector<FFieldCompiledInInfo*> ClassInfos;
	std::vector<FQueuedType<UClass* (*)()>> Classes;
	std::vector<FQueuedType<UScriptStruct* (*)()>> Structs;
	std::vector<FQueuedType<UEnum* (*)()>> Enums;
	bool bExiting = false;
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
			TEXT("Class %s of module %s derives from class %s of module %s, which is not loaded. Load that module first."), *Class->GetName(),
			*GetModuleOf(Class->GetOuter()->GetName()), *Super->GetName(), *GetModuleOf(Super->GetOuter()->GetName()));
	}
}

TArray<UClass*> ConstructQueuedTypes()
{
	FNativeTypes& Types = GetTypes();
	// Each step may queue more; indices stay valid where iterators would not.
	for (std::size_t Index = 0; Index < Types.ClassInfos.size(); ++Index)
	{
		Types.ClassInfos[Index]->Register();
	}
	for (std::size_t Index = 0; Index < Types.Structs.size(); ++Index)
	{
		if (!Types.Structs[Index].bDone)
		{
			Types.Structs[Index].bDone = true;
			Types.Structs[Index].Construct();
		}
	}
	for (std::size_t Index = 0; Index < Types.Enums.size(); ++Index)
	{
		if (!Types.Enums[Index].bDone)
		{
			Types.Enums[Index].bDone = true;
			Types.Enums[Index].Construct();
		}
	}
	TArray<UClass*> Classes;
	for (std::size_t Index = 0; Index < Types.Classes.size(); ++Index)
	{
		if (!Types.Classes[Index].bDone)
		{
			Types.Classes[Index].bDone = true;
			Classes.Add(Types.Classes[Index].Construct());
		}
	}
	return Classes;
}

void NoteProcessExit()
{
	// Handlers run last-added first, so this one runs before the destructors of every binary that is mapped by now.
	std::atexit([]() { GetTypes().bExiting = true; });
}
}

void UObjectBase::Register(const TCHAR* PackageName, const TCHAR* Name)
{
	StandInPrivate::AddNativeType((UObject*)this, PackageName, Name);
}

void UClassCompiledInDefer(FFieldCompiledInInfo* Class, const TCHAR* Name, SIZE_T ClassSize, uint32 Crc)
{
	(void)Name;
	(void)ClassSize;
	(void)Crc;
	StandInPrivate::GetTypes().ClassInfos.push_back(Class);
}

void UClassCompiledInForget(FFieldCompiledInInfo* Class)
{
	std::vector<FFieldCompiledInInfo*>& Infos = StandInPrivate::GetTypes().ClassInfos;
	Infos.erase(std::remove(Infos.begin(), Infos.end(), Class), Infos.end());
}

void UObjectCompiledInDefer(UClass* (*InRegister)(), UClass* (*InStaticClass)(), const TCHAR* Name, const TCHAR* PackageName,
	bool bDynamic, const TCHAR* DynamicPathName, void (*InInitSearchableValues)(TMap<FName, FName>&))
{
	(void)InStaticClass;
	(void)Name;
	(void)DynamicPathName;
	checkf(!bDynamic && InInitSearchableValues == nullptr, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypes().Classes.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInDeferStruct(
	UScriptStruct* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName)
{
	(void)ObjectName;
	(void)DynamicPathName;
	checkf(!bDynamic, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypes().Structs.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInDeferEnum(
	UEnum* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName)
{
	(void)ObjectName;
	(void)DynamicPathName;
	checkf(!bDynamic, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypes().Enums.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInForget(const TCHAR* PackageName)
{
	StandInPrivate::FNativeTypes& Types = StandInPrivate::GetTypes();
	if (Types.bExiting)
	{
		return;
	}
	const FString Package(PackageName);
	if (UObjectInitialized())
	{
		StandInPrivate::DropNativeTypes(Package);
	}
	const auto IsOfPackage = [&Package](const auto& Entry) { return Entry.PackageName == Package; };
	Types.Classes.erase(std::remove_if(Types.Classes.begin(), Types.Classes.end(), IsOfPackage), Types.Classes.end());
	Types.Structs.erase(std::remove_if(Types.Structs.begin(), Types.Structs.end(), IsOfPackage), Types.Structs.end());
	Types.Enums.erase(std::remove_if(Types.Enums.begin(), Types.Enums.end(), IsOfPackage), Types.Enums.end());
	std::vector<UObject*> Gone;
	for (const StandInPrivate::FNativeType& Entry : Types.Types)
	{
		if (Entry.PackageName == Package)
		{
			Gone.push_back(Entry.Type);
		}
	}
	Types.Types.erase(std::remove_if(Types.Types.begin(), Types.Types.end(), IsOfPackage), Types.Types.end());
	for (UObject* Type : Gone)
	{
		StandInPrivate::Delete(Type);
	}
}
