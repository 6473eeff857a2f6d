// Copyright The Tintmill authors. All rights reserved.

#include "UObject/UObjectBaseUtility.h"
#include "UObject/ObjectHash.h"
#include "UObject/ObjectSystemAccess.h"

namespace StandInPrivate
{
namespace
{
FUObjectItem& GetObjectItem(const UObjectBase* Object)
{
	FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Object);
	check(Item != nullptr);
	return *Item;
}
}
}

void UObjectBaseUtility::SetFlags(EObjectFlags NewFlags)
{
	checkf((NewFlags & (RF_MarkAsNative | RF_MarkAsRootSet)) == 0,
		TEXT("RF_MarkAsNative and RF_MarkAsRootSet must be set when an object is made."));
	FObjectSystemAccess::AddFlags(this, NewFlags);
}

void UObjectBaseUtility::ClearFlags(EObjectFlags NewFlags)
{
	checkf((NewFlags & (RF_MarkAsNative | RF_MarkAsRootSet)) == 0, TEXT("RF_MarkAsNative and RF_MarkAsRootSet cannot be cleared."));
	FObjectSystemAccess::RemoveFlags(this, NewFlags);
}

bool UObjectBaseUtility::IsPendingKill() const
{
	const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this);
	return Item != nullptr && Item->IsPendingKill();
}

void UObjectBaseUtility::MarkPendingKill()
{
	check(!IsRooted());
	StandInPrivate::GetObjectItem(this).SetFlags(EInternalObjectFlags::PendingKill);
}

void UObjectBaseUtility::ClearPendingKill()
{
	StandInPrivate::GetObjectItem(this).ClearFlags(EInternalObjectFlags::PendingKill);
}

void UObjectBaseUtility::AddToRoot()
{
	checkf(!IsPendingKill(), TEXT("%s is pending kill and cannot be rooted."), *GetFullName());
	StandInPrivate::GetObjectItem(this).SetFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::RemoveFromRoot()
{
	StandInPrivate::GetObjectItem(this).ClearFlags(EInternalObjectFlags::RootSet);
}

bool UObjectBaseUtility::IsRooted() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::RootSet);
}

bool UObjectBaseUtility::IsNative() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::Native);
}

bool UObjectBaseUtility::IsUnreachable() const
{
	return HasAnyInternalFlags(EInternalObjectFlags::Unreachable);
}

bool UObjectBaseUtility::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this);
	return Item != nullptr && Item->HasAnyFlags(FlagsToCheck);
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	FString Result;
	GetPathName(StopOuter, Result);
	return Result;
}

void UObjectBaseUtility::GetPathName(const UObject* StopOuter, FString& ResultString) const
{
	if (this == StopOuter)
	{
		ResultString += TEXT("None");
		return;
	}
	const UObject* Outer = GetOuter();
	if (Outer != nullptr && Outer != StopOuter)
	{
		Outer->GetPathName(StopOuter, ResultString);
		// The first name inside of an object that lies directly in a package follows a colon.
		const bool bOuterIsPackage = Outer->GetClass() == UPackage::StaticClass();
		const bool bOuterIsTopLevel = Outer->GetOuter() != nullptr && Outer->GetOuter()->GetClass() == UPackage::StaticClass();
		ResultString += !bOuterIsPackage && bOuterIsTopLevel ? TEXT(":") : TEXT(".");
	}
	AppendName(ResultString);
}

UObject* UObjectBaseUtility::GetOutermostObject() const
{
	UObject* Top = (UObject*)this;
	while (Top->GetOuter() != nullptr)
	{
		Top = Top->GetOuter();
	}
	return Top;
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	UObject* Top = GetOutermostObject();
	check(Top->IsA(UPackage::StaticClass()));
	return (UPackage*)Top;
}

bool UObjectBaseUtility::MarkPackageDirty() const
{
	for (const UObject* Object = (const UObject*)this; Object != nullptr; Object = Object->GetOuter())
	{
		if (Object->HasAnyFlags(RF_Transient))
		{
			return false;
		}
	}
	GetOutermost()->SetDirtyFlag(true);
	return true;
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObjectBaseUtility* Object = this; Object != nullptr; Object = Object->GetOuter())
	{
		if (Object->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer != nullptr; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer != nullptr; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

bool UObjectBaseUtility::IsInA(const UClass* SomeBaseClass) const
{
	return IsA(SomeBaseClass) || GetTypedOuter(const_cast<UClass*>(SomeBaseClass)) != nullptr;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	checkf(SomeBase, TEXT("IsA(NULL) cannot yield meaningful results"));
	return GetClass()->IsChildOf(SomeBase);
}

UObject* UObjectBaseUtility::GetDefaultSubobjectByName(FName ToFind)
{
	UObject* Found = StandInPrivate::FindInOuter((UObject*)this, ToFind);
	return Found != nullptr && Found->IsDefaultSubobject() ? Found : nullptr;
}
