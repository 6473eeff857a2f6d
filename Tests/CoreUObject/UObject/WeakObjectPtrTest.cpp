// Copyright The Tintmill authors. All rights reserved.

#include "UObject/WeakObjectPtrTemplates.h"
#include "CoreTestObjects.h"
#include "Delegates/Delegate.h"
#include "UObject/StrongObjectPtr.h"
#include "gtest/gtest.h"

TEST(WeakObjectPtr, IsNullAtFirst)
{
	const TWeakObjectPtr<UCoreTestObject> Weak;
	EXPECT_TRUE(Weak.Get() == nullptr && !Weak.IsValid() && !Weak.IsStale());
}

TEST(WeakObjectPtr, GivesItsObject)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	const TWeakObjectPtr<UObject> Weak = Object;
	EXPECT_EQ(Weak.Get(), Object);
}

TEST(WeakObjectPtr, IsInvalidAfterTheCollection)
{
	const TWeakObjectPtr<UCoreTestObject> Weak = NewObject<UCoreTestObject>();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(!Weak.IsValid() && Weak.IsStale() && Weak.Get() == nullptr);
}

TEST(WeakObjectPtr, StaysInvalidWhenAnotherObjectTakesThePlace)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	const uint32 Place = Object->GetUniqueID();
	const TWeakObjectPtr<UCoreTestObject> Weak = Object;
	CollectGarbage(RF_NoFlags);
	bool bPlaceTaken = false;
	for (int32 Count = 0; Count < 1000 && !bPlaceTaken; ++Count)
	{
		bPlaceTaken = NewObject<UCoreTestObject>()->GetUniqueID() == Place;
	}
	EXPECT_TRUE(bPlaceTaken && !Weak.IsValid());
}

TEST(WeakObjectPtr, HidesAnObjectThatIsPendingKill)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	const TWeakObjectPtr<UCoreTestObject> Weak = Object;
	Object->MarkPendingKill();
	EXPECT_TRUE(Weak.Get() == nullptr && Weak.Get(true) == Object && !Weak.IsValid() && Weak.IsValid(true) && Weak.IsStale()
		&& !Weak.IsStale(false));
}

TEST(WeakObjectPtr, EqualsAnotherInvalidOne)
{
	TWeakObjectPtr<UCoreTestObject> A = NewObject<UCoreTestObject>();
	TWeakObjectPtr<UCoreTestObject> B = NewObject<UCoreTestObject>();
	const bool bDifferent = A != B;
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(bDifferent && A == B && A == nullptr && !A.HasSameIndexAndSerialNumber(B));
}

TEST(WeakObjectPtr, ComparesWithRawPointers)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	const TWeakObjectPtr<UCoreTestObject> Weak = Object;
	EXPECT_TRUE(Weak == Object && Object == Weak && Weak != nullptr && !(Weak != Object));
}

TEST(WeakObjectPtr, ForgetsItsObject)
{
	TWeakObjectPtr<UCoreTestObject> Weak = NewObject<UCoreTestObject>();
	Weak.Reset();
	EXPECT_TRUE(!Weak.IsValid() && !Weak.IsStale());
}

TEST(StrongObjectPtr, KeepsItsObject)
{
	TStrongObjectPtr<UCoreTestObject> Strong(NewObject<UCoreTestObject>());
	const TWeakObjectPtr<UCoreTestObject> Weak = Strong.Get();
	CollectGarbage(RF_NoFlags);
	const bool bKept = Weak.IsValid();
	Strong.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(bKept && !Weak.IsValid());
}

TEST(ObjectDelegate, IsNotCalledAfterItsObjectIsGone)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	int32 Calls = 0;
	FSimpleMulticastDelegate Delegate;
	Delegate.AddWeakLambda(Object, [&Calls]() { ++Calls; });
	Delegate.Broadcast();
	CollectGarbage(RF_NoFlags);
	Delegate.Broadcast();
	EXPECT_EQ(Calls, 1);
}
