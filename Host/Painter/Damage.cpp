// Copyright The Tintmill authors. All rights reserved.

#include "Host/Painter/Damage.h"

#include <algorithm>
#include <unordered_map>

namespace TintmillHost
{
namespace
{
/** Areas that are painted apart at most. */
constexpr size_t MaxAreas = 12;

/** Pixels that one area more costs as much time as. */
constexpr std::int64_t AreaCost = 4096;

std::int64_t CountPixels(const FIntRect& Area)
{
	return static_cast<std::int64_t>(Area.Width()) * Area.Height();
}

FIntRect Around(const FIntRect& A, const FIntRect& B)
{
	return FIntRect(A.Min.ComponentMin(B.Min), A.Max.ComponentMax(B.Max));
}

/** Pixels that are painted more when two areas are painted as one. */
std::int64_t CostOfJoining(const FIntRect& A, const FIntRect& B)
{
	return CountPixels(Around(A, B)) - CountPixels(A) - CountPixels(B);
}

/** Leaves only those matches whose places rise: a longest such sequence. */
void KeepRising(std::vector<std::ptrdiff_t>& Matches)
{
	// The end of the best sequence of each length so far, and for each item the one before it.
	std::vector<size_t> Ends;
	std::vector<std::ptrdiff_t> Previous(Matches.size(), NoItem);
	for (size_t Item = 0; Item < Matches.size(); ++Item)
	{
		if (Matches[Item] == NoItem)
		{
			continue;
		}
		const auto End = std::lower_bound(
			Ends.begin(), Ends.end(), Matches[Item], [&Matches](size_t Other, std::ptrdiff_t Place) { return Matches[Other] < Place; });
		if (End != Ends.begin())
		{
			Previous[Item] = static_cast<std::ptrdiff_t>(*(End - 1));
		}
		if (End == Ends.end())
		{
			Ends.push_back(Item);
		}
		else
		{
			*End = Item;
		}
	}
	std::vector<std::ptrdiff_t> Kept(Matches.size(), NoItem);
	for (std::ptrdiff_t Item = Ends.empty() ? NoItem : static_cast<std::ptrdiff_t>(Ends.back()); Item != NoItem;
		 Item = Previous[static_cast<size_t>(Item)])
	{
		Kept[static_cast<size_t>(Item)] = Matches[static_cast<size_t>(Item)];
	}
	Matches = std::move(Kept);
}
}

std::vector<std::ptrdiff_t> MatchInOrder(const std::vector<std::uint64_t>& Before, const std::vector<std::uint64_t>& After)
{
	std::vector<std::ptrdiff_t> Matches(After.size(), NoItem);
	const size_t Shorter = std::min(Before.size(), After.size());
	size_t Head = 0;
	while (Head < Shorter && Before[Head] == After[Head])
	{
		Matches[Head] = static_cast<std::ptrdiff_t>(Head);
		++Head;
	}
	size_t Tail = 0;
	while (Tail < Shorter - Head && Before[Before.size() - 1 - Tail] == After[After.size() - 1 - Tail])
	{
		++Tail;
		Matches[After.size() - Tail] = static_cast<std::ptrdiff_t>(Before.size() - Tail);
	}

	// Between them each item takes the first equal one that is left.
	std::unordered_map<std::uint64_t, std::vector<std::ptrdiff_t>> Places;
	for (size_t Place = Before.size() - Tail; Place > Head; --Place)
	{
		Places[Before[Place - 1]].push_back(static_cast<std::ptrdiff_t>(Place - 1));
	}
	std::vector<std::ptrdiff_t> Middle(After.size() - Tail - Head, NoItem);
	for (size_t Item = 0; Item < Middle.size(); ++Item)
	{
		const auto Found = Places.find(After[Head + Item]);
		if (Found != Places.end() && !Found->second.empty())
		{
			Middle[Item] = Found->second.back();
			Found->second.pop_back();
		}
	}
	KeepRising(Middle);
	std::copy(Middle.begin(), Middle.end(), Matches.begin() + static_cast<std::ptrdiff_t>(Head));
	return Matches;
}

std::vector<FIntRect> JoinAreas(const std::vector<FIntRect>& Areas)
{
	std::vector<FIntRect> Joined;
	for (FIntRect Area : Areas)
	{
		if (Area.Width() <= 0 || Area.Height() <= 0)
		{
			continue;
		}
		// An area that grew may now be near others.
		for (size_t Index = 0; Index < Joined.size();)
		{
			if (CostOfJoining(Joined[Index], Area) > AreaCost)
			{
				++Index;
				continue;
			}
			Area = Around(Joined[Index], Area);
			Joined.erase(Joined.begin() + static_cast<std::ptrdiff_t>(Index));
			Index = 0;
		}
		Joined.push_back(Area);
		if (Joined.size() > MaxAreas)
		{
			// One too many: the last goes to where it costs least.
			const auto Cheapest = std::min_element(Joined.begin(), Joined.end() - 1,
				[&Area](const FIntRect& A, const FIntRect& B) { return CostOfJoining(A, Area) < CostOfJoining(B, Area); });
			*Cheapest = Around(*Cheapest, Area);
			Joined.pop_back();
		}
	}
	return Joined;
}
}
