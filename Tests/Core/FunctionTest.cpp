// Copyright The Tintmill authors. All rights reserved.

#include "Templates/Function.h"

#include "Templates/UniquePtr.h"
#include "gtest/gtest.h"

namespace
{
int32 Twice(int32 Value)
{
	return 2 * Value;
}

int32 CallWithThree(TFunctionRef<int32(int32)> Function)
{
	return Function(3);
}

struct FPoint
{
	int32 X = 4;
	int32 GetX() const { return X; }
};
}

TEST(TFunction, HoldsFunctionsLambdasAndMembers)
{
	TFunction<int32(int32)> Function = Twice;
	EXPECT_EQ(6, Function(3));
	Function = [](int32 Value) { return Value + 1; };
	EXPECT_EQ(4, Function(3));
	const TFunction<int32(const FPoint&)> Getter = &FPoint::GetX;
	EXPECT_EQ(4, Getter(FPoint()));
	const TFunction<int32(const FPoint&)> Member = &FPoint::X;
	EXPECT_EQ(4, Member(FPoint()));
}

TEST(TFunction, CopiesHaveTheirOwnCaptures)
{
	TFunction<int32()> First = [Count = 0]() mutable { return ++Count; };
	First();
	TFunction<int32()> Second(First);
	EXPECT_EQ(2, First());
	EXPECT_EQ(3, First());
	EXPECT_EQ(2, Second());
}

TEST(TFunction, NullPointersMakeItEmpty)
{
	int32 (*Null)(int32) = nullptr;
	const TFunction<int32(int32)> Function(Null);
	EXPECT_FALSE(Function.IsSet());
	EXPECT_TRUE(Function == nullptr);
	EXPECT_FALSE((bool)TFunction<void()>());
}

TEST(TFunction, ResultIsDroppedWhereNoneIsWanted)
{
	const TFunction<void(int32)> Function = Twice;
	Function(1);
	SUCCEED();
}

TEST(TFunctionDeathTest, CallingAnEmptyFunctionIsFatal)
{
	const TFunction<void()> Function;
	EXPECT_DEATH(Function(), "Attempting to call an unbound TFunction!");
}

TEST(TUniqueFunction, HoldsWhatCannotBeCopied)
{
	TUniqueFunction<int32()> Function = [Value = MakeUnique<int32>(5)] { return *Value; };
	TUniqueFunction<int32()> Moved(MoveTemp(Function));
	EXPECT_FALSE(Function.IsSet());
	EXPECT_EQ(5, Moved());
}

TEST(TFunctionRef, BorrowsACallable)
{
	int32 Calls = 0;
	EXPECT_EQ(9, CallWithThree([&Calls](int32 Value) {
		++Calls;
		return Value * Value;
	}));
	EXPECT_EQ(1, Calls);
	EXPECT_EQ(6, CallWithThree(Twice));
	EXPECT_EQ(6, CallWithThree(TFunction<int32(int32)>(Twice)));
}
