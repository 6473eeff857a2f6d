// Copyright The Tintmill authors. All rights reserved.

#pragma once

#include "CoreMinimal.h"
#include "Framework/Application/IMenu.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"
#include "Layout/WidgetPath.h"
#include "StandIn/MenuRows.h"
#include "StandIn/ObjectSystem.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SWindow.h"
#include <gtest/gtest.h>

/** Object system for the length of a test. */
class FObjectSystemScope
{
public:
	FObjectSystemScope() { StandIn::StartObjectSystem(); }
	~FObjectSystemScope() { StandIn::ShutdownObjectSystem(); }
};

/** A person with a mouse and a keyboard in front of an application with one window and its menus. */
class FMenuUser
{
public:
	/** Makes an application for the length of the test, or uses the one that is there. */
	explicit FMenuUser(const bool bInOwnsApplication = true)
		: bOwnsApplication(bInOwnsApplication)
	{
		if (bOwnsApplication)
		{
			FSlateApplication::Create();
		}
		Anchor = SNew(SBox);
		Window =
			SNew(SWindow).CreateTitleBar(false).ClientSize(FVector2D(1200.0f, 900.0f)).AutoCenter(EAutoCenter::None)[Anchor.ToSharedRef()];
		FSlateApplication::Get().AddWindow(Window.ToSharedRef());
		Wait(0.0f);
	}

	~FMenuUser()
	{
		Anchor.Reset();
		if (bOwnsApplication)
		{
			Window.Reset();
			FSlateApplication::Shutdown();
		}
		else if (FSlateApplication::IsInitialized())
		{
			FSlateApplication::Get().DestroyWindowImmediately(Window.ToSharedRef());
		}
	}

	/** Puts a widget into the window itself. */
	void Show(const TSharedRef<SWidget>& Widget)
	{
		Window->SetContent(Widget);
		Anchor = Widget;
		Wait(0.0f);
	}

	/** Pops a menu up. */
	TSharedPtr<IMenu> Open(const TSharedRef<SWidget>& Content)
	{
		TSharedPtr<IMenu> Menu = FSlateApplication::Get().PushMenu(Anchor.ToSharedRef(), FWidgetPath(), Content, FVector2D(20.0f, 20.0f),
			FPopupTransitionEffect(FPopupTransitionEffect::ContextMenu));
		Wait(0.0f);
		return Menu;
	}

	/** Lets time pass, in seconds, and paints. */
	void Wait(const float Seconds) { FSlateApplication::Get().Tick(Seconds); }

	/** Number of open menus, submenus included. */
	int32 CountMenus() const { return FSlateApplication::Get().GetMenuStack().GetNumStackLevels(); }

	/** Content of an open menu; 0 is the first one. */
	TSharedPtr<SWidget> GetMenu(const int32 Level) const
	{
		const TSharedPtr<IMenu> Menu = FSlateApplication::Get().GetMenuStack().GetMenu(Level);
		return Menu.IsValid() ? Menu->GetContent() : TSharedPtr<SWidget>();
	}

	/** Rows of an open menu. */
	TArray<StandIn::FMenuRow> GetRows(const int32 Level = 0) const
	{
		const TSharedPtr<SWidget> Menu = GetMenu(Level);
		return Menu.IsValid() ? StandIn::ListMenuRows(Menu.ToSharedRef()) : TArray<StandIn::FMenuRow>();
	}

	/** Labels of the rows of an open menu, separated by "|". */
	FString GetLabels(const int32 Level = 0) const
	{
		FString Labels;
		for (const StandIn::FMenuRow& Row : GetRows(Level))
		{
			Labels += (Labels.IsEmpty() ? TEXT("") : TEXT("|")) + Row.Label;
		}
		return Labels;
	}

