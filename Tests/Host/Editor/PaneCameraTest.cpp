// Copyright The Tintmill authors. All rights reserved.

#include "Host/Editor/PaneCamera.h"

#include "Host/Editor/SceneViews.h"
#include "Host/Ui/Sight.h"

#include "Framework/Application/SlateApplication.h"
#include "LevelEditor.h"
#include "Modules/ModuleManager.h"
#include "StandIn/SlateDriver.h"
#include "Support/EditorFixture.h"
#include "Widgets/SWindow.h"

#include <optional>

using namespace TintmillHost;

namespace
{
const FModifierKeysState Alt(false, false, false, false, true, false, false, false, false);

/** The level editor with four panes in a window, and a person with a mouse. */
class PaneCamera : public FEngineFixture
{
protected:
	virtual void ChooseOptions() override { Options.bSlate = true; }

	virtual void SetUp() override
	{
		FEngineFixture::SetUp();
		Views.emplace();
		Loop.InitEditor();
		// clang-format off
		Window = SNew(SWindow)
			.AutoCenter(EAutoCenter::None)
			.CreateTitleBar(false)
			.ClientSize(FVector2D(800.0f, 600.0f))
			[
				FModuleManager::GetModuleChecked<FLevelEditorModule>(TEXT("LevelEditor")).GetFirstLevelEditor().ToSharedRef()
			];
		// clang-format on
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		Wait();
	}

	virtual void TearDown() override
	{
		Window->SetContent(SNullWidget::NullWidget);
		FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
		Window.Reset();
		Loop.CloseMainFrame();
		Views.reset();
		FEngineFixture::TearDown();
	}

	void Wait()
	{
		Loop.Tick();
		Loop.Tick();
	}

	/** The pane of the perspective, and the flat one that looks from the top. */
	static TSharedRef<SLevelViewport> Perspective() { return FindOfType(LVT_Perspective); }
	static TSharedRef<SLevelViewport> Top() { return FindOfType(LVT_OrthoXY); }

	static TSharedRef<SLevelViewport> FindOfType(ELevelViewportType Type)
	{
		for (const TSharedPtr<SLevelViewport>& Pane : StandIn::GetPanes())
		{
			if (Pane->GetLevelViewportClient().GetViewportType() == Type)
			{
				return Pane.ToSharedRef();
			}
		}
		return StandIn::GetPanes()[0].ToSharedRef();
	}

	FSceneCamera& CameraOf(const TSharedRef<SLevelViewport>& Pane) { return Views->GetCamera(Pane->GetLevelViewportClient()); }

	static FVector2D MiddleOf(const TSharedRef<SLevelViewport>& Pane)
	{
		return Pane->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2D(0.5f, 0.6f));
	}

	FPointerEvent Event(const FVector2D& From, const FVector2D& To, const FKey& Button) const
	{
		return FPointerEvent(0, To, From, FSlateApplication::Get().GetPressedMouseButtons(), Button, 0.0f, Modifiers);
	}

	/** Drags with a button from the middle of a pane in steps of a few pixels. */
	void Drag(const TSharedRef<SLevelViewport>& Pane, const FKey& Button, const FVector2D& Distance)
	{
		FSlateApplication& Application = FSlateApplication::Get();
		FVector2D Place = MiddleOf(Pane);
		StandIn::MoveMouse(Place);
		Application.ProcessMouseButtonDownEvent(nullptr, Event(Place, Place, Button));
		for (int Step = 0; Step < 10; ++Step)
		{
			const FVector2D Next = Place + Distance * 0.1f;
			Application.ProcessMouseMoveEvent(Event(Place, Next, FKey()));
			Place = Next;
		}
		Application.ProcessMouseButtonUpEvent(Event(Place, Place, Button));
		Wait();
	}

	/** Where a camera stands. */
	static FSceneVector PlaceOf(const FSceneCamera& Camera) { return Camera.Target - SceneCameraAxes(Camera).Forward * Camera.Distance; }

	static float DistanceOf(const FSceneVector& A, const FSceneVector& B) { return Length(A - B); }

	static void ClickLabel(const std::string& Label)
	{
		const std::vector<FSeen> Things = LookAround();
		const FSeen* const Thing = FindSeen(Things, Label);
		ASSERT_NE(Thing, nullptr) << NameLabels(Things);
		StandIn::ClickAt(Thing->Center);
	}

	std::optional<FSceneViews> Views;
	TSharedPtr<SWindow> Window;
	FModifierKeysState Modifiers;
};

TEST_F(PaneCamera, TheRightButtonLooksToTheRight)
{
	const float Before = CameraOf(Perspective()).YawDegrees;
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(100.0f, 0.0f));
	EXPECT_FLOAT_EQ(CameraOf(Perspective()).YawDegrees, Before + 20.0f);
}

TEST_F(PaneCamera, TheRightButtonLooksUp)
{
	const float Before = CameraOf(Perspective()).PitchDegrees;
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(0.0f, -50.0f));
	EXPECT_FLOAT_EQ(CameraOf(Perspective()).PitchDegrees, Before - 10.0f);
}

