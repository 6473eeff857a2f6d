// Copyright The Tintmill authors. All rights reserved.

#include "PreviewScene.h"

#include "Engine/World.h"
#include "StandIn/ObjectSystem.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include <gtest/gtest.h>

class FPreviewSceneTest : public testing::Test
{
protected:
	static void SetUpTestSuite() { StandIn::StartObjectSystem(); }
};

TEST_F(FPreviewSceneTest, MakesAPreviewWorldOfTheEditor)
{
	EXPECT_EQ(FPreviewScene().GetWorld()->WorldType, EWorldType::EditorPreview);
}

TEST_F(FPreviewSceneTest, MakesAPreviewWorldOfAGame)
{
	EXPECT_EQ(FPreviewScene(FPreviewScene::ConstructionValues().SetEditor(false)).GetWorld()->WorldType, EWorldType::GamePreview);
}

TEST_F(FPreviewSceneTest, FiresTheInitializationEventWithThePreviewType)
{
	EWorldType::Type Seen = EWorldType::None;
	const FDelegateHandle Handle = FWorldDelegates::OnPreWorldInitialization.AddLambda(
		[&Seen](UWorld* World, const UWorld::InitializationValues) { Seen = World->WorldType; });
	FPreviewScene Scene;
	FWorldDelegates::OnPreWorldInitialization.Remove(Handle);
	EXPECT_EQ(Seen, EWorldType::EditorPreview);
}

TEST_F(FPreviewSceneTest, KeepsItsWorldAlive)
{
	FPreviewScene Scene;
	TWeakObjectPtr<UWorld> World(Scene.GetWorld());
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(World.IsValid());
}

TEST_F(FPreviewSceneTest, LetsItsWorldGo)
{
	TWeakObjectPtr<UWorld> World(FPreviewScene().GetWorld());
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(World.IsValid());
}
