// Copyright The Tintmill authors. All rights reserved.

#include "Editor/EditorEngine.h"

#include "Engine/World.h"
#include "Modules/ModuleManager.h"
#include "PreviewScene.h"
#include "StandIn/Registrations.h"
#include "Support/EditorFixture.h"
#include <utility>

namespace
{
/** Tells whether outsiders can broadcast an event. */
template <typename EventType, typename = void>
struct TCanBroadcast
{
	static constexpr bool Value = false;
};
template <typename EventType>
struct TCanBroadcast<EventType, decltype(std::declval<EventType&>().Broadcast())>
{
	static constexpr bool Value = true;
};

/** Counts the listed bindings of an owner to a delegate. */
int CountBindings(const TCHAR* Delegate, const void* Owner)
{
	int Found = 0;
	for (const StandIn::FRegistration& Registration : StandIn::ListRegistrations())
	{
		Found += Registration.Name == Delegate && Registration.Owner == Owner;
	}
	return Found;
}
}

class FEditorEngineTest : public FEngineFixture
{
public:
	void Handler() { ++NumCalls; }

	int NumCalls = 0;
};

TEST(UEditorEngine, IsNotThereBeforeTheEngineStarts)
{
	EXPECT_EQ(GEditor, nullptr);
}

TEST(UEditorEngine, KeepsTheRightToBroadcastItsEventsToItself)
{
	EXPECT_FALSE(TCanBroadcast<UEditorEngine::FViewportClientListChangedEvent>::Value);
}

TEST(UEditorEngine, HasOneTypeForBothListEvents)
{
	EXPECT_TRUE((std::is_same<decltype(std::declval<UEditorEngine&>().OnViewportClientListChanged()),
		decltype(std::declval<UEditorEngine&>().OnLevelViewportClientListChanged())>::value));
}

TEST_F(FEditorEngineTest, IsTheEngineToo)
{
	EXPECT_EQ(GEngine, GEditor);
}

TEST_F(FEditorEngineTest, EditsAWorldOfTheEditorType)
{
	EXPECT_EQ(GEditor->GetEditorWorldContext().World()->WorldType, EWorldType::Editor);
}

TEST_F(FEditorEngineTest, MakesTheEditedWorldTheCurrentWorld)
{
	EXPECT_EQ(GWorld.GetReference(), GEditor->GetEditorWorldContext().World());
}

TEST_F(FEditorEngineTest, HasNoClientsBeforeThereArePanes)
{
	EXPECT_EQ(GEditor->GetAllViewportClients().Num(), 0);
}

TEST_F(FEditorEngineTest, HasNoActiveViewportBeforeThereArePanes)
{
	EXPECT_EQ(GEditor->GetActiveViewport(), nullptr);
}

TEST_F(FEditorEngineTest, HasNoPlayViewportOutsideOfPlay)
{
	EXPECT_EQ(GEditor->GetPIEViewport(), nullptr);
}

TEST_F(FEditorEngineTest, DiesWhenAskedForTheActiveViewportWithoutTheLevelEditorModule)
{
	EXPECT_DEATH(
		{
			FModuleManager::Get().UnloadModule("LevelEditor");
			GEditor->GetActiveViewport();
		},
		"Tried to get module interface for unloaded module: 'LevelEditor'");
}

TEST_F(FEditorEngineTest, ReturnsTheIndexOfAnAddedClient)
{
	FEditorViewportClient First(nullptr);
	FEditorViewportClient Second(nullptr);
	EXPECT_EQ(Second.ViewIndex, 1);
}

TEST_F(FEditorEngineTest, NumbersTheOthersAnewWhenAClientGoes)
{
	FEditorViewportClient* First = new FEditorViewportClient(nullptr);
	FEditorViewportClient Second(nullptr);
	delete First;
	EXPECT_EQ(Second.ViewIndex, 0);
}

TEST_F(FEditorEngineTest, HasNumberedTheOthersBeforeTheRemovalIsTold)
{
	FEditorViewportClient* First = new FEditorViewportClient(nullptr);
	FEditorViewportClient Second(nullptr);
	int32 IndexSeen = INDEX_NONE;
	GEditor->OnViewportClientListChanged().AddLambda([&]() { IndexSeen = Second.ViewIndex; });
	delete First;
	GEditor->OnViewportClientListChanged().Clear();
	EXPECT_EQ(IndexSeen, 0);
}

