// Copyright The Tintmill authors. All rights reserved.

#include "Support/Printers.h"
#include "TintmillEditor/PlayFixture.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Engine/World.h"
#include "FileHelpers.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "PreviewScene.h"
#include "StandIn/LevelEditorPanes.h"
#include "StandIn/Registrations.h"
#include "TintmillDisplayManager.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

// Which world's feature level the module watches. A handler goes with its world, so destroying a world tells whether it was watched.

namespace
{
class FWatchedWorld : public FPlayFixture
{
protected:
	virtual void SetUp() override { InitEngine(); }

	static UWorld* GetEditorWorld() { return GEditor->GetEditorWorldContext().World(); }

	static int32 CountHandlers() { return CountFeatureLevelHandlers(GetModule()); }

	/** Destroys a world that no context holds. */
	static void Destroy(UWorld* World)
	{
		World->DestroyWorld(false);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}

	/** Tells whether the handlers there are go when a world goes. */
	static bool IsTheOneWatched(UWorld* World)
	{
		const int32 Before = CountHandlers();
		Destroy(World);
		return Before == 1 && CountHandlers() == 0;
	}

	/** Initializes a world as the engine does for one that it has loaded. */
	static void ReportInitialization(UWorld* World)
	{
		FWorldDelegates::OnPreWorldInitialization.Broadcast(World, UWorld::InitializationValues());
	}

	/** Leaves the editor without a world, as between two maps. */
	static void DestroyEditorWorld()
	{
		UWorld* const World = GetEditorWorld();
		GEditor->GetEditorWorldContext().SetCurrentWorld(nullptr);
		GWorld = nullptr;
		Destroy(World);
	}

	/** Gives the editor a world again. */
	static UWorld* MakeEditorWorld()
	{
		UWorld* const World = UWorld::CreateWorld(EWorldType::Editor, true);
		GEditor->GetEditorWorldContext().SetCurrentWorld(World);
		GWorld = World;
		return World;
	}

