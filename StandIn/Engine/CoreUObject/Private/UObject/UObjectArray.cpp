// Copyright The Tintmill authors. All rights reserved.

#include "UObject/UObjectArray.h"
#include "UObject/ObjectSystemAccess.h"

#include <deque>
#include <vector>

FUObjectArray GUObjectArray;

namespace StandInPrivate
{
namespace
{
struct FObjectArrayStorage
{
	// A deque keeps places where they are while others are added.
	std::deque<FUObjectItem> Items;
	std::vector<int32> FreePlaces;
	int32 LastSerialNumber = 0;
};

FObjectArrayStorage& GetStorage()
{
	static FObjectArrayStorage* Storage = new FObjectArrayStorage;
	return *Storage;
}
}
}

int32 FUObjectArray::GetObjectArrayNum() const
{
	return int32(StandInPrivate::GetStorage().Items.size());
}

int32 FUObjectArray::GetObjectArrayNumMinusAvailable() const
{
	return int32(StandInPrivate::GetStorage().Items.size() - StandInPrivate::GetStorage().FreePlaces.size());
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index)
{
	StandInPrivate::FObjectArrayStorage& Storage = StandInPrivate::GetStorage();
	return Index >= 0 && Index < int32(Storage.Items.size()) ? &Storage.Items[std::size_t(Index)] : nullptr;
}

FUObjectItem* FUObjectArray::ObjectToObjectItem(const UObjectBase* Object)
{
	FUObjectItem* Item = IndexToObject(FObjectSystemAccess::GetIndex(Object));
	return Item != nullptr && Item->Object == Object ? Item : nullptr;
}

void FUObjectArray::AllocateUObjectIndex(UObjectBase* Object, int32& OutIndex)
{
	StandInPrivate::FObjectArrayStorage& Storage = StandInPrivate::GetStorage();
	if (Storage.FreePlaces.empty())
	{
		OutIndex = int32(Storage.Items.size());
		Storage.Items.emplace_back();
	}
	else
	{
		OutIndex = Storage.FreePlaces.back();
		Storage.FreePlaces.pop_back();
	}
	Storage.Items[std::size_t(OutIndex)].Object = Object;
}

void FUObjectArray::FreeUObjectIndex(int32 Index)
{
	StandInPrivate::FObjectArrayStorage& Storage = StandInPrivate::GetStorage();
	check(Index >= 0 && Index < int32(Storage.Items.size()));
	Storage.Items[std::size_t(Index)] = FUObjectItem();
	Storage.FreePlaces.push_back(Index);
}

int32 FUObjectArray::AllocateSerialNumber(int32 Index)
{
	FUObjectItem* Item = IndexToObject(Index);
	check(Item != nullptr);
	if (Item->SerialNumber == 0)
	{
		Item->SerialNumber = ++StandInPrivate::GetStorage().LastSerialNumber;
	}
	return Item->SerialNumber;
}
