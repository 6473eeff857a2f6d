// Copyright The Tintmill authors. All rights reserved.

#include "Templates/UnrealTemplate.h"

#include "Containers/EnumAsByte.h"
#include "Containers/IndirectArray.h"
#include "Misc/EnumClassFlags.h"
#include "Misc/ScopeExit.h"
#include "Templates/Tuple.h"
#include "gtest/gtest.h"

enum class EUnrealTemplateTestFlags : uint8
{
	None = 0,
	A = 1,
	B = 2,
	C = 4
};
ENUM_CLASS_FLAGS(EUnrealTemplateTestFlags)

namespace
{
enum ETestLetter
{
	TestLetterA,
	TestLetterB
};
}

TEST(TGuardValue, PutsTheOldValueBack)
{
	int32 Value = 1;
	{
		const TGuardValue<int32> Guard(Value, 2);
		EXPECT_EQ(2, Value);
		EXPECT_EQ(1, *Guard);
	}
	EXPECT_EQ(1, Value);
}

TEST(UnrealTemplate, ArrayCountIsAConstant)
{
	const int32 Numbers[] = {1, 2, 3};
	static_assert(UE_ARRAY_COUNT(Numbers) == 3, "Counted when compiled.");
	EXPECT_EQ(3u, UE_ARRAY_COUNT(Numbers));
}

TEST(UnrealTemplate, SwapExchangesValues)
{
	int32 A = 1;
	int32 B = 2;
	Swap(A, B);
	EXPECT_EQ(2, A);
	EXPECT_EQ(1, B);
}

TEST(ScopeExit, BlockRunsWhenTheScopeIsLeft)
{
	int32 Value = 0;
	{
		ON_SCOPE_EXIT
		{
			Value = Value * 10 + 2;
		};
		Value = 1;
	}
	EXPECT_EQ(12, Value);
}

TEST(EnumClassFlags, BitsAreSetClearedAndAsked)
{
	EUnrealTemplateTestFlags Flags = EUnrealTemplateTestFlags::A | EUnrealTemplateTestFlags::B;
	EXPECT_TRUE(EnumHasAllFlags(Flags, EUnrealTemplateTestFlags::A | EUnrealTemplateTestFlags::B));
	EXPECT_FALSE(EnumHasAllFlags(Flags, EUnrealTemplateTestFlags::A | EUnrealTemplateTestFlags::C));
	EXPECT_TRUE(EnumHasAnyFlags(Flags, EUnrealTemplateTestFlags::A | EUnrealTemplateTestFlags::C));
	EnumRemoveFlags(Flags, EUnrealTemplateTestFlags::A);
	EXPECT_EQ(EUnrealTemplateTestFlags::B, Flags);
	EnumAddFlags(Flags, EUnrealTemplateTestFlags::C);
	EXPECT_EQ(EUnrealTemplateTestFlags::B | EUnrealTemplateTestFlags::C, Flags);
	Flags &= ~EUnrealTemplateTestFlags::B;
	EXPECT_EQ(EUnrealTemplateTestFlags::C, Flags);
	EXPECT_TRUE(!EUnrealTemplateTestFlags::None);
}

TEST(TEnumAsByte, IsOneByteAndConverts)
{
	EXPECT_EQ(1u, sizeof(TEnumAsByte<ETestLetter>));
	const TEnumAsByte<ETestLetter> Letter = TestLetterB;
	EXPECT_TRUE(Letter == TestLetterB);
	const ETestLetter Plain = Letter;
	EXPECT_EQ(TestLetterB, Plain);
}

TEST(TTuple, PairHasKeyAndValue)
{
	const TPair<int32, float> Pair(1, 2.0f);
	EXPECT_EQ(1, Pair.Key);
	EXPECT_EQ(2.0f, Pair.Get<1>());
	EXPECT_TRUE(Pair == (TPair<int32, float>(1, 2.0f)));
}

TEST(TTuple, LongerTuplesAreReadByIndex)
{
	TTuple<int32, char, float> Tuple = MakeTuple(1, 'x', 2.0f);
	EXPECT_EQ('x', Tuple.Get<1>());
	Tuple.Get<0>() = 5;
	EXPECT_TRUE(Tuple == MakeTuple(5, 'x', 2.0f));
}

TEST(TIndirectArray, AddressesLastAndElementsAreDeleted)
{
	struct FElement
	{
		explicit FElement(int32& InNumAlive)
			: NumAlive(InNumAlive)
		{
			++NumAlive;
		}
		~FElement() { --NumAlive; }
		int32& NumAlive;
	};
	int32 NumAlive = 0;
	{
		TIndirectArray<FElement> Array;
		Array.Add(new FElement(NumAlive));
		const FElement* const First = &Array[0];
		for (int32 Index = 0; Index < 50; ++Index)
		{
			Array.Add(new FElement(NumAlive));
		}
		EXPECT_EQ(First, &Array[0]);
		Array.RemoveAt(1, 20);
		EXPECT_EQ(31, NumAlive);
	}
	EXPECT_EQ(0, NumAlive);
}
