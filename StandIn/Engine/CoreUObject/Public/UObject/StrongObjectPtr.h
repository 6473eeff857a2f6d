// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreTypes.h"
#include "UObject/GCObject.h"

// A pointer that keeps its object alive.

/** Keeps one object alive. */
template <typename ObjectType>
class TStrongObjectPtr : private FGCObject
{
public:
	TStrongObjectPtr(TYPE_OF_NULLPTR = nullptr)
		: Object(nullptr)
	{}
	explicit TStrongObjectPtr(ObjectType* InObject)
		: Object(InObject)
	{}
	TStrongObjectPtr(const TStrongObjectPtr& Other)
		: FGCObject()
		, Object(Other.Object)
	{}
	TStrongObjectPtr& operator=(const TStrongObjectPtr& Other)
	{
		Object = Other.Object;
		return *this;
	}
	ObjectType* Get() const { return Object; }
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return Object != nullptr; }
	ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}
	ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}
	/** Keeps another object alive, or none. */
	void Reset(ObjectType* InNewObject = nullptr) { Object = InNewObject; }

private:
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Object); }
	virtual FString GetReferencerName() const override { return FString(TEXT("TStrongObjectPtr")); }

	ObjectType* Object;
};
