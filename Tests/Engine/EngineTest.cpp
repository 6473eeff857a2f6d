// Copyright The Tintmill authors. All rights reserved.

#include "Engine/Engine.h"

#include "Engine/World.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/Package.h"
#include <gtest/gtest.h>

/** An engine object that is not the process's. */
class FEngineTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { StandIn::StartObjectSystem(); }
	virtual void SetUp() override
	{
		Engine = NewObject<UEngine>(GetTransientPackage());
		World = UWorld::CreateWorld(EWorldType::Editor, false, NAME_None, nullptr, false);
	}

	UEngine* Engine = nullptr;
	UWorld* World = nullptr;
};

TEST_F(FEngineTest, FindsTheContextOfAWorld)
{
	FWorldContext& Context = Engine->CreateNewWorldContext(EWorldType::Editor);
	Context.SetCurrentWorld(World);
	EXPECT_EQ(Engine->GetWorldContextFromWorld(World), &Context);
}

TEST_F(FEngineTest, FindsNoContextOfAnUnknownWorld)
{
	EXPECT_EQ(Engine->GetWorldContextFromWorld(World), nullptr);
}

TEST_F(FEngineTest, DiesWhenAContextMustBeThereAndIsNot)
{
	EXPECT_DEATH(Engine->GetWorldContextFromWorldChecked(World), "Assertion failed: WorldContext ");
}

TEST_F(FEngineTest, FindsAContextByItsHandle)
{
	FWorldContext& Context = Engine->CreateNewWorldContext(EWorldType::PIE);
	EXPECT_EQ(Engine->GetWorldContextFromHandle(Context.ContextHandle), &Context);
}

TEST_F(FEngineTest, KeepsContextsInPlaceWhileOthersCome)
{
	FWorldContext& Context = Engine->CreateNewWorldContext(EWorldType::Editor);
	for (int Index = 0; Index < 100; ++Index)
	{
		Engine->CreateNewWorldContext(EWorldType::EditorPreview);
	}
	EXPECT_EQ(Engine->GetWorldContextFromHandle(Context.ContextHandle), &Context);
}

TEST_F(FEngineTest, ForgetsADestroyedContext)
{
	Engine->CreateNewWorldContext(EWorldType::Editor).SetCurrentWorld(World);
	Engine->DestroyWorldContext(World);
	EXPECT_EQ(Engine->GetWorldContexts().Num(), 0);
}

TEST_F(FEngineTest, KeepsReferencesAtTheCurrentWorld)
{
	UWorld* Reference = nullptr;
	FWorldContext& Context = Engine->CreateNewWorldContext(EWorldType::Editor);
	Context.AddRef(Reference);
	Context.SetCurrentWorld(World);
	EXPECT_EQ(Reference, World);
}

TEST_F(FEngineTest, ClearsARemovedReference)
{
	UWorld* Reference = nullptr;
	FWorldContext& Context = Engine->CreateNewWorldContext(EWorldType::Editor);
	Context.SetCurrentWorld(World);
	Context.AddRef(Reference);
	Context.RemoveRef(Reference);
	EXPECT_EQ(Reference, nullptr);
}

TEST_F(FEngineTest, NamesPlayMapsAfterTheInstance)
{
	EXPECT_TRUE(UEngine::MakePIEWorldName(TEXT("Demo"), 1) == TEXT("UEDPIE_1_Demo"));
}
