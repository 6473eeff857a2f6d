// Copyright The Tintmill authors. All rights reserved.

#include "Host/Window/WindowInput.h"

#include "Framework/Application/SlateApplication.h"
#include "StandIn/SlateDriver.h"
#include "Support/Text.h"
#include "Widgets/SLeafWidget.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace TintmillHost;

namespace
{
using FNotes = std::vector<std::string>;

/** Notes all input with its details. */
class SInputNotes : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SInputNotes)
		: _Notes(nullptr)
	{}
	SLATE_ARGUMENT(FNotes*, Notes)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs) { Notes = InArgs._Notes; }

	bool SupportsKeyboardFocus() const override { return true; }

	FReply OnMouseButtonDown(const FGeometry&, const FPointerEvent& Event) override
	{
		return Note("down " + Describe(Event)).CaptureMouse(AsShared());
	}

	FReply OnMouseButtonDoubleClick(const FGeometry&, const FPointerEvent& Event) override { return Note("double " + Describe(Event)); }

	FReply OnMouseButtonUp(const FGeometry&, const FPointerEvent& Event) override
	{
		return Note("up " + Describe(Event)).ReleaseMouseCapture();
	}

	FReply OnMouseMove(const FGeometry&, const FPointerEvent& Event) override
	{
		return Note("move " + Place(Event.GetScreenSpacePosition()) + " by " + Place(Event.GetCursorDelta()));
	}

	FReply OnMouseWheel(const FGeometry&, const FPointerEvent& Event) override
	{
		return Note("wheel " + std::to_string(static_cast<int>(Event.GetWheelDelta())));
	}

	void OnMouseLeave(const FPointerEvent&) override { Note("leave"); }

	FReply OnKeyDown(const FGeometry&, const FKeyEvent& Event) override
	{
		return Note(
			std::string(Event.IsRepeat() ? "again " : "key ") + (Event.IsControlDown() ? "Ctrl+" : "") + ToStd(Event.GetKey().ToString()));
	}

	FReply OnKeyUp(const FGeometry&, const FKeyEvent& Event) override { return Note("free " + ToStd(Event.GetKey().ToString())); }

	FReply OnKeyChar(const FGeometry&, const FCharacterEvent& Event) override
	{
		return Note("char " + std::to_string(static_cast<unsigned>(Event.GetCharacter())));
	}

protected:
	FVector2D ComputeDesiredSize(float) const override { return FVector2D(10, 10); }

	int32 OnPaint(const FPaintArgs&, const FGeometry&, const FSlateRect&, FSlateWindowElementList&, int32 LayerId, const FWidgetStyle&,
		bool) const override
	{
		return LayerId;
	}

private:
	static std::string Place(const FVector2D& Point)
	{
		return std::to_string(static_cast<int>(Point.X)) + "," + std::to_string(static_cast<int>(Point.Y));
	}

	static std::string Describe(const FPointerEvent& Event)
	{
		return ToStd(Event.GetEffectingButton().ToString()) + " " + Place(Event.GetScreenSpacePosition());
	}

	FReply Note(const std::string& Text)
	{
		Notes->push_back(Text);
		return FReply::Handled();
	}

	FNotes* Notes = nullptr;
};

class WindowInput : public testing::Test
{
protected:
	static constexpr Uint32 WindowId = 3;

	void SetUp() override
	{
		FSlateApplication::Create();
		const TSharedRef<SInputNotes> Widget = SNew(SInputNotes).Notes(&Notes);
		Window = SNew(SWindow).CreateTitleBar(false).AutoCenter(EAutoCenter::None).ClientSize(FVector2D(400, 300))[Widget];
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		StandIn::AdvanceTime(0.0f);
		FSlateApplication::Get().SetKeyboardFocus(Widget);
		Input = std::make_unique<FWindowInput>(WindowId, Window.ToSharedRef());
		SDL_SetModState(KMOD_NONE);
	}

	void TearDown() override
	{
		SDL_SetModState(KMOD_NONE);
		Input.reset();
		Window.Reset();
		FSlateApplication::Shutdown();
	}

	bool Move(int X, int Y)
	{
		SDL_Event Event = {};
		Event.type = SDL_MOUSEMOTION;
		Event.motion.x = X;
		Event.motion.y = Y;
		return Input->Handle(Event);
	}

