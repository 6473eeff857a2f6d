// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "StandIn/Properties/Property.h"

// Walks the properties of a type; part of UObject/UnrealType.h.

namespace EFieldIteratorFlags
{
/** Whether the parents' properties are walked, too. */
enum SuperClassFlags
{
	ExcludeSuper = 0,
	IncludeSuper
};
}

/** Walks the properties of a kind: own ones in the order of their declaration, then the parent's. */
template <class T>
class TFieldIterator
{
public:
	/** Starts at the type's first property. */
	explicit TFieldIterator(
		const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper)
		: Struct(InStruct)
		, Field(InStruct ? InStruct->ChildProperties : nullptr)
		, bIncludeSuper(InSuperClassFlags == EFieldIteratorFlags::IncludeSuper)
	{
		IterateToNext();
	}
	explicit operator bool() const { return Field != nullptr; }
	bool operator!() const { return Field == nullptr; }
	void operator++()
	{
		Field = Field->Next;
		IterateToNext();
	}
	T* operator*() const { return (T*)Field; }
	T* operator->() const { return (T*)Field; }
	/** The type that the property belongs to. */
	const UStruct* GetStruct() const { return Struct; }

private:
	void IterateToNext()
	{
		while (Struct)
		{
			while (Field)
			{
				if (Field->IsA<T>())
				{
					return;
				}
				Field = Field->Next;
			}
			Struct = bIncludeSuper ? Struct->GetInheritanceSuper() : nullptr;
			Field = Struct ? Struct->ChildProperties : nullptr;
		}
	}

	const UStruct* Struct;
	FField* Field;
	bool bIncludeSuper;
};

/** The property of a kind and name in a type or its parents, or null. */
template <class T>
T* FindFProperty(const UStruct* Owner, FName FieldName)
{
	for (TFieldIterator<T> It(Owner); It; ++It)
	{
		if (It->GetFName() == FieldName)
		{
			return *It;
		}
	}
	return nullptr;
}
/** The property of a kind and name in a type or its parents, or null. */
template <class T>
T* FindFProperty(const UStruct* Owner, const TCHAR* FieldName)
{
	return FindFProperty<T>(Owner, FName(FieldName, FNAME_Find));
}