TEST_F(PaneCamera, WhoLooksAroundStaysInPlace)
{
	const FSceneVector Before = PlaceOf(CameraOf(Perspective()));
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(80.0f, 20.0f));
	EXPECT_LT(DistanceOf(PlaceOf(CameraOf(Perspective())), Before), 0.001f);
}

TEST_F(PaneCamera, AltAndTheLeftButtonGoAroundTheTarget)
{
	const FSceneCamera Before = CameraOf(Perspective());
	Modifiers = Alt;
	Drag(Perspective(), EKeys::LeftMouseButton, FVector2D(60.0f, 0.0f));
	const FSceneCamera& After = CameraOf(Perspective());
	EXPECT_TRUE(DistanceOf(After.Target, Before.Target) < 0.001f && After.YawDegrees < Before.YawDegrees - 5.0f);
}

TEST_F(PaneCamera, AltAndTheRightButtonGoNearer)
{
	const float Before = CameraOf(Perspective()).Distance;
	Modifiers = Alt;
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(60.0f, 0.0f));
	EXPECT_LT(CameraOf(Perspective()).Distance, Before);
}

TEST_F(PaneCamera, TheMiddleButtonMovesTheSceneWithTheHand)
{
	const FSceneCamera Before = CameraOf(Perspective());
	Drag(Perspective(), EKeys::MiddleMouseButton, FVector2D(60.0f, 0.0f));
	const FSceneVector Moved = CameraOf(Perspective()).Target - Before.Target;
	EXPECT_LT(Dot(Moved, SceneCameraAxes(Before).Right), -0.1f);
}

TEST_F(PaneCamera, TheLeftButtonWalksForwards)
{
	const FSceneCamera Before = CameraOf(Perspective());
	Drag(Perspective(), EKeys::LeftMouseButton, FVector2D(0.0f, -60.0f));
	const FSceneVector Moved = PlaceOf(CameraOf(Perspective())) - PlaceOf(Before);
	EXPECT_GT(Dot(Moved, SceneCameraAxes(Before).Forward), 0.1f);
}

TEST_F(PaneCamera, TheWheelGoesNearer)
{
	const float Before = CameraOf(Perspective()).Distance;
	StandIn::MoveMouse(MiddleOf(Perspective()));
	StandIn::TurnWheel(1.0f);
	EXPECT_FLOAT_EQ(CameraOf(Perspective()).Distance, Before * 0.88f);
}

TEST_F(PaneCamera, AClickMovesNothing)
{
	const FSceneCamera Before = CameraOf(Perspective());
	StandIn::ClickAt(MiddleOf(Perspective()));
	EXPECT_EQ(DistanceOf(PlaceOf(CameraOf(Perspective())), PlaceOf(Before)), 0.0f);
}

TEST_F(PaneCamera, AClickOfAnUnsteadyHandMovesNothing)
{
	const FSceneCamera Before = CameraOf(Perspective());
	Drag(Perspective(), EKeys::LeftMouseButton, FVector2D(2.0f, 1.0f));
	EXPECT_EQ(CameraOf(Perspective()).YawDegrees, Before.YawDegrees);
}

TEST_F(PaneCamera, AClickActivatesItsPane)
{
	StandIn::ClickAt(MiddleOf(Top()));
	EXPECT_EQ(GCurrentLevelEditingViewportClient, &Top()->GetLevelViewportClient());
}

TEST_F(PaneCamera, ADragMovesOnlyItsPane)
{
	const float Before = CameraOf(Top()).Distance;
	Drag(Perspective(), EKeys::MiddleMouseButton, FVector2D(60.0f, 30.0f));
	EXPECT_EQ(CameraOf(Top()).Distance, Before);
}

TEST_F(PaneCamera, ADragGoesOnOutsideItsPane)
{
	const float Before = CameraOf(Perspective()).YawDegrees;
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(-700.0f, 0.0f));
	EXPECT_NEAR(CameraOf(Perspective()).YawDegrees, Before - 140.0f, 0.01f);
}

TEST_F(PaneCamera, TheRightButtonMovesAFlatPicture)
{
	const FSceneCamera Before = CameraOf(Top());
	Drag(Top(), EKeys::RightMouseButton, FVector2D(60.0f, 0.0f));
	const FSceneVector Moved = CameraOf(Top()).Target - Before.Target;
	EXPECT_LT(Dot(Moved, SceneCameraAxes(Before).Right), -0.1f);
}

TEST_F(PaneCamera, TheLeftButtonLeavesAFlatPictureAlone)
{
	const FSceneCamera Before = CameraOf(Top());
	Drag(Top(), EKeys::LeftMouseButton, FVector2D(60.0f, 40.0f));
	EXPECT_EQ(DistanceOf(CameraOf(Top()).Target, Before.Target), 0.0f);
}

