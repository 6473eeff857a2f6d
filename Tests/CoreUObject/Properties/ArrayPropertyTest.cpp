// Copyright The Tintmill authors. All rights reserved.

#include "ValueTextHelpers.h"
#include "gtest/gtest.h"

namespace
{
const FArrayProperty* GetArrayProperty(const TCHAR* Name)
{
	return FindFProperty<FArrayProperty>(FCoreTestValues::StaticStruct(), Name);
}
}

TEST(ArrayProperty, WritesElementsInParentheses)
{
	FCoreTestValues Value;
	Value.Numbers.Append({1, 2});
	EXPECT_EQ(ExportField(Value, TEXT("Numbers")), "(1,2)");
}

TEST(ArrayProperty, WritesNothingForAnEmptyArray)
{
	EXPECT_EQ(ExportField(FCoreTestValues(), TEXT("Numbers")), "");
}

TEST(ArrayProperty, ReadsNothingAsAnEmptyArray)
{
	const FValuesText Read("(Numbers=,Int32=9)");
	EXPECT_TRUE(Read->Numbers.Num() == 0 && Read->Int32 == 9 && Read.Errors.Lines.empty());
}

TEST(ArrayProperty, ReadsEmptyParenthesesAsAnEmptyArray)
{
	EXPECT_EQ(FValuesText("(Numbers=())")->Numbers.Num(), 0);
}

TEST(ArrayProperty, LeavesADefaultElementForOneThatFails)
{
	const FValuesText Read("(Numbers=(1,x,3),Int32=9)");
	EXPECT_TRUE(Read->Numbers == TArray<int32>({1, 0, 3}) && Read->Int32 == 9);
}

TEST(ArrayProperty, StaysAsItIsForTextWithoutParentheses)
{
	const FValuesText Read("(Numbers=5,Int32=9)");
	EXPECT_TRUE(Read->Numbers.Num() == 0 && Read->Int32 == 9 && Read.Errors.Lines.size() == 1);
}

TEST(ArrayProperty, CopiesElementsOneByOne)
{
	FCoreTestValues From;
	From.Strings.Append({TEXT("a"), TEXT("b")});
	FCoreTestValues To;
	To.Strings.Append({TEXT("old"), TEXT("older"), TEXT("oldest")});
	GetArrayProperty(TEXT("Strings"))->CopyCompleteValue_InContainer(&To, &From);
	From.Strings[0] = TEXT("changed");
	EXPECT_TRUE(To.Strings.Num() == 2 && To.Strings[0] == TEXT("a"));
}

TEST(ArrayProperty, ComparesElementsOneByOne)
{
	FCoreTestValues A;
	FCoreTestValues B;
	A.Strings.Add(TEXT("a"));
	B.Strings.Add(TEXT("A"));
	EXPECT_FALSE(GetArrayProperty(TEXT("Strings"))->Identical_InContainer(&A, &B));
}

TEST(ScriptArrayHelper, GrowsAndShrinksARealArray)
{
	FCoreTestValues Value;
	FScriptArrayHelper_InContainer Helper(GetArrayProperty(TEXT("Strings")), &Value);
	Helper.AddValues(100);
	Value.Strings[99] = TEXT("last");
	Helper.RemoveValues(0, 98);
	EXPECT_TRUE(Value.Strings.Num() == 2 && Value.Strings[1] == TEXT("last"));
}

TEST(ScriptArrayHelper, ConstructsElementsByTheirConstructor)
{
	FCoreTestValues Value;
	FScriptArrayHelper_InContainer Helper(GetArrayProperty(TEXT("Inners")), &Value);
	Helper.EmptyAndAddValues(3);
	EXPECT_EQ(Value.Inners[2].Amount, 1.0f);
}

TEST(ScriptArrayHelperDeathTest, RefusesABadIndex)
{
	FCoreTestValues Value;
	Value.Numbers.Add(1);
	FScriptArrayHelper_InContainer Helper(GetArrayProperty(TEXT("Numbers")), &Value);
	EXPECT_DEATH(Helper.GetRawPtr(1), "IsValidIndex\\(Index\\)");
}