	/** Headings of an open menu, separated by "|". */
	FString GetHeadings(const int32 Level = 0) const
	{
		FString Text;
		const TSharedPtr<SWidget> Menu = GetMenu(Level);
		for (const FString& Heading : Menu.IsValid() ? StandIn::ListMenuHeadings(Menu.ToSharedRef()) : TArray<FString>())
		{
			Text += (Text.IsEmpty() ? TEXT("") : TEXT("|")) + Heading;
		}
		return Text;
	}

	/** The row of a label in any open menu, the last opened first; a row without widget if there is none. */
	StandIn::FMenuRow FindRow(const TCHAR* Label) const
	{
		for (int32 Level = CountMenus() - 1; Level >= 0; --Level)
		{
			for (const StandIn::FMenuRow& Row : GetRows(Level))
			{
				if (Row.Label == Label)
				{
					return Row;
				}
			}
		}
		ADD_FAILURE() << "no such row";
		return StandIn::FMenuRow();
	}

	/** Moves the mouse and lets the menus draw. */
	void MoveTo(const FVector2D& Position)
	{
		FSlateApplication::Get().ProcessMouseMoveEvent(MakeEvent(Position, FKey()));
		Cursor = Position;
		Wait(0.0f);
	}

	/** Moves the mouse over a row. */
	void Hover(const TCHAR* Label) { MoveTo(FindRow(Label).Centre); }

	/** Presses and releases the left button at a place. */
	void ClickAt(const FVector2D& Position)
	{
		MoveTo(Position);
		PressAndRelease(EKeys::LeftMouseButton);
	}

	/** Presses and releases a button where the mouse is. */
	void PressAndRelease(const FKey Button)
	{
		Pressed.Add(Button);
		FSlateApplication::Get().ProcessMouseButtonDownEvent(nullptr, MakeEvent(Cursor, Button));
		Pressed.Remove(Button);
		FSlateApplication::Get().ProcessMouseButtonUpEvent(MakeEvent(Cursor, Button));
		Wait(0.0f);
	}

	/** Clicks a row. */
	void Click(const TCHAR* Label) { ClickAt(FindRow(Label).Centre); }

	/** Clicks the check column of a row. */
	void ClickCheck(const TCHAR* Label) { ClickAt(FindRow(Label).CheckCentre); }

	/** Turns the wheel where the mouse is. */
	void Wheel(const float Delta)
	{
		const FPointerEvent Event(0, Cursor, Cursor, Pressed, FKey(), Delta, FModifierKeysState());
		FSlateApplication::Get().ProcessMouseWheelOrGestureEvent(Event, nullptr);
		Wait(0.0f);
	}

	/** Presses and releases a key. */
	void Press(const FKey Key)
	{
		const FKeyEvent Event(Key, FModifierKeysState(), 0, false, 0, 0);
		FSlateApplication::Get().ProcessKeyDownEvent(Event);
		FSlateApplication::Get().ProcessKeyUpEvent(Event);
		Wait(0.0f);
	}

	/** Types text. */
	void Type(const TCHAR* Text)
	{
		for (; *Text; ++Text)
		{
			FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(*Text, FModifierKeysState(), 0, false));
		}
		Wait(0.0f);
	}

	TSharedPtr<SWindow> Window;
	TSharedPtr<SWidget> Anchor;
	FVector2D Cursor = FVector2D(0.0f, 0.0f);

private:
	FPointerEvent MakeEvent(const FVector2D& Position, const FKey Button) const
	{
		return FPointerEvent(0, Position, Cursor, Pressed, Button, 0.0f, FModifierKeysState());
	}

	TSet<FKey> Pressed;
	bool bOwnsApplication;
};

/** Comparison of engine strings with a readable message. */
inline ::testing::AssertionResult IsText(const FString& Actual, const TCHAR* Expected)
{
	if (Actual == Expected)
	{
		return ::testing::AssertionSuccess();
	}
	return ::testing::AssertionFailure() << TCHAR_TO_UTF8(*Actual) << " is not " << TCHAR_TO_UTF8(Expected);
}
