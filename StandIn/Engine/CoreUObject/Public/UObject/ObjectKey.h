// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/WeakObjectPtr.h"

// A key by object identity that stays the same when the object is gone.

/** Key of an object. */
struct FObjectKey
{
	FObjectKey() {}
	FObjectKey(const UObject* Object)
		: WeakPtr(Object)
	{}
	bool operator==(const FObjectKey& Other) const { return WeakPtr.HasSameIndexAndSerialNumber(Other.WeakPtr); }
	bool operator!=(const FObjectKey& Other) const { return !(*this == Other); }
	UObject* ResolveObjectPtr() const { return WeakPtr.Get(); }
	friend uint32 GetTypeHash(const FObjectKey& Key) { return Key.WeakPtr.GetTypeHash(); }

private:
	FWeakObjectPtr WeakPtr;
};
