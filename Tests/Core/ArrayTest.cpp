// Copyright The Tintmill authors. All rights reserved.

#include "Containers/Array.h"

#include "StandIn/FatalHandler.h"
#include "Support/DeathText.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Templates/UniquePtr.h"
#include "gtest/gtest.h"

namespace
{
typedef TArray<int32> FNumbers;

/** Counts how many of it live. */
struct FCounted
{
	explicit FCounted(int32 InValue = 0)
		: Value(InValue)
	{
		++NumAlive;
	}
	FCounted(const FCounted& Other)
		: Value(Other.Value)
	{
		++NumAlive;
	}
	FCounted& operator=(const FCounted&) = default;
	~FCounted() { --NumAlive; }
	bool operator==(const FCounted& Other) const { return Value == Other.Value; }

	int32 Value;
	static int32 NumAlive;
};
int32 FCounted::NumAlive = 0;
}

TEST(TArray, AddingYieldsTheIndex)
{
	FNumbers Array;
	EXPECT_EQ(0, Array.Add(5));
	EXPECT_EQ(1, Array.Emplace(6));
	EXPECT_EQ(2, Array.AddDefaulted());
	EXPECT_EQ(3, Array.AddZeroed(2));
	EXPECT_EQ((FNumbers{5, 6, 0, 0, 0}), Array);
}

TEST(TArray, GrowthKeepsElementsAndTheirLives)
{
	{
		TArray<FCounted> Array;
		for (int32 Index = 0; Index < 100; ++Index)
		{
			Array.Emplace(Index);
		}
		EXPECT_EQ(100, FCounted::NumAlive);
		for (int32 Index = 0; Index < 100; ++Index)
		{
			EXPECT_EQ(Index, Array[Index].Value);
		}
		Array.RemoveAt(10, 50);
		EXPECT_EQ(50, FCounted::NumAlive);
		Array.RemoveAtSwap(0);
		Array.SetNum(10);
		EXPECT_EQ(10, FCounted::NumAlive);
	}
	EXPECT_EQ(0, FCounted::NumAlive);
}

TEST(TArray, AddUniqueYieldsThePlaceOfTheEqualElement)
{
	FNumbers Array{1, 2, 3};
	EXPECT_EQ(1, Array.AddUnique(2));
	EXPECT_EQ(3, Array.AddUnique(4));
}

TEST(TArray, InsertMovesTheLaterElements)
{
	FNumbers Array{1, 4};
	Array.Insert(2, 1);
	Array.Insert({3, 3}, 2);
	Array.Insert(5, 5);
	EXPECT_EQ((FNumbers{1, 2, 3, 3, 4, 5}), Array);
}

TEST(TArray, RemovalKeepsTheOrder)
{
	FNumbers Array{1, 2, 3, 2, 1};
	EXPECT_EQ(2, Array.Remove(2));
	EXPECT_EQ((FNumbers{1, 3, 1}), Array);
	EXPECT_EQ(1, Array.RemoveSingle(1));
	EXPECT_EQ((FNumbers{3, 1}), Array);
	EXPECT_EQ(0, Array.Remove(9));
}

TEST(TArray, SwapRemovalMovesTheLastIntoTheHole)
{
	FNumbers Array{1, 2, 3, 4};
	Array.RemoveAtSwap(0);
	EXPECT_EQ((FNumbers{4, 2, 3}), Array);
	FNumbers Other{1, 2, 3, 4, 5};
	Other.RemoveAtSwap(1, 2);
	EXPECT_EQ((FNumbers{1, 4, 5}), Other);
}

TEST(TArray, RemoveAllYieldsHowManyWentAndKeepsTheOrder)
{
	FNumbers Array{1, 2, 3, 4, 5, 6};
	EXPECT_EQ(3, Array.RemoveAll([](int32 Value) { return Value % 2 == 0; }));
	EXPECT_EQ((FNumbers{1, 3, 5}), Array);
}

TEST(TArray, SearchesYieldIndicesAndAddresses)
{
	FNumbers Array{3, 1, 2, 1};
	EXPECT_EQ(1, Array.Find(1));
	EXPECT_EQ(3, Array.FindLast(1));
	EXPECT_EQ(INDEX_NONE, Array.Find(7));
	EXPECT_EQ(2, Array.IndexOfByPredicate([](int32 Value) { return Value == 2; }));
	EXPECT_EQ(&Array[0], Array.FindByKey(3));
	EXPECT_EQ(nullptr, Array.FindByPredicate([](int32 Value) { return Value == 9; }));
	EXPECT_TRUE(Array.Contains(2));
	EXPECT_FALSE(Array.ContainsByPredicate([](int32 Value) { return Value > 3; }));
	EXPECT_EQ((FNumbers{1, 1}), Array.FilterByPredicate([](int32 Value) { return Value == 1; }));
}

TEST(TArray, ResetKeepsTheMemoryAndEmptyFreesIt)
{
	FNumbers Array{1, 2, 3};
	const int32 OldMax = Array.Max();
	Array.Reset();
	EXPECT_EQ(0, Array.Num());
	EXPECT_EQ(OldMax, Array.Max());
	Array.Empty();
	EXPECT_EQ(0, Array.Max());
}

TEST(TArray, MovingLeavesTheSourceEmpty)
{
	FNumbers Source{1, 2};
	const FNumbers Target(MoveTemp(Source));
	EXPECT_EQ(0, Source.Num());
	EXPECT_EQ((FNumbers{1, 2}), Target);
}

TEST(TArray, AppendingMovesOrCopies)
{
	FNumbers Array{1};
	FNumbers Other{2, 3};
	Array += Other;
	Array.Append(MoveTemp(Other));
	Array.Append({4});
	EXPECT_EQ((FNumbers{1, 2, 3, 2, 3, 4}), Array);
	EXPECT_EQ(0, Other.Num());
}

