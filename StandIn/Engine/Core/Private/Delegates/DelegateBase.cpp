// Copyright The Tintmill authors. All rights reserved.

#include "Delegates/DelegateBase.h"

#include "Math/UnrealMathUtility.h"

void FMulticastDelegateBase::Clear()
{
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		InvocationList[Index].Unbind();
	}
	CompactInvocationList();
}

bool FMulticastDelegateBase::IsBound() const
{
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		const IDelegateInstance* Instance = GetInstance(Index);
		if (Instance != nullptr && Instance->IsSafeToExecute())
		{
			return true;
		}
	}
	return false;
}

bool FMulticastDelegateBase::IsBoundToObject(const void* InUserObject) const
{
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		if (InvocationList[Index].IsBoundToObject(InUserObject))
		{
			return true;
		}
	}
	return false;
}

TArray<const void*> FMulticastDelegateBase::ListUserObjects() const
{
	TArray<const void*> UserObjects;
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		const IDelegateInstance* Instance = GetInstance(Index);
		if (Instance != nullptr && Instance->IsSafeToExecute())
		{
			UserObjects.Add(Instance->GetObjectForTimerManager());
		}
	}
	return UserObjects;
}

int32 FMulticastDelegateBase::RemoveAll(const void* InUserObject)
{
	int32 NumRemoved = 0;
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		if (InvocationList[Index].IsBoundToObject(InUserObject))
		{
			InvocationList[Index].Unbind();
			++NumRemoved;
		}
	}
	CompactInvocationList();
	return NumRemoved;
}

FDelegateHandle FMulticastDelegateBase::AddInternal(FDelegateBase&& NewDelegate)
{
	CompactInvocationList(true);
	const FDelegateHandle Handle = NewDelegate.GetHandle();
	InvocationList.Add(MoveTemp(NewDelegate));
	return Handle;
}

bool FMulticastDelegateBase::RemoveInternal(FDelegateHandle Handle)
{
	for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
	{
		if (InvocationList[Index].GetHandle() == Handle)
		{
			InvocationList[Index].Unbind();
			CompactInvocationList();
			return true;
		}
	}
	return false;
}

void FMulticastDelegateBase::CompactInvocationList(bool bCheckThreshold)
{
	if (InvocationListLockCount > 0)
	{
		return;
	}
	// Adding looks for stale bindings only now and then, but more and more eagerly.
	if (bCheckThreshold && --CompactionThreshold > InvocationList.Num())
	{
		return;
	}
	for (int32 Index = 0; Index < InvocationList.Num();)
	{
		const IDelegateInstance* Instance = GetInstance(Index);
		if (Instance == nullptr || Instance->IsCompactable())
		{
			InvocationList.RemoveAtSwap(Index);
		}
		else
		{
			++Index;
		}
	}
	CompactionThreshold = FMath::Max(2, 2 * InvocationList.Num());
}
