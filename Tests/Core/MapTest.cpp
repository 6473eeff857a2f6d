// Copyright The Tintmill authors. All rights reserved.

#include "Containers/Map.h"

#include "StandIn/FatalHandler.h"
#include "Support/LogCapture.h"
#include "Support/Printers.h"
#include "Templates/UniquePtr.h"
#include "gtest/gtest.h"
#include <map>

namespace
{
typedef TMap<FString, int32> FNumberByName;

std::string KeysOf(const FNumberByName& Map)
{
	std::string Keys;
	for (const TPair<FString, int32>& Pair : Map)
	{
		Keys += ToStd(Pair.Key);
	}
	return Keys;
}
}

TEST(TMap, AddingAKeyAgainReplacesItsValueInPlace)
{
	FNumberByName Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("b"), 2);
	Map.Add(TEXT("a"), 3);
	EXPECT_EQ(2, Map.Num());
	EXPECT_EQ(3, Map[TEXT("a")]);
	EXPECT_EQ("ab", KeysOf(Map));
}

TEST(TMap, StringKeysIgnoreCase)
{
	FNumberByName Map;
	Map.Add(TEXT("Key"), 1);
	EXPECT_TRUE(Map.Contains(TEXT("kEY")));
	Map.Add(TEXT("KEY"), 2);
	EXPECT_EQ(1, Map.Num());
	EXPECT_EQ("KEY", KeysOf(Map));
}

TEST(TMap, IterationFollowsTheOrderOfAdding)
{
	FNumberByName Map;
	for (const TCHAR* Key : {TEXT("z"), TEXT("a"), TEXT("m"), TEXT("b"), TEXT("y"), TEXT("c"), TEXT("x"), TEXT("d"), TEXT("w")})
	{
		Map.Add(Key, 0);
	}
	EXPECT_EQ("zambycxdw", KeysOf(Map));
}

TEST(TMap, FreedPlacesAreUsedAgainTheLastFreedFirst)
{
	FNumberByName Map;
	for (const TCHAR* Key : {TEXT("a"), TEXT("b"), TEXT("c"), TEXT("d")})
	{
		Map.Add(Key, 0);
	}
	Map.Remove(TEXT("a"));
	Map.Remove(TEXT("c"));
	Map.Add(TEXT("x"), 0);
	EXPECT_EQ("bxd", KeysOf(Map));
	Map.Add(TEXT("y"), 0);
	Map.Add(TEXT("z"), 0);
	EXPECT_EQ("ybxdz", KeysOf(Map));
}

TEST(TMap, FindOrAddMakesADefaultValue)
{
	FNumberByName Map;
	EXPECT_EQ(0, Map.FindOrAdd(TEXT("a")));
	Map.FindOrAdd(TEXT("a")) = 4;
	EXPECT_EQ(4, Map.FindOrAdd(TEXT("a")));
}

TEST(TMap, MissingKeysGiveNullOrADefault)
{
	const FNumberByName Map;
	EXPECT_EQ(nullptr, Map.Find(TEXT("a")));
	EXPECT_EQ(0, Map.FindRef(TEXT("a")));
	EXPECT_FALSE(Map.Contains(TEXT("a")));
}

TEST(TMapDeathTest, CheckedAccessToAMissingKeyIsFatal)
{
	FNumberByName Map;
	EXPECT_DEATH(Map[TEXT("a")], "Assertion failed: Pair != nullptr ");
	EXPECT_DEATH(Map.FindChecked(TEXT("a")), "Assertion failed: Pair != nullptr ");
}

TEST(TMap, RemoveYieldsHowManyWent)
{
	FNumberByName Map;
	Map.Add(TEXT("a"), 1);
	EXPECT_EQ(1, Map.Remove(TEXT("a")));
	EXPECT_EQ(0, Map.Remove(TEXT("a")));
	EXPECT_EQ(0, Map.Num());
}

TEST(TMap, KeyInsideTheMapMayNameWhatIsRemoved)
{
	FNumberByName Map;
	Map.Add(TEXT("a"), 1);
	const FString& Key = (*Map.begin()).Key;
	EXPECT_EQ(1, Map.Remove(Key));
}

