// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/Menu.h"
#include "Framework/Application/SlateApplication.h"

namespace
{
/** The height below which a menu would rather cover what it came from, in Slate units. */
const float MinMenuHeight = 48.0f;
}

FMenuBase::FMenuBase(const TSharedRef<SWidget>& InContent, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWindow>& InParentWindow,
	const FSlateRect& InAnchor, EOrientation InOrientation, bool bInIsCollapsedByParent)
	: Content(InContent)
	, Window(InWindow)
	, ParentWindow(InParentWindow)
	, Anchor(InAnchor)
	, Orientation(InOrientation)
	, bIsCollapsedByParent(bInIsCollapsedByParent)
{}

void FMenuBase::Dismiss()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().DismissMenu(AsShared());
	}
}

FSlateRect FMenuBase::GetWorkArea() const
{
	return FSlateApplication::Get().GetWorkArea(Anchor);
}

void FMenuBase::Place()
{
	PlacedIn = GetWorkArea();
	LayOut(PlacedIn.GetSize());
	const FSlateRect Covered = Window->GetRectInScreen().IntersectionWith(Anchor);
	const float Room = FMath::Max(Anchor.Top - PlacedIn.Top, PlacedIn.Bottom - Anchor.Bottom);
	if (Covered.GetSize().X > 0.0f && Covered.GetSize().Y > 0.0f && Room >= MinMenuHeight * Window->GetDPIScaleFactor())
	{
		// What the menu came from stays in sight, and a resting mouse off the menu's rows; the menu is scrolled.
		LayOut(FVector2D(PlacedIn.GetSize().X, Room));
	}
}

void FMenuBase::LayOut(const FVector2D& MaxSize)
{
	Window->SetSizeLimits(FWindowSizeLimits().SetMaxWidth(MaxSize.X).SetMaxHeight(MaxSize.Y));
	Window->LayoutWindow();
	Window->MoveWindowTo(
		FSlateApplication::Get().CalculatePopupWindowPosition(Anchor, Window->GetSizeInScreen(), true, FVector2D(0.0f, 0.0f), Orientation));
}

void FMenuBase::NotifyDismissed()
{
	const TSharedRef<IMenu> KeepAlive = AsShared();
	Content.Reset();
	Window.Reset();
	MenuDismissed.Broadcast(KeepAlive);
}

void SMenuContentWrapper::Construct(const FArguments& InArgs)
{
	ChildSlot[InArgs._MenuContent.Widget];
}

FReply SMenuContentWrapper::OnKeyDown(const FGeometry& /*MyGeometry*/, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::Escape)
	{
		FMenuStack& MenuStack = FSlateApplication::Get().GetMenuStack();
		MenuStack.DismissFrom(MenuStack.GetNumStackLevels() - 1);
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

void SMenuContentWrapper::OnFocusChanging(
	const FWeakWidgetPath& /*PreviousFocusPath*/, const FWidgetPath& NewWidgetPath, const FFocusEvent& /*InFocusEvent*/)
{
	if (!NewWidgetPath.ContainsWidget(this))
	{
		FSlateApplication::Get().GetMenuStack().OnMenuContentLostFocus(NewWidgetPath);
	}
}
