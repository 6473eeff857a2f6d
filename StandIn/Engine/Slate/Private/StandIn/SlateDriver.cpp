// Copyright The Tintmill authors. All rights reserved.

#include "StandIn/SlateDriver.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Text/STextBlock.h"

namespace StandIn
{
namespace
{
const float TickLength = 1.0f / 60.0f;

FPointerEvent MakePointerEvent(const FVector2D& Position, const FKey& Button, float Wheel)
{
	FSlateApplication& Application = FSlateApplication::Get();
	return FPointerEvent(
		0, Position, Application.GetCursorPos(), Application.GetPressedMouseButtons(), Button, Wheel, Application.GetModifierKeys());
}

/** Visits shown widgets from the root down in the order of the tree until the visitor says true. */
template <typename VisitorType>
bool Visit(const TSharedRef<SWidget>& Widget, VisitorType& Visitor)
{
	if (!Widget->GetVisibility().IsVisible())
	{
		return false;
	}
	if (Visitor(Widget))
	{
		return true;
	}
	FChildren* Children = Widget->GetChildren();
	for (int32 Index = 0; Index < Children->Num(); ++Index)
	{
		if (Visit(Children->GetChildAt(Index), Visitor))
		{
			return true;
		}
	}
	return false;
}

template <typename PredicateType>
TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, PredicateType Predicate)
{
	TSharedPtr<SWidget> Found;
	auto Visitor = [&Found, &Predicate](const TSharedRef<SWidget>& Widget) {
		if (Predicate(Widget))
		{
			Found = Widget;
			return true;
		}
		return false;
	};
	Visit(Root, Visitor);
	return Found;
}

template <typename PredicateType>
TSharedPtr<SWidget> FindOnDesktop(PredicateType Predicate)
{
	TArray<TSharedRef<SWindow>> Windows;
	FSlateApplication::Get().GetAllVisibleWindowsOrdered(Windows);
	for (int32 Index = Windows.Num() - 1; Index >= 0; --Index)
	{
		if (const TSharedPtr<SWidget> Found = FindWidget(Windows[Index], Predicate))
		{
			return Found;
		}
	}
	return TSharedPtr<SWidget>();
}
}

void AdvanceTime(float Seconds)
{
	float Left = Seconds;
	do
	{
		const float Step = Left < TickLength ? Left : TickLength;
		FSlateApplication::Get().Tick(Step);
		Left -= Step;
	} while (Left > 1e-6f);
}

bool MoveMouse(const FVector2D& Position)
{
	return FSlateApplication::Get().ProcessMouseMoveEvent(MakePointerEvent(Position, FKey(), 0.0f));
}

bool PressMouse(const FKey& Button)
{
	FSlateApplication& Application = FSlateApplication::Get();
	return Application.ProcessMouseButtonDownEvent(
		TSharedPtr<FGenericWindow>(), MakePointerEvent(Application.GetCursorPos(), Button, 0.0f));
}

bool ReleaseMouse(const FKey& Button)
{
	FSlateApplication& Application = FSlateApplication::Get();
	return Application.ProcessMouseButtonUpEvent(MakePointerEvent(Application.GetCursorPos(), Button, 0.0f));
}

void ClickAt(const FVector2D& Position, const FKey& Button)
{
	MoveMouse(Position);
	AdvanceTime(0.0f);
	PressMouse(Button);
	AdvanceTime(0.0f);
	ReleaseMouse(Button);
	AdvanceTime(0.0f);
}

void DoubleClickAt(const FVector2D& Position)
{
	ClickAt(Position);
	FSlateApplication& Application = FSlateApplication::Get();
	Application.ProcessMouseButtonDoubleClickEvent(
		TSharedPtr<FGenericWindow>(), MakePointerEvent(Application.GetCursorPos(), EKeys::LeftMouseButton, 0.0f));
	AdvanceTime(0.0f);
	ReleaseMouse();
	AdvanceTime(0.0f);
}

bool TurnWheel(float Notches)
{
	FSlateApplication& Application = FSlateApplication::Get();
	return Application.ProcessMouseWheelOrGestureEvent(
		MakePointerEvent(Application.GetCursorPos(), EKeys::MouseWheelAxis, Notches), nullptr);
}

bool PressKey(const FKey& Key, bool bShift, bool bControl, bool bAlt)
{
	FSlateApplication& Application = FSlateApplication::Get();
	const FModifierKeysState Modifiers(bShift, false, bControl, false, bAlt, false, false, false, false);
	const bool bHandled = Application.ProcessKeyDownEvent(FKeyEvent(Key, Modifiers, 0, false, 0, 0));
	Application.ProcessKeyUpEvent(FKeyEvent(Key, FModifierKeysState(), 0, false, 0, 0));
	return bHandled;
}

void TypeText(const FString& Text)
{
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		FSlateApplication::Get().ProcessKeyCharEvent(FCharacterEvent(Text[Index], FModifierKeysState(), 0, false));
	}
}

FVector2D GetCenter(const TSharedRef<SWidget>& Widget)
{
	return Widget->GetCachedGeometry().GetLayoutBoundingRect().GetCenter();
}

void Click(const TSharedRef<SWidget>& Widget)
{
	ClickAt(GetCenter(Widget));
}

FString GetShownText(const TSharedRef<SWidget>& Widget)
{
	static const FName TextBlockType(TEXT("STextBlock"));
	static const FName EditableTextType(TEXT("SEditableText"));
	if (Widget->GetType() == TextBlockType)
	{
		return StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString();
	}
	if (Widget->GetType() == EditableTextType)
	{
		return StaticCastSharedRef<SEditableText>(Widget)->GetText().ToString();
	}
	return FString();
}

TSharedPtr<SWidget> FindWidgetOfType(const TSharedRef<SWidget>& Root, const FName& Type)
{
	return FindWidget(Root, [&Type](const TSharedRef<SWidget>& Widget) { return Widget->GetType() == Type; });
}

TSharedPtr<SWidget> FindText(const TSharedRef<SWidget>& Root, const FString& Text)
{
	return FindWidget(Root, [&Text](const TSharedRef<SWidget>& Widget) { return GetShownText(Widget) == Text && Text.Len() > 0; });
}

TSharedPtr<SWidget> FindTextOnDesktop(const FString& Text)
{
	return FindOnDesktop([&Text](const TSharedRef<SWidget>& Widget) { return GetShownText(Widget) == Text && Text.Len() > 0; });
}

TSharedPtr<SWidget> FindTag(const FName& Tag)
{
	return FindOnDesktop([&Tag](const TSharedRef<SWidget>& Widget) { return Widget->GetTag() == Tag; });
}

TArray<FString> CollectTexts(const TSharedRef<SWidget>& Root)
{
	TArray<FString> Texts;
	auto Visitor = [&Texts](const TSharedRef<SWidget>& Widget) {
		const FString Text = GetShownText(Widget);
		if (Text.Len() > 0)
		{
			Texts.Add(Text);
		}
		return false;
	};
	Visit(Root, Visitor);
	return Texts;
}
}
