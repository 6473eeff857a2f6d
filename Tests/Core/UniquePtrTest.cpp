// Copyright The Tintmill authors. All rights reserved.

#include "Templates/UniquePtr.h"

#include "gtest/gtest.h"

namespace
{
struct FTracked
{
	explicit FTracked(int32& InNumAlive)
		: NumAlive(InNumAlive)
	{
		++NumAlive;
	}
	virtual ~FTracked() { --NumAlive; }
	int32& NumAlive;
};

struct FTrackedChild : FTracked
{
	using FTracked::FTracked;
};
}

TEST(TUniquePtr, DeletesItsObjectAtTheEndAndOnReset)
{
	int32 NumAlive = 0;
	{
		TUniquePtr<FTracked> Pointer = MakeUnique<FTracked>(NumAlive);
		Pointer.Reset(new FTrackedChild(NumAlive));
		EXPECT_EQ(1, NumAlive);
	}
	EXPECT_EQ(0, NumAlive);
}

TEST(TUniquePtr, MovingHandsTheObjectOver)
{
	int32 NumAlive = 0;
	TUniquePtr<FTrackedChild> Child = MakeUnique<FTrackedChild>(NumAlive);
	TUniquePtr<FTracked> Pointer(MoveTemp(Child));
	EXPECT_FALSE(Child.IsValid());
	EXPECT_TRUE(Pointer.IsValid());
	Pointer = nullptr;
	EXPECT_EQ(0, NumAlive);
}

TEST(TUniquePtr, ReleaseGivesTheObjectUp)
{
	int32 NumAlive = 0;
	TUniquePtr<FTracked> Pointer = MakeUnique<FTracked>(NumAlive);
	FTracked* const Object = Pointer.Release();
	EXPECT_TRUE(Pointer == nullptr);
	EXPECT_EQ(1, NumAlive);
	delete Object;
}
