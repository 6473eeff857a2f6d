// Copyright The Tintmill authors. All rights reserved.

#include "UObject/GarbageCollection.h"
#include "CoreTestObjects.h"
#include "StandIn/ObjectSystem.h"
#include "Support/Printers.h"
#include "UObject/GCObject.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "gtest/gtest.h"

namespace
{
struct FHolder : public FGCObject
{
	UObject* Object = nullptr;
	virtual void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Object); }
};

// A rooted object that refers to others until the test is over.
class GarbageCollection : public testing::Test
{
protected:
	GarbageCollection()
	{
		Root = NewObject<UCoreTestObject>();
		Root->AddToRoot();
	}
	virtual ~GarbageCollection() override
	{
		Root->RemoveFromRoot();
		CollectGarbage(RF_NoFlags);
	}

	static TWeakObjectPtr<UObject> Make() { return TWeakObjectPtr<UObject>(NewObject<UCoreTestAsset>()); }

	UCoreTestObject* Root;
};
}

TEST_F(GarbageCollection, DestroysWhatNothingRefersTo)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollection, KeepsRootedObjects)
{
	const TWeakObjectPtr<UObject> Weak = Root;
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, KeepsObjectsWithTheKeptFlags)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Weak->SetFlags(RF_Standalone);
	CollectGarbage(RF_Standalone);
	const bool bKept = Weak.IsValid();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(bKept && !Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsPlainReferences)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->Reference = Weak.Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsReferencesInArrays)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->References.Add(nullptr);
	Root->References.Add(Weak.Get());
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsReferencesInStructs)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->Holder.Thing = Weak.Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsReferencesInArraysOfStructs)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->Holders.SetNum(3);
	Root->Holders[2].Thing = Weak.Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsWhatTheClassReportsItself)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->Hidden = Weak.Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, FollowsHoldersOutsideOfTheObjectSystem)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	bool bKept = false;
	{
		FHolder Holder;
		Holder.Object = Weak.Get();
		CollectGarbage(RF_NoFlags);
		bKept = Weak.IsValid();
	}
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(bKept && !Weak.IsValid());
}

TEST_F(GarbageCollection, KeepsTheOutersOfKeptObjects)
{
	UPackage* Package = CreatePackage(TEXT("/Test/Kept"));
	const TWeakObjectPtr<UPackage> Weak = Package;
	Root->Reference = NewObject<UCoreTestAsset>(Package);
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
}

TEST_F(GarbageCollection, DoesNotFollowWeakReferences)
{
	const TWeakObjectPtr<UObject> Weak = Make();
	Root->Weak = Weak.Get();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Root->Weak.IsValid());
}

TEST_F(GarbageCollection, DestroysCircles)
{
	UCoreTestObject* A = NewObject<UCoreTestObject>();
	UCoreTestObject* B = NewObject<UCoreTestObject>();
	A->Reference = B;
	B->Reference = A;
	const TWeakObjectPtr<UObject> Weak = A;
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(GarbageCollection, NullsReferencesToObjectsThatArePendingKill)
{
	Root->Reference = Make().Get();
	Root->Holders.SetNum(1);
	Root->Holders[0].Thing = Root->Reference;
	Root->Reference->SetFlags(RF_Standalone);
	Root->Reference->MarkPendingKill();
	CollectGarbage(RF_Standalone);
	EXPECT_TRUE(Root->Reference == nullptr && Root->Holders[0].Thing == nullptr);
}

TEST_F(GarbageCollection, BeginsFinishesAndEndsDestructionInThatOrder)
{
	NewObject<UCoreTestObject>();
	NewObject<UCoreTestObject>();
	UCoreTestObject::Destructions.Empty();
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(UCoreTestObject::Destructions, TEXT("BBFFDD"));
}

TEST_F(GarbageCollection, KeepsClassesAndDefaultObjects)
{
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(GetDefault<UCoreTestObject>()->Number, 7);
}

TEST_F(GarbageCollection, TellsBeforeAndAfter)
{
	std::string Order;
	const TWeakObjectPtr<UObject> Weak = Make();
	const FDelegateHandle Pre =
		FCoreUObjectDelegates::GetPreGarbageCollectDelegate().AddLambda([&]() { Order += Weak.IsValid() ? "pre " : "?"; });
	const FDelegateHandle Post =
		FCoreUObjectDelegates::GetPostGarbageCollect().AddLambda([&]() { Order += Weak.IsValid() ? "?" : "post"; });
	CollectGarbage(RF_NoFlags);
	FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Remove(Pre);
	FCoreUObjectDelegates::GetPostGarbageCollect().Remove(Post);
	EXPECT_EQ(Order, "pre post");
}

TEST_F(GarbageCollection, LeavesNoObjectsBehind)
{
	CollectGarbage(RF_NoFlags);
	const int32 Before = StandIn::GetNumObjects();
	for (int32 Count = 0; Count < 100; ++Count)
	{
		NewObject<UCoreTestChild>();
	}
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(StandIn::GetNumObjects(), Before);
}

TEST_F(GarbageCollection, KnowsValidFromPendingKill)
{
	UObject* Object = Make().Get();
	const bool bBefore = IsValid(Object);
	Object->MarkPendingKill();
	EXPECT_TRUE(bBefore && !IsValid(Object) && !IsValid(nullptr));
}

TEST(GarbageCollectionDeathTest, RefusesToMarkARootedObjectPendingKill)
{
	UCoreTestObject* Object = NewObject<UCoreTestObject>();
	Object->AddToRoot();
	EXPECT_DEATH(Object->MarkPendingKill(), "!IsRooted\\(\\)");
	Object->RemoveFromRoot();
}
