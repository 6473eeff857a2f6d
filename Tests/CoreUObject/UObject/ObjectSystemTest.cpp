// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/ObjectSystem.h"
#include "CoreTestObjects.h"
#include "CoreTestSettings.h"
#include "Misc/CoreDelegates.h"
#include "Support/Printers.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectIterator.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "gtest/gtest.h"

namespace
{
// Leaves the object system running, whatever the test did.
class ObjectSystem : public testing::Test
{
protected:
	virtual ~ObjectSystem() override
	{
		StandIn::StartObjectSystem();
		ProcessNewlyLoadedUObjects(TEXT("CoreUObjectTestTypes"));
	}
};
}

TEST_F(ObjectSystem, IsInitializedUntilItsTearDown)
{
	const bool bBefore = UObjectInitialized();
	StandIn::ShutdownObjectSystem();
	EXPECT_TRUE(bBefore && !UObjectInitialized());
}

TEST_F(ObjectSystem, IsTornDownWhenTheApplicationExits)
{
	FCoreDelegates::OnExit.Broadcast();
	EXPECT_FALSE(UObjectInitialized());
}

TEST_F(ObjectSystem, DestroysAllObjectsAtItsTearDown)
{
	UCoreTestObject* Rooted = NewObject<UCoreTestObject>();
	Rooted->AddToRoot();
	const TWeakObjectPtr<UObject> Weak = Rooted;
	const TWeakObjectPtr<UObject> Default = GetMutableDefault<UCoreTestObject>();
	const TWeakObjectPtr<UObject> Class = UCoreTestObject::StaticClass();
	StandIn::ShutdownObjectSystem();
	EXPECT_TRUE(!Weak.IsValid() && !Default.IsValid() && !Class.IsValid() && StandIn::GetNumObjects() == 0);
}

TEST_F(ObjectSystem, RunsDestructorsAtItsTearDown)
{
	NewObject<UCoreTestObject>();
	CollectGarbage(RF_NoFlags);
	NewObject<UCoreTestObject>();
	UCoreTestObject::Destructions.Empty();
	StandIn::ShutdownObjectSystem();
	// The object, the default object and that of the child class.
	EXPECT_EQ(UCoreTestObject::Destructions, TEXT("BFDBBFFDD"));
}

TEST_F(ObjectSystem, StartsAgainWithFreshDefaultObjects)
{
	GetMutableDefault<UCoreTestObject>()->Number = 1;
	StandIn::ShutdownObjectSystem();
	StandIn::StartObjectSystem();
	EXPECT_EQ(GetDefault<UCoreTestObject>()->Number, 7);
}

TEST_F(ObjectSystem, KeepsReflectionOverATearDown)
{
	StandIn::ShutdownObjectSystem();
	StandIn::StartObjectSystem();
	EXPECT_TRUE(UCoreTestSettings::StaticClass()->FindPropertyByName(TEXT("Pairs")) != nullptr
		&& UCoreTestSettings::StaticClass()->HasMetaData(TEXT("ToolTip"))
		&& FindObject<UClass>((UObject*)ANY_PACKAGE, TEXT("CoreTestSettings")) == UCoreTestSettings::StaticClass());
}

TEST_F(ObjectSystem, ListsPlainObjectsOnly)
{
	CollectGarbage(RF_NoFlags);
	UCoreTestAsset* Asset = NewObject<UCoreTestAsset>();
	EXPECT_EQ(StandIn::ListObjects(), TArray<UObject*>({Asset}));
}

TEST_F(ObjectSystem, DropsAModulesObjectsAndFindsItsClassesNoMore)
{
	const TWeakObjectPtr<UObject> Weak = NewObject<UCoreTestAsset>();
	StandIn::DropModuleTypes(TEXT("CoreUObjectTestTypes"));
	EXPECT_TRUE(!Weak.IsValid() && FindObject<UClass>((UObject*)ANY_PACKAGE, TEXT("CoreTestAsset")) == nullptr
		&& FindObject<UPackage>(nullptr, TEXT("/Script/CoreUObjectTestTypes")) == nullptr);
}

TEST_F(ObjectSystem, NullsReferencesIntoADroppedModule)
{
	TStrongObjectPtr<UObject> Strong(NewObject<UCoreTestAsset>());
	StandIn::DropModuleTypes(TEXT("CoreUObjectTestTypes"));
	EXPECT_FALSE(Strong.IsValid());
}

TEST_F(ObjectSystem, WakesADroppedModuleWhenItIsLoadedAgain)
{
	GetMutableDefault<UCoreTestObject>()->Number = 1;
	StandIn::DropModuleTypes(TEXT("CoreUObjectTestTypes"));
	ProcessNewlyLoadedUObjects(TEXT("CoreUObjectTestTypes"));
	EXPECT_TRUE(GetDefault<UCoreTestObject>()->Number == 7 && NewObject<UCoreTestChild>()->IsA<UCoreTestObject>());
}

TEST(ObjectSystemDeathTest, RefusesNewObjectsAfterItsTearDown)
{
	EXPECT_DEATH(
		{
			StandIn::ShutdownObjectSystem();
			NewObject<UCoreTestAsset>((UObject*)UObject::StaticClass(), TEXT("Late"));
		},
		"Unable to create new object: CoreTestAsset Late. The object system is not running.");
}

TEST(ObjectSystemDeathTest, RefusesDefaultObjectsOfAModuleThatIsNotLoaded)
{
	EXPECT_DEATH(
		{
			StandIn::DropModuleTypes(TEXT("CoreUObjectTestTypes"));
			UCoreTestAsset::StaticClass()->GetDefaultObject();
		},
		"The default object of class CoreTestAsset was asked for while its module is not loaded.");
}

TEST(ObjectSystemDeathTest, RefusesAClassWhoseParentsModuleIsNotLoaded)
{
	EXPECT_DEATH(
		{
			StandIn::DropModuleTypes(TEXT("UnrealEd"));
			StandIn::DropModuleTypes(TEXT("Engine"));
			ProcessNewlyLoadedUObjects(TEXT("UnrealEd"));
		},
		"of module UnrealEd derives from class .+ of module Engine, which is not loaded. Load that module first.");
}
