// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ScriptArray.h"
#include "HAL/UnrealMemory.h"

void FScriptArray::SetCapacity(int32 NewMax, int32 NumBytesPerElement)
{
	Data = FMemory::Realloc(Data, SIZE_T(NewMax) * SIZE_T(NumBytesPerElement));
	ArrayMax = NewMax;
}

int32 FScriptArray::Add(int32 Count, int32 NumBytesPerElement)
{
	const int32 First = ArrayNum;
	if (ArrayNum + Count > ArrayMax)
	{
		SetCapacity(StandIn::GrownCapacity(ArrayNum + Count, ArrayMax), NumBytesPerElement);
	}
	ArrayNum += Count;
	return First;
}

void FScriptArray::Remove(int32 Index, int32 Count, int32 NumBytesPerElement)
{
	uint8* Hole = (uint8*)Data + SIZE_T(Index) * SIZE_T(NumBytesPerElement);
	FMemory::Memmove(
		Hole, Hole + SIZE_T(Count) * SIZE_T(NumBytesPerElement), SIZE_T(ArrayNum - Index - Count) * SIZE_T(NumBytesPerElement));
	ArrayNum -= Count;
}

void FScriptArray::Empty(int32 Slack, int32 NumBytesPerElement)
{
	ArrayNum = 0;
	if (ArrayMax != Slack)
	{
		SetCapacity(Slack, NumBytesPerElement);
	}
}
