// Copyright The Tintmill authors. All rights reserved.

#include "UObject/WeakObjectPtr.h"
#include "UObject/ObjectSystemAccess.h"

void FWeakObjectPtr::operator=(const UObject* Object)
{
	Reset();
	if (Object != nullptr && GUObjectArray.ObjectToObjectItem(Object) != nullptr)
	{
		ObjectIndex = FObjectSystemAccess::GetIndex(Object);
		ObjectSerialNumber = GUObjectArray.AllocateSerialNumber(ObjectIndex);
	}
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	if (ObjectSerialNumber == 0)
	{
		return nullptr;
	}
	FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	return Item != nullptr && Item->SerialNumber == ObjectSerialNumber ? (UObject*)Item->Object : nullptr;
}

UObject* FWeakObjectPtr::Get(bool bEvenIfPendingKill) const
{
	UObject* Object = GetEvenIfUnreachable();
	if (Object == nullptr)
	{
		return nullptr;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	return Item->IsUnreachable() || (Item->IsPendingKill() && !bEvenIfPendingKill) ? nullptr : Object;
}

bool FWeakObjectPtr::IsStale(bool bIncludingIfPendingKill, bool bThreadsafeTest) const
{
	(void)bThreadsafeTest;
	return ObjectSerialNumber != 0 && Get(!bIncludingIfPendingKill) == nullptr;
}
