// Copyright The Tintmill authors. All rights reserved.

#include "Slate/SceneViewport.h"

#include "Input/Events.h"
#include "Layout/Geometry.h"
#include "ViewportDouble.h"

#include <string>
#include <vector>

namespace
{
/** Notes its input as text. */
class FNotingClient : public FViewportClient
{
public:
	virtual bool InputKey(FViewport*, int32, FKey Key, EInputEvent Event, float, bool) override
	{
		Notes.push_back(std::string(TCHAR_TO_UTF8(*Key.ToString())) + (Event == IE_Pressed ? "+" : "-"));
		return false;
	}
	virtual bool InputAxis(FViewport*, int32, FKey Key, float Delta, float, int32, bool) override
	{
		Notes.push_back(std::string(TCHAR_TO_UTF8(*Key.ToString())) + " " + std::to_string(static_cast<int>(Delta)));
		return true;
	}

	std::vector<std::string> Notes;
};

const FModifierKeysState Alt(false, false, false, false, true, false, false, false, false);

class FSceneViewportInputTest : public testing::Test
{
protected:
	static FPointerEvent Event(const FKey& Button, float Wheel = 0.0f, const FModifierKeysState& Modifiers = FModifierKeysState())
	{
		return FPointerEvent(0, FVector2D(1, 1), FVector2D(1, 1), TSet<FKey>(), Button, Wheel, Modifiers);
	}

	FNotingClient Client;
	TSharedRef<FSceneViewport> Viewport = MakeShared<FSceneViewport>(&Client, TSharedPtr<SViewport>());
	FGeometry Geometry;
};

typedef std::vector<std::string> FNotes;
}

TEST_F(FSceneViewportInputTest, PassesAButtonOn)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::RightMouseButton));
	Viewport->OnMouseButtonUp(Geometry, Event(EKeys::RightMouseButton));
	EXPECT_EQ(Client.Notes, (FNotes{"RightMouseButton+", "RightMouseButton-"}));
}

TEST_F(FSceneViewportInputTest, KnowsAButtonThatIsHeld)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::RightMouseButton));
	EXPECT_TRUE(Viewport->KeyState(EKeys::RightMouseButton));
}

TEST_F(FSceneViewportInputTest, ForgetsAButtonThatWasReleased)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::RightMouseButton));
	Viewport->OnMouseButtonUp(Geometry, Event(EKeys::RightMouseButton));
	EXPECT_FALSE(Viewport->KeyState(EKeys::RightMouseButton));
}

TEST_F(FSceneViewportInputTest, LearnsOfModifiersFromTheMouse)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::LeftMouseButton, 0.0f, Alt));
	EXPECT_TRUE(Viewport->KeyState(EKeys::LeftAlt));
}

TEST_F(FSceneViewportInputTest, LearnsThatModifiersWereReleased)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::LeftMouseButton, 0.0f, Alt));
	Viewport->OnMouseButtonUp(Geometry, Event(EKeys::LeftMouseButton));
	EXPECT_FALSE(Viewport->KeyState(EKeys::LeftAlt));
}

TEST_F(FSceneViewportInputTest, KeepsTheRightModifierApart)
{
	Viewport->OnKeyDown(Geometry, FKeyEvent(EKeys::RightAlt, Alt, 0, false, 0, 0));
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::LeftMouseButton, 0.0f, Alt));
	EXPECT_FALSE(Viewport->KeyState(EKeys::LeftAlt));
}

TEST_F(FSceneViewportInputTest, TurnsTheWheelIntoAKeyAndAnAxis)
{
	Viewport->OnMouseWheel(Geometry, Event(FKey(), -2.0f));
	EXPECT_EQ(Client.Notes, (FNotes{"MouseScrollDown+", "MouseScrollDown-", "MouseWheelAxis -2"}));
}

TEST_F(FSceneViewportInputTest, ForgetsWhatIsHeldWithTheKeyboard)
{
	Viewport->OnMouseButtonDown(Geometry, Event(EKeys::LeftMouseButton, 0.0f, Alt));
	Viewport->OnFocusLost(FFocusEvent(EFocusCause::SetDirectly, 0));
	EXPECT_FALSE(Viewport->KeyState(EKeys::LeftAlt));
}
