// Copyright The Tintmill authors. All rights reserved.

#include "Engine/World.h"

#include "StandIn/ObjectSystem.h"
#include "StandIn/Registrations.h"
#include "Support/EventLog.h"
#include "UObject/Package.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include <gtest/gtest.h>

/** Notes the events of worlds with the world's type and state. */
class FWorldTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { StandIn::StartObjectSystem(); }

	virtual void SetUp() override
	{
		FWorldDelegates::OnPreWorldInitialization.AddRaw(this, &FWorldTest::OnPreInit);
		FWorldDelegates::OnPostWorldInitialization.AddRaw(this, &FWorldTest::OnPostInit);
		FWorldDelegates::OnWorldBeginTearDown.AddRaw(this, &FWorldTest::OnTearDown);
		FWorldDelegates::OnWorldCleanup.AddRaw(this, &FWorldTest::OnCleanup);
		FWorldDelegates::OnPostWorldCleanup.AddRaw(this, &FWorldTest::OnPostCleanup);
	}

	virtual void TearDown() override
	{
		FWorldDelegates::OnPreWorldInitialization.RemoveAll(this);
		FWorldDelegates::OnPostWorldInitialization.RemoveAll(this);
		FWorldDelegates::OnWorldBeginTearDown.RemoveAll(this);
		FWorldDelegates::OnWorldCleanup.RemoveAll(this);
		FWorldDelegates::OnPostWorldCleanup.RemoveAll(this);
		CollectGarbage(RF_NoFlags);
	}

	void OnPreInit(UWorld* World, const UWorld::InitializationValues)
	{
		Log.Add("PreInit");
		TypeBeforeInit = World->WorldType;
		bInitializedBeforeInit = World->bIsWorldInitialized;
	}
	void OnPostInit(UWorld*, const UWorld::InitializationValues) { Log.Add("PostInit"); }
	void OnTearDown(UWorld*) { Log.Add("BeginTearDown"); }
	void OnCleanup(UWorld*, bool, bool) { Log.Add("Cleanup"); }
	void OnPostCleanup(UWorld*, bool, bool) { Log.Add("PostCleanup"); }

	/** Makes an initialised world that nothing keeps alive. */
	UWorld* MakeWorld(EWorldType::Type Type = EWorldType::Editor) { return UWorld::CreateWorld(Type, false, NAME_None, nullptr, false); }

	/** Counts the calls of a feature level handler. */
	FOnFeatureLevelChanged::FDelegate MakeHandler()
	{
		return FOnFeatureLevelChanged::FDelegate::CreateRaw(this, &FWorldTest::OnFeatureLevel);
	}
	void OnFeatureLevel(ERHIFeatureLevel::Type InLevel)
	{
		++NumLevelChanges;
		LevelSeen = InLevel;
	}

	FEventLog Log;
	EWorldType::Type TypeBeforeInit = EWorldType::None;
	bool bInitializedBeforeInit = true;
	int NumLevelChanges = 0;
	ERHIFeatureLevel::Type LevelSeen = ERHIFeatureLevel::Num;
};

TEST_F(FWorldTest, FiresBothInitializationEventsInOrder)
{
	MakeWorld();
	EXPECT_EQ(Log.Get(), "PreInit PostInit");
}

TEST_F(FWorldTest, HasItsTypeWhenThePreInitializationEventFires)
{
	MakeWorld(EWorldType::PIE);
	EXPECT_EQ(TypeBeforeInit, EWorldType::PIE);
}

TEST_F(FWorldTest, IsNotInitializedWhenThePreInitializationEventFires)
{
	MakeWorld();
	EXPECT_FALSE(bInitializedBeforeInit);
}

TEST_F(FWorldTest, IsNotInitializedTwice)
{
	UWorld* World = MakeWorld();
	World->InitWorld();
	EXPECT_EQ(Log.Get(), "PreInit PostInit");
}

TEST_F(FWorldTest, FiresBothCleanupEventsInOrder)
{
	UWorld* World = MakeWorld();
	Log.Clear();
	World->CleanupWorld();
	EXPECT_EQ(Log.Get(), "Cleanup PostCleanup");
}

