// Copyright The Tintmill authors. All rights reserved.

#include "Misc/Optional.h"

#include "Templates/SharedPointer.h"
#include "gtest/gtest.h"

TEST(TOptional, DefaultIsNotSet)
{
	const TOptional<int32> Optional;
	EXPECT_FALSE(Optional.IsSet());
	EXPECT_EQ(7, Optional.Get(7));
}

TEST(TOptional, ValueEndsWithResetAndReplacement)
{
	const TSharedRef<int32> Value = MakeShared<int32>(1);
	{
		TOptional<TSharedRef<int32>> Optional(Value);
		EXPECT_EQ(2, Value.GetSharedReferenceCount());
		Optional = MakeShared<int32>(2);
		EXPECT_EQ(1, Value.GetSharedReferenceCount());
		Optional = Value;
		Optional.Reset();
		EXPECT_EQ(1, Value.GetSharedReferenceCount());
		Optional.Emplace(Value);
	}
	EXPECT_EQ(1, Value.GetSharedReferenceCount());
}

TEST(TOptional, EqualWhenBothMissOrHaveEqualValues)
{
	EXPECT_TRUE(TOptional<int32>() == TOptional<int32>());
	EXPECT_TRUE(TOptional<int32>(1) == TOptional<int32>(1));
	EXPECT_TRUE(TOptional<int32>(1) != TOptional<int32>());
	EXPECT_TRUE(TOptional<int32>(1) != TOptional<int32>(2));
}

TEST(TOptional, AssigningItsOwnValueKeepsIt)
{
	TOptional<int32> Optional(3);
	Optional = Optional.GetValue();
	EXPECT_EQ(3, *Optional);
}

TEST(TOptionalDeathTest, ReadingAMissingValueIsFatal)
{
	const TOptional<int32> Optional;
	EXPECT_DEATH(Optional.GetValue(), "It is an error to call GetValue\\(\\) on an unset TOptional");
}