TEST_F(FEditorEngineTest, FiresTheListEventWhenATestAsksForIt)
{
	GEditor->OnViewportClientListChanged().AddRaw(this, &FEditorEngineTest::Handler);
	StandIn::BroadcastViewportClientListChanged();
	EXPECT_EQ(NumCalls, 1);
}

TEST_F(FEditorEngineTest, FiresTheLevelListEventWhenATestAsksForIt)
{
	GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FEditorEngineTest::Handler);
	StandIn::BroadcastLevelViewportClientListChanged();
	EXPECT_EQ(NumCalls, 1);
}

TEST_F(FEditorEngineTest, DoesNotMixUpTheTwoListEvents)
{
	GEditor->OnViewportClientListChanged().AddRaw(this, &FEditorEngineTest::Handler);
	StandIn::BroadcastLevelViewportClientListChanged();
	EXPECT_EQ(NumCalls, 0);
}

TEST_F(FEditorEngineTest, ListsTheBindingsOfTheListEvent)
{
	GEditor->OnViewportClientListChanged().AddRaw(this, &FEditorEngineTest::Handler);
	EXPECT_EQ(CountBindings(TEXT("UEditorEngine::OnViewportClientListChanged"), this), 1);
}

TEST_F(FEditorEngineTest, ListsTheBindingsOfTheLevelListEvent)
{
	GEditor->OnLevelViewportClientListChanged().AddRaw(this, &FEditorEngineTest::Handler);
	EXPECT_EQ(CountBindings(TEXT("UEditorEngine::OnLevelViewportClientListChanged"), this), 1);
}

TEST_F(FEditorEngineTest, ListsTheBindingsOfEditorDelegates)
{
	const FDelegateHandle Handle = FEditorDelegates::PostPIEStarted.AddLambda([](const bool) {});
	const int Found = CountBindings(TEXT("FEditorDelegates::PostPIEStarted"), nullptr);
	FEditorDelegates::PostPIEStarted.Remove(Handle);
	EXPECT_EQ(Found, 1);
}

TEST_F(FEditorEngineTest, InitializesPreviewWorldsOutsideOfTheEditedOne)
{
	FPreviewScene Scene;
	EXPECT_NE(Scene.GetWorld(), GEditor->GetEditorWorldContext().World());
}

TEST_F(FEditorEngineTest, OnlyMarksViewportsWhenAllShallBeRedrawn)
{
	FEditorViewportClient Client(nullptr);
	FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
	Viewport.SetFixedViewportSize(2, 2);
	Client.Viewport = &Viewport;
	GEditor->RedrawAllViewports();
	const uint64 Revision = Viewport.GetPresentedSurface().Revision;
	Client.Viewport = nullptr;
	EXPECT_EQ(Revision, 0u);
}

TEST_F(FEditorEngineTest, DrawsMarkedViewportsOnTheNextTick)
{
	FEditorViewportClient Client(nullptr);
	Client.VisibilityDelegate.BindLambda([]() { return true; });
	FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
	Viewport.SetFixedViewportSize(2, 2);
	Client.Viewport = &Viewport;
	GEditor->RedrawAllViewports();
	Loop.Tick();
	const uint64 Revision = Viewport.GetPresentedSurface().Revision;
	Client.Viewport = nullptr;
	EXPECT_EQ(Revision, 1u);
}

TEST_F(FEditorEngineTest, DoesNotDrawAgainWhatLooksTheSame)
{
	FEditorViewportClient Client(nullptr);
	Client.VisibilityDelegate.BindLambda([]() { return true; });
	Client.SetRealtime(true);
	FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
	Viewport.SetFixedViewportSize(2, 2);
	Client.Viewport = &Viewport;
	Loop.Tick();
	Loop.Tick();
	const uint64 Revision = Viewport.GetPresentedSurface().Revision;
	Client.Viewport = nullptr;
	EXPECT_EQ(Revision, 1u);
}

TEST_F(FEditorEngineTest, DoesNotDrawWhatIsNotSeen)
{
	FEditorViewportClient Client(nullptr);
	FSceneViewport Viewport(&Client, TSharedPtr<SViewport>());
	Viewport.SetFixedViewportSize(2, 2);
	Client.Viewport = &Viewport;
	Loop.Tick();
	const uint64 Revision = Viewport.GetPresentedSurface().Revision;
	Client.Viewport = nullptr;
	EXPECT_EQ(Revision, 0u);
}