TEST(TMap, IteratorRemovesWhereItStands)
{
	FNumberByName Map;
	for (int32 Number = 0; Number < 10; ++Number)
	{
		Map.Add(FString::FromInt(Number), Number);
	}
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		if (It.Value() % 3 != 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ("0369", KeysOf(Map));
}

TEST(TMap, KeysAndValuesComeInOrderOfIteration)
{
	const FNumberByName Map{TPair<FString, int32>(TEXT("b"), 2), TPair<FString, int32>(TEXT("a"), 1)};
	TArray<FString> Keys;
	EXPECT_EQ(2, Map.GetKeys(Keys));
	EXPECT_EQ((TArray<FString>{TEXT("b"), TEXT("a")}), Keys);
	TArray<int32> Values;
	Map.GenerateValueArray(Values);
	EXPECT_EQ((TArray<int32>{2, 1}), Values);
}

TEST(TMap, KeySortOrdersTheIteration)
{
	FNumberByName Map{TPair<FString, int32>(TEXT("b"), 2), TPair<FString, int32>(TEXT("c"), 3), TPair<FString, int32>(TEXT("a"), 1)};
	Map.KeySort(TLess<FString>());
	EXPECT_EQ("abc", KeysOf(Map));
	EXPECT_EQ(3, Map[TEXT("c")]);
}

TEST(TMap, CopiesAndMovesAreWhole)
{
	FNumberByName Map;
	Map.Add(TEXT("a"), 1);
	FNumberByName Copy(Map);
	Copy.Add(TEXT("b"), 2);
	EXPECT_EQ(1, Map.Num());
	const FNumberByName Moved(MoveTemp(Copy));
	EXPECT_EQ(2, Moved.Num());
	EXPECT_EQ(0, Copy.Num());
	Copy.Add(TEXT("c"), 3);
	EXPECT_EQ("c", KeysOf(Copy));
}

TEST(TMap, ValuesMayBeMoveOnly)
{
	TMap<int32, TUniquePtr<int32>> Map;
	for (int32 Number = 0; Number < 50; ++Number)
	{
		Map.Add(Number, MakeUnique<int32>(Number));
	}
	EXPECT_EQ(33, *Map[33]);
}

TEST(TMap, RemoveAndCopyValueYieldsTheValue)
{
	FNumberByName Map;
	Map.Add(TEXT("a"), 1);
	int32 Value = 0;
	EXPECT_TRUE(Map.RemoveAndCopyValue(TEXT("a"), Value));
	EXPECT_EQ(1, Value);
	EXPECT_FALSE(Map.RemoveAndCopyValue(TEXT("a"), Value));
}

TEST(TMap, ManyRandomStepsAgreeWithAnOrderedMap)
{
	TMap<int32, int32> Map;
	std::map<int32, int32> Model;
	uint32 State = 12345;
	for (int32 Step = 0; Step < 5000; ++Step)
	{
		State = State * 1664525u + 1013904223u;
		const int32 Key = (int32)((State >> 16) % 200);
		if ((State >> 8) % 3 == 0)
		{
			EXPECT_EQ((int32)Model.erase(Key), Map.Remove(Key));
		}
		else
		{
			Map.Add(Key, Step);
			Model[Key] = Step;
		}
	}
	ASSERT_EQ((int32)Model.size(), Map.Num());
	for (const auto& Entry : Model)
	{
		ASSERT_NE(nullptr, Map.Find(Entry.first));
		EXPECT_EQ(Entry.second, *Map.Find(Entry.first));
	}
}

TEST(TMap, ChangingTheLengthInARangedForIsReported)
{
	StandIn::RearmEnsures();
	TMap<uint16, uint16> Map;
	Map.Add(1, 1);
	Map.Add(2, 2);
	const FLogCapture Capture;
	for (const TPair<uint16, uint16>& Pair : Map)
	{
		if (Pair.Key == 1)
		{
			Map.Remove(2);
		}
	}
	int32 NumReports = 0;
	for (const FLogCapture::FLine& Line : Capture.Lines)
	{
		NumReports += Line.Text.find("has changed during ranged-for iteration!") != std::string::npos ? 1 : 0;
	}
	EXPECT_EQ(1, NumReports);
}

TEST(TMultiMap, KeysHaveSeveralValues)
{
	TMultiMap<FString, int32> Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("a"), 2);
	Map.Add(TEXT("b"), 3);
	EXPECT_EQ(3, Map.Num());
	EXPECT_EQ(2, Map.Num(TEXT("a")));
	TArray<int32> Values;
	Map.MultiFind(TEXT("A"), Values, true);
	EXPECT_EQ((TArray<int32>{1, 2}), Values);
}

TEST(TMultiMap, PairsAreRemovedOneByOneOrAllOfAKey)
{
	TMultiMap<FString, int32> Map;
	Map.Add(TEXT("a"), 1);
	Map.Add(TEXT("a"), 2);
	Map.Add(TEXT("a"), 1);
	EXPECT_EQ(1, Map.RemoveSingle(TEXT("a"), 1));
	EXPECT_EQ(1, Map.Remove(TEXT("a"), 1));
	EXPECT_EQ(1, Map.Remove(TEXT("a")));
	EXPECT_EQ(0, Map.Num());
}

TEST(TMultiMap, AddUniqueKeepsEqualPairsSingle)
{
	TMultiMap<FString, int32> Map;
	Map.AddUnique(TEXT("a"), 1);
	Map.AddUnique(TEXT("a"), 1);
	Map.AddUnique(TEXT("a"), 2);
	EXPECT_EQ(2, Map.Num());
}

TEST(TSet, ElementsAreThereOnce)
{
	TSet<FString> Set;
	bool bAlreadyThere = true;
	Set.Add(TEXT("a"), &bAlreadyThere);
	EXPECT_FALSE(bAlreadyThere);
	Set.Add(TEXT("A"), &bAlreadyThere);
	EXPECT_TRUE(bAlreadyThere);
	EXPECT_EQ(1, Set.Num());
	EXPECT_EQ(1, Set.Remove(TEXT("a")));
	EXPECT_FALSE(Set.Contains(TEXT("a")));
}

TEST(TSet, SetsCombine)
{
	const TSet<int32> A{1, 2, 3};
	const TSet<int32> B{2, 3, 4};
	EXPECT_EQ((TArray<int32>{2, 3}), A.Intersect(B).Array());
	EXPECT_EQ((TArray<int32>{1, 2, 3, 4}), A.Union(B).Array());
	EXPECT_EQ((TArray<int32>{1}), A.Difference(B).Array());
}

TEST(TSet, ResetForgetsTheElementsForSearchToo)
{
	TSet<int32> Set{1, 2, 3};
	Set.Reset();
	EXPECT_FALSE(Set.Contains(2));
	Set.Add(2);
	EXPECT_TRUE(Set.Contains(2));
	EXPECT_EQ(1, Set.Num());
}