TEST_F(FWorldTest, FiresTheTearDownEventOnRequest)
{
	UWorld* World = MakeWorld();
	Log.Clear();
	World->BeginTearingDown();
	EXPECT_EQ(Log.Get(), "BeginTearDown");
}

TEST_F(FWorldTest, IsRootedUntilItIsDestroyed)
{
	UWorld* World = UWorld::CreateWorld(EWorldType::Editor, false);
	TWeakObjectPtr<UWorld> Weak(World);
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Weak.IsValid());
	World->DestroyWorld(false);
}

TEST_F(FWorldTest, IsCollectedOnceItIsDestroyed)
{
	UWorld* World = UWorld::CreateWorld(EWorldType::Editor, false);
	TWeakObjectPtr<UWorld> Weak(World);
	World->DestroyWorld(false);
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FWorldTest, CallsTheFeatureLevelHandler)
{
	UWorld* World = MakeWorld();
	World->AddOnFeatureLevelChangedHandler(MakeHandler());
	World->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(LevelSeen, ERHIFeatureLevel::ES3_1);
}

TEST_F(FWorldTest, HasTheNewLevelWhenTheHandlerIsCalled)
{
	UWorld* World = MakeWorld();
	ERHIFeatureLevel::Type LevelOfWorld = ERHIFeatureLevel::Num;
	World->AddOnFeatureLevelChangedHandler(FOnFeatureLevelChanged::FDelegate::CreateLambda(
		[World, &LevelOfWorld](ERHIFeatureLevel::Type) { LevelOfWorld = World->FeatureLevel; }));
	World->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(LevelOfWorld, ERHIFeatureLevel::ES3_1);
}

TEST_F(FWorldTest, CallsNoHandlerForTheLevelItHasAlready)
{
	UWorld* World = MakeWorld();
	World->AddOnFeatureLevelChangedHandler(MakeHandler());
	World->ChangeFeatureLevel(World->FeatureLevel);
	EXPECT_EQ(NumLevelChanges, 0);
}

TEST_F(FWorldTest, CallsNoRemovedHandler)
{
	UWorld* World = MakeWorld();
	World->RemoveOnFeatureLevelChangedHandler(World->AddOnFeatureLevelChangedHandler(MakeHandler()));
	World->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(NumLevelChanges, 0);
}

TEST_F(FWorldTest, KeepsItsHandlersToItself)
{
	UWorld* World = MakeWorld();
	World->AddOnFeatureLevelChangedHandler(MakeHandler());
	MakeWorld()->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(NumLevelChanges, 0);
}

TEST_F(FWorldTest, ListsItsHandlers)
{
	UWorld* World = MakeWorld();
	World->AddOnFeatureLevelChangedHandler(MakeHandler());
	int Found = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Found += Registration.Name == TEXT("UWorld::OnFeatureLevelChanged") && Registration.Owner == this;
	}
	EXPECT_EQ(Found, 1);
}

TEST_F(FWorldTest, ListsTheBindingsOfWorldEvents)
{
	int Found = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Found += Registration.Name == TEXT("FWorldDelegates::OnPreWorldInitialization") && Registration.Owner == this;
	}
	EXPECT_EQ(Found, 1);
}

TEST_F(FWorldTest, NamesItsMapAfterThePackage)
{
	UWorld* World = UWorld::CreateWorld(EWorldType::Editor, false, FName(TEXT("Demo")), CreatePackage(TEXT("/Game/Maps/Demo")), false);
	EXPECT_TRUE(World->GetMapName() == TEXT("Demo"));
}

TEST_F(FWorldTest, IsAGameWorldDuringPlay)
{
	EXPECT_TRUE(MakeWorld(EWorldType::PIE)->IsGameWorld());
}

TEST_F(FWorldTest, IsNoGameWorldInTheEditor)
{
	EXPECT_FALSE(MakeWorld(EWorldType::Editor)->IsGameWorld());
}

TEST_F(FWorldTest, IsThereThroughTheProxy)
{
	UWorld* World = MakeWorld();
	UWorldProxy Proxy;
	Proxy = World;
	EXPECT_EQ(Proxy.GetReference(), World);
}

TEST(UWorldProxy, DiesWhenAnEmptyOneIsFollowed)
{
	UWorldProxy Proxy;
	EXPECT_DEATH(Proxy->BeginPlay(), "Assertion failed: World != nullptr");
}
