// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"

// Who registered a menu element: an object's address, a name, or nobody. Addresses and names never compare equal.

/** Owner of menus, sections and entries; everything of one owner can be removed in one call. */
struct TOOLMENUS_API FToolMenuOwner
{
	/** Makes the empty owner. */
	FToolMenuOwner()
		: Pointer(nullptr)
	{}

	/** Makes an owner of an object's address; null makes the empty owner. */
	FToolMenuOwner(void* InPointer)
		: Pointer(InPointer)
	{}

	/** Makes an owner of a name. */
	FToolMenuOwner(const WIDECHAR* InName)
		: FToolMenuOwner(FName(InName))
	{}

	/** Makes an owner of a name. */
	FToolMenuOwner(const ANSICHAR* InName)
		: FToolMenuOwner(FName(InName))
	{}

	/** Makes an owner of a name; NAME_None makes the empty owner. */
	FToolMenuOwner(const FName InName)
		: Pointer(nullptr)
		, Name(InName)
	{}

	/** True if both are the same address or the same name. */
	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }

	/** True if they are not the same. */
	bool operator!=(const FToolMenuOwner& Other) const { return !(*this == Other); }

	/** True if this is not the empty owner. */
	bool IsSet() const { return Pointer != nullptr || !Name.IsNone(); }

	/** The owner's name, or NAME_None if the owner is an address or empty. */
	FName TryGetName() const { return Name; }

private:
	friend class UToolMenus;

	void* Pointer;
	FName Name;
};
