// Copyright The Tintmill authors. All rights reserved.

#include "Widgets/SWindow.h"
#include "Application/SlateApplicationBase.h"
#include "Styling/CoreStyle.h"

SWindow::SWindow()
	: Type(EWindowType::Normal)
	, Style(nullptr)
	, SizingRule(ESizingRule::UserSized)
	, ScreenPosition(0.0f, 0.0f)
	, Size(0.0f, 0.0f)
	, DPIScaleFactor(1.0f)
	, bFocusWhenFirstShown(true)
	, bIsShown(false)
	, bIsDestroyed(false)
{}

SWindow::~SWindow() {}

void SWindow::Construct(const FArguments& InArgs)
{
	Type = InArgs._Type;
	Style = InArgs._Style != nullptr ? InArgs._Style : &FCoreStyle::Get().GetWidgetStyle<FWindowStyle>("Window");
	Title = InArgs._Title;
	SizingRule = InArgs._SizingRule;
	ScreenPosition = InArgs._ScreenPosition;
	Size = InArgs._ClientSize;
	bFocusWhenFirstShown = InArgs._FocusWhenFirstShown;
	ElementList = MakeShareable(new FSlateWindowElementList(SharedThis(this)));
	SetContent(InArgs._Content.Widget);
}

TSharedRef<SWindow> SWindow::MakeToolTipWindow()
{
	const TSharedRef<SWindow> Window = MakePopupWindow(FVector2D(0.0f, 0.0f), EWindowType::ToolTip);
	// The mouse never meets a tool tip.
	Window->SetVisibility(EVisibility::HitTestInvisible);
	return Window;
}

TSharedRef<SWindow> SWindow::MakePopupWindow(const FVector2D& InScreenPosition, EWindowType InType)
{
	return SNew(SWindow)
		.Type(InType)
		.AutoCenter(EAutoCenter::None)
		.ScreenPosition(InScreenPosition)
		.SizingRule(ESizingRule::Autosized)
		.FocusWhenFirstShown(false)
		.CreateTitleBar(false);
}

void SWindow::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

TSharedRef<SWidget> SWindow::GetContent()
{
	return ChildSlot.GetWidget();
}

FGeometry SWindow::GetWindowGeometryInScreen() const
{
	return FGeometry::MakeRoot(Size / DPIScaleFactor, FSlateLayoutTransform(DPIScaleFactor, ScreenPosition));
}

void SWindow::ReshapeWindow(FVector2D NewPosition, FVector2D NewSize)
{
	ScreenPosition = NewPosition;
	Size = NewSize;
}

void SWindow::ShowWindow()
{
	ensureMsgf(!bIsDestroyed, TEXT("A destroyed window cannot be shown."));
	bIsShown = !bIsDestroyed;
}

void SWindow::HideWindow()
{
	bIsShown = false;
}

bool SWindow::IsActive() const
{
	return FSlateApplicationBase::Get().GetActiveTopLevelWindow().Get() == this;
}

void SWindow::BringToFront(bool /*bForce*/)
{
	FSlateApplicationBase::Get().BringWindowToFront(SharedThis(this));
}

void SWindow::RequestDestroyWindow()
{
	if (RequestDestroyWindowOverride.IsBound())
	{
		RequestDestroyWindowOverride.Execute(SharedThis(this));
	}
	else
	{
		DestroyWindowImmediately();
	}
}

void SWindow::SetRequestDestroyWindowOverride(const FRequestDestroyWindowOverride& InRequestDestroyWindowOverride)
{
	RequestDestroyWindowOverride = InRequestDestroyWindowOverride;
}

void SWindow::DestroyWindowImmediately()
{
	FSlateApplicationBase::Get().RequestDestroyWindow(SharedThis(this));
}

void SWindow::AddChildWindow(const TSharedRef<SWindow>& ChildWindow)
{
	if (const TSharedPtr<SWindow> OldParent = ChildWindow->ParentWindowPtr.Pin())
	{
		OldParent->RemoveDescendantWindow(ChildWindow);
	}
	ChildWindow->ParentWindowPtr = SharedThis(this);
	ChildWindows.Add(ChildWindow);
}

bool SWindow::RemoveDescendantWindow(const TSharedRef<SWindow>& DescendantToRemove)
{
	if (ChildWindows.Remove(DescendantToRemove) > 0)
	{
		DescendantToRemove->ParentWindowPtr.Reset();
		return true;
	}
	for (int32 Index = 0; Index < ChildWindows.Num(); ++Index)
	{
		if (ChildWindows[Index]->RemoveDescendantWindow(DescendantToRemove))
		{
			return true;
		}
	}
	return false;
}

void SWindow::LayoutWindow()
{
	SlatePrepass(DPIScaleFactor);
	if (IsAutosized())
	{
		Size = GetDesiredSize() * DPIScaleFactor;
	}
}

int32 SWindow::PaintWindow(double InCurrentTime, float InDeltaTime)
{
	ElementList->ResetElementList();
	HittestGrid.Clear();
	const FPaintArgs Args(nullptr, HittestGrid, InCurrentTime, InDeltaTime);
	return Paint(Args, GetWindowGeometryInScreen(), GetRectInScreen(), *ElementList, 0, FWidgetStyle(), true);
}

void SWindow::NotifyWindowDestroyed()
{
	bIsDestroyed = true;
	bIsShown = false;
	const FOnWindowClosed Closed = OnWindowClosed;
	Closed.ExecuteIfBound(SharedThis(this));
}

void SWindow::NotifyActivated()
{
	WindowActivatedEvent.Broadcast();
}

void SWindow::NotifyDeactivated()
{
	WindowDeactivatedEvent.Broadcast();
}

int32 SWindow::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect,
	FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	// What a window shows ends at its edge.
	OutDrawElements.PushClip(FSlateClippingZone(AllottedGeometry));
	if (IsRegularWindow())
	{
		FSlateDrawElement::MakeBox(OutDrawElements, static_cast<uint32>(LayerId), AllottedGeometry.ToPaintGeometry(),
			&Style->BackgroundBrush, ESlateDrawEffect::None, Style->BackgroundBrush.GetTint(InWidgetStyle));
	}
	const int32 MaxLayerId =
		SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	OutDrawElements.PopClip();
	return MaxLayerId;
}
