// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/Class.h"
#include "UObject/UObjectArray.h"

// Walks all objects of a class. Objects made during the walk may be met or not; destroying some is not allowed.

/** Walks all objects of class T and its children; default objects only if not excluded by flags. */
template <class T>
class TObjectIterator
{
public:
	/** Starts at the first object that has none of the flags. */
	explicit TObjectIterator(EObjectFlags AdditionalExclusionFlags = RF_ClassDefaultObject, bool bInIncludeDerivedClasses = true,
		EInternalObjectFlags InInternalExclusionFlags = EInternalObjectFlags::None)
		: Class(T::StaticClass())
		, Index(-1)
		, ExclusionFlags(AdditionalExclusionFlags)
		, InternalExclusionFlags(InInternalExclusionFlags | EInternalObjectFlags::Unreachable)
		, bIncludeDerivedClasses(bInIncludeDerivedClasses)
		, Object(nullptr)
	{
		Advance();
	}
	void operator++() { Advance(); }
	explicit operator bool() const { return Object != nullptr; }
	bool operator!() const { return Object == nullptr; }
	T* operator*() const { return (T*)Object; }
	T* operator->() const { return (T*)Object; }

private:
	void Advance()
	{
		Object = nullptr;
		while (++Index < GUObjectArray.GetObjectArrayNum())
		{
			FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
			UObject* Candidate = (UObject*)Item->Object;
			if (Candidate != nullptr && !Candidate->HasAnyFlags(ExclusionFlags) && !Item->HasAnyFlags(InternalExclusionFlags)
				&& (bIncludeDerivedClasses ? Candidate->IsA(Class) : Candidate->GetClass() == Class))
			{
				Object = Candidate;
				return;
			}
		}
	}

	UClass* Class;
	int32 Index;
	EObjectFlags ExclusionFlags;
	EInternalObjectFlags InternalExclusionFlags;
	bool bIncludeDerivedClasses;
	UObject* Object;
};

typedef TObjectIterator<UObject> FObjectIterator;
