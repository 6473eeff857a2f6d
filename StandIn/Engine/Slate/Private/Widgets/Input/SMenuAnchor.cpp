// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/Input/SMenuAnchor.h"
#include "Framework/Application/SlateApplication.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

SMenuAnchor::SMenuAnchor()
	: Child(this)
	, bIsCollapsedByParent(false)
	, bDismissedThisTick(false)
{}

SMenuAnchor::~SMenuAnchor()
{
	if (const TSharedPtr<IMenu> Menu = PopupMenuPtr.Pin())
	{
		Menu->GetOnMenuDismissed().RemoveAll(this);
		Menu->Dismiss();
	}
}

void SMenuAnchor::Construct(const FArguments& InArgs)
{
	Child[InArgs._Content.Widget];
	MenuContent = InArgs._MenuContent;
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	Placement = InArgs._Placement;
	Method = InArgs._Method;
	bIsCollapsedByParent = InArgs._IsCollapsedByParent;
}

void SMenuAnchor::SetContent(TSharedRef<SWidget> InContent)
{
	Child[InContent];
}

void SMenuAnchor::SetMenuContent(TSharedRef<SWidget> InMenuContent)
{
	MenuContent = InMenuContent;
}

void SMenuAnchor::SetIsOpen(bool InIsOpen, const bool bFocusMenu, const int32 /*FocusUserIndex*/)
{
	if (IsOpen() == InIsOpen)
	{
		return;
	}
	if (!InIsOpen)
	{
		// Told of the closing like of any other.
		PopupMenuPtr.Pin()->Dismiss();
		return;
	}
	if (OnGetMenuContent.IsBound())
	{
		SetMenuContent(OnGetMenuContent.Execute());
	}
	if (!MenuContent.IsValid())
	{
		return;
	}
	FSlateApplication& Application = FSlateApplication::Get();
	FWidgetPath MyPath;
	if (!Application.GeneratePathToWidgetUnchecked(AsShared(), MyPath))
	{
		return;
	}
	const FGeometry& MyGeometry = MyPath.Widgets.Last().Geometry;
	const FVector2D Position = MyGeometry.GetAbsolutePosition();
	const FVector2D Size = MyGeometry.GetAbsoluteSize();
	const EMenuPlacement MenuPlacement = Placement.Get();
	const bool bBeside = MenuPlacement == MenuPlacement_MenuRight || MenuPlacement == MenuPlacement_MenuLeft;

	FVector2D SummonLocation = Position;
	if (MenuPlacement == MenuPlacement_CenteredBelowAnchor || MenuPlacement == MenuPlacement_BelowRightAnchor)
	{
		MenuContent->SlatePrepass(MyGeometry.Scale);
		const float Spare = Size.X - MenuContent->GetDesiredSize().X * MyGeometry.Scale;
		SummonLocation.X += MenuPlacement == MenuPlacement_BelowRightAnchor ? Spare : Spare / 2.0f;
	}
	const FPopupTransitionEffect Effect(bBeside ? FPopupTransitionEffect::SubMenu : FPopupTransitionEffect::ComboButton);
	const TSharedPtr<IMenu> Menu = Application.PushMenu(
		AsShared(), MyPath, MenuContent.ToSharedRef(), SummonLocation, Effect, bFocusMenu, Size, Method, bIsCollapsedByParent);
	if (ensure(Menu.IsValid()))
	{
		PopupMenuPtr = Menu;
		Menu->GetOnMenuDismissed().AddSP(this, &SMenuAnchor::OnMenuClosed);
		OnMenuOpenChanged.ExecuteIfBound(true);
	}
}

bool SMenuAnchor::IsOpen() const
{
	const TSharedPtr<IMenu> Menu = PopupMenuPtr.Pin();
	return Menu.IsValid() && Menu->GetContent().IsValid();
}

bool SMenuAnchor::HasOpenSubMenus() const
{
	return IsOpen() && FSlateApplication::Get().HasOpenSubMenus(PopupMenuPtr.Pin());
}

FVector2D SMenuAnchor::GetMenuPosition() const
{
	return IsOpen() ? PopupMenuPtr.Pin()->GetOwnedWindow()->GetPositionInScreen() : FVector2D(0.0f, 0.0f);
}

void SMenuAnchor::Tick(const FGeometry& /*AllottedGeometry*/, const double /*InCurrentTime*/, const float /*InDeltaTime*/)
{
	bDismissedThisTick = false;
}

void SMenuAnchor::OnMenuClosed(TSharedRef<IMenu> InMenu)
{
	bDismissedThisTick = true;
	if (PopupMenuPtr.Pin() == InMenu)
	{
		PopupMenuPtr.Reset();
		if (OnGetMenuContent.IsBound())
		{
			// Asked for anew at each opening; the old content need not stay.
			MenuContent.Reset();
		}
		OnMenuOpenChanged.ExecuteIfBound(false);
	}
}

void SMenuAnchor::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const EVisibility ChildVisibility = Child.GetWidget()->GetVisibility();
	if (ArrangedChildren.Accepts(ChildVisibility))
	{
		const FMargin Padding = Child.SlotPadding.Get();
		const FVector2D Size = AllottedGeometry.GetLocalSize();
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Size.X, Child, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Size.Y, Child, Padding);
		ArrangedChildren.AddWidget(
			ChildVisibility, AllottedGeometry.MakeChild(Child.GetWidget(), FVector2D(X.Offset, Y.Offset), FVector2D(X.Size, Y.Size)));
	}
}

FVector2D SMenuAnchor::ComputeDesiredSize(float /*LayoutScaleMultiplier*/) const
{
	return Child.GetWidget()->GetVisibility() == EVisibility::Collapsed ? FVector2D(0.0f, 0.0f) : Child.GetWidget()->GetDesiredSize();
}