TEST_F(PaneCamera, TheWheelGoesAwayFromAFlatPicture)
{
	const float Before = CameraOf(Top()).Distance;
	StandIn::MoveMouse(MiddleOf(Top()));
	StandIn::TurnWheel(-1.0f);
	EXPECT_GT(CameraOf(Top()).Distance, Before);
}

TEST_F(PaneCamera, FLooksAtTheSceneAgain)
{
	const FSceneVector Before = CameraOf(Perspective()).Target;
	Drag(Perspective(), EKeys::MiddleMouseButton, FVector2D(200.0f, 50.0f));
	StandIn::PressKey(EKeys::F);
	EXPECT_LT(DistanceOf(CameraOf(Perspective()).Target, Before), 0.001f);
}

TEST_F(PaneCamera, FWithControlIsForSomeoneElse)
{
	Drag(Perspective(), EKeys::MiddleMouseButton, FVector2D(200.0f, 50.0f));
	const FSceneVector Before = CameraOf(Perspective()).Target;
	FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(EKeys::LeftControl, FModifierKeysState(), 0, false, 0, 0));
	FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(EKeys::F, FModifierKeysState(), 0, false, 0, 0));
	EXPECT_EQ(DistanceOf(CameraOf(Perspective()).Target, Before), 0.0f);
}

TEST_F(PaneCamera, ItNeverStandsBelowTheFloor)
{
	Drag(Perspective(), EKeys::MiddleMouseButton, FVector2D(0.0f, -2000.0f));
	EXPECT_GE(PlaceOf(CameraOf(Perspective())).Z, 0.099f);
}

TEST_F(PaneCamera, ThePictureChanges)
{
	const TSharedRef<SLevelViewport> Pane = Perspective();
	Drag(Pane, EKeys::RightMouseButton, FVector2D(0.0f, 0.0f));
	FSceneViewport& Viewport = *Pane->GetSceneViewport();
	TArray<FColor> Before;
	Viewport.ReadPixels(Before);
	Drag(Pane, EKeys::RightMouseButton, FVector2D(60.0f, 0.0f));
	TArray<FColor> After;
	Viewport.ReadPixels(After);
	EXPECT_FALSE(Before == After);
}

TEST_F(PaneCamera, EveryKindOfViewKeepsItsOwn)
{
	const TSharedRef<SLevelViewport> Pane = Perspective();
	CameraOf(Pane).Distance = 7.5f;
	Pane->GetLevelViewportClient().SetViewportType(LVT_OrthoXZ);
	CameraOf(Pane).Distance = 9.0f;
	Pane->GetLevelViewportClient().SetViewportType(LVT_Perspective);
	EXPECT_EQ(CameraOf(Pane).Distance, 7.5f);
}

TEST_F(PaneCamera, AnotherKindOfViewLooksItsWay)
{
	const TSharedRef<SLevelViewport> Pane = Perspective();
	Pane->GetLevelViewportClient().SetViewportType(LVT_OrthoXZ);
	EXPECT_EQ(CameraOf(Pane).View, ESceneView::Front);
}

TEST_F(PaneCamera, ALayoutThatComesBackHasItsCamerasAgain)
{
	CameraOf(Perspective()).Distance = 7.5f;
	StandIn::SetViewportLayout(TEXT("OnePane"));
	Wait();
	StandIn::SetViewportLayout(TEXT("FourPanes2x2"));
	Wait();
	EXPECT_EQ(CameraOf(Perspective()).Distance, 7.5f);
}

TEST_F(PaneCamera, TheMenuShowsTheChart)
{
	ClickLabel("Perspective");
	ClickLabel("Color Chart");
	EXPECT_TRUE(Views->IsChartShown(Perspective()->GetLevelViewportClient()));
}

TEST_F(PaneCamera, TheMenuTakesTheChartAway)
{
	Views->ShowChart(Perspective()->GetLevelViewportClient(), true);
	ClickLabel("Perspective");
	ClickLabel("Color Chart");
	EXPECT_EQ(CameraOf(Perspective()).View, ESceneView::Perspective);
}

TEST_F(PaneCamera, TheSceneComesBackFromTheChartAsItWas)
{
	FLevelEditorViewportClient& Client = Perspective()->GetLevelViewportClient();
	CameraOf(Perspective()).Distance = 7.5f;
	Views->ShowChart(Client, true);
	Views->ShowChart(Client, false);
	EXPECT_EQ(CameraOf(Perspective()).Distance, 7.5f);
}

TEST_F(PaneCamera, TheChartDoesNotMove)
{
	Views->ShowChart(Perspective()->GetLevelViewportClient(), true);
	const float Before = CameraOf(Perspective()).YawDegrees;
	Drag(Perspective(), EKeys::RightMouseButton, FVector2D(60.0f, 0.0f));
	EXPECT_EQ(CameraOf(Perspective()).YawDegrees, Before);
}

TEST_F(PaneCamera, TheMenuForgetsTheChartWithTheViews)
{
	Views.reset();
	ClickLabel("Perspective");
	EXPECT_EQ(FindSeen(LookAround(), "Color Chart"), nullptr);
}
}