	void Press(bool bDown, int Button, int X, int Y, int Clicks = 1)
	{
		SDL_Event Event = {};
		Event.type = bDown ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
		Event.button.button = static_cast<Uint8>(Button);
		Event.button.state = bDown ? SDL_PRESSED : SDL_RELEASED;
		Event.button.clicks = static_cast<Uint8>(Clicks);
		Event.button.x = X;
		Event.button.y = Y;
		Input->Handle(Event);
	}

	void Key(bool bDown, SDL_Keycode Code, Uint16 Modifiers = 0, int Repeat = 0)
	{
		SDL_Event Event = {};
		Event.type = bDown ? SDL_KEYDOWN : SDL_KEYUP;
		Event.key.state = bDown ? SDL_PRESSED : SDL_RELEASED;
		Event.key.repeat = static_cast<Uint8>(Repeat);
		Event.key.keysym.sym = Code;
		Event.key.keysym.mod = Modifiers;
		Input->Handle(Event);
	}

	void Type(const char* Text)
	{
		SDL_Event Event = {};
		Event.type = SDL_TEXTINPUT;
		std::strncpy(Event.text.text, Text, sizeof(Event.text.text) - 1);
		Input->Handle(Event);
	}

	bool TellWindow(SDL_WindowEventID What)
	{
		SDL_Event Event = {};
		Event.type = SDL_WINDOWEVENT;
		Event.window.event = static_cast<Uint8>(What);
		return Input->Handle(Event);
	}

	void Drop(Uint32 Type, const char* File = nullptr)
	{
		SDL_Event Event = {};
		Event.type = Type;
		Event.drop.windowID = WindowId;
		Event.drop.file = File != nullptr ? SDL_strdup(File) : nullptr;
		Input->Handle(Event);
	}

	FNotes Take() { return std::exchange(Notes, {}); }

	FNotes Notes;
	TSharedPtr<SWindow> Window;
	std::unique_ptr<FWindowInput> Input;
};
}

TEST_F(WindowInput, TellsMovesWithTheWayFromTheLastOne)
{
	Move(100, 50);
	Move(110, 47);
	EXPECT_EQ(Take(), FNotes({"move 100,50 by 100,50", "move 110,47 by 10,-3"}));
}

TEST_F(WindowInput, CountsPlacesInPixelsOfTheDisplay)
{
	Input->SetPixelsPerPoint(2.0);
	Move(100, 50);
	EXPECT_EQ(Take(), FNotes({"move 200,100 by 200,100"}));
}

TEST_F(WindowInput, TellsOfAMoveBeforeAPressThatCameWithoutOne)
{
	Press(true, SDL_BUTTON_RIGHT, 20, 30);
	EXPECT_EQ(Take(), FNotes({"move 20,30 by 20,30", "down RightMouseButton 20,30"}));
}

TEST_F(WindowInput, TakesEverySecondPressInARowForADoubleClick)
{
	Move(20, 30);
	Take();
	for (int Clicks = 1; Clicks <= 3; ++Clicks)
	{
		Press(true, SDL_BUTTON_LEFT, 20, 30, Clicks);
		Press(false, SDL_BUTTON_LEFT, 20, 30, Clicks);
	}
	EXPECT_EQ(Take(),
		FNotes({"down LeftMouseButton 20,30", "up LeftMouseButton 20,30", "double LeftMouseButton 20,30", "up LeftMouseButton 20,30",
			"down LeftMouseButton 20,30", "up LeftMouseButton 20,30"}));
}

TEST_F(WindowInput, TellsADragOfWhatHasTheMouseBeyondTheWindow)
{
	Press(true, SDL_BUTTON_LEFT, 20, 30);
	Take();
	Move(900, 800);
	EXPECT_FALSE(Take().empty());
}

TEST_F(WindowInput, TellsTheWheelWhereTheMouseIs)
{
	Move(20, 30);
	Take();
	SDL_Event Event = {};
	Event.type = SDL_MOUSEWHEEL;
	Event.wheel.preciseY = -2.0f;
	Input->Handle(Event);
	EXPECT_EQ(Take(), FNotes({"wheel -2"}));
}

