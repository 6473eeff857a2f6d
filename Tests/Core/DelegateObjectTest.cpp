// Copyright The Tintmill authors. All rights reserved.

#include "Delegates/Delegate.h"

#include "CoreMinimal.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "gtest/gtest.h"

DECLARE_MULTICAST_DELEGATE_OneParam(FDirtyEvent, bool) DECLARE_DELEGATE_RetVal(bool, FIsDirtyDelegate)

	namespace
{
	/** A package as an object to bind. */
	class DelegateObject : public testing::Test
	{
	protected:
		DelegateObject()
		{
			StandIn::StartObjectSystem();
			Object = CreatePackage(TEXT("/Temp/DelegateObjectTest"));
			Object->AddToRoot();
		}

		virtual ~DelegateObject() override
		{
			if (Object != nullptr)
			{
				Destroy();
			}
		}

		/** Has the object collected, so that nothing is left at its address. */
		void Destroy()
		{
			Object->RemoveFromRoot();
			Object->MarkPendingKill();
			Object = nullptr;
			CollectGarbage(RF_NoFlags);
		}

		UPackage* Object;
		FDirtyEvent Event;
	};
}

TEST_F(DelegateObject, ObjectBindingCallsTheObject)
{
	Object->SetDirtyFlag(false);
	Event.AddUObject(Object, &UPackage::SetDirtyFlag);
	Event.Broadcast(true);
	EXPECT_TRUE(Object->IsDirty());
	const FIsDirtyDelegate Delegate = FIsDirtyDelegate::CreateUObject((const UPackage*)Object, &UPackage::IsDirty);
	EXPECT_TRUE(Delegate.Execute());
	EXPECT_EQ(Object, Delegate.GetUObject());
}

TEST_F(DelegateObject, ObjectBindingEndsWithItsObject)
{
	Event.AddUObject(Object, &UPackage::SetDirtyFlag);
	EXPECT_TRUE(Event.IsBoundToObject(Object));
	Destroy();
	EXPECT_FALSE(Event.IsBound());
	Event.Broadcast(true);
	EXPECT_EQ(0, Event.ListUserObjects().Num());
}

TEST_F(DelegateObject, ObjectPendingKillIsNotCalled)
{
	Object->SetDirtyFlag(false);
	Event.AddUObject(Object, &UPackage::SetDirtyFlag);
	Object->RemoveFromRoot();
	Object->MarkPendingKill();
	EXPECT_FALSE(Event.IsBound());
	Event.Broadcast(true);
	EXPECT_FALSE(Object->IsDirty());
}

TEST_F(DelegateObject, WeakLambdaIsCalledWhileItsObjectLives)
{
	int32 NumCalls = 0;
	Event.AddWeakLambda(Object, [&NumCalls](bool) { ++NumCalls; });
	Event.Broadcast(true);
	EXPECT_EQ(1, NumCalls);
	Destroy();
	Event.Broadcast(true);
	EXPECT_EQ(1, NumCalls);
}

TEST_F(DelegateObject, RemoveAllTakesObjectAndWeakLambdaBindings)
{
	Event.AddUObject(Object, &UPackage::SetDirtyFlag);
	Event.AddWeakLambda(Object, [](bool) {});
	Event.AddLambda([](bool) {});
	EXPECT_EQ(2, Event.RemoveAll(Object));
	EXPECT_EQ(1, Event.ListUserObjects().Num());
}

TEST_F(DelegateObject, BindingToANullObjectIsFatal)
{
	EXPECT_DEATH(Event.AddUObject((UPackage*)nullptr, &UPackage::SetDirtyFlag),
		"Assertion failed: InUserObject != nullptr && MethodPtr != nullptr ");
}
