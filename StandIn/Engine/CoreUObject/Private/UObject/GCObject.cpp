// Copyright The Tintmill authors. All rights reserved.

#include "UObject/GCObject.h"
#include "UObject/GCObjectList.h"

#include <algorithm>
#include <vector>

namespace StandInPrivate
{
namespace
{
std::vector<FGCObject*>& GetGCObjects()
{
	static std::vector<FGCObject*>* Objects = new std::vector<FGCObject*>;
	return *Objects;
}
}

void ReportGCObjects(FReferenceCollector& Collector)
{
	// By index: a holder may make another one while it reports.
	for (std::size_t Index = 0; Index < GetGCObjects().size(); ++Index)
	{
		GetGCObjects()[Index]->AddReferencedObjects(Collector);
	}
}
}

FGCObject::~FGCObject()
{
	UnregisterGCObject();
}

void FGCObject::RegisterGCObject()
{
	StandInPrivate::GetGCObjects().push_back(this);
}

void FGCObject::UnregisterGCObject()
{
	std::vector<FGCObject*>& Objects = StandInPrivate::GetGCObjects();
	// Most holders are short-lived, so the search starts at the end.
	const auto Found = std::find(Objects.rbegin(), Objects.rend(), this);
	if (Found != Objects.rend())
	{
		Objects.erase(std::next(Found).base());
	}
}
