// Copyright The Tintmill authors. All rights reserved.

#include "Framework/Application/Menu.h"
#include "Framework/Application/SlateApplication.h"

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

void FMenuBase::Place()
{
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