	/** Unloads the module with the editor up. */
	static void Unload() { FModuleManager::Get().UnloadModule(TEXT("TintmillEditor")); }
};

TEST_F(FWatchedWorld, IsTheEditorsFirstWorld)
{
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsANewMapsWorld)
{
	GEditor->NewMap();
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsALoadedMapsWorld)
{
	Project.Write("Content/Maps/Stage.umap", "");
	ASSERT_TRUE(FEditorFileUtils::LoadMap(TEXT("/Game/Maps/Stage")));
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, StaysWhenAMapIsNotThere)
{
	const TWeakObjectPtr<UWorld> Before(GetEditorWorld());
	FEditorFileUtils::LoadMap(TEXT("/Game/Maps/NoSuchMap"));
	EXPECT_EQ(CountHandlers(), 1);
	EXPECT_EQ(Before.Get(), GetEditorWorld());
}

TEST_F(FWatchedWorld, IsTheLastOfFiftyMaps)
{
	for (int32 Round = 0; Round < 50; ++Round)
	{
		GEditor->NewMap();
	}
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsTheSuccessorWhileThePredecessorStillLives)
{
	UWorld* const Successor = UWorld::CreateWorld(EWorldType::Editor, true);
	EXPECT_TRUE(IsTheOneWatched(Successor));
}

TEST_F(FWatchedWorld, IsTheSuccessorWhenThePredecessorWasDestroyedBefore)
{
	DestroyEditorWorld();
	MakeEditorWorld();
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsNoneBetweenTwoWorlds)
{
	DestroyEditorWorld();
	EXPECT_EQ(CountHandlers(), 0);
	MakeEditorWorld();
}

TEST_F(FWatchedWorld, InitializedTwiceHasOneHandler)
{
	GetEditorWorld()->CleanupWorld();
	GetEditorWorld()->InitWorld();
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, ReportedTwiceHasOneHandler)
{
	ReportInitialization(GetEditorWorld());
	ReportInitialization(GetEditorWorld());
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsWatchedAgainWhenItIsReportedAfterItsSuccessor)
{
	UWorld* const Successor = UWorld::CreateWorld(EWorldType::Editor, true);
	ReportInitialization(GetEditorWorld());
	Destroy(Successor);
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, StaysWhenNoWorldIsReported)
{
	ReportInitialization(nullptr);
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, KeepsHandlersOfOthersWhenItIsLeft)
{
	int32 Calls = 0;
	GetEditorWorld()->AddOnFeatureLevelChangedHandler(
		FOnFeatureLevelChanged::FDelegate::CreateLambda([&Calls](ERHIFeatureLevel::Type) { ++Calls; }));
	Destroy(UWorld::CreateWorld(EWorldType::Editor, true));
	GetEditorWorld()->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(Calls, 1);
}

class FOtherWorld : public FWatchedWorld, public testing::WithParamInterface<EWorldType::Type>
{};

TEST_P(FOtherWorld, LeavesTheWatchWithTheEditorsWorld)
{
	Destroy(UWorld::CreateWorld(GetParam(), true));
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_P(FOtherWorld, GetsNoHandlerWithoutAnEditorWorldEither)
{
	DestroyEditorWorld();
	UWorld* const World = UWorld::CreateWorld(GetParam(), true);
	EXPECT_EQ(CountHandlers(), 0);
	Destroy(World);
	MakeEditorWorld();
}

INSTANTIATE_TEST_SUITE_P(AllTypes, FOtherWorld,
	testing::Values(EWorldType::None, EWorldType::Game, EWorldType::PIE, EWorldType::EditorPreview, EWorldType::GamePreview,
		EWorldType::GameRPC, EWorldType::Inactive));

TEST_F(FWatchedWorld, StaysWhileTwoPreviewsAreOpen)
{
	const FPreviewScene First;
	const FPreviewScene Second;
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, StaysWhenPreviewsClose)
{
	{
		const FPreviewScene First;
		const FPreviewScene Second;
	}
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, StaysDuringPlayWithSeveralWorlds)
{
	EngineLoop->InitEditor();
	SetPlayers(2);
	PlayInPane(0);
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, StaysWhenThePlayWorldsAreGone)
{
	EngineLoop->InitEditor();
	SetPlayers(2);
	PlayInPane(0);
	EndPlay();
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, MovesWithAMapThatIsOpenedDuringPlay)
{
	EngineLoop->InitEditor();
	PlayInPane(0);
	GEditor->NewMap();
	EXPECT_EQ(CountHandlers(), 1);
}

TEST_F(FWatchedWorld, IsWatchedWithoutAnEffect)
{
	EngineLoop->InitEditor();
	Display(0, true, 0.5f, TEXT("Teal"));
	const std::string Before = DescribePanes();
	const std::vector<std::string> SettingsBefore = ReadSettings();
	Log.Clear();
	GetEditorWorld()->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(DescribePanes(), Before);
	EXPECT_EQ(ReadSettings(), SettingsBefore);
	EXPECT_TRUE(Log.InCategory(TEXT("LogTemp")).empty());
}

TEST_F(FWatchedWorld, IsLetGoWhenTheModuleIsUnloaded)
{
	const void* const Module = GetModule();
	Unload();
	EXPECT_EQ(CountFeatureLevelHandlers(Module), 0);
}

TEST_F(FWatchedWorld, MayBeGoneWhenTheModuleIsUnloaded)
{
	const void* const Module = GetModule();
	DestroyEditorWorld();
	Unload();
	MakeEditorWorld();
	EXPECT_EQ(CountFeatureLevelHandlers(Module), 0);
}

TEST_F(FWatchedWorld, IsWatchedNoMoreAfterAnUnload)
{
	const void* const Module = GetModule();
	Unload();
	GEditor->NewMap();
	EXPECT_EQ(CountFeatureLevelHandlers(Module), 0);
}

TEST_F(FWatchedWorld, CanChangeItsFeatureLevelAfterAnUnload)
{
	Unload();
	GetEditorWorld()->ChangeFeatureLevel(ERHIFeatureLevel::ES3_1);
	EXPECT_EQ(GetEditorWorld()->FeatureLevel, ERHIFeatureLevel::ES3_1);
}

TEST_F(FWatchedWorld, MayBeGoneAtTheEditorsExit)
{
	const void* const Module = GetModule();
	ExitEditor();
	EXPECT_EQ(CountFeatureLevelHandlers(Module), 0);
}

TEST_F(FWatchedWorld, IsNoneWithoutAWorldEver)
{
	const void* const Module = GetModule();
	ExitEditor();
	PreInit();
	Unload();
	EXPECT_EQ(CountFeatureLevelHandlers(Module), 0);
}
}