TEST_F(WindowInput, TurnsAFlippedWheelAround)
{
	Move(20, 30);
	Take();
	SDL_Event Event = {};
	Event.type = SDL_MOUSEWHEEL;
	Event.wheel.preciseY = -2.0f;
	Event.wheel.direction = SDL_MOUSEWHEEL_FLIPPED;
	Input->Handle(Event);
	EXPECT_EQ(Take(), FNotes({"wheel 2"}));
}

TEST_F(WindowInput, TellsKeysWithTheirModifiersAndRepeats)
{
	Key(true, SDLK_s, KMOD_LCTRL);
	Key(true, SDLK_DOWN, 0, 1);
	Key(false, SDLK_s);
	EXPECT_EQ(Take(), FNotes({"key Ctrl+S", "again Down", "free S"}));
}

TEST_F(WindowInput, TellsTypedTextCharacterByCharacter)
{
	Type("a\xC3\xA9");
	EXPECT_EQ(Take(), FNotes({"char 97", "char 233"}));
}

TEST_F(WindowInput, TellsACharacterOutsideOfTheBasicPlaneAsAPair)
{
	Type("\xF0\x9F\x8E\xA8");
	EXPECT_EQ(Take(), FNotes({"char 55356", "char 57256"}));
}

TEST_F(WindowInput, DoesNotTypeWhatIsHeldWithControl)
{
	SDL_SetModState(KMOD_LCTRL);
	Type("a");
	EXPECT_EQ(Take(), FNotes());
}

TEST_F(WindowInput, TypesWhatTheRightAltWrites)
{
	SDL_SetModState(static_cast<SDL_Keymod>(KMOD_RALT | KMOD_LCTRL));
	Type("@");
	EXPECT_EQ(Take(), FNotes({"char 64"}));
}

TEST_F(WindowInput, TellsThatTheMouseLeft)
{
	Move(20, 30);
	Take();
	TellWindow(SDL_WINDOWEVENT_LEAVE);
	EXPECT_EQ(Take(), FNotes({"leave"}));
}

TEST_F(WindowInput, TakesTheMouseForInsideAsLongAsItIsHeld)
{
	Press(true, SDL_BUTTON_LEFT, 20, 30);
	Take();
	TellWindow(SDL_WINDOWEVENT_LEAVE);
	EXPECT_EQ(Take(), FNotes());
}

TEST_F(WindowInput, ClosesMenusWhenTheWindowLosesTheKeyboard)
{
	FSlateApplication::Get().PushMenu(Window->GetContent(), FWidgetPath(), SNullWidget::NullWidget, FVector2D(10, 10),
		FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu));
	ASSERT_TRUE(FSlateApplication::Get().AnyMenusVisible());
	TellWindow(SDL_WINDOWEVENT_FOCUS_LOST);
	EXPECT_FALSE(FSlateApplication::Get().AnyMenusVisible());
}

TEST_F(WindowInput, MakesTheWindowActiveAgainThatWasItBefore)
{
	const TSharedRef<SWindow> Other = SNew(SWindow).CreateTitleBar(false).ClientSize(FVector2D(50, 50));
	FSlateApplication::Get().AddWindow(Other);
	ASSERT_TRUE(Other->IsActive());
	TellWindow(SDL_WINDOWEVENT_FOCUS_LOST);
	ASSERT_FALSE(Other->IsActive());
	TellWindow(SDL_WINDOWEVENT_FOCUS_GAINED);
	EXPECT_TRUE(Other->IsActive());
}

TEST_F(WindowInput, CollectsDroppedFilesUntilAllHaveCome)
{
	Drop(SDL_DROPBEGIN);
	Drop(SDL_DROPFILE, "/a.cube");
	EXPECT_EQ(Input->TakeDroppedFiles(), FNotes());
	Drop(SDL_DROPFILE, "/b.cube");
	Drop(SDL_DROPCOMPLETE);
	EXPECT_EQ(Input->TakeDroppedFiles(), FNotes({"/a.cube", "/b.cube"}));
	EXPECT_EQ(Input->TakeDroppedFiles(), FNotes());
}

TEST_F(WindowInput, LeavesOtherEventsToOthers)
{
	SDL_Event Event = {};
	Event.type = SDL_QUIT;
	EXPECT_FALSE(Input->Handle(Event));
	EXPECT_FALSE(TellWindow(SDL_WINDOWEVENT_RESIZED));
}
