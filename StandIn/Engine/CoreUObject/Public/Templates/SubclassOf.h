// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/Class.h"
#include <type_traits>

// A class pointer that reads as null unless the class is T or a child of it.

/** A class that is T or a child of it. */
template <class TClass>
class TSubclassOf
{
public:
	TSubclassOf()
		: Class(nullptr)
	{}
	TSubclassOf(UClass* From)
		: Class(From)
	{}
	template <class TClassA, typename = typename std::enable_if<std::is_convertible<TClassA*, TClass*>::value>::type>
	TSubclassOf(const TSubclassOf<TClassA>& Other)
		: Class(*Other)
	{}
	TSubclassOf& operator=(UClass* From)
	{
		Class = From;
		return *this;
	}
	/** The class, or null when it is no child of T. */
	UClass* operator*() const
	{
		if (!Class || !Class->IsChildOf(TClass::StaticClass()))
		{
			return nullptr;
		}
		return Class;
	}
	UClass* Get() const { return **this; }
	UClass* operator->() const { return **this; }
	operator UClass*() const { return **this; }
	/** The class's default object, or null without a class. */
	TClass* GetDefaultObject() const { return Get() ? (TClass*)Get()->GetDefaultObject() : nullptr; }
	friend uint32 GetTypeHash(const TSubclassOf& SubclassOf) { return uint32(UPTRINT(SubclassOf.Class) >> 4); }

private:
	UClass* Class;
};
