// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowSize.h"

#include "Host/Program/HostState.h"

namespace TintmillHost
{
namespace
{
/** No size at all stands for a window that has not been open yet. */
FStateNumber DescribeLength(const char* Key)
{
	return {Key, 0.0, 32768.0, 0.0};
}
}

FIntPoint RestoreWindowSize(const FIntPoint& Otherwise)
{
	const FIntPoint Kept(static_cast<int32>(GetStateNumber(DescribeLength("WindowWidth"))),
		static_cast<int32>(GetStateNumber(DescribeLength("WindowHeight"))));
	return Kept.X > 0 && Kept.Y > 0 ? Kept : Otherwise;
}

void KeepWindowSize(const FIntPoint& Size)
{
	SetStateNumber(DescribeLength("WindowWidth"), Size.X);
	SetStateNumber(DescribeLength("WindowHeight"), Size.Y);
}
}
