// Copyright The Tintmill authors. All rights reserved.

#include "UObject/NativeTypes.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

// Compiled-in types on their way from the statics of a binary to the object system.

namespace StandInPrivate
{
namespace
{
template <typename FunctionType>
struct FQueuedType
{
	FunctionType Construct;
	FString PackageName;
	bool bDone;
};

struct FTypeQueue
{
	std::vector<FFieldCompiledInInfo*> ClassInfos;
	std::vector<FQueuedType<UClass* (*)()>> Classes;
	std::vector<FQueuedType<UScriptStruct* (*)()>> Structs;
	std::vector<FQueuedType<UEnum* (*)()>> Enums;
	bool bExiting = false;
};

// Never destroyed: binaries leave it at any time.
FTypeQueue& GetTypeQueue()
{
	static FTypeQueue* Queue = new FTypeQueue;
	return *Queue;
}
}

TArray<UClass*> ConstructQueuedTypes()
{
	FTypeQueue& Queue = GetTypeQueue();
	// Each step may queue more; indices stay valid where iterators would not.
	for (std::size_t Index = 0; Index < Queue.ClassInfos.size(); ++Index)
	{
		Queue.ClassInfos[Index]->Register();
	}
	for (std::size_t Index = 0; Index < Queue.Structs.size(); ++Index)
	{
		if (!Queue.Structs[Index].bDone)
		{
			Queue.Structs[Index].bDone = true;
			Queue.Structs[Index].Construct();
		}
	}
	for (std::size_t Index = 0; Index < Queue.Enums.size(); ++Index)
	{
		if (!Queue.Enums[Index].bDone)
		{
			Queue.Enums[Index].bDone = true;
			Queue.Enums[Index].Construct();
		}
	}
	TArray<UClass*> Classes;
	for (std::size_t Index = 0; Index < Queue.Classes.size(); ++Index)
	{
		if (!Queue.Classes[Index].bDone)
		{
			Queue.Classes[Index].bDone = true;
			Classes.Add(Queue.Classes[Index].Construct());
		}
	}
	return Classes;
}

void NoteProcessExit()
{
	// Handlers run last-added first, so this one runs before the destructors of every binary that is mapped by now.
	std::atexit([]() { GetTypeQueue().bExiting = true; });
}
}

void UClassCompiledInDefer(FFieldCompiledInInfo* Class, const TCHAR* Name, SIZE_T ClassSize, uint32 Crc)
{
	(void)Name;
	(void)ClassSize;
	(void)Crc;
	StandInPrivate::GetTypeQueue().ClassInfos.push_back(Class);
}

void UClassCompiledInForget(FFieldCompiledInInfo* Class)
{
	std::vector<FFieldCompiledInInfo*>& Infos = StandInPrivate::GetTypeQueue().ClassInfos;
	Infos.erase(std::remove(Infos.begin(), Infos.end(), Class), Infos.end());
}

void UObjectCompiledInDefer(UClass* (*InRegister)(), UClass* (*InStaticClass)(), const TCHAR* Name, const TCHAR* PackageName, bool bDynamic,
	const TCHAR* DynamicPathName, void (*InInitSearchableValues)(TMap<FName, FName>&))
{
	(void)InStaticClass;
	(void)Name;
	(void)DynamicPathName;
	checkf(!bDynamic && InInitSearchableValues == nullptr, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypeQueue().Classes.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInDeferStruct(
	UScriptStruct* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName)
{
	(void)ObjectName;
	(void)DynamicPathName;
	checkf(!bDynamic, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypeQueue().Structs.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInDeferEnum(
	UEnum* (*InRegister)(), const TCHAR* PackageName, const TCHAR* ObjectName, bool bDynamic, const TCHAR* DynamicPathName)
{
	(void)ObjectName;
	(void)DynamicPathName;
	checkf(!bDynamic, TEXT("not in this stand-in: dynamic types"));
	StandInPrivate::GetTypeQueue().Enums.push_back({InRegister, PackageName, false});
}

void UObjectCompiledInForget(const TCHAR* PackageName)
{
	StandInPrivate::FTypeQueue& Queue = StandInPrivate::GetTypeQueue();
	if (Queue.bExiting)
	{
		return;
	}
	const FString Package(PackageName);
	if (UObjectInitialized())
	{
		StandInPrivate::DropNativeTypes(Package);
	}
	const auto IsOfPackage = [&Package](const auto& Entry) { return Entry.PackageName == Package; };
	Queue.Classes.erase(std::remove_if(Queue.Classes.begin(), Queue.Classes.end(), IsOfPackage), Queue.Classes.end());
	Queue.Structs.erase(std::remove_if(Queue.Structs.begin(), Queue.Structs.end(), IsOfPackage), Queue.Structs.end());
	Queue.Enums.erase(std::remove_if(Queue.Enums.begin(), Queue.Enums.end(), IsOfPackage), Queue.Enums.end());
	StandInPrivate::DeleteNativeTypes(Package);
}
