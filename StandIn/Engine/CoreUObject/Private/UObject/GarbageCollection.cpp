// Copyright The Tintmill authors. All rights reserved.

#include "UObject/GarbageCollection.h"
#include "UObject/GCObject.h"
#include "UObject/GCObjectList.h"
#include "UObject/ObjectConstruction.h"
#include "UObject/ObjectRemoval.h"
#include "UObject/ObjectSystemAccess.h"
#include "UObject/ReferenceVisitor.h"

#include <vector>

namespace StandInPrivate
{
namespace
{
bool GIsCollectingGarbage = false;

// Marks what it is told about and remembers to visit it.
class FMarkingCollector : public FReferenceCollector
{
public:
	virtual bool IsIgnoringArchetypeRef() const override { return false; }
	virtual bool IsIgnoringTransient() const override { return false; }

	void Mark(UObject* Object)
	{
		FUObjectItem* Item = FObjectSystemAccess::GetItem(Object);
		if (Item != nullptr && Item->IsUnreachable())
		{
			Item->ClearFlags(EInternalObjectFlags::Unreachable);
			ToVisit.push_back(Object);
		}
	}

	void VisitAll()
	{
		while (!ToVisit.empty())
		{
			UObject* Object = ToVisit.back();
			ToVisit.pop_back();
			Mark(Object->GetClass());
			if (Object->GetOuter() != nullptr)
			{
				Mark(Object->GetOuter());
			}
			VisitObjectReferences(Object, *this);
		}
	}

protected:
	virtual void HandleObjectReference(UObject*& InObject, const UObject*, const FProperty*) override
	{
		if (InObject != nullptr && InObject->IsPendingKill())
		{
			InObject = nullptr;
		}
		if (InObject != nullptr)
		{
			Mark(InObject);
		}
	}

private:
	std::vector<UObject*> ToVisit;
};
}
}

bool IsGarbageCollecting()
{
	return StandInPrivate::GIsCollectingGarbage;
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	(void)bPerformFullPurge;
	check(UObjectInitialized());
	checkf(!IsGarbageCollecting(), TEXT("A collection was asked for during a collection."));
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
	StandInPrivate::GIsCollectingGarbage = true;
	StandInPrivate::FMarkingCollector Collector;
	const int32 NumPlaces = GUObjectArray.GetObjectArrayNum();
	for (int32 Index = 0; Index < NumPlaces; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object != nullptr)
		{
			Item->SetFlags(EInternalObjectFlags::Unreachable);
		}
	}
	for (int32 Index = 0; Index < NumPlaces; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		UObject* Object = (UObject*)Item->Object;
		if (Object != nullptr
			&& (Item->HasAnyFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::Native)
				|| (!Item->IsPendingKill() && KeepFlags != RF_NoFlags && Object->HasAnyFlags(KeepFlags))))
		{
			Collector.Mark(Object);
		}
	}
	for (UObject* Object : StandInPrivate::GetObjectsUnderConstruction())
	{
		Collector.Mark(Object);
	}
	StandInPrivate::ReportGCObjects(Collector);
	Collector.VisitAll();

	TArray<UObject*> Unreachable;
	for (int32 Index = 0; Index < NumPlaces; ++Index)
	{
		FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
		if (Item->Object != nullptr && Item->IsUnreachable())
		{
			Unreachable.Add((UObject*)Item->Object);
		}
	}
	StandInPrivate::DestroyObjects(Unreachable, false);
	StandInPrivate::GIsCollectingGarbage = false;
	FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
}

bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	if (IsGarbageCollecting())
	{
		return false;
	}
	CollectGarbage(KeepFlags, bPerformFullPurge);
	return true;
}
