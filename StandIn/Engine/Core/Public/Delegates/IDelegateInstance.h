// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

// The handle by which a binding is known. Ids come from one counter for the whole process and are never used again.

/** Names one binding of a delegate; invalid until it was given one. */
class FDelegateHandle
{
public:
	/** Asks for a fresh id. */
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() : ID(0) {}

	/** Makes a valid handle that no other binding has or will have. */
	explicit FDelegateHandle(EGenerateNewHandleType) : ID(GenerateNewID()) {}

	/** Says whether the handle names a binding, be it still there or not. */
	bool IsValid() const { return ID != 0; }

	/** Makes the handle invalid; the binding stays. */
	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle& Lhs, const FDelegateHandle& Rhs) { return Lhs.ID == Rhs.ID; }
	friend bool operator!=(const FDelegateHandle& Lhs, const FDelegateHandle& Rhs) { return Lhs.ID != Rhs.ID; }
	friend uint32 GetTypeHash(const FDelegateHandle& Key) { return ::GetTypeHash(Key.ID); }

private:
	CORE_API static uint64 GenerateNewID();

	uint64 ID;
};