TEST(TArray, MoveOnlyElementsAreAllowed)
{
	TArray<TUniquePtr<int32>> Array;
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Array.Add(MakeUnique<int32>(Index));
	}
	Array.RemoveAt(0);
	EXPECT_EQ(1, *Array[0]);
	EXPECT_EQ(19, *Array.Last());
}

TEST(TArray, SortComparesWhatPointersPointAt)
{
	int32 Values[] = {3, 1, 2};
	TArray<int32*> Pointers{&Values[0], &Values[1], &Values[2]};
	Pointers.Sort();
	EXPECT_EQ(&Values[1], Pointers[0]);
	EXPECT_EQ(&Values[0], Pointers[2]);
	Pointers.Sort([](const int32& A, const int32& B) { return A > B; });
	EXPECT_EQ(&Values[0], Pointers[0]);
}

TEST(TArray, StableSortKeepsEqualElementsInOrder)
{
	FNumbers Array;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		Array.Add(Index * 37 % 100);
	}
	Array.StableSort([](int32 A, int32 B) { return A / 10 < B / 10; });
	FNumbers LastOfTen;
	LastOfTen.Init(-1, 10);
	int32 Decade = 0;
	for (int32 Index = 0; Index < 100; ++Index)
	{
		EXPECT_LE(Decade, Array[Index] / 10);
		Decade = Array[Index] / 10;
		// The place a value had before is its inverse modulo 100.
		const int32 OldPlace = Array[Index] * 73 % 100;
		EXPECT_LT(LastOfTen[Decade], OldPlace);
		LastOfTen[Decade] = OldPlace;
	}
}

TEST(TArray, InlineElementsNeedNoMemoryUntilThereAreMore)
{
	TArray<int32, TInlineAllocator<3>> Array{1, 2, 3};
	EXPECT_EQ(3, Array.Max());
	Array.Add(4);
	TArray<int32, TInlineAllocator<3>> Moved(MoveTemp(Array));
	EXPECT_EQ(4, Moved.Num());
	EXPECT_EQ(4, Moved.Last());
	Moved.SetNum(2);
	Moved.Shrink();
	TArray<int32, TInlineAllocator<3>> Again(MoveTemp(Moved));
	EXPECT_EQ(2, Again.Num());
	EXPECT_EQ(2, Again.Last());
	EXPECT_EQ(0, Moved.Num());
}

TEST(TArray, IteratorRemovesWhereItStands)
{
	FNumbers Array{1, 2, 3, 4};
	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ((FNumbers{1, 3}), Array);
}

TEST(TArray, PopTakesTheLastElement)
{
	FNumbers Array{1, 2};
	EXPECT_EQ(2, Array.Pop());
	EXPECT_EQ(1, Array.Num());
}

TEST(TArray, ChangingTheLengthInARangedForIsReportedOnceAndTheLoopEnds)
{
	StandIn::RearmEnsures();
	struct FOnlyHere
	{
		int32 Value;
	};
	TArray<FOnlyHere> Array;
	Array.Reserve(8);
	Array.Add(FOnlyHere{1});
	Array.Add(FOnlyHere{2});
	const FLogCapture Capture;
	int32 NumRounds = 0;
	for (const FOnlyHere& Element : Array)
	{
		NumRounds += Element.Value != 0 ? 1 : 0;
		Array.Add(FOnlyHere{3});
	}
	EXPECT_EQ(2, NumRounds);
	int32 NumReports = 0;
	for (const FLogCapture::FLine& Line : Capture.Lines)
	{
		NumReports += Line.Text == "Array has changed during ranged-for iteration!" ? 1 : 0;
	}
	EXPECT_EQ(1, NumReports);
}

TEST(TArrayDeathTest, IndexPastTheEndIsFatalWithTheEnginesText)
{
	FNumbers Array{1, 2};
	EXPECT_DEATH(Array[2],
		"Assertion failed: \\(Index >= 0\\) & \\(Index < ArrayNum\\) .*\\] \n"
		"Array index out of bounds: 2 from an array of size 2");
	EXPECT_DEATH(Array[-1], "Array index out of bounds: -1 from an array of size 2");
}

TEST(TArrayDeathTest, LastOfAnEmptyArrayIsFatal)
{
	FNumbers Array;
	EXPECT_DEATH(Array.Last(), "Array index out of bounds: -1 from an array of size 0");
}

TEST(TArrayDeathTest, AddingAnElementOfTheArrayItselfIsFatal)
{
	FNumbers Array{1, 2};
	EXPECT_DEATH(Array.Add(Array[0]),
		"Attempting to use a container element \\(0x" DEATH_HEX_NUMBER "\\) which already comes from the container "
		"being modified");
}

TEST(TArrayDeathTest, RemovingOutsideIsFatal)
{
	FNumbers Array{1, 2};
	EXPECT_DEATH(Array.RemoveAt(2), "Assertion failed");
	EXPECT_DEATH(Array.RemoveAt(1, 2), "Assertion failed");
}

TEST(TArray, AReferenceToWhatWasAddedPointsIntoTheArrayAlsoWhenItGrew)
{
	TArray<int32> Array;
	for (int32 Count = 0; Count < 100; ++Count)
	{
		for (const int Way : {0, 1, 2, 3})
		{
			const int32& Added = Way == 0 ? Array.AddDefaulted_GetRef()
				: Way == 1                ? Array.AddZeroed_GetRef()
				: Way == 2                ? Array.Emplace_GetRef(Count)
										  : Array.Add_GetRef(Count);
			ASSERT_EQ(&Added, &Array.Last()) << Way;
		}
	}
}
